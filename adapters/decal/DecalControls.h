// The controls of the options view but lists.
//
// Each keeps a mirror of its state, kept true by our own writes and by the control's events: reading one calls nothing.
#pragma once

#include <string>
#include <vector>

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/DecalControls.h"
#include "adapters/decal/interfaces/DecalPlugins.h"
#include "host/Controls.h"

namespace ombrel::decal {

// A control and the connection to its events, both let go of when the framework says that the control goes.
template <class I>
class ControlLink {
public:
    ControlLink(Com<I> control, const GUID& events, Events::Table handlers) : control_(std::move(control)) {
        handlers.emplace_back(IControlEvents::Destroy, [this](const EventArguments&) {
            events_.Disconnect();
            control_.Release();
        });
        events_ = Events(control_.Unknown(), events, std::move(handlers));
    }

    const Com<I>* operator->() const { return &control_; }

private:
    Com<I> control_;
    Events events_;
};

class DecalStaticText final : public host::StaticText {
public:
    explicit DecalStaticText(Com<IStatic> control);

    const std::string& Text() const override { return text_; }
    void SetText(std::string_view text) override;

private:
    ControlLink<IStatic> control_;
    std::string text_;
};

class DecalPushButton final : public host::PushButton {
public:
    explicit DecalPushButton(Com<IPushButton> control);

    const std::string& Text() const override { return text_; }
    void SetText(std::string_view text) override;

private:
    ControlLink<IPushButton> control_;
    std::string text_;
};

class DecalCheckbox final : public host::Checkbox {
public:
    explicit DecalCheckbox(Com<ICheckbox> control);

    bool Checked() const override { return checked_; }
    void SetChecked(bool checked) override;

private:
    ControlLink<ICheckbox> control_;
    bool checked_;
};

class DecalEdit final : public host::Edit {
public:
    explicit DecalEdit(Com<IEdit> control);

    const std::string& Text() const override { return text_; }
    void SetText(std::string_view text) override;

private:
    Events::Table Handlers();

    ControlLink<IEdit> control_;
    std::string text_;
};

class DecalChoice final : public host::Choice {
public:
    explicit DecalChoice(Com<IChoice> control);

    void Add(std::string_view text, std::string_view data) override;
    void Clear() override;
    std::int32_t Count() const override { return static_cast<std::int32_t>(entries_.size()); }
    const std::string& Text(std::int32_t index) const override { return At(index).text; }
    const std::string& Data(std::int32_t index) const override { return At(index).data; }
    std::int32_t Selected() const override { return selected_; }
    void SetSelected(std::int32_t index) override;

private:
    struct Entry {
        std::string text;
        std::string data;
    };
    const Entry& At(std::int32_t index) const;

    ControlLink<IChoice> control_;
    std::vector<Entry> entries_;
    std::int32_t selected_ = -1;
};

class DecalProgress final : public host::Progress {
public:
    explicit DecalProgress(Com<IProgress> control);

    std::int32_t Value() const override { return value_; }
    void SetValue(std::int32_t value) override;

private:
    ControlLink<IProgress> control_;
    std::int32_t value_;
};

class DecalSlider final : public host::Slider {
public:
    explicit DecalSlider(Com<ISlider> control);

    std::int32_t Position() const override { return position_; }
    void SetPosition(std::int32_t position) override;

private:
    ControlLink<ISlider> control_;
    std::int32_t position_;
};

class DecalNotebook final : public host::Notebook {
public:
    explicit DecalNotebook(Com<INotebook> control);

    std::int32_t ActivePage() const override { return page_; }
    void SetActivePage(std::int32_t page) override;

private:
    ControlLink<INotebook> control_;
    std::int32_t page_;
};

}  // namespace ombrel::decal
