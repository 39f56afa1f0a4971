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
    calls_.Note("StaticText.Text"_op);
    return text_;
}

void SimStaticText::SetText(std::string_view text) {
    calls_.Note("StaticText.SetText"_op);
    text_ = text;
}

const std::string& SimPushButton::Text() const {
    calls_.Note("PushButton.Text"_op);
    return text_;
}

void SimPushButton::SetText(std::string_view text) {
    calls_.Note("PushButton.SetText"_op);
    text_ = text;
}

void SimPushButton::Press() { Raise(Accepted); }

// Check boxes and edits

bool SimCheckbox::Checked() const {
    calls_.Note("Checkbox.Checked"_op);
    return checked_;
}

void SimCheckbox::SetChecked(bool checked) {
    calls_.Note("Checkbox.SetChecked"_op);
    checked_ = checked;
}

void SimCheckbox::Check(bool checked) {
    PutChecked(checked);
    Raise(Change, checked);
}

const std::string& SimEdit::Text() const {
    calls_.Note("Edit.Text"_op);
    return text_;
}

void SimEdit::SetText(std::string_view text) {
    calls_.Note("Edit.SetText"_op);
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
    calls_.Note("Choice.Add"_op);
    entries_.push_back({std::string(text), std::string(data)});
}

void SimChoice::Clear() {
    calls_.Note("Choice.Clear"_op);
    entries_.clear();
    selected_ = -1;
}

std::int32_t SimChoice::Count() const {
    calls_.Note("Choice.Count"_op);
    return static_cast<std::int32_t>(entries_.size());
}

const std::string& SimChoice::Text(std::int32_t index) const {
    calls_.Note("Choice.Text"_op);
    CheckIndex(index, entries_.size());
    return entries_[index].text;
}

const std::string& SimChoice::Data(std::int32_t index) const {
    calls_.Note("Choice.Data"_op);
    CheckIndex(index, entries_.size());
    return entries_[index].data;
}

std::int32_t SimChoice::Selected() const {
    calls_.Note("Choice.Selected"_op);
    return selected_;
}

void SimChoice::SetSelected(std::int32_t index) {
    calls_.Note("Choice.SetSelected"_op);
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
    calls_.Note("List.Clear"_op);
    if (!rows_.empty()) ++revision_;
    rows_.clear();
    scroll_ = 0;
}

std::int32_t SimList::AddRow() {
    calls_.Note("List.AddRow"_op);
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
    calls_.Note("List.DeleteRow"_op);
    CheckIndex(row, rows_.size());
    rows_.erase(rows_.begin() + row);
    ++revision_;
}

std::int32_t SimList::Count() const {
    calls_.Note("List.Count"_op);
    return rows();
}

const host::Cell& SimList::Data(std::int32_t column, std::int32_t row, std::int32_t sub) const {
    calls_.Note("List.Data"_op);
    return cell(column, row, sub);
}

const host::Cell& SimList::cell(std::int32_t column, std::int32_t row, std::int32_t sub) const {
    const SimCell& cell = At(column, row);
    CheckIndex(sub, columns_[column] == ColumnKind::kText ? 1 : 2);
    return cell.sub[sub];
}

void SimList::SetData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub) {
    calls_.Note("List.SetData"_op);
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
    calls_.Note("List.Color"_op);
    return At(column, row).color.value_or(kOwnColor);
}

std::optional<std::int32_t> SimList::color(std::int32_t column, std::int32_t row) const {
    return At(column, row).color;
}

void SimList::SetColor(std::int32_t column, std::int32_t row, std::int32_t color) {
    calls_.Note("List.SetColor"_op);
    // A cell that goes back to the list's own colour counts as one without.
    auto& cell = At(column, row).color;
    if (color == kOwnColor && cell && *cell != kOwnColor)
        cell.reset();
    else
        cell = color;
}

std::int32_t SimList::ScrollPosition() const {
    calls_.Note("List.ScrollPosition"_op);
    return scroll_;
}

void SimList::SetScrollPosition(std::int32_t position) {
    calls_.Note("List.SetScrollPosition"_op);
    scroll_ = position;
}

void SimList::Click(std::int32_t column, std::int32_t row) {
    const bool within = row >= 0 && row < rows() && column >= 0 && static_cast<std::size_t>(column) < columns_.size();
    if (within && columns_[column] == ColumnKind::kCheck) PutData(column, row, !std::get<bool>(cell(column, row)));
    Raise(Change, column, row);
}

// Progress bars and sliders

std::int32_t SimProgress::Value() const {
    calls_.Note("Progress.Value"_op);
    return value_;
}

void SimProgress::SetValue(std::int32_t value) {
    calls_.Note("Progress.SetValue"_op);
    value_ = value;
}

SimSlider::SimSlider(Calls& calls, std::int32_t minimum, std::int32_t maximum, std::int32_t position)
    : calls_(calls), minimum_(minimum), maximum_(std::max(minimum, maximum)) {
    PutPosition(position);
}

std::int32_t SimSlider::Position() const {
    calls_.Note("Slider.Position"_op);
    return position_;
}

void SimSlider::SetPosition(std::int32_t position) {
    calls_.Note("Slider.SetPosition"_op);
    PutPosition(position);
}

void SimSlider::PutPosition(std::int32_t position) { position_ = std::clamp(position, minimum_, maximum_); }

void SimSlider::Move(std::int32_t position) {
    PutPosition(position);
    Raise(Change, position_);
}

// Notebooks

std::int32_t SimNotebook::ActivePage() const {
    calls_.Note("Notebook.ActivePage"_op);
    return active_;
}

void SimNotebook::SetActivePage(std::int32_t page) {
    calls_.Note("Notebook.SetActivePage"_op);
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
