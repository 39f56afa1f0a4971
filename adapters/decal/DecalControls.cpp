#include "adapters/decal/DecalControls.h"

#include "core/failure.h"

namespace ombrel::decal {

// Static text and buttons

DecalStaticText::DecalStaticText(Com<IStatic> control)
    : control_(std::move(control), IControlEvents::kIid, {}), text_(control_->Read(IStatic::Text)) {}

void DecalStaticText::SetText(std::string_view text) {
    control_->Call(IStatic::SetText, Bstr(text).get());
    text_ = text;
}

DecalPushButton::DecalPushButton(Com<IPushButton> control)
    : control_(std::move(control), ICommandEvents::kIid,
               {{ICommandEvents::Accepted, [this](const EventArguments&) { Raise(Accepted); }}}),
      text_(control_->Read(IPushButton::Text)) {}

void DecalPushButton::SetText(std::string_view text) {
    control_->Call(IPushButton::SetText, Bstr(text).get());
    text_ = text;
}

// Check boxes and edits

DecalCheckbox::DecalCheckbox(Com<ICheckbox> control)
    : control_(std::move(control), ICheckboxEvents::kIid,
               {{ICheckboxEvents::Change,
                 [this](const EventArguments& event) {
                     checked_ = event.Bool(1);
                     Raise(Change, checked_);
                 }}}),
      checked_(control_->Read(ICheckbox::Checked)) {}

void DecalCheckbox::SetChecked(bool checked) {
    control_->Call(ICheckbox::SetChecked, ToVariantBool(checked));
    checked_ = checked;
}

DecalEdit::DecalEdit(Com<IEdit> control)
    : control_(std::move(control), IEditEvents::kIid, Handlers()), text_(control_->Read(IEdit::Text)) {}

void DecalEdit::SetText(std::string_view text) {
    control_->Call(IEdit::SetText, Bstr(text).get());
    text_ = text;
}

Events::Table DecalEdit::Handlers() {
    return {
        {IEditEvents::Change,
         [this](const EventArguments& event) {
             text_ = event.Text(1);
             Raise(Change, std::string(text_));
         }},
        // A player who leaves with Escape gets the old text back, of which no other event tells.
        {IEditEvents::End,
         [this](const EventArguments& event) {
             text_ = control_->Read(IEdit::Text);
             Raise(End, event.Bool(1));
         }},
    };
}

// Choices

DecalChoice::DecalChoice(Com<IChoice> control)
    : control_(std::move(control), IChoiceEvents::kIid, {{IChoiceEvents::Change, [this](const EventArguments& event) {
                                                              selected_ = event.Long(1);
                                                              Raise(Change, selected_);
                                                          }}}) {
    const std::int32_t count = control_->Read(IChoice::ChoiceCount);
    for (std::int32_t index = 0; index < count; ++index) {
        const Variant data = control_->Read(IChoice::Data, index);
        const bool none = data.get().vt == VT_EMPTY || data.get().vt == VT_NULL;
        entries_.push_back({control_->Read(IChoice::Text, index), none ? std::string() : data.Text()});
    }
    selected_ = control_->Read(IChoice::Selected);
}

void DecalChoice::Add(std::string_view text, std::string_view data) {
    control_->Call(IChoice::AddChoice, Bstr(text).get(), Variant(data).get());
    entries_.push_back({std::string(text), std::string(data)});
}

void DecalChoice::Clear() {
    control_->Call(IChoice::Clear);
    entries_.clear();
    selected_ = -1;
}

void DecalChoice::SetSelected(std::int32_t index) {
    if (index != -1) (void)At(index);
    control_->Call(IChoice::SetSelected, index);
    selected_ = index;
}

const DecalChoice::Entry& DecalChoice::At(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) throw Failure(failure::kSubscript);
    return entries_[static_cast<std::size_t>(index)];
}

// Progress bars, sliders, notebooks

DecalProgress::DecalProgress(Com<IProgress> control)
    : control_(std::move(control), IControlEvents::kIid, {}), value_(control_->Read(IProgress::Value)) {}

void DecalProgress::SetValue(std::int32_t value) {
    control_->Call(IProgress::SetValue, value);
    value_ = value;
}

DecalSlider::DecalSlider(Com<ISlider> control)
    : control_(std::move(control), ISliderEvents::kIid,
               {{ISliderEvents::Change,
                 [this](const EventArguments& event) {
                     position_ = event.Long(1);
                     Raise(Change, position_);
                 }}}),
      position_(control_->Read(ISlider::SliderPosition)) {}

// The control keeps the position between its ends.
void DecalSlider::SetPosition(std::int32_t position) {
    control_->Call(ISlider::SetSliderPosition, position);
    position_ = control_->Read(ISlider::SliderPosition);
}

DecalNotebook::DecalNotebook(Com<INotebook> control)
    : control_(std::move(control), INotebookEvents::kIid,
               {{INotebookEvents::Change,
                 [this](const EventArguments& event) {
                     page_ = event.Long(1);
                     Raise(Change, page_);
                 }}}),
      page_(control_->Read(INotebook::ActiveTab)) {}

void DecalNotebook::SetActivePage(std::int32_t page) {
    control_->Call(INotebook::SetActiveTab, page);
    page_ = page;
}

}  // namespace ombrel::decal
