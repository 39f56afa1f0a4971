// What is running out on the character: enchantments, spells on items, cooldowns.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

class SpellHandler {
public:
    SpellHandler();
    ~SpellHandler();
    SpellHandler(const SpellHandler&) = delete;
    SpellHandler& operator=(const SpellHandler&) = delete;

    void InitSpells();       // at login: looks for the gems in the packs
    void BuildSpellList();   // from the host, at once
    void UpdateSpellList();  // each second
    void RebuildList(bool rebuild) { rebuild_ = rebuild; }  // asks for a build at the next second
    void Augs(std::int32_t count) { augs_ = count; }        // augmentations that lengthen spells

    std::int32_t ItemSpellCount() const { return 0; }  // items with tracked spells

private:
    bool rebuild_ = false;
    std::int32_t augs_ = 0;
};

}  // namespace ombrel
