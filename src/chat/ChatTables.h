// Ready-made forms of what every chat line is compared with, made once or whenever a list of the options view changes.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "chat/ChatListItem.h"
#include "chat/ListCache.h"
#include "core/failure.h"
#include "core/like.h"

namespace ombrel {

// The rows of Chat_Options that chat asks for.
enum class ChatOption : std::uint8_t {
    kKillMonsterXP,
    kKillUnassignedXP,
    kKillXPToLevel,
    kKillXPHour,
    kKillKillsToLevel,
    kKillTimeToLevel,
    kImprovedVitae,
    kCompCount,
    kFilterNonexpired,
    kCombineItemSpells,
    kNoClickableNames,
    kRareToAllWindows,
    kCount,
};

// One row of the pattern list, ready for matching.
struct PatternRow {
    enum class Kind : std::uint8_t { kText, kKill, kExpire, kNpc };

    std::size_t index;  // in ChatList
    Kind kind;
    LikePattern pattern;
};

// Rows of the rule lists. A row that can't be read or whose pattern is malformed keeps its failure for the line that
// comes to it; the rows before it work.
struct FilterWord {
    bool enabled = false;
    bool whole = false;
    std::string word;                   // lower-case, trimmed
    std::optional<LikePattern> around;  // for whole words
    std::optional<Failure> failure;
};

struct CustomRule {
    enum class Types : std::uint8_t { kNone, kAll, kOne };

    Types types = Types::kNone;
    std::int32_t type = 0;
    std::optional<LikePattern> pattern;  // none for a rule that is off or has no type
    std::optional<Failure> failure;
};

struct Alias {
    bool enabled = false;
    bool command = false;  // begins with "/" or "@"
    std::string abbreviation;
    std::string full;
    std::optional<LikePattern> pattern;
    std::optional<Failure> failure;
};

// Reads all rows of a rule list.
template <class Row>
std::vector<Row> ReadRows(const host::List& list, void (*read)(const host::List& list, std::int32_t row, Row& into)) {
    std::vector<Row> rows(static_cast<std::size_t>(list.Count()));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        try {
            read(list, static_cast<std::int32_t>(row), rows[row]);
        } catch (const Failure& failure) {
            rows[row].failure = failure;
        }
    }
    return rows;
}

struct ChatTables {
    // The pattern rows that a line of a type can match, in the order of ChatList. Types that the game does not have
    // only see the pseudo rows.
    const std::vector<PatternRow>& RowsOf(std::int32_t type) const {
        return type >= 0 && type < static_cast<std::int32_t>(by_type.size()) ? by_type[static_cast<std::size_t>(type)]
                                                                             : pseudo_only;
    }
    void BuildRows(const std::vector<ChatListItem>& list);

    std::array<std::vector<PatternRow>, 33> by_type;
    std::vector<PatternRow> pseudo_only;

    ListCache<std::vector<std::int32_t>> color_rows;  // rows of Chat_Color, one for each row of ChatList
    ListCache<std::array<std::int32_t, static_cast<std::size_t>(ChatOption::kCount)>> option_rows;
    ListCache<std::vector<FilterWord>> filter_words;
    ListCache<std::vector<CustomRule>> custom_rules;
    ListCache<std::vector<Alias>> aliases;
};

}  // namespace ombrel
