#include "adapters/decal/DecalList.h"

#include <utility>

#include "core/convert.h"
#include "core/failure.h"

namespace ombrel::decal {

namespace {

// The value as a cell of that kind holds it.
host::Cell Converted(host::Cell value, ColumnKind kind, std::int32_t sub) {
    const auto* text = std::get_if<std::string>(&value);
    const auto* flag = std::get_if<bool>(&value);
    const auto* number = std::get_if<std::int32_t>(&value);
    if (kind == ColumnKind::kText) {
        if (flag) return std::string(BoolText(*flag));
        if (number) return NumberText(*number);
    } else if (kind == ColumnKind::kCheck && sub == 0) {
        if (text) return ombrel::ToBool(*text);
        if (number) return *number != 0;
    } else {
        if (text) return ToLong(*text);
        if (flag) return *flag ? -1 : 0;
    }
    return value;
}

host::Cell Empty(ColumnKind kind, std::int32_t sub) {
    if (kind == ColumnKind::kText) return std::string();
    if (kind == ColumnKind::kCheck && sub == 0) return false;
    return 0;
}

}  // namespace

DecalList::DecalList(Com<IListDisp> control, std::vector<ColumnKind> columns)
    : control_(std::move(control), IListEvents::kIid, Handlers()), columns_(std::move(columns)) {
    const std::int32_t rows = control_->Read(IListDisp::Count);
    for (std::int32_t row = 0; row < rows; ++row) {
        rows_.push_back(NewRow());
        for (std::int32_t column = 0; std::cmp_less(column, columns_.size()); ++column)
            for (std::int32_t sub = 0; sub < SubCells(column); ++sub) Refresh(column, row, sub);
    }
}

void DecalList::Clear() {
    control_->Call(IListDisp::Clear);
    if (!rows_.empty()) ++revision_;
    rows_.clear();
}

std::int32_t DecalList::AddRow() {
    long added = -1;
    control_->Call(IListDisp::AddRow, &added);
    if (!std::cmp_equal(added, rows_.size())) throw Failure(failure::kSubscript);
    rows_.push_back(NewRow());
    ++revision_;
    return static_cast<std::int32_t>(added);
}

void DecalList::DeleteRow(std::int32_t row) {
    if (row < 0 || std::cmp_greater_equal(row, rows_.size())) throw Failure(failure::kSubscript);
    control_->Call(IListDisp::DeleteRow, row);
    rows_.erase(rows_.begin() + row);
    ++revision_;
}

const host::Cell& DecalList::Data(std::int32_t column, std::int32_t row, std::int32_t sub) const {
    const MirrorCell& cell = At(column, row);
    if (sub < 0 || sub >= SubCells(column)) throw Failure(failure::kSubscript);
    return cell.sub[sub];
}

void DecalList::SetData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub) {
    host::Cell& mirrored = const_cast<host::Cell&>(std::as_const(*this).Data(column, row, sub));
    host::Cell converted = Converted(std::move(value), columns_[static_cast<std::size_t>(column)], sub);
    Variant argument(converted);
    control_->Call(IListDisp::SetData, column, row, sub, argument.Out());
    if (mirrored == converted) return;
    mirrored = std::move(converted);
    ++revision_;
}

std::int32_t DecalList::Color(std::int32_t column, std::int32_t row) const {
    const MirrorCell& cell = At(column, row);
    return cell.color ? *cell.color : control_->Read(IListDisp::Color, column, row);
}

void DecalList::SetColor(std::int32_t column, std::int32_t row, std::int32_t color) {
    MirrorCell& cell = At(column, row);
    control_->Call(IListDisp::SetColor, column, row, color);
    cell.color = color;
}

// The player scrolls without an event.
std::int32_t DecalList::ScrollPosition() const { return control_->Read(IListDisp::ScrollPosition); }

void DecalList::SetScrollPosition(std::int32_t position) { control_->Call(IListDisp::SetScrollPosition, position); }

// The framework has flipped a check cell by now, unless the cell is read-only.
Events::Table DecalList::Handlers() {
    return {{IListEvents::Change, [this](const EventArguments& event) {
                 const std::int32_t column = event.Long(1), row = event.Long(2);
                 const bool check =
                     Within(column, row) && columns_[static_cast<std::size_t>(column)] == ColumnKind::kCheck;
                 if (check) Refresh(column, row, 0);
                 Raise(Change, column, row);
             }}};
}

DecalList::Row DecalList::NewRow() const {
    Row row(columns_.size());
    for (std::size_t column = 0; column < row.size(); ++column)
        for (std::int32_t sub = 0; sub < 2; ++sub) row[column].sub[sub] = Empty(columns_[column], sub);
    return row;
}

std::int32_t DecalList::SubCells(std::int32_t column) const {
    return columns_[static_cast<std::size_t>(column)] == ColumnKind::kText ? 1 : 2;
}

bool DecalList::Within(std::int32_t column, std::int32_t row) const {
    return row >= 0 && std::cmp_less(row, rows_.size()) && column >= 0 && std::cmp_less(column, columns_.size());
}

void DecalList::Refresh(std::int32_t column, std::int32_t row, std::int32_t sub) {
    const Variant value = control_->Read(IListDisp::Data, column, row, sub);
    const ColumnKind kind = columns_[static_cast<std::size_t>(column)];
    host::Cell now = Empty(kind, sub);
    if (value.get().vt != VT_EMPTY && value.get().vt != VT_NULL) {
        if (kind == ColumnKind::kText)
            now = value.Text();
        else if (kind == ColumnKind::kCheck && sub == 0)
            now = value.Bool();
        else
            now = value.Long();
    }
    host::Cell& mirrored = At(column, row).sub[sub];
    if (mirrored == now) return;
    mirrored = std::move(now);
    ++revision_;
}

const DecalList::MirrorCell& DecalList::At(std::int32_t column, std::int32_t row) const {
    if (!Within(column, row)) throw Failure(failure::kSubscript);
    return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

DecalList::MirrorCell& DecalList::At(std::int32_t column, std::int32_t row) {
    return const_cast<MirrorCell&>(std::as_const(*this).At(column, row));
}

}  // namespace ombrel::decal
