// The list of items that the item HUD counts.
#include <string>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/HudRows.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"

namespace ombrel {
namespace {

constexpr std::int32_t kOn = 0;
constexpr std::int32_t kName = 1;
constexpr std::int32_t kWarnBelow = 2;
constexpr std::int32_t kUp = 3;
constexpr std::int32_t kDown = 4;
constexpr std::int32_t kDelete = 5;
constexpr std::int32_t kIcon = 6;

constexpr std::int32_t kUnknownIcon = -1;  // the HUD looks it up once it sees such an item

// The row of that name; a new one, with its buttons, where there is none.
std::int32_t RowOf(host::List& list, const std::string& name) {
    for (std::int32_t row = 0; row < list.Count(); ++row)
        if (CellText(list, kName, row) == name) return row;

    const std::int32_t row = list.AddRow();
    list.SetData(kOn, row, true);
    list.SetData(kName, row, name);
    list.SetData(kUp, row, icon::kUp, 1);
    list.SetData(kDown, row, icon::kDown, 1);
    list.SetData(kDelete, row, icon::kDelete, 1);
    list.SetData(kIcon, row, NumberText(kUnknownIcon));
    return row;
}

void Move(host::List& list, std::int32_t row, std::int32_t to) {
    if (!HasRow(list, to)) return;
    for (const std::int32_t column : {kOn, kName, kWarnBelow, kIcon}) SwapCells(list, column, row, to);
}

}  // namespace

// Adding a name that is there changes its row. A threshold that is no number warns of nothing.
void ControlHandler::AddItem(const std::string& name, std::int32_t icon) {
    if (name.empty()) return;
    host::List& list = *HudItems;
    const std::int32_t row = RowOf(list, name);
    const std::string& count = HudItemsCount->Text();
    list.SetData(kWarnBelow, row, IsNumeric(count) ? count : std::string("0"));
    if (icon != kUnknownIcon) list.SetData(kIcon, row, NumberText(icon));
    hud::Create(hud::kItems);
    Settings_Save(0);
}

void ControlHandler::HudItemsAdd_Accepted() try { AddItem(HudItemsText->Text(), kUnknownIcon); } catch (...) {
    ReportFailure("HudItemsAdd_Accepted", "ControlHandler");
}

void ControlHandler::HudItemsSel_Accepted() try {
    auto& filter = *Vars::FilterHandler;
    const auto item = filter.World->Object(filter.GetCurrentSelection());
    if (item) AddItem(item->Name(), item->Long(host::key::kIcon, kUnknownIcon));
} catch (...) {
    ReportFailure("HudItemsSel_Accepted", "ControlHandler");
}

// A click on a name brings it back into the fields.
void ControlHandler::HudItems_Change(std::int32_t column, std::int32_t row) try {
    host::List& list = *HudItems;
    if (!HasRow(list, row)) return;
    switch (column) {
        case kUp:
            Move(list, row, row - 1);
            break;
        case kDown:
            Move(list, row, row + 1);
            break;
        case kDelete:
            list.DeleteRow(row);
            break;
        case kName:
        case kWarnBelow:
            HudItemsText->SetText(CellText(list, kName, row));
            HudItemsCount->SetText(CellText(list, kWarnBelow, row));
            break;
        default:
            break;
    }
    hud::Create(hud::kItems);
    Settings_Save(0);
} catch (...) {
    ReportFailure("HudItems_Change", "ControlHandler");
}

}  // namespace ombrel
