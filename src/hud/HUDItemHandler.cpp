#include "hud/HUDItemHandler.h"

#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/text.h"
#include "host/Plugin.h"
#include "hud/TitleBar.h"

namespace ombrel {
namespace {

constexpr std::int32_t kBurst = 50;          // milliseconds
constexpr std::int32_t kUnknownIcon = -1;    // until an item of the name has been seen
constexpr std::int32_t kPlaceholder = 4600;  // icon for a name that nothing in the packs has

// How far a count that has changed has fallen.
enum class Stock { kSame, kChanged, kLow, kNearlyOut, kOut };

struct Warning {
    Stock stock;
    std::string_view text;
};

constexpr Warning kWarnings[] = {
    {Stock::kLow, "You are getting low on "},
    {Stock::kNearlyOut, "Warning! You are nearly out of "},
    {Stock::kOut, "Warning! You are out of "},
};

}  // namespace

HUDItemHandler::HUDItemHandler() {
    try {
        wtcw_debug("HUDItem Handler Init");
        ItemHUD = std::make_unique<HUDHandler>();
        ItemHUD->frame.SetTitle("Item");
        updatetimer = Vars::Site->CreateTimer("HUDItemHandler.updatetimer");
        updatetimer->Timeout = [this] { updatetimer_Timeout(); };
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDItemHandler");
    }
}

HUDItemHandler::~HUDItemHandler() { wtcw_debug("HUDItem Handler Terminate"); }

void HUDItemHandler::CreateHUD() try {
    ItemHUD->Clear();
    AddData();
    ItemHUD->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("CreateHUD", "HUDItemHandler");
}

void HUDItemHandler::UpdateHUD() try {
    if (!updatetimer->Running()) updatetimer->Start(kBurst);
} catch (...) {
    ReportFailure("UpdateHUD", "HUDItemHandler");
}

void HUDItemHandler::updatetimer_Timeout() try {
    updatetimer->Stop();
    AddData();
    ItemHUD->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("updatetimer_Timeout", "HUDItemHandler");
}

// The icon of a row's item, found once and kept in the row.
std::int32_t HUDItemHandler::IconOf(std::int32_t row, const std::string& name, std::int32_t count) {
    host::List& items = *Vars::ControlHandler->HudItems;
    const std::int32_t known = ToLong(CellText(items, 6, row));
    if (known != kUnknownIcon) return known;
    if (count == 0) return kPlaceholder;
    const std::int32_t icon = Vars::FilterHandler->GetIcon(name);
    items.SetData(6, row, NumberText(icon));
    Vars::ControlHandler->Settings_Save(0);
    return icon;
}

void HUDItemHandler::AddData() try {
    const auto& controls = *Vars::ControlHandler;
    const host::List& items = *controls.HudItems;
    const std::int32_t rows = items.Count();
    const auto size = static_cast<std::size_t>(rows);
    std::vector<Stock> stocks(size, Stock::kSame);
    std::vector<std::int32_t> counts(size);
    last_counts_.resize(size);
    for (std::int32_t row = 0; row < rows; ++row) {
        const auto i = static_cast<std::size_t>(row);
        counts[i] = Vars::FilterHandler->GetItemCount(CellText(items, 1, row));
        if (counts[i] == last_counts_[i]) continue;
        last_counts_[i] = counts[i];
        stocks[i] = Stock::kChanged;
    }
    wtcw_debug("Item Refresh");

    const bool newline = !controls.HudItemsHorz->Checked();
    for (std::int32_t row = 0; row < rows; ++row) {
        if (!CellFlag(items, 0, row)) continue;
        const auto i = static_cast<std::size_t>(row);
        const std::int32_t count = counts[i];
        const std::string name = CellText(items, 1, row);
        const std::int32_t icon = IconOf(row, name, count);
        const double threshold = ToDouble(CellText(items, 2, row));
        std::string color = controls.HudItemsColor->Text(controls.HudItemsColor->Selected());
        if (count < threshold + Round(0.5 * threshold)) {
            color = "Yellow";
            if (stocks[i] == Stock::kChanged) stocks[i] = Stock::kLow;
        }
        if (count < threshold) {
            color = "Red";
            if (stocks[i] == Stock::kLow) stocks[i] = Stock::kNearlyOut;
        }
        if (count == 0 && stocks[i] == Stock::kNearlyOut) stocks[i] = Stock::kOut;
        ItemHUD->Add(NumberText(row), NumberText(count), color, icon, newline);
    }

    if (!Vars::ControlHandler->ChatOption("Running Low on Item Warning")) return;
    for (const Warning& warning : kWarnings) {
        std::string names;
        for (std::int32_t row = 0; row < rows; ++row)
            if (stocks[static_cast<std::size_t>(row)] == warning.stock) names += CellText(items, 1, row) + ", ";
        if (!names.empty()) wtcw(std::string(warning.text) + std::string(DropLast(names, 2)));
    }
} catch (...) {
    ReportFailure("AddData", "HUDItemHandler");
}

void HUDItemHandler::ClickHUD(std::int32_t x, std::int32_t y) try {
    ClickTitleBar(ItemHUD->frame, x, y, &ControlHandler::ToggleItem);
} catch (...) {
    ReportFailure("ClickHUD", "HUDItemHandler");
}

bool HUDItemHandler::WithinTitle(std::int32_t x, std::int32_t y) try {
    return WithinTitleBar(ItemHUD->frame, x, y);
} catch (...) {
    ReportFailure("WithinTitle", "HUDItemHandler");
    return false;
}

}  // namespace ombrel
