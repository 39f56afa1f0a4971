// The rows of the main HUD and of the clocks: which show, and in which colour.
#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/HudRows.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/failure.h"

namespace ombrel {
namespace {

constexpr std::int32_t kOn = 0;
constexpr std::int32_t kLineColor = 2;  // columns of the colour markers
constexpr std::int32_t kClockColor = 4;

// The choice shows the colour of a row.
void ShowColor(host::Choice& choice, const host::List& list, std::int32_t column, std::int32_t row) {
    SelectText(choice, GetColorFromHUDIcon(CellIcon(list, column, row)));
}

void ColorRows(host::List& list, std::int32_t column, std::int32_t first, std::int32_t last,
               const host::Choice& choice) {
    const std::int32_t icon = GetColorFromIcon(SelectedText(choice, "White"));
    for (std::int32_t row = first; row <= last; ++row) SetMarker(list, column, row, icon);
}

}  // namespace

// A line that is switched off goes only when the HUD is drawn from scratch.
void ControlHandler::HudList_Change(std::int32_t column, std::int32_t row) try {
    if (!HasRow(*HudList, row)) return;
    MoveMark(*HudList, hud_list_row_, row);
    ShowColor(*HudMainColor, *HudList, kLineColor, row);
    hud::ApplyXPChange(*this);
    if (column == kOn) hud::Create(hud::kMain);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudList_Change", "ControlHandler");
}

void ControlHandler::HudMainColor_Change() try {
    ColorRows(*HudList, kLineColor, hud_list_row_, hud_list_row_, *HudMainColor);
    hud::Create(hud::kMain);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudMainColor_Change", "ControlHandler");
}

void ControlHandler::HudMainAll_Accepted() try {
    ColorRows(*HudList, kLineColor, 0, HudList->Count() - 1, *HudMainColor);
    hud::Create(hud::kMain);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudMainAll_Accepted", "ControlHandler");
}

void ControlHandler::HudClockList_Change(std::int32_t column, std::int32_t row) try {
    if (!HasRow(*HudClockList, row)) return;
    MoveMark(*HudClockList, hud_clock_row_, row);
    ShowColor(*HudClockColor, *HudClockList, kClockColor, row);
    if (column == kOn) hud::Create(hud::kClock);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudClockList_Change", "ControlHandler");
}

void ControlHandler::HudClockColor_Change() try {
    ColorRows(*HudClockList, kClockColor, hud_clock_row_, hud_clock_row_, *HudClockColor);
    hud::Create(hud::kClock);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudClockColor_Change", "ControlHandler");
}

void ControlHandler::HudClockAll_Accepted() try {
    ColorRows(*HudClockList, kClockColor, 0, HudClockList->Count() - 1, *HudClockColor);
    hud::Create(hud::kClock);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudClockAll_Accepted", "ControlHandler");
}

}  // namespace ombrel
