// The simulated options view: built from the same description as the framework's, by the framework's rules.
//
// A control that the description lacks is missing here too, and an attribute that the framework doesn't read has no
// effect.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Controls.h"
#include "host/Controls.h"

namespace ombrel::sim {

enum class ElementKind : std::uint8_t {
    kLayout,
    kStaticText,
    kPushButton,
    kCheckbox,
    kEdit,
    kChoice,
    kList,
    kProgress,
    kSlider,
    kNotebook,
};

// A node of the description: a control or a layout, where it stands, and how it looks.
struct Element {
    struct Page {
        std::string label;
        std::unique_ptr<Element> content;  // may be missing
    };
    using Attributes = std::map<std::string, std::string, std::less<>>;

    ElementKind kind = ElementKind::kLayout;
    std::string name;  // empty: cannot be reached
    host::Rect rect;   // within the parent
    Attributes attributes;
    std::unique_ptr<host::Control> control;  // none for layouts
    std::vector<std::unique_ptr<Element>> children;
    std::vector<Page> pages;          // of a notebook
    std::vector<Attributes> columns;  // of a list

    // An attribute as the framework reads it; what is missing or unreadable gives the default.
    std::string_view Text(std::string_view attribute, std::string_view standard = {}) const;
    std::int32_t Number(std::string_view attribute, std::int32_t standard = 0) const;
    bool Flag(std::string_view attribute, bool standard = false) const;
};

// What the parts of the controls take, in pixels.
inline constexpr std::int32_t kTabHeight = 20;     // the strip with a notebook's tabs
inline constexpr std::int32_t kTabPadding = 10;    // both sides of a tab's label together
inline constexpr std::int32_t kCheckWidth = 16;    // the box of a check box
inline constexpr std::int32_t kChoiceButton = 17;  // the button of a choice
inline constexpr std::int32_t kScrollBar = 16;     // the bar at a list's right side
inline constexpr std::int32_t kIconColumn = 20;    // a check or icon column

// The widths of a list's columns. Text columns without a width of their own share what is left.
std::vector<std::int32_t> ColumnWidths(const Element& list);

class SimView final : public host::View {
public:
    // Throws Failure when the text describes no view.
    SimView(Calls& calls, std::string_view xml);
    ~SimView() override;

    host::Control* Control(std::string_view name) override;
    host::Rect Position() const override;
    void SetPosition(const host::Rect& position) override;

    const std::string& title() const { return title_; }
    const host::Rect& position() const { return position_; }
    void PutPosition(const host::Rect& position) { position_ = position; }

    const Element* root() const { return root_.get(); }  // nothing in an empty view
    Element* Find(std::string_view name) const;          // nothing when no control has that name

    // The control of that name, when it is of that kind.
    template <class Kind>
    Kind* Get(std::string_view name) const {
        Element* element = Find(name);
        return element ? dynamic_cast<Kind*>(element->control.get()) : nullptr;
    }

    std::function<void()> Closed;  // the plug-in has let go of the view

private:
    void Index(Element& element);

    Calls& calls_;
    std::string title_;
    host::Rect position_;
    std::unique_ptr<Element> root_;
    std::map<std::string, Element*, std::less<>> names_;
};

}  // namespace ombrel::sim
