#include "adapters/decal/DecalView.h"

#include <pugixml.hpp>

#include "core/failure.h"
#include "core/text.h"

namespace ombrel::decal {

namespace {

constexpr std::string_view kDeclaration = R"(<?xml version="1.0"?>)";

void Collect(const pugi::xml_node& node, ListColumns& lists) {
    if (ToLower(node.attribute("progid").value()) == "decalcontrols.list") {
        auto& columns = lists[node.attribute("name").value()];
        for (const auto& column : node.children("column")) {
            const std::string progid = ToLower(column.attribute("progid").value());
            columns.push_back(progid == "decalcontrols.checkcolumn"  ? ColumnKind::kCheck
                              : progid == "decalcontrols.iconcolumn" ? ColumnKind::kIcon
                                                                     : ColumnKind::kText);
        }
    }
    for (const auto& child : node.children()) Collect(child, lists);
}

// The control as one of a kind, when it is that.
template <class Bound, class I>
std::unique_ptr<host::Control> As(const Com<IControl>& control) {
    auto found = control.As<I>();
    if (!found) return nullptr;
    return std::make_unique<Bound>(std::move(found));
}

}  // namespace

ListColumns ColumnsOf(std::string_view xml) {
    pugi::xml_document document;
    document.load_buffer(xml.data(), xml.size());
    ListColumns lists;
    Collect(document, lists);
    return lists;
}

std::string AsFrameworkXml(std::string_view xml) {
    const std::size_t start = xml.find("<?xml");
    const std::size_t end = start == std::string_view::npos ? start : xml.find("?>", start);
    if (end != std::string_view::npos) xml.remove_prefix(end + 2);
    return std::string(kDeclaration) + std::string(xml);
}

host::Control* DecalView::Control(std::string_view name) {
    if (const auto known = controls_.find(name); known != controls_.end()) return known->second.get();
    // A name that the view lacks fails in some versions of the framework and gives nothing in others.
    const auto control = view_.Look(IView::Control, Bstr(name).get());
    if (!control) return nullptr;
    auto bound = Bind(control, name);
    return bound ? controls_.emplace(name, std::move(bound)).first->second.get() : nullptr;
}

std::unique_ptr<host::Control> DecalView::Bind(const Com<IControl>& control, std::string_view name) const {
    if (const auto columns = columns_.find(name); columns != columns_.end()) {
        if (auto list = control.As<IListDisp>()) return std::make_unique<DecalList>(std::move(list), columns->second);
    }
    if (auto bound = As<DecalCheckbox, ICheckbox>(control)) return bound;
    if (auto bound = As<DecalEdit, IEdit>(control)) return bound;
    if (auto bound = As<DecalChoice, IChoice>(control)) return bound;
    if (auto bound = As<DecalPushButton, IPushButton>(control)) return bound;
    if (auto bound = As<DecalStaticText, IStatic>(control)) return bound;
    if (auto bound = As<DecalSlider, ISlider>(control)) return bound;
    if (auto bound = As<DecalProgress, IProgress>(control)) return bound;
    return As<DecalNotebook, INotebook>(control);
}

host::Rect DecalView::Position() const { return FromRect(view_.Read(IView::Position)); }

void DecalView::SetPosition(const host::Rect& position) {
    RECT area = ToRect(position);
    view_.Call(IView::SetPosition, &area);
}

}  // namespace ombrel::decal
