#include "adapters/sim/Healing.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace ombrel::sim {
namespace {

constexpr milliseconds kMeal = 800ms;
constexpr milliseconds kTreatment = 1200ms;
constexpr double kLongestSpell = 1e6;  // seconds
constexpr std::int32_t kHealingSkill = 21;
constexpr std::int32_t kPeaceMode = 1;

std::string_view VitalName(std::int32_t vital) {
    return vital == host::vital::kHealth ? "Health" : vital == host::vital::kStamina ? "Stamina" : "Mana";
}

// How many uses are left, as the game puts it.
std::string UsesText(const std::string& kit, std::int32_t uses) {
    if (uses <= 0) return fmt::format("Your {} is used up.", kit);
    return fmt::format("Your {} has {} {} left.", kit, uses, uses == 1 ? "use" : "uses");
}

}  // namespace

void Healing::Eat(host::Id food) {
    aftermath_.Occupy(kMeal, [this, food] {
        if (Object* found = aftermath_.Find(food)) Eaten(*found);
    });
}

void Healing::Eaten(Object& food) {
    Client& client = aftermath_.client;
    const std::int32_t vital = Long(food, property::kRestoredVital);
    const std::int32_t amount = Long(food, property::kRestored);
    if (vital != 0 && amount > 0) {
        aftermath_.Restore(vital, amount);
        aftermath_.Say(fmt::format("The {} restores {} points of your {}.", food.Name, amount, VitalName(vital)));
    }
    if (const auto spell = client.spells.ByID(Long(food, property::kSpell)); spell && spell->ID != 0) {
        std::erase_if(client.enchantments,
                      [&](const ActiveEnchantment& active) { return active.SpellID == spell->ID; });
        const double seconds = std::clamp(spell->Duration, -1.0, kLongestSpell);
        client.Enchant(spell->ID, seconds, spell->Type);
        client.ChangeEnchantments(0, {spell->ID, static_cast<std::int32_t>(seconds), spell->Type});
        client.ChatText(fmt::format("{} casts {} on you\n", food.Name, spell->Name), 7, 0);
    }
    aftermath_.SetStack(food, StackOf(food) - 1);
}

void Healing::UseKit(host::Id kit) {
    if (aftermath_.Missing(host::vital::kHealth) == 0) {
        aftermath_.client.StatusText(aftermath_.client.sheet.Name + " is already at full health!");
        return;
    }
    aftermath_.Occupy(kTreatment, [this, kit] {
        if (Object* found = aftermath_.Find(kit)) Heal(*found);
    });
}

// The worse the wound, the harder it is to treat; in a fight it is harder still.
void Healing::Heal(Object& kit) {
    const Sheet& sheet = aftermath_.client.sheet;
    const auto known = sheet.Skill.find(kHealingSkill);
    const std::int32_t skill = known == sheet.Skill.end() ? 0 : known->second;
    const std::int32_t missing = aftermath_.Missing(host::vital::kHealth);
    const double difficulty = missing * (aftermath_.client.hooks.CombatMode == kPeaceMode ? 2.0 : 2.6);
    const double trained = static_cast<double>(skill) + Long(kit, property::kRestored);
    const double chance = 1.0 - 1.0 / (1.0 + std::exp(0.03 * (trained - difficulty)));

    const std::string name = kit.Name;
    const std::int32_t uses = std::max(Long(kit, property::kUses), 1) - 1;
    const bool healed = Draw() < chance;
    const double share = 0.2 + 0.3 * Draw();
    const double amount = std::round(skill * Double(kit, property::kRestoration) * share);
    kit.Long[property::kUses] = uses;
    if (healed) {
        const auto points = static_cast<std::int32_t>(std::clamp<double>(amount, 0, missing));
        aftermath_.Restore(host::vital::kHealth, points);
        aftermath_.Restore(host::vital::kStamina, -std::min(points / 5, sheet.Stamina));
        aftermath_.Say(fmt::format("You heal yourself for {} Health points. {}", points, UsesText(name, uses)));
    } else {
        aftermath_.Say("You fail to heal yourself. " + UsesText(name, uses));
    }
    if (uses <= 0) aftermath_.Vanish(kit.id);
}

double Healing::Draw() {
    return static_cast<double>(random_() - std::minstd_rand::min()) /
           static_cast<double>(std::minstd_rand::max() - std::minstd_rand::min());
}

}  // namespace ombrel::sim
