// One key press eats the food or uses the kit that fits best.
#include <fmt/format.h>

#include <cmath>
#include <cstdlib>

#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"

namespace ombrel {
namespace {

// Properties by the game's keys.
constexpr std::int32_t kRestoredVital = 89;
constexpr std::int32_t kRestored = 90;  // amount for food, bonus for a kit
constexpr std::int32_t kUses = 92;
constexpr std::int32_t kRegen = 100;  // double: a kit's multiplier

constexpr std::int32_t kHealingSkill = 21;
constexpr std::int32_t kPeaceMode = 1;
constexpr double kPeaceDifficulty = 2.0;  // per point of health
constexpr double kCombatDifficulty = 2.6;
constexpr double kExhausted = 1000.0;  // more difficulty for a character out of stamina
constexpr double kExhaustedShare = 0.04;
constexpr std::int32_t kFarthestFood = 999;

// Figures of the game stay within 32 bits; a sum that doesn't is a failure, as any other.
std::int32_t Difference(std::int32_t a, std::int32_t b) { return ToLong(static_cast<double>(a) - b); }

double ShareOf(std::int32_t current, std::int32_t maximum) {
    if (maximum == 0) throw Failure(failure::kDivisionByZero);
    return static_cast<double>(current) / maximum;
}

// A kit and what it would do now.
struct Kit {
    host::Id id = 0;
    double chance = 0.0;
    double regen = 0.0;
    std::int32_t bonus = 99999;
    std::int32_t uses = 999;

    double Value() const { return regen * 100.0 + bonus; }
    bool IsMoreWornThan(const Kit& other) const {
        return uses < other.uses && bonus == other.bonus && regen == other.regen && chance == other.chance;
    }
};

Kit ReadKit(const host::WorldObject& item, std::int32_t skill, double difficulty) {
    Kit kit;
    kit.id = item.GUID();
    kit.bonus = item.Long(kRestored, 0);
    kit.regen = item.Double(kRegen, 0.0);
    kit.uses = item.Long(kUses, 0);
    kit.chance = 1.0 - 1.0 / (1.0 + std::exp(0.03 * (static_cast<double>(skill) + kit.bonus - difficulty)));
    return kit;
}

// The best kit by a rule that says when one beats the best so far; of like kits the more worn one goes first.
template <class Beats>
void ChooseKit(host::World& world, std::int32_t skill, double difficulty, Kit& best, Beats beats) {
    const auto walk = world.Owned();
    while (const auto item = walk->Next()) {
        if (item->Type() != host::object_class::kHealingKit) continue;
        const Kit kit = ReadKit(*item, skill, difficulty);
        if (kit.IsMoreWornThan(best)) {
            if (Vars::DebugMode) wtcw_debug("Similar Kit Found with lower uses remaining: " + NumberText(kit.uses));
            best = kit;
        } else if (beats(kit, best)) {
            best = kit;
        }
    }
}

// Has the game tell of every item of a class that the character owns.
void Identify(FilterHandler& filter, std::int32_t object_class, std::string_view heading) {
    const auto walk = filter.World->Owned();
    while (const auto item = walk->Next()) {
        if (item->Type() != object_class) continue;
        if (Vars::DebugMode) wtcw_debug(std::string(heading) + item->Name());
        filter.ACHooks->RequestID(item->GUID());
    }
}

}  // namespace

void FilterHandler::FindFood() try { Identify(*this, host::object_class::kFood, "ID Food: "); } catch (...) {
    ReportFailure("FindFood", "FilterHandler");
}

void FilterHandler::FindKits() try { Identify(*this, host::object_class::kHealingKit, "ID Kit: "); } catch (...) {
    ReportFailure("FindKits", "FilterHandler");
}

bool FilterHandler::UseFood(std::int32_t vital) try {
    const auto& options = *Vars::ControlHandler;
    if (!options.VitalsEnabled->Checked()) return false;

    const std::int32_t current = vital == host::vital::kHealth    ? CharStats->Health()
                                 : vital == host::vital::kStamina ? CharStats->Stamina()
                                                                  : CharStats->Mana();
    const std::int32_t maximum = CharStats->Vital(vital);
    const std::int32_t needed = Difference(maximum, current);
    if (Vars::DebugMode) wtcw_debug("Needed Vital: " + NumberText(needed));
    if (ShareOf(current, maximum) > ToShare(options.VitalsBlock->Text())) {
        wtcw_debug("Use Food Blocked due to high vital");
        return false;
    }

    host::Id best = 0;
    std::int32_t best_distance = kFarthestFood;
    const auto walk = World->Owned();
    while (const auto food = walk->Next()) {
        if (!food->LongExists(kRestoredVital) || food->Long(kRestoredVital, 0) != vital) continue;
        const std::int32_t restored = food->Long(kRestored, 0);
        if (Vars::DebugMode) wtcw_debug(fmt::format("Food Match: {}, Restores: {}", food->Name(), restored));
        const std::int32_t distance = ToLong(std::abs(static_cast<double>(restored) - needed));
        if (distance >= best_distance) continue;
        best_distance = distance;
        best = food->GUID();
    }
    if (Vars::DebugMode) wtcw_debug("Best Fit: " + NumberText(best_distance));
    if (best == 0) return false;
    ApplyItem(best, GetMyCharGUID());
    return true;
} catch (...) {
    ReportFailure("UseFood", "FilterHandler");
    return false;
}

bool FilterHandler::UseKit(bool fallback) try {
    const auto& options = *Vars::ControlHandler;
    if (!options.VitalsEnabled->Checked()) return false;

    const double multiplier = GetCombatMode() == kPeaceMode ? kPeaceDifficulty : kCombatDifficulty;
    const std::int32_t health = CharStats->Health();
    const std::int32_t maximum = CharStats->Vital(host::vital::kHealth);
    const std::int32_t needed = Difference(maximum, health);
    double difficulty = Round(needed * multiplier + 25.0);
    if (CharStats->Stamina() < Round(CharStats->Vital(host::vital::kStamina) * kExhaustedShare))
        difficulty += kExhausted;
    if (Vars::DebugMode)
        wtcw_debug(fmt::format("Healing - Needed Health: {}, Difficulty: {}", needed, NumberText(difficulty)));
    const double share = ShareOf(health, maximum);
    if (share > ToShare(options.VitalsBlock->Text())) {
        wtcw_debug("Use Kit Blocked due to high health");
        return false;
    }

    const std::int32_t skill = CharStats->Skill(kHealingSkill);
    const double success = ToShare(options.VitalsSuccess->Text());
    const bool conserve = share > ToShare(options.VitalsCheap->Text());
    Kit best;
    ChooseKit(*World, skill, difficulty, best, [&](const Kit& kit, const Kit& so_far) {
        const bool wins = kit.chance > success && (conserve ? kit.Value() < so_far.Value() : kit.regen > so_far.regen);
        if (wins)
            wtcw_debug(conserve ? "Conservation path, least 'valuable' kit" : "Best success path, best restore bonus");
        return wins;
    });
    if (best.id == 0) {
        wtcw_debug("No kits match success cutoff, finding best success rate");
        ChooseKit(*World, skill, difficulty, best,
                  [](const Kit& kit, const Kit& so_far) { return kit.chance > so_far.chance; });
    }
    if (Vars::DebugMode)
        wtcw_debug(fmt::format("Healing Best Fit - Success: {}, Regen: {}, Bonus: {}", NumberText(best.chance),
                               NumberText(best.regen), best.bonus));
    if (fallback && best.chance < ToShare(options.VitalsFallback->Text())) {
        wtcw_debug("Healing Smart Mode - Too low chance of success, using health food");
        if (UseFood(host::vital::kHealth)) return true;
    }
    if (best.id == 0) return false;
    if (Vars::DebugMode) wtcw_debug("Healing with kit " + NumberText(best.id));
    ApplyItem(best.id, GetMyCharGUID());
    return true;
} catch (...) {
    ReportFailure("UseKit", "FilterHandler");
    return false;
}

}  // namespace ombrel
