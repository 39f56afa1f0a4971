// The session format as tables: the records that a session file may hold, their fields, and the kinds of their values.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ombrel::sim {

using Json = nlohmann::json;

// Something is wrong with a session. The text is the reason, in one line.
class SessionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class FieldKind : std::uint8_t {
    kText,
    kFlag,
    kInteger,      // 32 bits, signed
    kWord,         // 32 bits, signed or unsigned: ids, property values, message parameters
    kNumber,       // decimals too
    kSeconds,      // decimals too, from 0
    kShift,        // seconds, backwards too
    kCount,        // a whole number from 0
    kMoment,       // "2006-03-05T12:00:00Z"
    kSpellId,      // 16 bits, signed or unsigned
    kVitalNumber,  // 2, 4 or 6
    kRect,         // [left, top, right, bottom]
    kPosition,     // [ns, ew], or null for none
    kWords,        // arrays of ...
    kTexts,
    kIntegers,
    kServices,  // names of services
    kEnchantments,
    kSpellRows,
    kEnchantment,  // objects of ...
    kMessage,
    kVitals,    // "2", "4", "6" to integers
    kNumbered,  // number to integer
    kNamed,     // name to integer
    kLongs,     // number to word, or null, which takes the key away
    kDoubles,
    kFlags,
    kStrings,
    kControlEvent,  // "Change", "End" or "Accepted"
    kHudName,
    kCell,  // of a list: a text, an integer or a flag
};

enum class Need : std::uint8_t { kRequired, kOptional };

struct Field {
    std::string_view name;
    FieldKind kind;
    Need need = Need::kRequired;
};

// An event, a set or a query with its fields.
struct Shape {
    std::string_view name;
    std::span<const Field> fields;
};

// What a record is for; the first six keys of which each record has one.
enum class RecordKind : std::uint8_t { kEvent, kSet, kAdvance, kQuery, kFail, kNote };

std::span<const Shape> EventShapes();
std::span<const Shape> SetShapes();
std::span<const Shape> QueryShapes();

// Checks all that can be told from the record alone, and says what it is for. Throws SessionError.
RecordKind CheckRecord(const Json& record);

// Values of a record that has been checked.
std::int32_t Word(const Json& value);             // an unsigned one wraps
std::int32_t SpellIdOf(const Json& value);        // an unsigned one of 16 bits wraps
std::int64_t Milliseconds(const Json& seconds);   // rounded
std::int64_t MomentOf(std::string_view iso8601);  // milliseconds since 1970
std::int32_t KeyOf(std::string_view number);      // a property key: "218103810"

}  // namespace ombrel::sim
