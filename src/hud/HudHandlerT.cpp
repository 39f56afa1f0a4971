#include "hud/HudHandlerT.h"

#include "core/Hub.h"
#include "core/failure.h"

namespace ombrel {
namespace {

constexpr HudFrame::Names kNames{
    "HudHandlerT", "HudHandlerT.FadeTimer", "CreateHUDT1 ", "ResizeHUDT ", "MoveHUDT ", "ClickHUDT ", "DeviceLost "};

}  // namespace

HudHandlerT::HudHandlerT() : frame(kNames) {
    try {
        wtcw_debug("HUD Handler Init");
        frame.Open({[] { return false; }, [this] { return object_ == nullptr; }, [](host::HudView&, bool) {}});
    } catch (...) {
        ReportFailure("Class_Initialize", "HudHandlerT");
    }
}

HudHandlerT::~HudHandlerT() { wtcw_debug("HUD Handler Terminate"); }

void HudHandlerT::SetObject(host::WorldObjectPtr object) try {
    object_ = std::move(object);
    frame.DrawHUD(false);
} catch (...) {
    ReportFailure("Object", "HudHandlerT");
}

void HudHandlerT::RemoveDebuff(host::Id) {}
void HudHandlerT::UpdateHealth(bool) {}

}  // namespace ombrel
