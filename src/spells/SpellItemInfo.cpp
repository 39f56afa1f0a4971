#include "spells/SpellItemInfo.h"

namespace ombrel {

void SpellItemInfo::AddSpell(std::int32_t family, SpellInfoPtr spell) {
    auto [entry, added] = Spells.try_emplace(family, spell);
    if (!added && entry->second->difficulty <= spell->difficulty) entry.value() = std::move(spell);
}

void SpellItemInfo::RemoveSpell(std::int32_t family) { Spells.erase(family); }

SpellInfoPtr SpellItemInfo::GetSpell(std::int32_t family) const {
    const auto entry = Spells.find(family);
    return entry == Spells.end() ? nullptr : entry->second;
}

}  // namespace ombrel
