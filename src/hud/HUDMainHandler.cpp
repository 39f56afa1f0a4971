#include "hud/HUDMainHandler.h"

#include "core/Hub.h"

namespace ombrel {

HUDMainHandler::HUDMainHandler() {
    wtcw_debug("HUDMain Handler Init");
    MainHud = std::make_unique<HUDHandler>("Main");
}

HUDMainHandler::~HUDMainHandler() { wtcw_debug("HUDMain Handler Terminate"); }

void HUDMainHandler::CreateHUD() {}
void HUDMainHandler::UpdateHUD() {}

}  // namespace ombrel
