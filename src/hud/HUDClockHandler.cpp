#include "hud/HUDClockHandler.h"

#include "config/ControlHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/text.h"
#include "core/time.h"
#include "hud/TitleBar.h"

namespace ombrel {
namespace {

// Rows and columns of the view's list of clocks.
constexpr std::int32_t kDownRow = 0;
constexpr std::int32_t kUpRow = 1;
constexpr std::int32_t kDateRow = 2;
constexpr std::int32_t kOwnRow = 3;  // the player's time; the zones follow
constexpr std::int32_t kOn = 0;
constexpr std::int32_t kName = 1;
constexpr std::int32_t kOffset = 2;
constexpr std::int32_t kShown = 3;
constexpr std::int32_t kColor = 4;

// A time of day, as "1:30", "1:30:00", "1:30 PM" or "1 PM", read as a number of seconds.
std::int32_t TimeValue(std::string_view text) {
    std::string_view rest = Trim(text);
    const std::string lower = ToLower(rest);
    const bool pm = lower.ends_with("pm");
    const bool half_day = pm || lower.ends_with("am");
    if (half_day) rest = Trim(rest.substr(0, rest.size() - 2));
    const auto parts = Split(rest, ":");
    if (parts.size() < (half_day ? 1 : 2) || parts.size() > 3) throw Failure(failure::kTypeMismatch);
    std::int32_t fields[3] = {};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::string_view digits = Trim(parts[i]);
        if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos)
            throw Failure(failure::kTypeMismatch);
        fields[i] = ToLong(digits);
        if (fields[i] > (i == 0 ? 23 : 59)) throw Failure(failure::kTypeMismatch);
    }
    if (half_day) {
        if (fields[0] < 1 || fields[0] > 12) throw Failure(failure::kTypeMismatch);
        fields[0] = fields[0] % 12 + (pm ? 12 : 0);
    }
    return (fields[0] * 60 + fields[1]) * 60 + fields[2];
}

}  // namespace

HUDClockHandler::HUDClockHandler() {
    try {
        wtcw_debug("HUDClock Handler Init");
        ClockHUD = std::make_unique<HUDHandler>();
        ClockHUD->frame.SetTitle("Clock");
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDClockHandler");
    }
}

HUDClockHandler::~HUDClockHandler() { wtcw_debug("HUDClock Handler Terminate"); }

void HUDClockHandler::CreateHUD() try {
    UpdateControl(true);
    ClockHUD->Clear();
    AddData();
    ClockHUD->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("CreateHUD", "HUDClockHandler");
}

void HUDClockHandler::UpdateHUD() try {
    UpdateControl(false);
    AddData();
    ClockHUD->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("UpdateHUD", "HUDClockHandler");
}

void HUDClockHandler::StartUpTime() try {
    if (up_start_ != 0) {
        Vars::ControlHandler->HudClockList->SetData(kShown, kUpRow, std::string());
        up_start_ = 0;
    } else {
        up_start_ = NowUnix();
    }
} catch (...) {
    ReportFailure("StartUpTime", "HUDClockHandler");
}

void HUDClockHandler::StartDnTime() try {
    down_end_ = ToLong(static_cast<double>(NowUnix()) + TimeValue(Vars::ControlHandler->HudClockTimer->Text()));
} catch (...) {
    ReportFailure("StartDnTime", "HUDClockHandler");
}

// Timers change each second; the clocks are refreshed once a minute.
void HUDClockHandler::UpdateControl(bool force) try {
    auto& controls = *Vars::ControlHandler;
    host::List& rows = *controls.HudClockList;
    const std::int32_t now = NowUnix();
    if (down_end_ != 0) {
        const double left = static_cast<double>(down_end_) - now;
        rows.SetData(kShown, kDownRow, ConvTime(left));
        if (left < 0) {
            down_end_ = 0;
            ClockHUD->Clear();
        }
    }
    if (up_start_ != 0) rows.SetData(kShown, kUpRow, ConvTime(static_cast<double>(now) - up_start_));

    const Date today = NowDate();
    const std::int32_t minute = FieldsOf(today).minute;
    if (!force && minute == minute_) return;
    minute_ = minute;
    const Date universal = ToUniversal();
    const bool hours24 = controls.HudClockHour->Checked();
    rows.SetData(kShown, kDateRow, FormatShortDate(today));
    for (std::int32_t row = kOwnRow; row < rows.Count(); ++row) {
        const double hours = row == kOwnRow ? LocalOffset() / 3600.0 : ToDouble(CellText(rows, kOffset, row));
        rows.SetData(kShown, row, FormatClock(universal + hours / 24.0, hours24));
    }
} catch (...) {
    ReportFailure("UpdateControl", "HUDClockHandler");
}

void HUDClockHandler::AddRow(std::int32_t row, const std::string& key, bool newline) {
    const auto& controls = *Vars::ControlHandler;
    const host::List& rows = *controls.HudClockList;
    text_.clear();
    if (controls.HudClockLabel->Checked()) text_.append(CellText(rows, kName, row)).append(": ");
    std::string_view shown = CellText(rows, kShown, row);
    // The short date leaves the year out.
    if (row == kDateRow && controls.HudClockShort->Checked()) shown = shown.substr(0, shown.rfind('/'));
    text_ += shown;
    ClockHUD->Add(key, text_, GetColorFromHUDIcon(CellIcon(rows, kColor, row)), -1, newline);
}

void HUDClockHandler::AddData() try {
    auto& controls = *Vars::ControlHandler;
    const host::List& rows = *controls.HudClockList;
    if (rows.Count() == 0) return;  // before the settings are in
    const bool clock_newline = controls.HudClockDisp->Checked();
    // A running timer shows whether or not its row is ticked.
    if (down_end_ != 0) AddRow(controls.FindName("Down Timer", "HudClock"), "Down Timer", clock_newline);
    if (up_start_ != 0) AddRow(controls.FindName("Up Timer", "HudClock"), "Up Timer", clock_newline);
    const std::int32_t date = controls.FindName("Date", "HudClock");
    if (CellFlag(rows, kOn, date)) AddRow(date, "Date", controls.HudClockDateDisp->Checked());
    for (std::int32_t row = kOwnRow; row < rows.Count(); ++row) {
        if (!CellFlag(rows, kOn, row)) continue;
        name_ = CellText(rows, kName, row);
        AddRow(row, name_, clock_newline);
    }
} catch (...) {
    ReportFailure("AddData", "HUDClockHandler");
}

void HUDClockHandler::ClickHUD(std::int32_t x, std::int32_t y) try {
    ClickTitleBar(ClockHUD->frame, x, y, &ControlHandler::ToggleClock);
} catch (...) {
    ReportFailure("ClickHUD", "HUDClockHandler");
}

bool HUDClockHandler::WithinTitle(std::int32_t x, std::int32_t y) try {
    return WithinTitleBar(ClockHUD->frame, x, y);
} catch (...) {
    ReportFailure("WithinTitle", "HUDClockHandler");
    return false;
}

}  // namespace ombrel
