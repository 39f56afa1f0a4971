// Vitals: the sounds of their alarms, and the shares and exceptions of one-touch healing.
#include <fmt/format.h>

#include <span>
#include <string>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/Effects.h"
#include "config/SettingsTable.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "hud/DX8Sound.h"

namespace ombrel {
namespace {

// The settings table knows which controls belong together: the attribute number `which` of those that live in a Place.
template <class Place>
const settings::Attribute& AttributeOf(std::span<const settings::Attribute> attributes, std::int32_t which) {
    for (const auto& attribute : attributes)
        if (std::holds_alternative<Place>(attribute.place) && which-- == 0) return attribute;
    throw Failure(failure::kSubscript);
}

constexpr std::int32_t kExceptionName = 0;
constexpr std::int32_t kExceptionDelete = 1;

}  // namespace

void effect::LoadAlarm(ControlHandler& controls, std::int32_t vital) {
    const auto& place = std::get<settings::InSound>(AttributeOf<settings::InSound>(settings::kVitalAlarm, vital).place);
    DX8Sound& alarm = *((*Vars::FilterHandler).*place.alarm);
    const std::string_view sound = SelectedText(*(controls.*place.control), "None");
    alarm.UnSetSound();
    if (sound != "None") alarm.SetSound(fmt::format("Loop\\{}", sound));
}

// A text that is no number goes back to the one that a new file gives.
void effect::ReadPercent(ControlHandler& controls, std::int32_t percent) {
    const auto& attribute = AttributeOf<settings::InPercent>(settings::kOneTouch, percent);
    const auto& place = std::get<settings::InPercent>(attribute.place);
    host::Edit& edit = *(controls.*place.edit);
    const std::string number = WithoutPercent(edit.Text());
    const std::string text = IsNumeric(number) ? number + "%" : std::string(attribute.missing);
    (controls.*place.slider)->SetPosition(NearestLong(WithoutPercent(text)));
    if (edit.Text() != text) edit.SetText(text);
}

void effect::ReadSlider(ControlHandler& controls, std::int32_t percent) {
    const auto& place =
        std::get<settings::InPercent>(AttributeOf<settings::InPercent>(settings::kOneTouch, percent).place);
    (controls.*place.edit)->SetText(fmt::format("{}%", (controls.*place.slider)->Position()));
}

// Exceptions are listed and kept; nothing asks for them yet.

void ControlHandler::AddException(const std::string& name) {
    if (name.empty()) return;
    const std::int32_t row = VitalsExceptions->AddRow();
    VitalsExceptions->SetData(kExceptionName, row, name);
    VitalsExceptions->SetData(kExceptionDelete, row, icon::kDelete, 1);
    Settings_Save(0);
}

void ControlHandler::VitalsAddExceptionBtn_Accepted() try { AddException(VitalsAddException->Text()); } catch (...) {
    ReportFailure("VitalsAddExceptionBtn_Accepted", "ControlHandler");
}

void ControlHandler::VitalsAddExceptionSel_Accepted() try {
    auto& filter = *Vars::FilterHandler;
    if (const host::Id selected = filter.GetCurrentSelection(); filter.ItemExists(selected))
        AddException(filter.GetName(selected));
} catch (...) {
    ReportFailure("VitalsAddExceptionSel_Accepted", "ControlHandler");
}

void ControlHandler::VitalsExceptions_Change(std::int32_t column, std::int32_t row) try {
    if (!HasRow(*VitalsExceptions, row)) return;
    if (column == kExceptionDelete) VitalsExceptions->DeleteRow(row);
    Settings_Save(0);
} catch (...) {
    ReportFailure("VitalsExceptions_Change", "ControlHandler");
}

}  // namespace ombrel
