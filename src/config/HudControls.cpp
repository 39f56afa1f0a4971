// How HUDs look: the list of all five, and the options of single ones.
#include <string>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/Effects.h"
#include "config/HudRows.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/failure.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDMainHandler.h"

namespace ombrel {

// Options of single HUDs. A line keeps its colour and its place in a row until its text changes, so that a change of
// these draws the HUD from scratch.

void effect::UpdateMain(ControlHandler&, std::int32_t) { Vars::HUDMainHandler->UpdateHUD(); }
void effect::CreateHud(ControlHandler&, std::int32_t row) { hud::Create(row); }

void effect::SetIconSize(ControlHandler& controls, std::int32_t) {
    hud::ApplyIconSize(controls);
    hud::Create(hud::kItems);
}

void effect::ColorTarget(ControlHandler& controls, std::int32_t) {
    hud::ApplyTargetColor(controls);
    hud::Create(hud::kTarget);
}

void effect::StartRefresh(ControlHandler& controls, std::int32_t) {
    Vars::HUDMainHandler->UpdateHUD();
    hud::StartRefresh(controls);
}

void effect::StartDownTimer(ControlHandler&, std::int32_t) {
    Vars::HUDClockHandler->StartDnTime();
    Vars::HUDClockHandler->CreateHUD();
}

void effect::StartUpTimer(ControlHandler&, std::int32_t) {
    Vars::HUDClockHandler->StartUpTime();
    Vars::HUDClockHandler->CreateHUD();
}

// The list of all HUDs: the choices below it show the marked row, and change it.

void ControlHandler::HudGeneral_Change(std::int32_t column, std::int32_t row) try {
    host::List& list = *HudGeneral;
    if (!HasRow(list, row)) return;
    MoveMark(list, hud_general_row_, row);
    SelectText(*HudGeneralFont, CellText(list, hud::kFont, row));
    SelectText(*HudGeneralSize, CellText(list, hud::kSize, row));
    SelectText(*HudGeneralBGColor, GetColorFromHUDIcon(CellIcon(list, hud::kBackground, row)));
    SelectText(*HudGeneralBGAlpha, CellText(list, hud::kAlpha, row));
    if (column == hud::kOn) hud::ApplyEnabled(*this, row);
    if (column == hud::kOutline) hud::ApplyOutline(*this, row);
    if (column == hud::kOn || column == hud::kOutline) hud::Create(row);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudGeneral_Change", "ControlHandler");
}

void ControlHandler::HudGeneralFont_Change() try {
    HudGeneral->SetData(hud::kFont, hud_general_row_, std::string(SelectedText(*HudGeneralFont, "Arial")));
    hud::ApplyFont(*this, hud_general_row_);
    Settings_Save(0);
    hud::Create(hud_general_row_);
} catch (...) {
    ReportFailure("HudGeneralFont_Change", "ControlHandler");
}

void ControlHandler::HudGeneralSize_Change() try {
    HudGeneral->SetData(hud::kSize, hud_general_row_, std::string(SelectedText(*HudGeneralSize, "16")));
    hud::ApplySize(*this, hud_general_row_);
    Settings_Save(0);
    hud::Create(hud_general_row_);
} catch (...) {
    ReportFailure("HudGeneralSize_Change", "ControlHandler");
}

void ControlHandler::HudGeneralBGColor_Change() try {
    SetMarker(*HudGeneral, hud::kBackground, hud_general_row_,
              GetColorFromIcon(SelectedText(*HudGeneralBGColor, "Black")));
    hud::ApplyBackground(*this, hud_general_row_);
    Settings_Save(0);
    hud::Create(hud_general_row_);
} catch (...) {
    ReportFailure("HudGeneralBGColor_Change", "ControlHandler");
}

void ControlHandler::HudGeneralBGAlpha_Change() try {
    HudGeneral->SetData(hud::kAlpha, hud_general_row_, std::string(SelectedText(*HudGeneralBGAlpha, "50%")));
    hud::ApplyBackground(*this, hud_general_row_);
    Settings_Save(0);
    hud::Create(hud_general_row_);
} catch (...) {
    ReportFailure("HudGeneralBGAlpha_Change", "ControlHandler");
}

}  // namespace ombrel
