// What is running out on the character: enchantments, spells on items, cooldowns.
//
// The picture is rebuilt from the host when something has changed, and counted down each second from the stored moments
// of expiry without asking the host. From it come the two lists of the view, the tracked time, the warnings, and the
// gems and beers that keep buffs up.
#pragma once

#include <tsl/ordered_map.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "host/CharacterStats.h"
#include "host/Types.h"
#include "spells/SpellInfo.h"
#include "spells/SpellItemInfo.h"

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

    // Asks for a build at the next second, so that a burst of events costs one.
    void RebuildList(bool rebuild) { bRebuildList = rebuild; }
    // Each augmentation of this kind lengthens a spell cast on an item by a fifth.
    void Augs(std::int32_t count) { lAugs = count; }

    // A spell was cast on an item. The item must be in the packs, or "your armor." for all of it together.
    void AddItemSpell(const std::string& spellname, const std::string& sTarget);
    void AddItemSpellfromData(std::int32_t spell, std::int32_t remaining, const std::string& sTarget);
    void RemoveItemSpell(const std::string& sTarget, std::int32_t family);

    void DrinkAllBeers();  // one of each that the player has ticked, now

    tsl::ordered_map<std::string, SpellItemInfo> ItemSpells;           // by item name
    std::vector<SpellInfoPtr> AllSpells;                               // soonest to run out first
    tsl::ordered_map<std::int32_t, host::Enchantment> CooldownTimers;  // by negative spell id
    host::Id lFavor = -1;
    host::Id lBenediction = -1;
    host::Id lLesserBenediction = -1;
    std::int32_t LowBeer = 99999;  // shortest time left of a ticked beer; 99999 when none runs
    bool bRebuildList = false;
    std::int32_t lAugs = 0;
    std::string NextSpell;  // the next buff to run out, as the lists show it

    static constexpr std::size_t kBeers = 6;

private:
    SpellInfoPtr FromEnchantment(const host::Enchantment& enchantment, std::int32_t now);
    std::vector<SpellInfoPtr> ReadEnchantments(std::int32_t now);
    void TakeItemSpells(std::int32_t now, std::vector<SpellInfoPtr>& spells);
    void FileItemSpell(SpellInfoPtr spell);
    void FindNextSpell();
    std::int32_t CountDown(std::int32_t now);
    std::int32_t ShowTracked(std::int32_t noted, bool selected);
    void WarnOfExpiry(std::int32_t selectedTime);
    void HandleGems(bool needFavor, bool needBenediction, bool needLesser);
    void HandleBeers(std::int32_t selectedTime);
    void AddBeer(const std::string& name);

    std::array<std::int32_t, kBeers> beer_remaining_{};  // seconds, 0 for one that doesn't run
    std::array<std::int32_t, kBeers> beer_wait_{};       // passes before it may be ordered again
};

}  // namespace ombrel
