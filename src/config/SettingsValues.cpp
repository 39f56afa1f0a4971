#include "config/SettingsValues.h"

#include <fmt/format.h>

#include <iterator>
#include <string>

#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlTools.h"
#include "config/Effects.h"
#include "config/ViewHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "hud/DX8Sound.h"

namespace ombrel::settings {

namespace {

constexpr std::int32_t kNameColumn = 1;

struct Load {
    Loading& loading;
    const Attribute& attribute;
    std::string_view value;

    ControlHandler& controls() const { return loading.controls; }
    host::List& list() const { return *(controls().*loading.element->list); }

    void operator()(const InCheckbox& in) const { (controls().*in.control)->SetChecked(ToBool(value)); }
    void operator()(const InEdit& in) const { (controls().*in.control)->SetText(value); }

    // A percentage that is no number goes back to what a file without one gives.
    void operator()(const InPercent& in) const {
        const std::string_view text = IsNumeric(WithoutPercent(value)) ? value : attribute.missing;
        (controls().*in.edit)->SetText(text);
        (controls().*in.slider)->SetPosition(NearestLong(WithoutPercent(text)));
    }

    // An entry that this view lacks, as in a file that fits another view, leaves the choice as it was.
    void operator()(const InChoice& in) const {
        host::Choice& choice = *(controls().*in.control);
        const std::int32_t index = ToLong(value);
        if (index >= -1 && index < choice.Count()) choice.SetSelected(index);
    }

    void operator()(const InSound& in) const {
        SelectText(*(controls().*in.control), value);
        if (value != "None") ((*Vars::FilterHandler).*in.alarm)->SetSound(fmt::format("Loop\\{}", value));
    }

    void operator()(const InFlag& in) const { list().SetData(in.column, loading.row, ToBool(value)); }
    void operator()(const InText& in) const { list().SetData(in.column, loading.row, std::string(value)); }
    void operator()(const InNumber& in) const { list().SetData(in.column, loading.row, NumberText(ToLong(value))); }
    void operator()(const InHudColor& in) const { SetMarker(list(), in.column, loading.row, GetColorFromIcon(value)); }
    void operator()(const InChatColor& in) const {
        SetMarker(list(), in.column, loading.row, Vars::ChatTextHandler->GetIconFromColor(value));
    }
    void operator()(const InName&) const {}  // the row bears it already
    void operator()(const InOlderFlag& in) const { (controls().*in.list)->SetData(in.column, in.row, ToBool(value)); }

    void operator()(InCanvas part) const {
        switch (part) {
            case InCanvas::kX:
                loading.place.x = ToLong(value);
                return;
            case InCanvas::kY:
                loading.place.y = ToLong(value);
                return;
            case InCanvas::kDockHorz:
                frame().DockHorz = ToBool(value);
                return;
            case InCanvas::kDockVert:
                frame().DockVert = ToBool(value);
                return;
            case InCanvas::kDrawTitle:
                frame().DrawTitle = ToBool(value);
                return;
        }
    }

    void operator()(InView part) const { (part == InView::kX ? loading.place.x : loading.place.y) = ToLong(value); }

    void operator()(const InSelectedSpell&) const { controls().SelectedSpell = value == "-1" ? "" : value; }

    HudFrame& frame() const { return hud::FrameOf(loading.element->row); }
};

struct Save {
    FlatXml& xml;
    const ControlHandler& controls;
    const Element& element;
    std::int32_t row;
    const Attribute& attribute;

    host::List& list() const { return *(controls.*element.list); }

    void Write(std::string_view value) const { xml.Attribute(attribute.name, value); }
    void Write(bool value) const { Write(BoolText(value)); }
    void Write(std::int32_t value) const { xml.Attribute(attribute.name, value); }

    void operator()(const InCheckbox& in) const { Write((controls.*in.control)->Checked()); }
    void operator()(const InEdit& in) const { Write((controls.*in.control)->Text()); }
    void operator()(const InPercent& in) const { Write((controls.*in.edit)->Text()); }
    void operator()(const InChoice& in) const { Write((controls.*in.control)->Selected()); }
    void operator()(const InSound& in) const { Write(SelectedText(*(controls.*in.control), "None")); }
    void operator()(const InFlag& in) const { Write(CellFlag(list(), in.column, row)); }
    void operator()(const InText& in) const { Write(CellText(list(), in.column, row)); }
    void operator()(const InNumber& in) const { Write(CellText(list(), in.column, row)); }
    void operator()(const InHudColor& in) const { Write(GetColorFromHUDIcon(CellIcon(list(), in.column, row))); }
    void operator()(const InChatColor& in) const {
        Write(Vars::ChatTextHandler->GetColorFromIcon(CellIcon(list(), in.column, row)));
    }
    void operator()(const InName&) const { Write(CellText(list(), kNameColumn, row)); }
    void operator()(const InOlderFlag&) const {}

    void operator()(InCanvas part) const {
        const HudFrame& frame = hud::FrameOf(element.row);
        switch (part) {
            case InCanvas::kX:
                return Write(frame.x());
            case InCanvas::kY:
                return Write(frame.y());
            case InCanvas::kDockHorz:
                return Write(frame.DockHorz);
            case InCanvas::kDockVert:
                return Write(frame.DockVert);
            case InCanvas::kDrawTitle:
                return Write(frame.DrawTitle);
        }
    }

    void operator()(InView part) const {
        const host::Rect position = Vars::ViewHandler->MainView->Position();
        Write(part == InView::kX ? position.left : position.top);
    }

    void operator()(const InSelectedSpell&) const { Write(controls.SelectedSpell); }
};

// The text of the entry that an old file names by its number.
std::string EntryText(const host::Choice& choice, std::string_view number) {
    const std::int32_t index = ToLong(number);
    if (index < 0 || index >= choice.Count()) throw Failure(failure::kSubscript);
    return choice.Text(index);
}

}  // namespace

void LoadValue(Loading& loading, const Attribute& attribute, std::string_view value) {
    std::visit(Load{loading, attribute, value}, attribute.place);
}

void LoadIndexed(Loading& loading, const Attribute& attribute, std::string_view number) {
    LoadValue(loading, attribute, EntryText(*(loading.controls.*attribute.entries), number));
}

void SaveValue(FlatXml& xml, const ControlHandler& controls, const Element& element, std::int32_t row,
               const Attribute& attribute) {
    std::visit(Save{xml, controls, element, row, attribute}, attribute.place);
}

// What the elements set in motion.

void DropAlarms(Loading&) {
    Vars::FilterHandler->HealthAlarm->UnSetSound();
    Vars::FilterHandler->StaminaAlarm->UnSetSound();
    Vars::FilterHandler->ManaAlarm->UnSetSound();
}

void MoveView(Loading& loading) {
    constexpr std::int32_t kWidth = 230;
    constexpr std::int32_t kHeight = 260;
    const auto [x, y] = loading.place;
    const host::Rect position{x, y, ToLong(1.0 * x + kWidth), ToLong(1.0 * y + kHeight)};
    Vars::ViewHandler->MainView->SetPosition(position);
    wtcw_debug(fmt::format("{}, {}, {}, {}", position.top, position.left, position.right, position.bottom));
}

void PassEventStart(Loading& loading) { effect::PassEventStart(loading.controls, 0); }

void PassOutputs(Loading& loading) {
    constexpr std::int32_t kWindows = 5;
    for (std::int32_t window = 0; window < kWindows; ++window) effect::PassOutput(loading.controls, window);
}

void PassXPChange(Loading& loading) { hud::ApplyXPChange(loading.controls); }

void PassLog(Loading& loading) {
    const auto& controls = loading.controls;
    if (const std::string& max = controls.ChatLogMax->Text(); IsNumeric(max))
        Vars::LogHandler->SetMaxLines(NearestLong(max));
    if (controls.ChatLogAuto->Checked()) Vars::LogHandler->InitFileLog();
}

void PassHud(Loading& loading) {
    const std::int32_t row = loading.element->row;
    hud::ApplyLook(loading.controls, row);
    hud::FrameOf(row).SetPos(loading.place.x, loading.place.y, false);
    hud::ApplyEnabled(loading.controls, row);
}

void PassMainHud(Loading& loading) {
    PassHud(loading);
    hud::StartRefresh(loading.controls);
}

void PassItemHud(Loading& loading) {
    hud::ApplyIconSize(loading.controls);
    PassHud(loading);
}

void PassTargetHud(Loading& loading) {
    hud::ApplyTargetColor(loading.controls);
    PassHud(loading);
}

}  // namespace ombrel::settings
