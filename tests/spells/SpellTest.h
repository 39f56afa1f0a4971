// A character in the world who knows the game's spells, and words for what runs out.
#pragma once

#include <string>
#include <vector>

#include "chat/ChatTextHandler.h"
#include "config/ControlHandler.h"
#include "spells/SpellHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {

// Spells of the shipped table.
namespace spell {
constexpr std::int32_t kStrengthI = 2, kStrengthVI = 1332, kMight = 2087, kZongosFist = 3864;  // one family
constexpr std::int32_t kArmorI = 24, kArmorVI = 1312;
constexpr std::int32_t kFocusVI = 1426;
constexpr std::int32_t kImperilVI = 1327, kWeaknessVI = 1343;  // debuffs
constexpr std::int32_t kMajorCoordination = 2572;
constexpr std::int32_t kImpenetrabilityI = 51, kImpenetrabilityVI = 1486, kBladeBaneVI = 1562;
constexpr std::int32_t kBenediction = 3810, kFavor = 3811, kLesserBenediction = 4024;
constexpr std::int32_t kKetnansEye = 3530;
constexpr std::int32_t kBenedictionCooldown = -32766, kFavorCooldown = -32765;
}  // namespace spell

class SpellTest : public PluginTest {
protected:
    void SetUp() override {
        client.LoadSpells(SpellTablePath());
        LogIn();
        Vars::ChatTextHandler->SetTargetList(0, 32, true);  // our own lines to the main window
        Forget();
    }

    static SpellHandler& spells() { return *Vars::SpellHandler; }

    // Adds a spell to the game's table.
    void Know(std::int32_t id, const std::string& name, std::int32_t family = 0, std::int32_t difficulty = 0,
              double duration = 0.0, std::int32_t flags = 0) {
        sim::SpellRow row;
        row.ID = id;
        row.Name = name;
        row.Effect = family;
        row.Diff = difficulty;
        row.Duration = duration;
        row.Flags = flags;
        client.spells.Put(row);
    }

    // Puts a spell on the character in place of the same one before. 0 seconds: one that doesn't end.
    void Cast(std::int32_t id, double seconds) {
        Drop(id);
        const auto row = client.spells.ByID(id);
        client.Enchant(id, seconds, row ? row->Effect : 0);
        client.ChangeEnchantments(1, {});
    }

    void Drop(std::int32_t id) {
        std::erase_if(client.enchantments, [id](const auto& entry) { return entry.SpellID == id; });
        client.ChangeEnchantments(2, {});
    }

    // The rows of a list as "name time".
    static std::vector<std::string> Rows(const host::List& list) {
        std::vector<std::string> rows;
        for (std::int32_t row = 0; row < list.Count(); ++row)
            rows.push_back(std::get<std::string>(list.Data(1, row)) + " " + std::get<std::string>(list.Data(2, row)));
        return rows;
    }
    static std::vector<std::string> Buffs() { return Rows(*options().BuffList); }
    static std::vector<std::string> Debuffs() { return Rows(*options().DebuffList); }
    static std::string Tracked() { return options().SpellsTracked->Text(); }
};

}  // namespace ombrel::test
