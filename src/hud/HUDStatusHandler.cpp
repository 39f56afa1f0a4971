#include "hud/HUDStatusHandler.h"

#include "core/Hub.h"

namespace ombrel {

HUDStatusHandler::HUDStatusHandler() {
    wtcw_debug("HUDStatus Handler Init");
    StatusHud = std::make_unique<HUDHandler>("Status");
}

HUDStatusHandler::~HUDStatusHandler() { wtcw_debug("HUDStatus Handler Terminate"); }

void HUDStatusHandler::CreateHUD() {}
void HUDStatusHandler::UpdateHUD() {}
void HUDStatusHandler::AddMessage(const std::string&) {}
void HUDStatusHandler::Update() {}

}  // namespace ombrel
