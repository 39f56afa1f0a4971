// The spells on one item, or on one creature.
#pragma once

#include <tsl/ordered_map.h>

#include <cstdint>
#include <string>

#include "spells/SpellInfo.h"

namespace ombrel {

class SpellItemInfo {
public:
    // Files a spell under its family. A weaker one doesn't replace a stronger one; an equal one renews it.
    void AddSpell(std::int32_t family, SpellInfoPtr spell);
    void RemoveSpell(std::int32_t family);
    SpellInfoPtr GetSpell(std::int32_t family) const;  // nothing when there is none

    tsl::ordered_map<std::int32_t, SpellInfoPtr> Spells;  // by family, in the order of filing
};

}  // namespace ombrel
