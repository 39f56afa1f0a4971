// A tracked spell.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace ombrel {

struct SpellInfo {
    std::string Name;
    std::int32_t spellid = 0;
    std::int32_t family = 0;
    std::int32_t difficulty = 0;
    std::int32_t timeRemaining = 0;  // seconds; -1 or, in the sorted list, 0 for a spell that doesn't end
    std::int32_t finish = 0;         // moment of expiry, -1 for a spell that doesn't end
    bool Debuff = false;
    std::string sTarget;  // the item that carries the spell, empty for the character
    std::int32_t lngIcon = 0;
};

// The sorted list and the store of item spells hold the same record, so that what counts down in one is saved from the
// other.
using SpellInfoPtr = std::shared_ptr<SpellInfo>;

}  // namespace ombrel
