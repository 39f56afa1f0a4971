#include "hud/HUDItemHandler.h"

#include "core/Hub.h"

namespace ombrel {

HUDItemHandler::HUDItemHandler() {
    wtcw_debug("HUDItem Handler Init");
    ItemHUD = std::make_unique<HUDHandler>("Item");
}

HUDItemHandler::~HUDItemHandler() { wtcw_debug("HUDItem Handler Terminate"); }

void HUDItemHandler::CreateHUD() {}
void HUDItemHandler::UpdateHUD() {}

}  // namespace ombrel
