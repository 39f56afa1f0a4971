// The splitting tool: it breaks one pea of a stack into a heap of its component.
#pragma once

#include <string_view>

#include "adapters/sim/Aftermath.h"

namespace ombrel::sim {

constexpr std::string_view kSplittingTool = "Splitting Tool";

void SplitPea(Aftermath& aftermath, host::Id pea);

}  // namespace ombrel::sim
