#include "config/HudRows.h"

#include <algorithm>
#include <string>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "core/Hub.h"
#include "core/TimerHandler.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"
#include "stats/Statistics.h"

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

void CreateAll() {
    for (const std::int32_t row : {kMain, kClock, kItems, kTarget, kStatus}) Create(row);
}

void ApplyEnabled(const ControlHandler& controls, std::int32_t row) {
    const bool enabled = CellFlag(*controls.HudGeneral, kOn, row) && controls.HudOn->Checked();
    FrameOf(row).SetEnabled(enabled);
}

void ApplyFont(const ControlHandler& controls, std::int32_t row) {
    const auto face = Vars::FontNames.find(CellText(*controls.HudGeneral, kFont, row));
    FrameOf(row).SetFontFace(face == Vars::FontNames.end() ? "Arial" : face->second);
}

void ApplySize(const ControlHandler& controls, std::int32_t row) {
    FrameOf(row).SetFontSize(ToLong(CellText(*controls.HudGeneral, kSize, row)));
}

void ApplyBackground(const ControlHandler& controls, std::int32_t row) {
    const host::List& list = *controls.HudGeneral;
    const std::string color(GetColorFromHUDIcon(CellIcon(list, kBackground, row)));
    FrameOf(row).BackgroundColor = ConvertColor(color, AlphaIndex(CellText(list, kAlpha, row)));
}

void ApplyOutline(const ControlHandler& controls, std::int32_t row) {
    FrameOf(row).Outline = CellFlag(*controls.HudGeneral, kOutline, row);
}

void ApplyLook(const ControlHandler& controls, std::int32_t row) {
    for (const auto apply : {&ApplyFont, &ApplySize, &ApplyBackground, &ApplyOutline}) apply(controls, row);
}

void ApplyIconSize(const ControlHandler& controls) {
    const double edge = Val(SelectedText(*controls.HudItemsIconSize));
    if (edge > 0) FrameOf(kItems).IconSize = static_cast<std::int16_t>(edge);
}

void ApplyTargetColor(const ControlHandler& controls) {
    Vars::HUDTargetHandler->TargetHud->FontColor = SelectedText(*controls.HudTargetColor, "White");
}

void ApplyXPChange(ControlHandler& controls) {
    Vars::Statistics->XPChangeOn = CellFlag(*controls.HudList, kOn, controls.FindName("XP Change", "HudList"));
}

void StartRefresh(const ControlHandler& controls) {
    const host::Choice& period = *controls.HudTimeout;
    if (period.Selected() >= 0) Vars::TimerHandler->StartMainHUDTime(ToLong(period.Data(period.Selected())));
}

std::int32_t AlphaIndex(std::string_view alpha) {
    const double percent = std::clamp(Val(alpha), 0.0, 100.0);
    return 10 - ToLong(percent / 10);
}

}  // namespace ombrel::hud
