#include "adapters/sim/View.h"

#include <algorithm>
#include <charconv>
#include <pugixml.hpp>
#include <utility>

#include "adapters/sim/Calls.h"
#include "core/failure.h"
#include "core/text.h"

namespace ombrel::sim {

std::string_view Element::Text(std::string_view attribute, std::string_view standard) const {
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? standard : std::string_view(found->second);
}

std::int32_t Element::Number(std::string_view attribute, std::int32_t standard) const {
    const std::string_view text = Text(attribute);
    std::int32_t number = standard;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

bool Element::Flag(std::string_view attribute, bool standard) const {
    const std::string text = ToLower(Text(attribute, standard ? "true" : "false"));
    return text == "true" || (text != "false" && Number(attribute) != 0);
}

namespace {

// Class names ignore case.
ElementKind KindOf(std::string_view progid, bool& known) {
    static constexpr std::pair<std::string_view, ElementKind> kinds[] = {
        {"decalcontrols.fixedlayout", ElementKind::kLayout},
        {"decalcontrols.statictext", ElementKind::kStaticText},
        {"decalcontrols.pushbutton", ElementKind::kPushButton},
        {"decalcontrols.checkbox", ElementKind::kCheckbox},
        {"decalcontrols.edit", ElementKind::kEdit},
        {"decalcontrols.choice", ElementKind::kChoice},
        {"decalcontrols.list", ElementKind::kList},
        {"decalcontrols.progress", ElementKind::kProgress},
        {"decalcontrols.slider", ElementKind::kSlider},
        {"decalcontrols.notebook", ElementKind::kNotebook},
    };
    const std::string lower = ToLower(progid);
    const auto* found =
        std::ranges::find(kinds, std::string_view(lower), &std::pair<std::string_view, ElementKind>::first);
    known = found != std::end(kinds);
    return known ? found->second : ElementKind::kLayout;
}

Element::Attributes AttributesOf(const pugi::xml_node& node) {
    Element::Attributes attributes;
    for (const auto& attribute : node.attributes()) attributes.emplace(attribute.name(), attribute.value());
    return attributes;
}

std::unique_ptr<Element> Build(Calls& calls, const pugi::xml_node& node);

std::unique_ptr<host::Control> BuildList(Calls& calls, Element& element, const pugi::xml_node& node) {
    static constexpr std::pair<std::string_view, SimList::ColumnKind> kinds[] = {
        {"decalcontrols.textcolumn", SimList::ColumnKind::kText},
        {"decalcontrols.checkcolumn", SimList::ColumnKind::kCheck},
        {"decalcontrols.iconcolumn", SimList::ColumnKind::kIcon},
    };
    std::vector<SimList::ColumnKind> columns;
    for (const auto& column : node.children("column")) {
        const std::string progid = ToLower(column.attribute("progid").value());
        for (const auto& [name, kind] : kinds) {
            if (progid != name) continue;
            columns.push_back(kind);
            element.columns.push_back(AttributesOf(column));
        }
    }
    return std::make_unique<SimList>(calls, std::move(columns));
}

std::unique_ptr<host::Control> BuildControl(Calls& calls, Element& element, const pugi::xml_node& node) {
    switch (element.kind) {
        case ElementKind::kLayout:
            for (const auto& child : node.children("control"))
                if (auto built = Build(calls, child)) element.children.push_back(std::move(built));
            return nullptr;
        case ElementKind::kNotebook:
            for (const auto& page : node.children("page"))
                element.pages.push_back({page.attribute("label").value(), Build(calls, page.child("control"))});
            return std::make_unique<SimNotebook>(calls, static_cast<std::int32_t>(element.pages.size()));
        case ElementKind::kStaticText:
            return std::make_unique<SimStaticText>(calls, std::string(element.Text("text")));
        case ElementKind::kPushButton:
            return std::make_unique<SimPushButton>(calls, std::string(element.Text("text")));
        case ElementKind::kCheckbox:
            return std::make_unique<SimCheckbox>(calls, element.Flag("checked"));
        case ElementKind::kEdit:
            return std::make_unique<SimEdit>(calls, std::string(element.Text("text")));
        case ElementKind::kChoice: {
            std::vector<SimChoice::Entry> entries;
            for (const auto& option : node.children("option"))
                entries.push_back({option.attribute("text").value(), option.attribute("data").value()});
            return std::make_unique<SimChoice>(calls, std::move(entries), element.Number("selected", -1));
        }
        case ElementKind::kList:
            return BuildList(calls, element, node);
        case ElementKind::kProgress:
            return std::make_unique<SimProgress>(calls, element.Number("value"), element.Number("max", 100));
        case ElementKind::kSlider:
            return std::make_unique<SimSlider>(calls, element.Number("minimum"), element.Number("maximum", 100),
                                               element.Number("default"));
    }
    return nullptr;
}

// Nothing for a class that the framework doesn't have.
std::unique_ptr<Element> Build(Calls& calls, const pugi::xml_node& node) {
    bool known = false;
    auto element = std::make_unique<Element>();
    element->kind = KindOf(node.attribute("progid").value(), known);
    if (!known) return nullptr;
    element->attributes = AttributesOf(node);
    element->name = element->Text("name");
    const std::int32_t left = element->Number("left"), top = element->Number("top");
    element->rect = {left, top, left + element->Number("width"), top + element->Number("height")};
    element->control = BuildControl(calls, *element, node);
    return element;
}

}  // namespace

std::vector<std::int32_t> ColumnWidths(const Element& list) {
    const auto& kinds = static_cast<const SimList&>(*list.control).columns();
    std::vector<std::int32_t> widths;
    std::int32_t left = list.rect.right - list.rect.left - kScrollBar, sharing = 0;
    for (std::size_t column = 0; column < kinds.size(); ++column) {
        Element look;
        look.attributes = list.columns[column];
        widths.push_back(kinds[column] == SimList::ColumnKind::kText ? look.Number("fixedwidth") : kIconColumn);
        left -= widths.back();
        if (widths.back() == 0) ++sharing;
    }
    for (std::int32_t& width : widths) {
        if (width == 0) width = std::max(0, left) / sharing;
    }
    return widths;
}

SimView::SimView(Calls& calls, std::string_view xml) : calls_(calls) {
    pugi::xml_document document;
    const auto parsed = document.load_buffer(xml.data(), xml.size());
    const pugi::xml_node view = document.document_element();
    if (!parsed) throw Failure(failure::kInvalidCall, std::string("The view cannot be read: ") + parsed.description());
    if (std::string_view(view.name()) != "view") throw Failure(failure::kInvalidCall, "The text describes no view");

    Element frame;
    frame.attributes = AttributesOf(view);
    title_ = frame.Text("title", "Default title");
    position_.left = frame.Number("left", 25);
    position_.top = frame.Number("top", 53);
    position_.right = position_.left + frame.Number("width", 180);
    position_.bottom = position_.top + frame.Number("height", 300);
    root_ = Build(calls_, view.child("control"));
    if (root_) Index(*root_);
}

SimView::~SimView() {
    if (Closed) Closed();
}

void SimView::Index(Element& element) {
    if (!element.name.empty() && element.control) names_.emplace(element.name, &element);
    for (const auto& child : element.children) Index(*child);
    for (const auto& page : element.pages)
        if (page.content) Index(*page.content);
}

Element* SimView::Find(std::string_view name) const {
    const auto found = names_.find(name);
    return found == names_.end() ? nullptr : found->second;
}

host::Control* SimView::Control(std::string_view name) {
    calls_.Note("View.Control"_op);
    const Element* element = Find(name);
    return element ? element->control.get() : nullptr;
}

host::Rect SimView::Position() const {
    calls_.Note("View.Position"_op);
    return position_;
}

void SimView::SetPosition(const host::Rect& position) {
    calls_.Note("View.SetPosition"_op);
    position_ = position;
}

}  // namespace ombrel::sim
