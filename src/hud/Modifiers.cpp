#include "hud/Modifiers.h"

#include <initializer_list>

#include "core/convert.h"

namespace ombrel::target {
namespace {

constexpr double kNoFactor = -1.0;

std::string Bonus(const Reading& reading, std::int32_t key) { return BonusText(reading.Double(key, kNoFactor)); }

std::string WithDefenses(const Reading& reading, std::string first) {
    std::string text;
    for (const std::string& figure :
         {std::move(first), Bonus(reading, double_key::kMeleeDefense), Bonus(reading, double_key::kMagicDefense)}) {
        if (figure.empty()) continue;
        text += text.empty() ? ", " : " ";
        text += figure;
    }
    return text;
}

}  // namespace

std::string PercentText(double value) { return NumberText(Round(value * 100)); }

std::string BonusText(double factor) { return factor >= 0 ? NumberText(Round((factor - 1) * 100, 1)) : std::string(); }

std::string ModifiersText(const Reading& reading) {
    return WithDefenses(reading, Bonus(reading, double_key::kAttackBonus));
}

std::string CasterModifiersText(const Reading& reading) {
    return WithDefenses(reading, PercentText(reading.Double(double_key::kManaConversion)));
}

}  // namespace ombrel::target
