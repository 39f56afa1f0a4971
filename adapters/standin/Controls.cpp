// The controls of views, one class a kind.

#include "adapters/sim/Controls.h"

#include "adapters/standin/View.h"
#include "adapters/standin/declarations/DecalControls.h"

namespace ombrel::standin {

namespace {

// What the framework's own number is for the icons of the simulated client's plug-in.
constexpr std::int32_t kIconLibrary = 1;

template <class Interface, class HostControl>
class ControlObject : public SourceObject<Interface> {
public:
    ControlObject(const std::shared_ptr<ViewState>& state, HostControl& control, const GUID& event_id)
        : SourceObject<Interface>(event_id), state_(state), control_(control) {
        this->gone = [state, place = static_cast<host::Control*>(&control)] { state->handed_out.erase(place); };
        state->handed_out.emplace(&control, this);
    }

    STDMETHOD(get_ID)(long* id) override {
        return Serve([&] { *id = id_; });
    }

protected:
    std::shared_ptr<ViewState> state_;
    HostControl& control_;
    std::int32_t id_ = static_cast<std::int32_t>(state_->handed_out.size());
};

class StaticText final : public ControlObject<IStatic, host::StaticText> {
public:
    StaticText(const std::shared_ptr<ViewState>& state, host::StaticText& control)
        : ControlObject(state, control, IControlEvents::kId) {}

    STDMETHOD(get_Text)(BSTR* text) override {
        return Serve([&] { *text = NewText(control_.Text()); });
    }
    STDMETHOD(put_Text)(BSTR text) override {
        return Serve([&] { control_.SetText(Narrow(text)); });
    }
};

class PushButton final : public ControlObject<IPushButton, host::PushButton> {
public:
    PushButton(const std::shared_ptr<ViewState>& state, host::PushButton& control)
        : ControlObject(state, control, ICommandEvents::kId) {
        control.Accepted = [this] {
            events.Raise(ICommandEvents::kHit, id_);
            events.Raise(ICommandEvents::kAccepted, id_);
        };
    }
    ~PushButton() override { control_.Accepted = nullptr; }

    STDMETHOD(get_Text)(BSTR* text) override {
        return Serve([&] { *text = NewText(control_.Text()); });
    }
    STDMETHOD(put_Text)(BSTR text) override {
        return Serve([&] { control_.SetText(Narrow(text)); });
    }
};

class Checkbox final : public ControlObject<ICheckbox, host::Checkbox> {
public:
    Checkbox(const std::shared_ptr<ViewState>& state, host::Checkbox& control)
        : ControlObject(state, control, ICheckboxEvents::kId) {
        control.Change = [this](bool checked) { events.Raise(ICheckboxEvents::kChange, id_, checked); };
    }
    ~Checkbox() override { control_.Change = nullptr; }

    STDMETHOD(get_Checked)(VARIANT_BOOL* checked) override {
        return Serve([&] { *checked = ToVariantBool(control_.Checked()); });
    }
    STDMETHOD(put_Checked)(VARIANT_BOOL checked) override {
        return Serve([&] { control_.SetChecked(checked != VARIANT_FALSE); });
    }
};

class Edit final : public ControlObject<IEdit, host::Edit> {
public:
    Edit(const std::shared_ptr<ViewState>& state, host::Edit& control)
        : ControlObject(state, control, IEditEvents::kId) {
        control.Change = [this](const std::string& text) { events.Raise(IEditEvents::kChange, id_, text); };
        control.End = [this](bool success) { events.Raise(IEditEvents::kEnd, id_, success); };
    }
    ~Edit() override { control_.Change = nullptr, control_.End = nullptr; }

    STDMETHOD(get_Text)(BSTR* text) override {
        return Serve([&] { *text = NewText(control_.Text()); });
    }
    STDMETHOD(put_Text)(BSTR text) override {
        return Serve([&] { control_.SetText(Narrow(text)); });
    }
};

class Choice final : public ControlObject<IChoice, host::Choice> {
public:
    Choice(const std::shared_ptr<ViewState>& state, host::Choice& control)
        : ControlObject(state, control, IChoiceEvents::kId) {
        control.Change = [this](std::int32_t index) { events.Raise(IChoiceEvents::kChange, id_, index); };
    }
    ~Choice() override { control_.Change = nullptr; }

    STDMETHOD(AddChoice)(BSTR text, VARIANT data) override {
        return Serve([&] {
            if (data.vt != VT_BSTR && data.vt != VT_EMPTY) return NotOffered();
            control_.Add(Narrow(text), data.vt == VT_BSTR ? Narrow(data.bstrVal) : std::string());
            return S_OK;
        });
    }
    STDMETHOD(get_ChoiceCount)(long* count) override {
        return Serve([&] { *count = control_.Count(); });
    }
    // An entry without data has none.
    STDMETHOD(get_Data)(long index, VARIANT* data) override {
        return Serve([&] {
            VariantInit(data);
            const std::string& text = control_.Data(index);
            if (text.empty()) return;
            data->vt = VT_BSTR;
            data->bstrVal = NewText(text);
        });
    }
    STDMETHOD(get_Text)(long index, BSTR* text) override {
        return Serve([&] { *text = NewText(control_.Text(index)); });
    }
    STDMETHOD(get_Selected)(long* index) override {
        return Serve([&] { *index = control_.Selected(); });
    }
    STDMETHOD(put_Selected)(long index) override {
        return Serve([&] { control_.SetSelected(index); });
    }
    STDMETHOD(Clear)() override {
        return Serve([&] { control_.Clear(); });
    }
};

class List final : public ControlObject<IList, host::List> {
public:
    List(const std::shared_ptr<ViewState>& state, host::List& control)
        : ControlObject(state, control, IListEvents::kId) {
        control.Change = [this](std::int32_t column, std::int32_t row) {
            events.Raise(IListEvents::kChange, id_, column, row);
        };
    }
    ~List() override { control_.Change = nullptr; }

    STDMETHOD(AddRow)(long* row) override {
        return Serve([&] { *row = control_.AddRow(); });
    }
    STDMETHOD(DeleteRow)(long row) override {
        return Serve([&] { control_.DeleteRow(row); });
    }
    STDMETHOD(get_Data)(long column, long row, long sub, VARIANT* value) override {
        return Serve([&] { Give(control_.Data(column, row, sub), IsLibrary(column, sub), *value); });
    }
    STDMETHOD(put_Data)(long column, long row, long sub, VARIANT* value) override {
        return Serve([&] { control_.SetData(column, row, Take(*value, IsLibrary(column, sub)), sub); });
    }
    STDMETHOD(get_Count)(long* count) override {
        return Serve([&] { *count = control_.Count(); });
    }
    STDMETHOD(Clear)() override {
        return Serve([&] { control_.Clear(); });
    }
    STDMETHOD(get_Color)(long column, long row, long* color) override {
        return Serve([&] { *color = control_.Color(column, row); });
    }
    STDMETHOD(put_Color)(long column, long row, long color) override {
        return Serve([&] { control_.SetColor(column, row, color); });
    }
    STDMETHOD(get_ScrollPosition)(long* position) override {
        return Serve([&] { *position = control_.ScrollPosition(); });
    }
    STDMETHOD(put_ScrollPosition)(long position) override {
        return Serve([&] { control_.SetScrollPosition(position); });
    }

private:
    // Whether the cell names the module of an icon.
    bool IsLibrary(long column, long sub) const {
        const auto& columns = static_cast<const sim::SimList&>(control_).columns();
        return sub == 0 && column >= 0 && static_cast<std::size_t>(column) < columns.size() &&
               columns[static_cast<std::size_t>(column)] == sim::SimList::ColumnKind::kIcon;
    }

    void Give(const host::Cell& cell, bool library, VARIANT& value) const {
        VariantInit(&value);
        if (const auto* text = std::get_if<std::string>(&cell)) {
            value.vt = VT_BSTR;
            value.bstrVal = NewText(*text);
        } else if (const auto* flag = std::get_if<bool>(&cell)) {
            value.vt = VT_BOOL;
            value.boolVal = ToVariantBool(*flag);
        } else {
            value.vt = VT_I4;
            value.lVal = std::get<std::int32_t>(cell);
            if (library && value.lVal == kIconLibrary) value.lVal = state_->icon_library;
        }
    }

    host::Cell Take(const VARIANT& value, bool library) const {
        switch (value.vt) {
            case VT_BSTR:
                return Narrow(value.bstrVal);
            case VT_BOOL:
                return value.boolVal != VARIANT_FALSE;
            case VT_I4:
                return library && value.lVal == state_->icon_library ? kIconLibrary
                                                                     : static_cast<std::int32_t>(value.lVal);
            default:
                throw Failure(failure::kTypeMismatch);
        }
    }
};

class Progress final : public ControlObject<IProgress, host::Progress> {
public:
    Progress(const std::shared_ptr<ViewState>& state, host::Progress& control)
        : ControlObject(state, control, IControlEvents::kId) {}

    STDMETHOD(get_Value)(long* value) override {
        return Serve([&] { *value = control_.Value(); });
    }
    STDMETHOD(put_Value)(long value) override {
        return Serve([&] { control_.SetValue(value); });
    }
};

class Slider final : public ControlObject<ISlider, host::Slider> {
public:
    Slider(const std::shared_ptr<ViewState>& state, host::Slider& control)
        : ControlObject(state, control, ISliderEvents::kId) {
        control.Change = [this](std::int32_t position) { events.Raise(ISliderEvents::kChange, id_, position); };
    }
    ~Slider() override { control_.Change = nullptr; }

    STDMETHOD(get_SliderPosition)(long* position) override {
        return Serve([&] { *position = control_.Position(); });
    }
    STDMETHOD(put_SliderPosition)(long position) override {
        return Serve([&] { control_.SetPosition(position); });
    }
};

class Notebook final : public ControlObject<INotebook, host::Notebook> {
public:
    Notebook(const std::shared_ptr<ViewState>& state, host::Notebook& control)
        : ControlObject(state, control, INotebookEvents::kId) {
        control.Change = [this](std::int32_t page) { events.Raise(INotebookEvents::kChange, id_, page); };
    }
    ~Notebook() override { control_.Change = nullptr; }

    STDMETHOD(get_ActiveTab)(long* page) override {
        return Serve([&] { *page = control_.ActivePage(); });
    }
    STDMETHOD(put_ActiveTab)(long page) override {
        return Serve([&] { control_.SetActivePage(page); });
    }
};

// The object for a control that is of that kind.
template <class Kind, class HostControl>
bool MakeFor(const std::shared_ptr<ViewState>& state, host::Control& control, Ref<IControl>& object) {
    auto* typed = dynamic_cast<HostControl*>(&control);
    if (typed) object = Make<Kind>(state, *typed).get();
    return typed != nullptr;
}

}  // namespace

Ref<IControl> NewControl(const std::shared_ptr<ViewState>& state, host::Control& control) {
    Ref<IControl> object;
    MakeFor<StaticText, host::StaticText>(state, control, object) ||
        MakeFor<PushButton, host::PushButton>(state, control, object) ||
        MakeFor<Checkbox, host::Checkbox>(state, control, object) ||
        MakeFor<Edit, host::Edit>(state, control, object) || MakeFor<Choice, host::Choice>(state, control, object) ||
        MakeFor<List, host::List>(state, control, object) ||
        MakeFor<Progress, host::Progress>(state, control, object) ||
        MakeFor<Slider, host::Slider>(state, control, object) ||
        MakeFor<Notebook, host::Notebook>(state, control, object);
    return object;
}

}  // namespace ombrel::standin
