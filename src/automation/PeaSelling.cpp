#include "core/FilterHandler.h"

namespace ombrel {

void FilterHandler::StartPeas() {}
void FilterHandler::StopPeas() {}
void FilterHandler::SellPeas() {}

}  // namespace ombrel
