#include "spells/SpellFilterHandler.h"

#include "core/Hub.h"

namespace ombrel {

SpellFilterHandler::SpellFilterHandler() { wtcw_debug("Spell Filter Handler Init"); }

SpellFilterHandler::~SpellFilterHandler() { wtcw_debug("Spell Filter Handler Terminate"); }

std::int32_t SpellFilterHandler::GetID(const std::string&) { return -1; }
std::string SpellFilterHandler::GetName(std::int32_t) { return {}; }
std::int32_t SpellFilterHandler::GetDifficulty(std::int32_t) { return -1; }

}  // namespace ombrel
