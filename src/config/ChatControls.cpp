// What the controls of the chat and experience tabs do.
#include <array>
#include <optional>
#include <string>

#include "chat/ChatTextHandler.h"
#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/Effects.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/failure.h"
#include "core/text.h"
#include "hud/HUDMainHandler.h"
#include "stats/Statistics.h"

namespace ombrel {
namespace {

// Columns of Chat_Color.
namespace color_list {
constexpr std::int32_t kWindow = 2;
constexpr std::int32_t kMarker = 3;
constexpr std::int32_t kSound = 4;
}  // namespace color_list

// Columns of Chat_Custom.
namespace custom_list {
constexpr std::int32_t kOn = 0;
constexpr std::int32_t kText = 1;
constexpr std::int32_t kWindow = 2;
constexpr std::int32_t kType = 3;
constexpr std::int32_t kMarker = 4;
constexpr std::int32_t kSound = 5;
constexpr std::int32_t kAction = 6;
}  // namespace custom_list

// Columns of Chat_Filter and Chat_Alias; the name is column 1 in both.
constexpr std::int32_t kName = 1;
constexpr std::int32_t kFilterDelete = 4;
constexpr std::int32_t kAliasDelete = 3;

// Choices of windows and types show words and hold what the rules read.
std::string SelectedData(const host::Choice& choice) {
    const std::int32_t selected = choice.Selected();
    return selected < 0 ? std::string() : choice.Data(selected);
}

void SelectData(host::Choice& choice, std::string_view data) {
    for (std::int32_t index = 0; index < choice.Count(); ++index) {
        if (choice.Data(index) != data) continue;
        choice.SetSelected(index);
        return;
    }
}

std::int32_t MarkerIcon(const host::Choice& color) {
    return Vars::ChatTextHandler->GetIconFromColor(SelectedText(color, "Default"));
}

std::string_view MarkerColor(const host::List& list, std::int32_t column, std::int32_t row) {
    return Vars::ChatTextHandler->GetColorFromIcon(CellIcon(list, column, row));
}

std::optional<std::int32_t> FindRow(const host::List& list, std::string_view name) {
    for (std::int32_t row = 0; row < list.Count(); ++row)
        if (CellText(list, kName, row) == name) return row;
    return std::nullopt;
}

void SwapRules(host::List& list, std::int32_t a, std::int32_t b) {
    for (std::int32_t column = 0; column <= custom_list::kAction; ++column) SwapCells(list, column, a, b);
    SwapCells(list, custom_list::kMarker, a, b, 1);
}

}  // namespace

// Experience.

void ControlHandler::ResetTime_Accepted() try {
    Vars::Statistics->ResetSession();
    Vars::HUDMainHandler->CreateHUD();
} catch (...) {
    ReportFailure("ResetTime_Accepted", "ControlHandler");
}

// The plug-in's own lines.

void effect::PassOutput(ControlHandler& controls, std::int32_t window) {
    const std::array boxes{controls.OutputMain, controls.Output1, controls.Output2, controls.Output3, controls.Output4};
    const bool shown = boxes[static_cast<std::size_t>(window)]->Checked();
    Vars::ChatTextHandler->SetTargetList(window, chat_type::kOmbrel, shown);
}

// Colour rules: the choices below the list show the marked row, and change it.

void ControlHandler::ChatColor_Change(std::int32_t, std::int32_t row) try {
    host::List& list = *ChatColor;
    if (!HasRow(list, row)) return;
    MoveMark(list, chat_color_row_, row);
    SelectText(*ChatColorColor, MarkerColor(list, color_list::kMarker, row));
    SelectData(*ChatColorWindow, CellText(list, color_list::kWindow, row));
    SelectText(*ChatColorSound, CellText(list, color_list::kSound, row));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatColor_Change", "ControlHandler");
}

void ControlHandler::ChatColorColor_Change() try {
    SetMarker(*ChatColor, color_list::kMarker, chat_color_row_, MarkerIcon(*ChatColorColor));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatColorColor_Change", "ControlHandler");
}

void ControlHandler::ChatColorWindow_Change() try {
    ChatColor->SetData(color_list::kWindow, chat_color_row_, SelectedData(*ChatColorWindow));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatColorWindow_Change", "ControlHandler");
}

void ControlHandler::ChatColorSound_Change() try {
    ChatColor->SetData(color_list::kSound, chat_color_row_, std::string(SelectedText(*ChatColorSound, "None")));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatColorSound_Change", "ControlHandler");
}

// Custom rules, in the player's order.

void ControlHandler::WriteCustomRule(std::int32_t row) {
    host::List& list = *ChatCustom;
    list.SetData(custom_list::kText, row, ChatCustomText->Text());
    list.SetData(custom_list::kWindow, row, ChatCustomWindow->Text());
    list.SetData(custom_list::kType, row, SelectedData(*ChatCustomType));
    SetMarker(list, custom_list::kMarker, row, MarkerIcon(*ChatCustomColor));
    list.SetData(custom_list::kSound, row, std::string(SelectedText(*ChatCustomSound, "None")));
    list.SetData(custom_list::kAction, row, ChatCustomAction->Text());
}

bool ControlHandler::HasCustomRow() const { return HasRow(*ChatCustom, chat_custom_row_); }

void ControlHandler::ChatCustomAdd_Accepted() try {
    const std::int32_t row = ChatCustom->AddRow();
    ChatCustom->SetData(custom_list::kOn, row, true);
    WriteCustomRule(row);
    MoveMark(*ChatCustom, chat_custom_row_, row);
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatCustomAdd_Accepted", "ControlHandler");
}

void ControlHandler::ChatCustomEdit_Accepted() try {
    if (HasCustomRow()) WriteCustomRule(chat_custom_row_);
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatCustomEdit_Accepted", "ControlHandler");
}

void ControlHandler::ChatCustomDelete_Accepted() try {
    if (HasCustomRow()) ChatCustom->DeleteRow(chat_custom_row_);
    chat_custom_row_ = -1;
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatCustomDelete_Accepted", "ControlHandler");
}

void ControlHandler::MoveCustomRule(std::int32_t by) {
    const std::int32_t to = chat_custom_row_ + by;
    if (HasCustomRow() && to >= 0 && to < ChatCustom->Count()) {
        SwapRules(*ChatCustom, chat_custom_row_, to);
        MoveMark(*ChatCustom, chat_custom_row_, to);
    }
    Settings_Save(0);
}

void ControlHandler::ChatCustomUp_Accepted() try { MoveCustomRule(-1); } catch (...) {
    ReportFailure("ChatCustomUp_Accepted", "ControlHandler");
}

void ControlHandler::ChatCustomDown_Accepted() try { MoveCustomRule(1); } catch (...) {
    ReportFailure("ChatCustomDown_Accepted", "ControlHandler");
}

// A click shows the rule in the fields below; a click on its box has switched it.
void ControlHandler::ChatCustom_Change(std::int32_t, std::int32_t row) try {
    const host::List& list = *ChatCustom;
    if (!HasRow(list, row)) return;
    MoveMark(*ChatCustom, chat_custom_row_, row);
    ChatCustomText->SetText(CellText(list, custom_list::kText, row));
    ChatCustomWindow->SetText(CellText(list, custom_list::kWindow, row));
    SelectData(*ChatCustomType, CellText(list, custom_list::kType, row));
    SelectText(*ChatCustomColor, MarkerColor(list, custom_list::kMarker, row));
    SelectText(*ChatCustomSound, CellText(list, custom_list::kSound, row));
    ChatCustomAction->SetText(CellText(list, custom_list::kAction, row));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatCustom_Change", "ControlHandler");
}

// Words and aliases: adding a name that is there changes its row.

void ControlHandler::FilterAdd_Accepted() try {
    const std::string word = FilterBox->Text();
    if (word.empty()) return;
    host::List& list = *ChatFilter;
    const auto known = FindRow(list, word);
    const std::int32_t row = known ? *known : list.AddRow();
    if (!known) {
        list.SetData(0, row, true);
        list.SetData(kName, row, word);
        list.SetData(kFilterDelete, row, icon::kDelete, 1);
    }
    list.SetData(2, row, std::string(ChatFilterMatching->Checked() ? "Whole" : "Part"));
    list.SetData(3, row, std::string(ChatFilterAction->Checked() ? "Replace" : "Block"));
    Settings_Save(0);
} catch (...) {
    ReportFailure("FilterAdd_Accepted", "ControlHandler");
}

void ControlHandler::ChatFilter_Change(std::int32_t column, std::int32_t row) try {
    if (!HasRow(*ChatFilter, row)) return;
    if (column == kFilterDelete) ChatFilter->DeleteRow(row);
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatFilter_Change", "ControlHandler");
}

void ControlHandler::AliasAdd_Accepted() try {
    const std::string abbreviation = AliasAbbr->Text();
    if (abbreviation.empty()) return;
    host::List& list = *ChatAlias;
    const auto known = FindRow(list, abbreviation);
    const std::int32_t row = known ? *known : list.AddRow();
    if (!known) {
        list.SetData(0, row, true);
        list.SetData(kName, row, abbreviation);
        list.SetData(kAliasDelete, row, icon::kDelete, 1);
    }
    list.SetData(2, row, AliasFull->Text());
    Settings_Save(0);
} catch (...) {
    ReportFailure("AliasAdd_Accepted", "ControlHandler");
}

// A click on a name brings it back into the fields.
void ControlHandler::ChatAlias_Change(std::int32_t column, std::int32_t row) try {
    host::List& list = *ChatAlias;
    if (!HasRow(list, row)) return;
    if (column == kAliasDelete) {
        list.DeleteRow(row);
    } else if (column != 0) {
        AliasAbbr->SetText(CellText(list, kName, row));
        AliasFull->SetText(CellText(list, 2, row));
    }
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatAlias_Change", "ControlHandler");
}

}  // namespace ombrel
