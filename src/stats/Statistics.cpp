#include "stats/Statistics.h"

#include "core/Hub.h"

namespace ombrel {

Statistics::Statistics() { wtcw_debug("Statistics Init"); }

Statistics::~Statistics() { wtcw_debug("Statistics Terminate"); }

void Statistics::InitStatistics() {}
void Statistics::UpdateTime() {}
void Statistics::UpdateAvgXP() {}

}  // namespace ombrel
