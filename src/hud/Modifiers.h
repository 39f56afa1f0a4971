// The figures of weapons, as the card of a target writes them.
#pragma once

#include <string>

#include "hud/TargetReading.h"

namespace ombrel::target {

std::string PercentText(double value);  // a share in whole percent, 2.35 as "235"

// What a factor adds, in percent with at most one decimal: 1.085 as "8.5". Empty for a negative factor, by which the
// reader tells that there is none.
std::string BonusText(double factor);

// Attack or mana conversion, melee defence and magic defence, behind a ", "; empty when there is none of them.
std::string ModifiersText(const Reading& reading);
std::string CasterModifiersText(const Reading& reading);

}  // namespace ombrel::target
