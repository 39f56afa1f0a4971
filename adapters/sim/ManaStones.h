// Mana stones and charges: used on oneself they give their mana to what one wears.
#pragma once

#include "adapters/sim/Aftermath.h"

namespace ombrel::sim {

void UseManaStone(Aftermath& aftermath, host::Id stone);

}  // namespace ombrel::sim
