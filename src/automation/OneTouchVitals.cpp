#include "core/FilterHandler.h"

namespace ombrel {

void FilterHandler::FindFood() {}
void FilterHandler::FindKits() {}
bool FilterHandler::UseFood(std::int32_t) { return false; }
bool FilterHandler::UseKit(bool) { return false; }

}  // namespace ombrel
