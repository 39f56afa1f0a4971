// What a character in the middle of play would have in the view.
#pragma once

#include "adapters/sim/View.h"

namespace ombrel::sim {

void FillSampleRows(SimView& view);

}  // namespace ombrel::sim
