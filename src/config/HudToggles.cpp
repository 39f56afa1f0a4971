// Switching HUDs and a few other options from outside the options view.
#include "config/ControlHandler.h"
#include "config/HudRows.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/failure.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"

namespace ombrel {

void ControlHandler::HudOn_Change() try {
    for (std::int32_t row = 0; row < hud::kCount; ++row) {
        hud::ApplyEnabled(*this, row);
        if (!HudOn->Checked()) hud::FrameOf(row).HUDOff();
    }
    Vars::HUDMainHandler->UpdateHUD();
    Vars::HUDClockHandler->UpdateHUD();
    Vars::HUDItemHandler->UpdateHUD();
    Vars::HUDTargetHandler->CreateHUD();
    Vars::HUDStatusHandler->CreateHUD();
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudOn_Change", "ControlHandler");
}

void ControlHandler::ToggleAll() try {
    HudOn->SetChecked(!HudOn->Checked());
    HudOn_Change();
} catch (...) {
    ReportFailure("ToggleAll", "ControlHandler");
}

void ControlHandler::ToggleHud(std::int32_t row) {
    HudGeneral->SetData(hud::kOn, row, !CellFlag(*HudGeneral, hud::kOn, row));
    hud::ApplyEnabled(*this, row);
    hud::Create(row);
    Settings_Save(0);
}

void ControlHandler::ToggleMain() try { ToggleHud(hud::kMain); } catch (...) {
    ReportFailure("ToggleMain", "ControlHandler");
}

void ControlHandler::ToggleItem() try { ToggleHud(hud::kItems); } catch (...) {
    ReportFailure("ToggleItem", "ControlHandler");
}

void ControlHandler::ToggleClock() try { ToggleHud(hud::kClock); } catch (...) {
    ReportFailure("ToggleClock", "ControlHandler");
}

void ControlHandler::ToggleTarget() try { ToggleHud(hud::kTarget); } catch (...) {
    ReportFailure("ToggleTarget", "ControlHandler");
}

void ControlHandler::ToggleStatus() try { ToggleHud(hud::kStatus); } catch (...) {
    ReportFailure("ToggleStatus", "ControlHandler");
}

void ControlHandler::ToggleBeers() try {
    UseBeers->SetChecked(!UseBeers->Checked());
    wtcw(UseBeers->Checked() ? "Ready to keep em' coming!" : "Yeah, you've had enough.");
    Settings_Save(0);
} catch (...) {
    ReportFailure("ToggleBeers", "ControlHandler");
}

void ControlHandler::ToggleAFK() try {
    ChatLogAFK->SetChecked(!ChatLogAFK->Checked());
    Vars::FilterHandler->SendCommand("*afk*");
} catch (...) {
    ReportFailure("ToggleAFK", "ControlHandler");
}

}  // namespace ombrel
