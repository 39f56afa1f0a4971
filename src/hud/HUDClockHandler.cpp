#include "hud/HUDClockHandler.h"

#include "core/Hub.h"

namespace ombrel {

HUDClockHandler::HUDClockHandler() {
    wtcw_debug("HUDClock Handler Init");
    ClockHUD = std::make_unique<HUDHandler>("Clock");
}

HUDClockHandler::~HUDClockHandler() { wtcw_debug("HUDClock Handler Terminate"); }

void HUDClockHandler::CreateHUD() {}
void HUDClockHandler::UpdateHUD() {}

}  // namespace ombrel
