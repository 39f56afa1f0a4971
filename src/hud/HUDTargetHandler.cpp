#include "hud/HUDTargetHandler.h"

#include "core/Hub.h"

namespace ombrel {

HUDTargetHandler::HUDTargetHandler() {
    wtcw_debug("HUDTarget Handler Init");
    TargetHud = std::make_unique<HudHandlerT>();
    TargetHud->frame.SetTitle("Target");
}

HUDTargetHandler::~HUDTargetHandler() { wtcw_debug("HUDTarget Handler Terminate"); }

void HUDTargetHandler::CreateHUD() {}
void HUDTargetHandler::UpdateHUD() {}
void HUDTargetHandler::RemoveTitle() { TargetHud->frame.SetFade(0); }
void HUDTargetHandler::SetObject(host::WorldObjectPtr object) { TargetHud->SetObject(std::move(object)); }
bool HUDTargetHandler::GetObject(host::WorldObjectPtr& object) {
    object = TargetHud->Object();
    return object != nullptr;
}
void HUDTargetHandler::UpdateDebuffs() {}
void HUDTargetHandler::Debuff(host::Id, std::int32_t, double) {}

}  // namespace ombrel
