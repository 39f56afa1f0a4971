#include "adapters/sim/SessionControls.h"

#include <fmt/format.h>

namespace ombrel::sim {
namespace {

using nlohmann::ordered_json;

// What each kind of control can do: the field that holds its state, and its events.
struct ControlRow {
    ElementKind kind;
    std::string_view name;
    std::string_view state;
    std::string_view events;
};
constexpr ControlRow kControls[] = {
    {ElementKind::kStaticText, "a static text", "text", ""},
    {ElementKind::kPushButton, "a button", "text", "Accepted"},
    {ElementKind::kCheckbox, "a check box", "checked", "Change"},
    {ElementKind::kEdit, "an edit", "text", "Change, End"},
    {ElementKind::kChoice, "a choice", "selected", "Change"},
    {ElementKind::kList, "a list", "column", "Change"},
    {ElementKind::kProgress, "a progress bar", "position", ""},
    {ElementKind::kSlider, "a slider", "position", "Change"},
    {ElementKind::kNotebook, "a notebook", "selected", "Change"},
};

const std::string& Text(const Json& record, const char* field) { return record[field].get_ref<const std::string&>(); }

std::int32_t Integer(const Json& record, const char* field, std::int32_t standard) {
    const auto value = record.find(field);
    return value == record.end() ? standard : value->get<std::int32_t>();
}

const ControlRow& RowOf(const Element& element) {
    for (const ControlRow& row : kControls) {
        if (row.kind == element.kind) return row;
    }
    throw SessionError(fmt::format("\"{}\" is no control", element.name));
}

void CheckState(const Json& record, const Element& element, const ControlRow& row) {
    for (const std::string_view state : {"checked", "text", "selected", "position", "column"}) {
        if (record.contains(state) && state != row.state) {
            throw SessionError(fmt::format("{} is {}, which has no \"{}\"", element.name, row.name, state));
        }
    }
    if (element.kind == ElementKind::kChoice && record.contains("selected")) {
        const auto count = static_cast<std::int32_t>(static_cast<const SimChoice&>(*element.control).entries().size());
        const std::int32_t selected = record["selected"].get<std::int32_t>();
        if (selected < -1 || selected >= count)
            throw SessionError(fmt::format("{} has no entry {}", element.name, selected));
    }
    if (element.kind == ElementKind::kNotebook && record.contains("selected")) {
        const std::int32_t page = record["selected"].get<std::int32_t>();
        if (page < 0 || static_cast<std::size_t>(page) >= element.pages.size()) {
            throw SessionError(fmt::format("{} has no page {}", element.name, page));
        }
    }
}

void CheckCell(const Json& record, const Element& element) {
    const auto& list = static_cast<const SimList&>(*element.control);
    const std::int32_t column = record["column"].get<std::int32_t>();
    const std::int32_t row = record["row"].get<std::int32_t>();
    const std::int32_t sub = Integer(record, "sub", 0);
    if (column < 0 || static_cast<std::size_t>(column) >= list.columns().size()) {
        throw SessionError(fmt::format("{} has no column {}", element.name, column));
    }
    if (row < 0 || row >= list.rows()) throw SessionError(fmt::format("{} has no row {}", element.name, row));
    if (sub < 0 || sub > 1) throw SessionError(fmt::format("a cell has no sub-cell {}", sub));

    const Json& value = record["value"];
    switch (list.columns()[static_cast<std::size_t>(column)]) {
        case SimList::ColumnKind::kText:
            if (!value.is_string())
                throw SessionError(fmt::format("column {} of {} holds texts", column, element.name));
            break;
        case SimList::ColumnKind::kCheck:
            if (!value.is_boolean()) {
                throw SessionError(fmt::format("column {} of {} holds true or false", column, element.name));
            }
            break;
        case SimList::ColumnKind::kIcon:
            if (!value.is_number())
                throw SessionError(fmt::format("column {} of {} holds icons", column, element.name));
            break;
    }
}

void CheckEvent(const Json& record, const Element& element, const ControlRow& row) {
    const std::string& type = Text(record, "type");
    if (row.events.find(type) == std::string_view::npos) {
        throw SessionError(fmt::format("{} is {}, which has no {}", element.name, row.name, type));
    }
    if (type == "Accepted" && record.contains("text")) throw SessionError("event Control Accepted has no \"text\"");
    if (element.kind == ElementKind::kList && !record.contains("column")) {
        throw SessionError(fmt::format("event Control of the list {} lacks \"column\" and \"row\"", element.name));
    }
}

ordered_json CellJson(const SimList& list, std::int32_t column, std::int32_t row) {
    if (list.columns()[static_cast<std::size_t>(column)] == SimList::ColumnKind::kIcon) {
        const auto number = [&](std::int32_t sub) -> ordered_json {
            const auto* icon = std::get_if<std::int32_t>(&list.cell(column, row, sub));
            return icon ? *icon : 0;
        };
        return {{"icon", number(1)}, {"library", number(0)}};
    }
    return std::visit([](const auto& value) -> ordered_json { return value; }, list.cell(column, row));
}

ordered_json ListState(const SimList& list) {
    ordered_json rows = ordered_json::array(), colors = ordered_json::array();
    for (std::int32_t row = 0; row < list.rows(); ++row) {
        ordered_json cells = ordered_json::array();
        for (std::int32_t column = 0; column < static_cast<std::int32_t>(list.columns().size()); ++column) {
            cells.push_back(CellJson(list, column, row));
            if (const auto color = list.color(column, row)) {
                colors.push_back({{"column", column}, {"row", row}, {"color", *color}});
            }
        }
        rows.push_back(std::move(cells));
    }
    return {{"rows", std::move(rows)}, {"colors", std::move(colors)}};
}

ordered_json ChoiceState(const SimChoice& choice) {
    ordered_json texts = ordered_json::array(), data = ordered_json::array();
    for (const SimChoice::Entry& entry : choice.entries()) {
        texts.push_back(entry.text);
        data.push_back(entry.data);
    }
    const auto selected = static_cast<std::size_t>(choice.selected());
    const bool any = choice.selected() >= 0 && selected < choice.entries().size();
    return {{"selected", choice.selected()},
            {"text", any ? choice.entries()[selected].text : std::string()},
            {"entries", std::move(texts)},
            {"data", std::move(data)}};
}

template <class Kind>
Kind& ControlOf(Element& element) {
    return static_cast<Kind&>(*element.control);
}

}  // namespace

void CheckControl(const SimView& view, const Json& record) {
    const std::string& name = Text(record, "name");
    const Element* element = view.Find(name);
    if (!element || !element->control) throw SessionError(fmt::format("unknown control \"{}\"", name));

    const ControlRow& row = RowOf(*element);
    if (record.contains("query")) {
        if (record["query"] == "list" && element->kind != ElementKind::kList) {
            throw SessionError(fmt::format("{} is {}, no list", name, row.name));
        }
        return;
    }
    CheckState(record, *element, row);
    if (record.contains("event")) {
        CheckEvent(record, *element, row);
    } else if (element->kind == ElementKind::kList) {
        CheckCell(record, *element);
    }
}

void PutControl(SimView& view, const Json& record) {
    Element& element = *view.Find(Text(record, "name"));
    switch (element.kind) {
        case ElementKind::kStaticText:
            ControlOf<SimStaticText>(element).PutText(Text(record, "text"));
            break;
        case ElementKind::kPushButton:
            ControlOf<SimPushButton>(element).PutText(Text(record, "text"));
            break;
        case ElementKind::kCheckbox:
            ControlOf<SimCheckbox>(element).PutChecked(record["checked"].get<bool>());
            break;
        case ElementKind::kEdit:
            ControlOf<SimEdit>(element).PutText(Text(record, "text"));
            break;
        case ElementKind::kChoice:
            ControlOf<SimChoice>(element).PutSelected(Integer(record, "selected", -1));
            break;
        case ElementKind::kProgress:
            ControlOf<SimProgress>(element).PutValue(Integer(record, "position", 0));
            break;
        case ElementKind::kSlider:
            ControlOf<SimSlider>(element).PutPosition(Integer(record, "position", 0));
            break;
        case ElementKind::kNotebook:
            ControlOf<SimNotebook>(element).PutActive(Integer(record, "selected", 0));
            break;
        case ElementKind::kList: {
            const Json& value = record["value"];
            host::Cell cell = value.is_string()    ? host::Cell(value.get<std::string>())
                              : value.is_boolean() ? host::Cell(value.get<bool>())
                                                   : host::Cell(value.get<std::int32_t>());
            ControlOf<SimList>(element).PutData(Integer(record, "column", 0), Integer(record, "row", 0),
                                                std::move(cell), Integer(record, "sub", 0));
            break;
        }
        case ElementKind::kLayout:
            break;
    }
}

void ActOnControl(SimView& view, const Json& record) {
    Element& element = *view.Find(Text(record, "name"));
    switch (element.kind) {
        case ElementKind::kPushButton:
            ControlOf<SimPushButton>(element).Press();
            break;
        case ElementKind::kCheckbox: {
            auto& box = ControlOf<SimCheckbox>(element);
            box.Check(record.contains("checked") ? record["checked"].get<bool>() : box.checked());
            break;
        }
        case ElementKind::kEdit: {
            auto& edit = ControlOf<SimEdit>(element);
            const std::string text = record.contains("text") ? Text(record, "text") : edit.text();
            if (record["type"] == "Change") {
                edit.Type(text);
            } else {
                edit.PutText(text);
                edit.Finish();
            }
            break;
        }
        case ElementKind::kChoice: {
            auto& choice = ControlOf<SimChoice>(element);
            choice.Select(Integer(record, "selected", choice.selected()));
            break;
        }
        case ElementKind::kSlider: {
            auto& slider = ControlOf<SimSlider>(element);
            slider.Move(Integer(record, "position", slider.position()));
            break;
        }
        case ElementKind::kNotebook: {
            auto& notebook = ControlOf<SimNotebook>(element);
            notebook.Open(Integer(record, "selected", notebook.active()));
            break;
        }
        case ElementKind::kList:
            ControlOf<SimList>(element).Click(Integer(record, "column", 0), Integer(record, "row", 0));
            break;
        case ElementKind::kStaticText:
        case ElementKind::kProgress:
        case ElementKind::kLayout:
            break;
    }
}

ordered_json ControlState(const SimView& view, std::string_view name) {
    Element& element = *view.Find(name);
    switch (element.kind) {
        case ElementKind::kStaticText:
            return {{"text", ControlOf<SimStaticText>(element).text()}};
        case ElementKind::kPushButton:
            return {{"text", ControlOf<SimPushButton>(element).text()}};
        case ElementKind::kCheckbox:
            return {{"checked", ControlOf<SimCheckbox>(element).checked()}};
        case ElementKind::kEdit:
            return {{"text", ControlOf<SimEdit>(element).text()}};
        case ElementKind::kChoice:
            return ChoiceState(ControlOf<SimChoice>(element));
        case ElementKind::kList:
            return ListState(ControlOf<SimList>(element));
        case ElementKind::kProgress:
            return {{"position", ControlOf<SimProgress>(element).value()}};
        case ElementKind::kSlider:
            return {{"position", ControlOf<SimSlider>(element).position()}};
        case ElementKind::kNotebook:
            return {{"selected", ControlOf<SimNotebook>(element).active()}};
        case ElementKind::kLayout:
            break;
    }
    return ordered_json::object();
}

}  // namespace ombrel::sim
