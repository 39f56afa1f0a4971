// The spell table of the simulated game.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace ombrel::sim {

struct SpellRow {
    std::int32_t ID = 0;
    std::string Name;
    std::string Description;
    std::int32_t School = 0;
    std::int32_t Icon = 0;
    std::int32_t Effect = 0;
    std::int32_t Flags = 0;
    std::int32_t ManaCost = 0;
    std::int32_t Diff = 0;
    std::int32_t Version = 0;
    std::int32_t Type = 0;
    double Duration = 0.0;
    bool Researchable = false;
    std::int32_t ComponentCount = 0;
    std::int32_t TargetMask = 0;
    float RangeBase = 0.0f;
    float RangeModifier = 0.0f;
    float Speed = 0.0f;
    std::int32_t SortOrder = 0;
    std::int32_t EffectOnCaster = 0;
    std::int32_t EffectOnTarget = 0;
};

using SpellRowPtr = std::shared_ptr<const SpellRow>;

// A column, and the member that holds it.
struct SpellColumn {
    std::string_view name;
    std::variant<std::int32_t SpellRow::*, std::string SpellRow::*, double SpellRow::*, float SpellRow::*,
                 bool SpellRow::*>
        member;
};

std::span<const SpellColumn> SpellColumns();

class SpellTable {
public:
    // A tab separated file whose header line names the columns, in any order; columns of other names are passed over,
    // and an empty field is 0. Throws std::runtime_error with the reason. Most of a row is read when its spell is asked
    // for.
    static SpellTable Load(const std::string& path);

    void Put(SpellRow row);  // adds it, or replaces the one of its id

    // Nothing for a spell that the table lacks. Of several of one name, the one with the lowest id.
    SpellRowPtr ByID(std::int32_t id) const;
    SpellRowPtr ByName(std::string_view name) const;

    std::size_t size() const { return entries_.size(); }

private:
    struct Entry {
        std::size_t begin = 0, length = 0;  // of the line in the text
        SpellRowPtr row;                    // once it has been read
    };

    std::string_view Line(const Entry& entry) const {
        return std::string_view(text_).substr(entry.begin, entry.length);
    }
    const SpellRowPtr& Read(std::int32_t id, Entry& entry) const;

    std::string text_;
    std::vector<const SpellColumn*> columns_;  // of the file; none for one that is passed over
    std::size_t name_column_ = 0;
    mutable std::map<std::int32_t, Entry> entries_;
    mutable std::unordered_map<std::string, std::int32_t> names_;  // filled at the first search by name
};

}  // namespace ombrel::sim
