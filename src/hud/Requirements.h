// What a character needs to wield an item, and to have its spells work.
#pragma once

#include <string>

#include "hud/TargetReading.h"

namespace ombrel::target {

// Each requirement follows a ", ", so that the text goes behind another; empty when there is none. A skill, attribute,
// vital or people that has no name here is failure 9.
std::string WieldReq(Reading& reading);
std::string ActivationReq(Reading& reading);

}  // namespace ombrel::target
