#include "adapters/sim/SpellTable.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "core/failure.h"

namespace ombrel::sim {

namespace {

constexpr SpellColumn kColumns[] = {
    {"ID", &SpellRow::ID},
    {"Name", &SpellRow::Name},
    {"Description", &SpellRow::Description},
    {"School", &SpellRow::School},
    {"Icon", &SpellRow::Icon},
    {"Effect", &SpellRow::Effect},
    {"Flags", &SpellRow::Flags},
    {"ManaCost", &SpellRow::ManaCost},
    {"Diff", &SpellRow::Diff},
    {"Version", &SpellRow::Version},
    {"Type", &SpellRow::Type},
    {"Duration", &SpellRow::Duration},
    {"Researchable", &SpellRow::Researchable},
    {"ComponentCount", &SpellRow::ComponentCount},
    {"TargetMask", &SpellRow::TargetMask},
    {"RangeBase", &SpellRow::RangeBase},
    {"RangeModifier", &SpellRow::RangeModifier},
    {"Speed", &SpellRow::Speed},
    {"SortOrder", &SpellRow::SortOrder},
    {"EffectOnCaster", &SpellRow::EffectOnCaster},
    {"EffectOnTarget", &SpellRow::EffectOnTarget},
};

// Takes what stands before the next separator off the front of a text.
std::string_view TakeField(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return field;
}

std::string_view FieldAt(std::string_view line, std::size_t column) {
    while (column-- > 0) TakeField(line, '\t');
    return TakeField(line, '\t');
}

template <class Number>
bool ReadNumber(std::string_view text, Number& number) {
    if (text.empty()) return true;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool ReadField(std::string_view text, const SpellColumn& column, SpellRow& row) {
    return std::visit(
        [&](auto member) {
            auto& field = row.*member;
            using Field = std::remove_reference_t<decltype(field)>;
            if constexpr (std::is_same_v<Field, std::string>) {
                field = text;
                return true;
            } else if constexpr (std::is_same_v<Field, bool>) {
                field = text == "True" || text == "1";
                return true;
            } else {
                return ReadNumber(text, field);
            }
        },
        column.member);
}

std::string ReadWhole(const std::string& path) {
    std::ifstream file(std::filesystem::path(std::u8string(path.begin(), path.end())), std::ios::binary);
    if (!file) throw std::runtime_error(path + ": the spell table can't be opened");
    std::ostringstream text;
    text << file.rdbuf();
    return std::move(text).str();
}

std::string_view WithoutReturn(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

std::span<const SpellColumn> SpellColumns() { return kColumns; }

SpellTable SpellTable::Load(const std::string& path) {
    SpellTable table;
    table.text_ = ReadWhole(path);

    std::string_view rest = table.text_;
    std::optional<std::size_t> id_column, name_column;
    for (std::string_view header = WithoutReturn(TakeField(rest, '\n')); !header.empty();) {
        const std::string_view name = TakeField(header, '\t');
        const auto* column = std::ranges::find(kColumns, name, &SpellColumn::name);
        if (name == "ID") id_column = table.columns_.size();
        if (name == "Name") name_column = table.columns_.size();
        table.columns_.push_back(column == std::end(kColumns) ? nullptr : column);
    }
    if (!id_column || !name_column) throw std::runtime_error(path + ":1: the header line lacks the column ID or Name");
    table.name_column_ = *name_column;

    for (int number = 2; !rest.empty(); ++number) {
        const auto begin = static_cast<std::size_t>(rest.data() - table.text_.data());
        const std::string_view line = WithoutReturn(TakeField(rest, '\n'));
        if (line.empty()) continue;
        const std::string_view field = FieldAt(line, *id_column);
        std::int32_t id = 0;
        if (field.empty() || !ReadNumber(field, id))
            throw std::runtime_error(fmt::format("{}:{}: the spell's ID is no number", path, number));
        table.entries_.insert_or_assign(table.entries_.end(), id, Entry{begin, line.size(), nullptr});
    }
    return table;
}

void SpellTable::Put(SpellRow row) {
    names_.clear();
    const std::int32_t id = row.ID;
    entries_[id].row = std::make_shared<const SpellRow>(std::move(row));
}

SpellRowPtr SpellTable::ByID(std::int32_t id) const {
    const auto found = entries_.find(id);
    return found == entries_.end() ? nullptr : Read(id, found->second);
}

SpellRowPtr SpellTable::ByName(std::string_view name) const {
    if (names_.empty()) {
        for (const auto& [id, entry] : entries_)
            names_.emplace(entry.row ? entry.row->Name : FieldAt(Line(entry), name_column_), id);
    }
    const auto found = names_.find(std::string(name));
    return found == names_.end() ? nullptr : ByID(found->second);
}

const SpellRowPtr& SpellTable::Read(std::int32_t id, Entry& entry) const {
    if (entry.row) return entry.row;
    SpellRow row;
    std::string_view line = Line(entry);
    for (const SpellColumn* column : columns_) {
        const std::string_view field = TakeField(line, '\t');
        if (column && !ReadField(field, *column, row))
            throw Failure(failure::kTypeMismatch, fmt::format("Spell {} has no number in {}", id, column->name));
    }
    return entry.row = std::make_shared<const SpellRow>(std::move(row));
}

}  // namespace ombrel::sim
