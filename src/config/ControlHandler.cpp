#include "config/ControlHandler.h"

#include <fmt/format.h>

#include <type_traits>

#include "config/ControlTable.h"
#include "config/ControlTools.h"
#include "config/ViewHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"

namespace ombrel {

namespace {

template <class Visitor>
void ForEachControl(Visitor visit) {
    const auto each = [&](const auto& table) {
        for (const auto& row : table) visit(row);
    };
    each(kStaticTexts);
    each(kPushButtons);
    each(kCheckboxes);
    each(kNotebooks);
    each(kEdits);
    each(kChoices);
    each(kLists);
    each(kProgresses);
    each(kSliders);
}

template <class Row>
struct KindOf;
template <class Kind>
struct KindOf<ControlRow<Kind>> {
    using type = Kind;
};

template <class Procedure, class... Arguments>
void Respond(ControlHandler& controls, const Answer<Procedure>& answer, const Arguments&... arguments) {
    if (!Vars::Loaded) return;
    if (const auto* option = std::get_if<Option>(&answer)) return controls.ChangeOption(*option);
    const Procedure procedure = std::get<Procedure>(answer);
    if constexpr (std::is_same_v<Procedure, ListEvent>)
        (controls.*procedure)(arguments...);
    else
        (controls.*procedure)();
}

// Sets the slots of a control's events: to the row's answer, or to nothing.
template <class Kind>
void Attach(Kind& control, const ControlRow<Kind>& row, ControlHandler* handler) {
    const auto attach = [&](auto& slot, const auto& answer) {
        if (handler && answer.index() != 0)
            slot = [handler, &answer](const auto&... arguments) { Respond(*handler, answer, arguments...); };
        else
            slot = nullptr;
    };
    if constexpr (requires { control.Accepted; }) attach(control.Accepted, row.change);
    if constexpr (requires { control.Change; }) attach(control.Change, row.change);
    if constexpr (requires { control.End; }) attach(control.End, row.end);
}

}  // namespace

ControlHandler::ControlHandler() { wtcw_debug("Control Handler Init"); }

ControlHandler::~ControlHandler() {
    ReleaseControls();
    wtcw_debug("Control Handler Terminate");
}

template <class Row>
void ControlHandler::Bind(const Row& row) {
    using Kind = typename KindOf<Row>::type;
    host::Control* found = Vars::ViewHandler->MainView->Control(row.name);
    auto* control = dynamic_cast<Kind*>(found);
    if (!control) {
        const auto description = found ? fmt::format("The control \"{}\" of the view is of another kind.", row.name)
                                       : fmt::format("The view has no control \"{}\".", row.name);
        ErrorReport("InitControls", "ControlHandler", found ? failure::kTypeMismatch : failure::kNoObject, description,
                    0);
        return;
    }
    this->*row.member = control;
    Attach(*control, row, this);
}

void ControlHandler::InitControls() try {
    Vars::ViewHandler->CreateMainView();
    (void)*Vars::ViewHandler->MainView;  // without a view one report is enough
    ForEachControl([this](const auto& row) { Bind(row); });
    FillSoundChoices();
} catch (...) {
    ReportFailure("InitControls", "ControlHandler");
}

void ControlHandler::FillSoundChoices() {
    GetSoundList();
    GetSoundLoopList();
    for (const auto& choice : {ChatColorSound, ChatCustomSound, AlarmHealthSound, AlarmStaminaSound, AlarmManaSound}) {
        if (choice) SelectText(*choice, "None");
    }
}

void ControlHandler::ReleaseControls() try {
    ForEachControl([this](const auto& row) {
        auto& member = this->*row.member;
        if (!member) return;
        Attach(*member, row, nullptr);
        member = {};
    });
} catch (...) {
    ReportFailure("ReleaseControls", "ControlHandler");
}

void ControlHandler::ChangeOption(const Option& option) try {
    if (option.apply) option.apply(*this, option.which);
    Settings_Save(0);
} catch (...) {
    ReportFailure(option.procedure, "ControlHandler");
}

}  // namespace ombrel
