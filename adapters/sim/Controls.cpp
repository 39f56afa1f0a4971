#include "adapters/sim/Controls.h"

#include <algorithm>
#include <utility>

#include "adapters/sim/Calls.h"
#include "core/convert.h"
#include "core/failure.h"

namespace ombrel::sim {
namespace {

// A slot may be emptied while its event runs, so the event runs in a copy.
template <class... Arguments, class... Values>
void Raise(const std::function<void(Arguments...)>& slot, Values&&... values) {
    if (const auto handler = slot) handler(std::forward<Values>(values)...);
}

void CheckIndex(std::int32_t index, std::size_t count) {
    if (index < 0 || static_cast<std::size_t>(index) >= count) throw Failure(failure::kSubscript);
}

// The value as a cell of that kind holds it.
host::Cell Converted(host::Cell value, SimList::ColumnKind kind, std::int32_t sub) {
    const auto* text = std::get_if<std::string>(&value);
    const auto* flag = std::get_if<bool>(&value);
    const auto* number = std::get_if<std::int32_t>(&value);
    if (kind == SimList::ColumnKind::kText) {
        if (flag) return std::string(BoolText(*flag));
        if (number) return NumberText(*number);
    } else if (kind == SimList::ColumnKind::kCheck && sub == 0) {
        if (text) return ToBool(*text);
        if (number) return *number != 0;
    } else {
        if (text) return ToLong(*text);
        if (flag) return *flag ? -1 : 0;
    }
    return value;
}

}  // namespace

// Static text and buttons

const std::string& SimStaticText::Text() const {
    static const Op op = OperationNamed("StaticText.Text");
    calls_.Note(op);
    return text_;
}

void SimStaticText::SetText(std::string_view text) {
    static const Op op = OperationNamed("StaticText.SetText");
    calls_.Note(op);
    text_ = text;
}

const std::string& SimPushButton::Text() const {
    static const Op op = OperationNamed("PushButton.Text");
    calls_.Note(op);
    return text_;
}

void SimPushButton::SetText(std::string_view text) {
    static const Op op = OperationNamed("PushButton.SetText");
    calls_.Note(op);
    text_ = text;
}

void SimPushButton::Press() { Raise(Accepted); }

// Check boxes and edits

bool SimCheckbox::Checked() const {
    static const Op op = OperationNamed("Checkbox.Checked");
    calls_.Note(op);
    return checked_;
}

void SimCheckbox::SetChecked(bool checked) {
    static const Op op = OperationNamed("Checkbox.SetChecked");
    calls_.Note(op);
    checked_ = checked;
}

void SimCheckbox::Check(bool checked) {
    PutChecked(checked);
    Raise(Change, checked);
}

const std::string& SimEdit::Text() const {
    static const Op op = OperationNamed("Edit.Text");
    calls_.Note(op);
    return text_;
}

void SimEdit::SetText(std::string_view text) {
    static const Op op = OperationNamed("Edit.SetText");
    calls_.Note(op);
    text_ = text;
}

void SimEdit::Type(std::string_view text) {
    PutText(text);
    Raise(Change, std::string(text));
}

void SimEdit::Finish(bool success) { Raise(End, success); }

// Choices

SimChoice::SimChoice(Calls& calls, std::vector<Entry> entries, std::int32_t selected)
    : calls_(calls), entries_(std::move(entries)), selected_(selected) {
    if (selected_ < 0 || static_cast<std::size_t>(selected_) >= entries_.size()) selected_ = -1;
}

void SimChoice::Add(std::string_view text, std::string_view data) {
    static const Op op = OperationNamed("Choice.Add");
    calls_.Note(op);
    entries_.push_back({std::string(text), std::string(data)});
}

void SimChoice::Clear() {
    static const Op op = OperationNamed("Choice.Clear");
    calls_.Note(op);
    entries_.clear();
    selected_ = -1;
}

std::int32_t SimChoice::Count() const {
    static const Op op = OperationNamed("Choice.Count");
    calls_.Note(op);
    return static_cast<std::int32_t>(entries_.size());
}

const std::string& SimChoice::Text(std::int32_t index) const {
    static const Op op = OperationNamed("Choice.Text");
    calls_.Note(op);
    CheckIndex(index, entries_.size());
    return entries_[index].text;
}

const std::string& SimChoice::Data(std::int32_t index) const {
    static const Op op = OperationNamed("Choice.Data");
    calls_.Note(op);
    CheckIndex(index, entries_.size());
    return entries_[index].data;
}

std::int32_t SimChoice::Selected() const {
    static const Op op = OperationNamed("Choice.Selected");
    calls_.Note(op);
    return selected_;
}

void SimChoice::SetSelected(std::int32_t index) {
    static const Op op = OperationNamed("Choice.SetSelected");
    calls_.Note(op);
    PutSelected(index);
}

void SimChoice::PutSelected(std::int32_t index) {
    if (index != -1) CheckIndex(index, entries_.size());
    selected_ = index;
}

void SimChoice::Select(std::int32_t index) {
    PutSelected(index);
    Raise(Change, index);
}

// Lists

const SimList::SimCell& SimList::At(std::int32_t column, std::int32_t row) const {
    CheckIndex(row, rows_.size());
    CheckIndex(column, columns_.size());
    return rows_[row][column];
}

SimList::SimCell& SimList::At(std::int32_t column, std::int32_t row) {
    return const_cast<SimCell&>(std::as_const(*this).At(column, row));
}

void SimList::Clear() {
    static const Op op = OperationNamed("List.Clear");
    calls_.Note(op);
    if (!rows_.empty()) ++revision_;
    rows_.clear();
    scroll_ = 0;
}

std::int32_t SimList::AddRow() {
    static const Op op = OperationNamed("List.AddRow");
    calls_.Note(op);
    std::vector<SimCell> row(columns_.size());
    for (std::size_t column = 0; column < row.size(); ++column) {
        auto& sub = row[column].sub;
        switch (columns_[column]) {
            case ColumnKind::kText:
                break;
            case ColumnKind::kCheck:
                sub[0] = false, sub[1] = 0;
                break;
            case ColumnKind::kIcon:
                sub[0] = 0, sub[1] = 0;
                break;
        }
    }
    rows_.push_back(std::move(row));
    ++revision_;
    return rows() - 1;
}

void SimList::DeleteRow(std::int32_t row) {
    static const Op op = OperationNamed("List.DeleteRow");
    calls_.Note(op);
    CheckIndex(row, rows_.size());
    rows_.erase(rows_.begin() + row);
    ++revision_;
}

std::int32_t SimList::Count() const {
    static const Op op = OperationNamed("List.Count");
    calls_.Note(op);
    return rows();
}

const host::Cell& SimList::Data(std::int32_t column, std::int32_t row, std::int32_t sub) const {
    static const Op op = OperationNamed("List.Data");
    calls_.Note(op);
    return cell(column, row, sub);
}

const host::Cell& SimList::cell(std::int32_t column, std::int32_t row, std::int32_t sub) const {
    const SimCell& cell = At(column, row);
    CheckIndex(sub, columns_[column] == ColumnKind::kText ? 1 : 2);
    return cell.sub[sub];
}

void SimList::SetData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub) {
    static const Op op = OperationNamed("List.SetData");
    calls_.Note(op);
    PutData(column, row, std::move(value), sub);
}

void SimList::PutData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub) {
    SimCell& cell = At(column, row);
    CheckIndex(sub, columns_[column] == ColumnKind::kText ? 1 : 2);
    host::Cell converted = Converted(std::move(value), columns_[column], sub);
    if (cell.sub[sub] == converted) return;
    cell.sub[sub] = std::move(converted);
    ++revision_;
}

std::int32_t SimList::Color(std::int32_t column, std::int32_t row) const {
    static const Op op = OperationNamed("List.Color");
    calls_.Note(op);
    return At(column, row).color.value_or(kOwnColor);
}

std::optional<std::int32_t> SimList::color(std::int32_t column, std::int32_t row) const {
    return At(column, row).color;
}

void SimList::SetColor(std::int32_t column, std::int32_t row, std::int32_t color) {
    static const Op op = OperationNamed("List.SetColor");
    calls_.Note(op);
    // A cell that goes back to the list's own colour counts as one without.
    auto& cell = At(column, row).color;
    if (color == kOwnColor && cell && *cell != kOwnColor)
        cell.reset();
    else
        cell = color;
}

std::int32_t SimList::ScrollPosition() const {
    static const Op op = OperationNamed("List.ScrollPosition");
    calls_.Note(op);
    return scroll_;
}

void SimList::SetScrollPosition(std::int32_t position) {
    static const Op op = OperationNamed("List.SetScrollPosition");
    calls_.Note(op);
    scroll_ = position;
}

void SimList::Click(std::int32_t column, std::int32_t row) {
    const bool within = row >= 0 && row < rows() && column >= 0 && static_cast<std::size_t>(column) < columns_.size();
    if (within && columns_[column] == ColumnKind::kCheck) PutData(column, row, !std::get<bool>(cell(column, row)));
    Raise(Change, column, row);
}

// Progress bars and sliders

std::int32_t SimProgress::Value() const {
    static const Op op = OperationNamed("Progress.Value");
    calls_.Note(op);
    return value_;
}

void SimProgress::SetValue(std::int32_t value) {
    static const Op op = OperationNamed("Progress.SetValue");
    calls_.Note(op);
    value_ = value;
}

SimSlider::SimSlider(Calls& calls, std::int32_t minimum, std::int32_t maximum, std::int32_t position)
    : calls_(calls), minimum_(minimum), maximum_(std::max(minimum, maximum)) {
    PutPosition(position);
}

std::int32_t SimSlider::Position() const {
    static const Op op = OperationNamed("Slider.Position");
    calls_.Note(op);
    return position_;
}

void SimSlider::SetPosition(std::int32_t position) {
    static const Op op = OperationNamed("Slider.SetPosition");
    calls_.Note(op);
    PutPosition(position);
}

void SimSlider::PutPosition(std::int32_t position) { position_ = std::clamp(position, minimum_, maximum_); }

void SimSlider::Move(std::int32_t position) {
    PutPosition(position);
    Raise(Change, position_);
}

// Notebooks

std::int32_t SimNotebook::ActivePage() const {
    static const Op op = OperationNamed("Notebook.ActivePage");
    calls_.Note(op);
    return active_;
}

void SimNotebook::SetActivePage(std::int32_t page) {
    static const Op op = OperationNamed("Notebook.SetActivePage");
    calls_.Note(op);
    PutActive(page);
}

void SimNotebook::PutActive(std::int32_t page) {
    CheckIndex(page, static_cast<std::size_t>(pages_));
    active_ = page;
}

void SimNotebook::Open(std::int32_t page) {
    PutActive(page);
    Raise(Change, page);
}

}  // namespace ombrel::sim
