#include "hud/TargetRows.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/text.h"
#include "hud/Modifiers.h"
#include "hud/Requirements.h"
#include "spells/SpellFilterHandler.h"
#include "stats/NetEchoHandler.h"

namespace ombrel::target {
namespace {

// Rows that several classes share.

std::string Burden(const Reading& reading) { return FormatCount(reading.Long(key::kBurden), false) + "bu"; }

std::string Flags(const Reading& reading) {
    std::string flags;
    if (reading.Long(key::kAttuned) != 0) flags += "A ";
    if (reading.Long(key::kBonded) != 0) flags += "B ";
    if (reading.Bool(bool_key::kDyeable)) flags += "D ";
    if (reading.Bool(bool_key::kIvoryable)) flags += "I ";
    if (reading.Bool(bool_key::kRetained)) flags += "R ";
    if (reading.Long(key::kUnenchantable) != 0) flags += "U ";
    return std::string(Trim(flags));
}

std::string Attributes(Reading& reading) {
    std::string text = FormatCount(reading.Long(key::kValue), false) + "p, " + Burden(reading);
    if (const std::string flags = Flags(reading); !flags.empty()) text += ", " + flags;
    return text + WieldReq(reading);
}

// An item without spells has no mana.
std::string Mana(Reading& reading) {
    if (reading.Long(key::kMostMana) == 0) return {};
    const std::string needs = ActivationReq(reading);
    const std::string mana = fmt::format("{}m", reading.Long(key::kManaNow));
    return needs.empty() ? mana : needs.substr(std::string_view(", ").size()) + ", " + mana;
}

// The best of the spells that the server has told of.
std::string Spells(Reading&) {
    std::string text;
    for (const std::string_view name : Split(Vars::NetEchoHandler->TargetSpells, ";")) {
        if (!Contains(name, "Major") && !Contains(name, "Epic")) continue;
        if (!text.empty()) text += ", ";
        text += name;
    }
    return text;
}

std::string Tinkering(const Reading& reading) {
    return fmt::format("Wk {}, Tk {}", reading.Long(key::kWorkmanship), reading.Long(key::kTinks));
}

std::string Workmanship(Reading& reading) { return Tinkering(reading); }

std::string Lock(Reading& reading) {
    if (reading.Bool(bool_key::kOpen)) return "Open";
    if (!reading.Bool(bool_key::kLocked)) return "Unlocked";
    return fmt::format("Locked, Diff {}", reading.Long(key::kLockDifficulty));
}

std::string Uses(Reading& reading) {
    return fmt::format("{}/{}", reading.Long(key::kUsesLeft), reading.Long(key::kMostUses));
}

// Rows of one class.

std::string Damage(Reading& reading) {
    const std::int32_t maximum = reading.Long(key::kMaximumDamage);
    const double minimum = Round((1 - reading.Double(double_key::kVariance)) * maximum, 2);
    return fmt::format("{}-{}{}, {}", NumberText(minimum), maximum, ModifiersText(reading), Tinkering(reading));
}

std::string MissileDamage(Reading& reading) {
    return fmt::format("{} {}%[{}]{}, {}", reading.Long(key::kMaximumDamage),
                       PercentText(reading.Double(double_key::kDamageMultiplier)), reading.Long(key::kElementalBonus),
                       ModifiersText(reading), Tinkering(reading));
}

std::string CasterDamage(Reading& reading) {
    const std::string bonus = BonusText(reading.Double(double_key::kElementalDamage, -1.0));
    return fmt::format("{}%{}, {}", bonus.empty() ? "0" : bonus, CasterModifiersText(reading), Tinkering(reading));
}

std::string Armor(Reading& reading) {
    return fmt::format("AL {}, {}", reading.Long(key::kArmorLevel), Tinkering(reading));
}

std::string Level(Reading& reading) {
    const std::int32_t level = reading.Long(key::kLevel);
    return level == 0 ? std::string() : fmt::format("Level {}", level);
}

std::string Restores(Reading& reading) {
    const std::int32_t amount = reading.Long(key::kRestoredAmount);
    switch (reading.Long(key::kRestoredVital)) {
        case 2:
            return fmt::format("Health {}", amount);
        case 4:
            return fmt::format("Stamina {}", amount);
        case 6:
            return fmt::format("Mana {}", amount);
        default:
            return {};
    }
}

std::string Casts(Reading& reading) {
    const std::int32_t spell = reading.Long(key::kSpell);
    return spell == 0 ? std::string() : "Casts " + Vars::SpellFilterHandler->GetName(spell);
}

// What a portal doesn't allow; nothing behind the "No" for kinds that have no word here.
std::string PortalLimits(std::int32_t kind) {
    switch (kind) {
        case 49:
            return "Rec/Tie/Sum";
        case 17:
            return "Sum";
        case 33:
            return "Rec/Tie";
        default:
            return {};
    }
}

std::string Portal(Reading& reading) {
    const std::int32_t low = reading.Long(key::kLowestLevel);
    const std::int32_t high = reading.Long(key::kHighestLevel);
    std::string text = "None";
    if (low > 0 && high > 0)
        text = fmt::format("Level {}-{}", low, high);
    else if (low > 0)
        text = fmt::format("Level {}+", low);
    else if (high > 0)
        text = fmt::format("Level <{}", high);
    if (reading.Long(key::kTimeOfDay) != 0) text += ", TOD";
    if (const std::int32_t kind = reading.Long(key::kPortalKind); kind > 1) text += " No " + PortalLimits(kind);
    return text;
}

std::string ManaStone(Reading& reading) {
    return fmt::format("{}, {}% T, {}% D", reading.Long(key::kManaNow),
                       PercentText(reading.Double(double_key::kEfficiency)),
                       PercentText(reading.Double(double_key::kDestroyChance)));
}

std::string CorpseBurden(Reading& reading) { return Burden(reading); }

std::string Healing(Reading& reading) {
    return fmt::format("{}, {}%, +{} Heal", Uses(reading), PercentText(reading.Double(double_key::kHealingBonus)),
                       reading.Long(key::kRestoredAmount));
}

std::string Salvage(Reading& reading) {
    return fmt::format("Wk {}, From {}", NumberText(Round(reading.Double(double_key::kSalvageWorkmanship))),
                       reading.Long(key::kSalvagedItems));
}

// Classes of objects, as the framework numbers them.
enum Class : std::int32_t {
    kUnknown = 0,
    kMeleeWeapon = 1,
    kArmor = 2,
    kClothing = 3,
    kJewelry = 4,
    kMonster = 5,
    kFood = 6,
    kMissileWeapon = 9,
    kContainer = 10,
    kGem = 11,
    kPortal = 14,
    kManaStone = 16,
    kPlayer = 24,
    kVendor = 25,
    kDoor = 26,
    kCorpse = 27,
    kLifestone = 28,
    kHealingKit = 29,
    kLockpick = 30,
    kWand = 31,
    kSign = 35,
    kNpc = 37,
    kSalvage = 39,
    kUst = 40,
    kServices = 41,
};

struct ClassRows {
    Class object_class;
    std::array<RowText, kMostRows> rows;  // the rest is empty
    bool health = false;
};

constexpr ClassRows kClasses[] = {
    {kUnknown, {}},
    {kMeleeWeapon, {Attributes, Damage, Mana, Spells}},
    {kArmor, {Attributes, Armor, Mana, Spells}},
    {kClothing, {Attributes, Armor, Mana, Spells}},
    {kJewelry, {Attributes, Workmanship, Mana, Spells}},
    {kMonster, {Level}, true},
    {kFood, {Attributes, Restores, Casts}},
    {kMissileWeapon, {Attributes, MissileDamage, Mana, Spells}},
    {kContainer, {Attributes, Lock}},
    {kGem, {Attributes, Workmanship, Mana, Spells}},
    {kPortal, {Portal}},
    {kManaStone, {Attributes, ManaStone}},
    {kPlayer, {Level}, true},
    {kVendor, {Level}, true},
    {kDoor, {Lock}},
    {kCorpse, {CorpseBurden}},
    {kLifestone, {}},
    {kHealingKit, {Attributes, Healing}},
    {kLockpick, {Attributes, Uses}},
    {kWand, {Attributes, CasterDamage, Mana, Spells}},
    {kSign, {}},
    {kNpc, {Level}, true},
    {kSalvage, {Attributes, Salvage}},
    {kUst, {}},
    {kServices, {}},
};

// Things that the table doesn't name: money, components, keys, books, scrolls and the like.
constexpr ClassRows kOther{kUnknown, {Attributes}};

const ClassRows& Find(std::int32_t object_class) {
    const auto* found = std::ranges::find(kClasses, object_class, &ClassRows::object_class);
    return found == std::end(kClasses) ? kOther : *found;
}

}  // namespace

std::span<const RowText> RowsOf(std::int32_t object_class) {
    const auto& rows = Find(object_class).rows;
    return {rows.begin(), std::ranges::find(rows, nullptr)};
}

bool HasHealth(std::int32_t object_class) { return Find(object_class).health; }

std::string NameText(const Reading& reading) {
    std::string name = reading.object.Name();
    const std::int32_t count = reading.Long(host::key::kStackCount);
    if (count < 2) return name;
    std::string plural = reading.object.String(text_key::kPlural, "");
    if (plural.empty()) plural = name + (name.ends_with('s') ? "es" : "s");
    return fmt::format("{} {}", count, plural);
}

}  // namespace ombrel::target
