#include "core/FilterHandler.h"

namespace ombrel {

void FilterHandler::Fill_Mana(bool) {}
void FilterHandler::FindCHarge() {}
void FilterHandler::WaitforScan_Timeout() {}
void FilterHandler::UseCharge_Timeout() {}

}  // namespace ombrel
