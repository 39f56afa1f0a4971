#include "config/HudRows.h"

#include <algorithm>
#include <string>

#include "config/ControlHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"

namespace ombrel::hud {

HudFrame& FrameOf(std::int32_t row) {
    switch (row) {
        case kMain:
            return Vars::HUDMainHandler->MainHud->frame;
        case kClock:
            return Vars::HUDClockHandler->ClockHUD->frame;
        case kItems:
            return Vars::HUDItemHandler->ItemHUD->frame;
        case kStatus:
            return Vars::HUDStatusHandler->StatusHud->frame;
        case kTarget:
            return Vars::HUDTargetHandler->TargetHud->frame;
        default:
            throw Failure(failure::kSubscript);
    }
}

void Create(std::int32_t row) {
    switch (row) {
        case kMain:
            return Vars::HUDMainHandler->CreateHUD();
        case kClock:
            return Vars::HUDClockHandler->CreateHUD();
        case kItems:
            return Vars::HUDItemHandler->CreateHUD();
        case kStatus:
            return Vars::HUDStatusHandler->CreateHUD();
        case kTarget:
            return Vars::HUDTargetHandler->CreateHUD();
        default:
            throw Failure(failure::kSubscript);
    }
}

void ApplyEnabled(const ControlHandler& controls, std::int32_t row) {
    const bool enabled = CellFlag(*controls.HudGeneral, kOn, row) && controls.HudOn->Checked();
    FrameOf(row).SetEnabled(enabled);
}

void ApplyLook(const ControlHandler& controls, std::int32_t row) {
    const host::List& list = *controls.HudGeneral;
    const auto face = Vars::FontNames.find(CellText(list, kFont, row));
    const std::string color(GetColorFromHUDIcon(CellIcon(list, kBackground, row)));
    const std::int32_t background = ConvertColor(color, AlphaIndex(CellText(list, kAlpha, row)));
    const std::int32_t size = ToLong(CellText(list, kSize, row));
    const bool outline = CellFlag(list, kOutline, row);

    HudFrame& frame = FrameOf(row);
    frame.SetFontFace(face == Vars::FontNames.end() ? "Arial" : face->second);
    frame.SetFontSize(size);
    frame.BackgroundColor = background;
    frame.Outline = outline;
}

std::int32_t AlphaIndex(std::string_view alpha) {
    const double percent = std::clamp(Val(alpha), 0.0, 100.0);
    return 10 - ToLong(percent / 10);
}

}  // namespace ombrel::hud
