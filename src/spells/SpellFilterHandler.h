// The one door to the game's spell table. A spell that the table lacks is a normal case with an answer of its own.
#pragma once

#include <cstdint>
#include <string>

#include "core/Ref.h"
#include "host/Spells.h"

namespace ombrel {

class SpellFilterHandler {
public:
    SpellFilterHandler();
    ~SpellFilterHandler();
    SpellFilterHandler(const SpellFilterHandler&) = delete;
    SpellFilterHandler& operator=(const SpellFilterHandler&) = delete;

    std::int32_t GetID(const std::string& name);       // -1 when it is not known
    std::string GetName(std::int32_t id);              // "Unknown " and the number when it is not known
    std::int32_t GetDifficulty(std::int32_t id);       // power level, -1 when it is not known

    Owned<host::Spells> SpellFilter;
};

}  // namespace ombrel
