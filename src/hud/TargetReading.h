// What the rows of a target's card read of its object: the game's property keys, and the values under them.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/World.h"

namespace ombrel::target {

// Whole numbers.
namespace key {
constexpr std::int32_t kBurden = 5;
constexpr std::int32_t kValue = 19;
constexpr std::int32_t kLevel = 25;
constexpr std::int32_t kTimeOfDay = 26;
constexpr std::int32_t kArmorLevel = 28;
constexpr std::int32_t kBonded = 33;
constexpr std::int32_t kUnenchantable = 36;
constexpr std::int32_t kLockDifficulty = 38;
constexpr std::int32_t kLowestLevel = 86;
constexpr std::int32_t kHighestLevel = 87;
constexpr std::int32_t kRestoredVital = 89;
constexpr std::int32_t kRestoredAmount = 90;
constexpr std::int32_t kMostUses = 91;
constexpr std::int32_t kUsesLeft = 92;
constexpr std::int32_t kWorkmanship = 105;
constexpr std::int32_t kManaNow = 107;
constexpr std::int32_t kMostMana = 108;
constexpr std::int32_t kLore = 109;
constexpr std::int32_t kRank = 110;
constexpr std::int32_t kPortalKind = 111;
constexpr std::int32_t kAttuned = 114;
constexpr std::int32_t kActivationLevel = 115;
constexpr std::int32_t kWieldKind = 158;
constexpr std::int32_t kWieldSkill = 159;
constexpr std::int32_t kWieldLevel = 160;
constexpr std::int32_t kSalvagedItems = 170;
constexpr std::int32_t kTinks = 171;
constexpr std::int32_t kActivationSkill = 176;
constexpr std::int32_t kHeritage = 188;
constexpr std::int32_t kElementalBonus = 204;
constexpr std::int32_t kSpell = 0x0D000008;
constexpr std::int32_t kMaximumDamage = 0x0D000022;
}  // namespace key

// Broken numbers, yes and no, and texts have keys of their own.
namespace double_key {
constexpr std::int32_t kMeleeDefense = 29;
constexpr std::int32_t kEfficiency = 87;
constexpr std::int32_t kHealingBonus = 100;
constexpr std::int32_t kDestroyChance = 137;
constexpr std::int32_t kManaConversion = 144;
constexpr std::int32_t kMagicDefense = 150;
constexpr std::int32_t kElementalDamage = 152;
constexpr std::int32_t kSalvageWorkmanship = 0x0A000009;
constexpr std::int32_t kVariance = 0x0A00000B;
constexpr std::int32_t kAttackBonus = 0x0A00000C;
constexpr std::int32_t kDamageMultiplier = 0x0A00000E;
}  // namespace double_key

namespace bool_key {
constexpr std::int32_t kOpen = 2;
constexpr std::int32_t kLocked = 3;
constexpr std::int32_t kRetained = 91;
constexpr std::int32_t kIvoryable = 99;
constexpr std::int32_t kDyeable = 100;
}  // namespace bool_key

namespace text_key {
constexpr std::int32_t kPlural = 0x0B000000;
}

// A look at one object while its card is made up. What the object lacks is 0, or no.
struct Reading {
    const host::WorldObject& object;
    std::string_view procedure = {};  // the one at work; a failure leaves its name here for the report

    std::int32_t Long(std::int32_t key) const { return object.Long(key, 0); }
    double Double(std::int32_t key, double fallback = 0.0) const { return object.Double(key, fallback); }
    bool Bool(std::int32_t key) const { return object.Bool(key, false); }
};

}  // namespace ombrel::target
