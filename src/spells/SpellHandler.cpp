#include "spells/SpellHandler.h"

#include "core/Hub.h"

namespace ombrel {

SpellHandler::SpellHandler() { wtcw_debug("Spell Handler Init"); }

SpellHandler::~SpellHandler() { wtcw_debug("Spell Handler Terminate"); }

void SpellHandler::InitSpells() {}
void SpellHandler::BuildSpellList() {}
void SpellHandler::UpdateSpellList() {}

}  // namespace ombrel
