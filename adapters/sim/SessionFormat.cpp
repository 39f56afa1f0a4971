#include "adapters/sim/SessionFormat.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <optional>

#include "adapters/sim/Calls.h"

namespace ombrel::sim {
namespace {

using enum FieldKind;
constexpr Need kMayLack = Need::kOptional;

constexpr Field kKindField[] = {{"kind", kInteger}};
constexpr Field kIdField[] = {{"id", kWord}};
constexpr Field kTextField[] = {{"text", kText}};
constexpr Field kNameField[] = {{"name", kText}};
constexpr Field kMessageField[] = {{"message", kMessage}};
constexpr Field kModeField[] = {{"mode", kInteger}};
constexpr Field kChatLine[] = {{"text", kText}, {"color", kInteger}, {"window", kInteger}};

constexpr Field kVitalEvent[] = {{"vital", kVitalNumber}, {"value", kInteger}};
constexpr Field kEnchantmentEvent[] = {{"change", kInteger}, {"enchantment", kEnchantment, kMayLack}};
constexpr Field kClickEvent[] = {{"text", kText}, {"id", kWord}};
constexpr Field kRegionEvent[] = {{"left", kInteger}, {"top", kInteger}, {"right", kInteger}, {"bottom", kInteger}};
constexpr Field kChangeEvent[] = {{"id", kWord}, {"change", kInteger}};
constexpr Field kWindowEvent[] = {{"message", kWord},
                                  {"x", kInteger, kMayLack},
                                  {"y", kInteger, kMayLack},
                                  {"wParam", kWord, kMayLack},
                                  {"lParam", kWord, kMayLack}};
constexpr Field kControlEventFields[] = {{"name", kText},
                                         {"type", kControlEvent},
                                         {"checked", kFlag, kMayLack},
                                         {"text", kText, kMayLack},
                                         {"selected", kInteger, kMayLack},
                                         {"position", kInteger, kMayLack},
                                         {"column", kInteger, kMayLack},
                                         {"row", kInteger, kMayLack}};

constexpr Shape kEvents[] = {
    {"Initialize", {}},
    {"Terminate", {}},
    {"Char_LoginComplete", {}},
    {"Char_Logoff", kKindField},
    {"Char_ChangeVital", kVitalEvent},
    {"Char_ChangeEnchantments", kEnchantmentEvent},
    {"Char_ChangePortalMode", kModeField},
    {"Char_Death", kTextField},
    {"ACHooks_ChatTextIntercept", kChatLine},
    {"ACHooks_ChatParserIntercept", kTextField},
    {"ACHooks_StatusTextIntercept", kTextField},
    {"ACHooks_ChatClickIntercept", kClickEvent},
    {"ACHooks_ContainerOpened", kIdField},
    {"ACHooks_ObjectSelected", kIdField},
    {"ACHooks_AC3DRegionChanged", kRegionEvent},
    {"World_CreateObject", kIdField},
    {"World_MoveObject", kIdField},
    {"World_ReleaseObject", kIdField},
    {"World_ChangeObject", kChangeEvent},
    {"NetEcho_EchoServer", kMessageField},
    {"NetEcho_EchoClient", kMessageField},
    {"WindowMessage", kWindowEvent},
    {"HK_HotkeyEvent", kNameField},
    {"DeviceLost", {}},
    {"AddChatText", kChatLine},
    {"Control", kControlEventFields},
};

constexpr Field kClockSet[] = {{"now", kMoment, kMayLack},
                               {"bias", kInteger, kMayLack},
                               {"daylight", kFlag, kMayLack},
                               {"daylight_rule", kFlag, kMayLack},
                               {"shift", kShift, kMayLack}};
constexpr Field kCharacterSet[] = {{"Server", kText, kMayLack},
                                   {"Name", kText, kMayLack},
                                   {"Character", kWord, kMayLack},
                                   {"Level", kInteger, kMayLack},
                                   {"Health", kInteger, kMayLack},
                                   {"Stamina", kInteger, kMayLack},
                                   {"Mana", kInteger, kMayLack},
                                   {"Vital", kVitals, kMayLack},
                                   {"Vitae", kInteger, kMayLack},
                                   {"Followers", kInteger, kMayLack},
                                   {"AllegianceSize", kInteger, kMayLack},
                                   {"Skill", kNumbered, kMayLack},
                                   {"Augmentation", kNumbered, kMayLack}};
constexpr Field kHooksSet[] = {{"CurrentSelection", kWord, kMayLack}, {"ChatState", kFlag, kMayLack},
                               {"BusyState", kInteger, kMayLack},     {"PointerState", kInteger, kMayLack},
                               {"CombatMode", kInteger, kMayLack},    {"ReferenceContainer", kWord, kMayLack},
                               {"Region3D", kRect, kMayLack}};
constexpr Field kObjectSet[] = {{"id", kWord},
                                {"Name", kText, kMayLack},
                                {"ShortName", kText, kMayLack},
                                {"Type", kInteger, kMayLack},
                                {"Container", kWord, kMayLack},
                                {"Coordinates", kPosition, kMayLack},
                                {"LastIdTime", kInteger, kMayLack},
                                {"HasIdData", kInteger, kMayLack},
                                {"Long", kLongs, kMayLack},
                                {"Double", kDoubles, kMayLack},
                                {"Bool", kFlags, kMayLack},
                                {"String", kStrings, kMayLack},
                                {"valid", kFlag, kMayLack}};
constexpr Field kEnchantmentsSet[] = {{"list", kEnchantments, kMayLack}};
constexpr Field kSpellsSet[] = {{"rows", kSpellRows, kMayLack}, {"available", kFlag, kMayLack}};
constexpr Field kVendorSet[] = {
    {"open", kFlag, kMayLack}, {"SellRate", kNumber, kMayLack}, {"items", kWords, kMayLack}};
constexpr Field kHotkeysSet[] = {{"available", kFlag, kMayLack}, {"known", kTexts, kMayLack}};
constexpr Field kRenderSet[] = {{"available", kFlag, kMayLack}};
constexpr Field kFoldersSet[] = {{"documents", kWord, kMayLack}, {"common_data", kWord, kMayLack}};
constexpr Field kServicesSet[] = {{"missing", kServices, kMayLack}};
constexpr Field kViewSet[] = {{"left", kInteger, kMayLack}, {"top", kInteger, kMayLack}};
constexpr Field kWorldSet[] = {{"reacts", kFlag, kMayLack}};
constexpr Field kKeysSet[] = {{"down", kIntegers, kMayLack}, {"toggled", kIntegers, kMayLack}};
constexpr Field kDecalSet[] = {{"MapKey", kNamed, kMayLack}};
constexpr Field kControlSet[] = {{"name", kText},
                                 {"checked", kFlag, kMayLack},
                                 {"text", kText, kMayLack},
                                 {"selected", kInteger, kMayLack},
                                 {"position", kInteger, kMayLack},
                                 {"column", kInteger, kMayLack},
                                 {"row", kInteger, kMayLack},
                                 {"sub", kInteger, kMayLack},
                                 {"value", kCell, kMayLack}};

constexpr Shape kSets[] = {
    {"clock", kClockSet},   {"character", kCharacterSet}, {"hooks", kHooksSet},
    {"object", kObjectSet}, {"remove", kIdField},         {"enchantments", kEnchantmentsSet},
    {"spells", kSpellsSet}, {"vendor", kVendorSet},       {"hotkeys", kHotkeysSet},
    {"render", kRenderSet}, {"folders", kFoldersSet},     {"services", kServicesSet},
    {"view", kViewSet},     {"world", kWorldSet},         {"keys", kKeysSet},
    {"decal", kDecalSet},   {"control", kControlSet},
};

constexpr Field kHudQuery[] = {{"name", kHudName}};

constexpr Shape kQueries[] = {
    {"control", kNameField}, {"list", kNameField}, {"hud", kHudQuery}, {"timers", {}}, {"view", {}},
};

constexpr Field kAdvanceFields[] = {{"advance", kSeconds}, {"stalled", kFlag, kMayLack}};
constexpr Field kFailFields[] = {
    {"fail", kText}, {"times", kCount, kMayLack}, {"number", kWord}, {"description", kText, kMayLack}};
constexpr Field kNoteFields[] = {{"note", kText}};

constexpr Field kEnchantmentFields[] = {
    {"SpellID", kSpellId}, {"TimeRemaining", kNumber, kMayLack}, {"Family", kInteger, kMayLack}};

constexpr Field kSpellFields[] = {
    {"ID", kWord},
    {"Name", kText, kMayLack},
    {"Description", kText, kMayLack},
    {"School", kInteger, kMayLack},
    {"Icon", kWord, kMayLack},
    {"Effect", kInteger, kMayLack},
    {"Flags", kWord, kMayLack},
    {"ManaCost", kInteger, kMayLack},
    {"Diff", kInteger, kMayLack},
    {"Version", kInteger, kMayLack},
    {"Type", kInteger, kMayLack},
    {"Duration", kNumber, kMayLack},
    {"Researchable", kFlag, kMayLack},
    {"ComponentCount", kInteger, kMayLack},
    {"TargetMask", kWord, kMayLack},
    {"RangeBase", kNumber, kMayLack},
    {"RangeModifier", kNumber, kMayLack},
    {"Speed", kNumber, kMayLack},
    {"SortOrder", kInteger, kMayLack},
    {"EffectOnCaster", kInteger, kMayLack},
    {"EffectOnTarget", kInteger, kMayLack},
};

constexpr std::array<std::string_view, 6> kRecordKeys = {"event", "set", "advance", "query", "fail", "note"};
constexpr std::array<std::string_view, 6> kServiceNames = {"World",  "CharacterStats", "EchoFilter2",
                                                           "Spells", "RenderService",  "Hotkeys"};
constexpr std::array<std::string_view, 5> kHudNames = {"Main", "Clock", "Item", "Status", "Target"};
constexpr std::array<std::string_view, 3> kControlEvents = {"Change", "End", "Accepted"};

constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kHighestUnsigned = std::numeric_limits<std::uint32_t>::max();

template <class Names>
bool IsOneOf(const Json& value, const Names& names) {
    if (!value.is_string()) return false;
    const std::string& text = value.get_ref<const std::string&>();
    for (const std::string_view name : names) {
        if (text == name) return true;
    }
    return false;
}

bool IsWhole(const Json& value, std::int64_t lowest, std::int64_t highest) {
    if (value.is_number_unsigned()) return value.get<std::uint64_t>() <= static_cast<std::uint64_t>(highest);
    if (value.is_number_integer()) return value.get<std::int64_t>() >= lowest && value.get<std::int64_t>() <= highest;
    if (!value.is_number_float()) return false;
    const double number = value.get<double>();  // 5.0 is whole
    return number == std::floor(number) && number >= static_cast<double>(lowest) &&
           number <= static_cast<double>(highest);
}

bool IsNumberBetween(const Json& value, double lowest, double highest) {
    return value.is_number() && value.get<double>() >= lowest && value.get<double>() <= highest;
}

bool IsKey(std::string_view text, std::int64_t lowest, std::int64_t highest) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= lowest && number <= highest;
}

std::optional<std::int64_t> ParseMoment(std::string_view text);

void CheckFields(const Json& record, std::span<const Field> fields, std::string_view what, bool outer = false);

struct ArrayKind {
    FieldKind kind, item;
};
constexpr ArrayKind kArrays[] = {
    {kWords, kWord},
    {kTexts, kText},
    {kIntegers, kInteger},
    {kEnchantments, kEnchantment},
};

bool IsArrayOf(const Json& value, FieldKind kind);
bool IsObjectOf(const Json& value, FieldKind kind);

bool Fits(const Json& value, FieldKind kind) {
    switch (kind) {
        case kText:
            return value.is_string();
        case kFlag:
            return value.is_boolean();
        case kInteger:
            return IsWhole(value, kLowest, kHighest);
        case kWord:
            return IsWhole(value, kLowest, kHighestUnsigned);
        case kNumber:
        case kShift:
            return IsNumberBetween(value, static_cast<double>(kLowest), static_cast<double>(kHighest));
        case kSeconds:
            return IsNumberBetween(value, 0, static_cast<double>(kHighest));
        case kCount:
            return IsWhole(value, 0, kHighest);
        case kMoment:
            return value.is_string() && ParseMoment(value.get_ref<const std::string&>());
        case kSpellId:
            return IsWhole(value, -0x8000, 0xFFFF);
        case kVitalNumber:
            return value == 2 || value == 4 || value == 6;
        case kCell:
            return value.is_string() || value.is_boolean() || IsWhole(value, kLowest, kHighest);
        case kControlEvent:
            return IsOneOf(value, kControlEvents);
        case kHudName:
            return IsOneOf(value, kHudNames);
        case kRect:
            return value.is_array() && value.size() == 4 && IsArrayOf(value, kIntegers);
        case kPosition:
            return value.is_null() ||
                   (value.is_array() && value.size() == 2 && value[0].is_number() && value[1].is_number());
        case kServices:
            if (!value.is_array()) return false;
            for (const Json& item : value) {
                if (!IsOneOf(item, kServiceNames)) return false;
            }
            return true;
        case kEnchantment:
            if (!value.is_object()) return false;
            CheckFields(value, kEnchantmentFields, "an enchantment");
            return true;
        case kSpellRows:
            if (!value.is_array()) return false;
            for (const Json& row : value) {
                if (!row.is_object()) return false;
                CheckFields(row, kSpellFields, "a spell");
            }
            return true;
        case kMessage:
            return value.is_object() && value.contains("Type") && Fits(value["Type"], kWord);
        case kWords:
        case kTexts:
        case kIntegers:
        case kEnchantments:
            return IsArrayOf(value, kind);
        case kVitals:
        case kNumbered:
        case kNamed:
        case kLongs:
        case kDoubles:
        case kFlags:
        case kStrings:
            return IsObjectOf(value, kind);
    }
    return false;
}

bool IsArrayOf(const Json& value, FieldKind kind) {
    if (!value.is_array()) return false;
    FieldKind item = kInteger;
    for (const ArrayKind& row : kArrays) {
        if (row.kind == kind) item = row.item;
    }
    for (const Json& element : value) {
        if (!Fits(element, item)) return false;
    }
    return true;
}

bool IsObjectOf(const Json& value, FieldKind kind) {
    if (!value.is_object()) return false;
    const bool may_go = kind == kLongs || kind == kDoubles || kind == kFlags || kind == kStrings;
    for (const auto& [key, item] : value.items()) {
        if (kind == kVitals ? (key != "2" && key != "4" && key != "6")
                            : (kind != kNamed && !IsKey(key, kLowest, kHighestUnsigned))) {
            return false;
        }
        if (may_go && item.is_null()) continue;
        const FieldKind item_kind = kind == kLongs     ? kWord
                                    : kind == kDoubles ? kNumber
                                    : kind == kFlags   ? kFlag
                                    : kind == kStrings ? kText
                                                       : kInteger;
        if (item_kind == kNumber ? !item.is_number() : !Fits(item, item_kind)) return false;
    }
    return true;
}

std::string_view Description(FieldKind kind) {
    switch (kind) {
        case kText:
            return "a text";
        case kFlag:
            return "true or false";
        case kInteger:
            return "a whole number of 32 bits";
        case kWord:
            return "a whole number of 32 bits, signed or unsigned";
        case kNumber:
        case kShift:
            return "a number";
        case kSeconds:
            return "a number of seconds, 0 or more";
        case kCount:
            return "a whole number, 0 or more";
        case kMoment:
            return "a moment as 2006-03-05T12:00:00Z";
        case kSpellId:
            return "a whole number of 16 bits, signed or unsigned";
        case kVitalNumber:
            return "2, 4 or 6";
        case kCell:
            return "a text, a whole number of 32 bits, true or false";
        case kControlEvent:
            return "Change, End or Accepted";
        case kHudName:
            return "Main, Clock, Item, Status or Target";
        case kRect:
            return "an array of left, top, right, bottom";
        case kPosition:
            return "an array of ns, ew, or null";
        case kServices:
            return "an array of World, CharacterStats, EchoFilter2, Spells, RenderService, Hotkeys";
        case kEnchantment:
            return "an enchantment";
        case kSpellRows:
            return "an array of spells";
        case kMessage:
            return "an object with a Type of 32 bits";
        case kWords:
            return "an array of ids";
        case kTexts:
            return "an array of texts";
        case kIntegers:
            return "an array of whole numbers of 32 bits";
        case kEnchantments:
            return "an array of enchantments";
        case kVitals:
            return "an object from 2, 4, 6 to whole numbers";
        case kNumbered:
            return "an object from numbers to whole numbers";
        case kNamed:
            return "an object from names to whole numbers";
        case kLongs:
            return "an object from keys to whole numbers of 32 bits, or null";
        case kDoubles:
            return "an object from keys to numbers, or null";
        case kFlags:
            return "an object from keys to true or false, or null";
        case kStrings:
            return "an object from keys to texts, or null";
    }
    return {};
}

void CheckFields(const Json& record, std::span<const Field> fields, std::string_view what, bool outer) {
    for (const auto& [key, value] : record.items()) {
        const Field* found = nullptr;
        for (const Field& field : fields) {
            if (field.name == key) found = &field;
        }
        if (found) {
            if (!Fits(value, found->kind)) {
                throw SessionError(fmt::format("\"{}\" of {} must be {}", key, what, Description(found->kind)));
            }
        } else if (!outer || (key != "at" && key != "event" && key != "set" && key != "query")) {
            throw SessionError(fmt::format("{} has no field \"{}\"", what, key));
        }
    }
    for (const Field& field : fields) {
        if (field.need == Need::kRequired && !record.contains(field.name)) {
            throw SessionError(fmt::format("{} lacks \"{}\"", what, field.name));
        }
    }
}

void CheckNamed(const Json& record, std::string_view kind, std::span<const Shape> shapes) {
    const Json& name = record[std::string(kind)];
    if (!name.is_string()) throw SessionError(fmt::format("\"{}\" must be a text", kind));
    for (const Shape& shape : shapes) {
        if (name.get_ref<const std::string&>() != shape.name) continue;
        CheckFields(record, shape.fields, fmt::format("{} {}", kind, shape.name), true);
        return;
    }
    throw SessionError(fmt::format("unknown {} \"{}\"", kind, name.get_ref<const std::string&>()));
}

// Of the states of a control a record carries one.
std::string_view StateOf(const Json& record, std::string_view what) {
    std::string_view found;
    for (const std::string_view state : {"checked", "text", "selected", "position", "column"}) {
        if (!record.contains(state)) continue;
        if (!found.empty()) throw SessionError(fmt::format("{} has both \"{}\" and \"{}\"", what, found, state));
        found = state;
    }
    for (const std::string_view part : {"row", "sub", "value"}) {
        if (found != "column" && record.contains(part)) {
            throw SessionError(fmt::format("{} has \"{}\" without \"column\"", what, part));
        }
    }
    if (found == "column" && !record.contains("row")) throw SessionError(fmt::format("{} lacks \"row\"", what));
    return found;
}

void CheckFail(const Json& record) {
    CheckFields(record, kFailFields, "fail", true);
    const std::string& operation = record["fail"].get_ref<const std::string&>();
    if (!FindOperation(operation)) throw SessionError(fmt::format("unknown operation \"{}\"", operation));
}

std::optional<std::int64_t> ParseMoment(std::string_view text) {
    const auto number = [&text](std::size_t digits) -> std::optional<int> {
        int value = 0;
        if (text.size() < digits) return std::nullopt;
        for (std::size_t i = 0; i < digits; ++i) {
            if (text[i] < '0' || text[i] > '9') return std::nullopt;
            value = value * 10 + (text[i] - '0');
        }
        text.remove_prefix(digits);
        return value;
    };
    const auto sign = [&text](char character) {
        if (text.empty() || text.front() != character) return false;
        text.remove_prefix(1);
        return true;
    };

    const auto year = number(4);
    const auto month = sign('-') ? number(2) : std::nullopt;
    const auto day = sign('-') ? number(2) : std::nullopt;
    const auto hour = sign('T') ? number(2) : std::nullopt;
    const auto minute = sign(':') ? number(2) : std::nullopt;
    if (!year || !month || !day || !hour || !minute || *hour > 23 || *minute > 59) return std::nullopt;

    std::int64_t milliseconds = 0;
    if (sign(':')) {
        const auto second = number(2);
        if (!second || *second > 59) return std::nullopt;
        milliseconds = *second * 1000;
        if (sign('.')) {
            int place = 100;
            if (text.empty() || text.front() < '0' || text.front() > '9') return std::nullopt;
            for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1), place /= 10) {
                milliseconds += (text.front() - '0') * place;
            }
        }
    }
    if (text != "Z" && text != "+00:00") return std::nullopt;

    using namespace std::chrono;
    const year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                              std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok()) return std::nullopt;
    const std::int64_t minutes = (sys_days(date).time_since_epoch().count() * 24 + *hour) * 60 + *minute;
    return minutes * 60'000 + milliseconds;
}

}  // namespace

std::span<const Shape> EventShapes() { return kEvents; }
std::span<const Shape> SetShapes() { return kSets; }
std::span<const Shape> QueryShapes() { return kQueries; }

RecordKind CheckRecord(const Json& record) {
    if (!record.is_object()) throw SessionError("not a JSON object");

    std::optional<RecordKind> kind;
    for (std::size_t i = 0; i < kRecordKeys.size(); ++i) {
        if (!record.contains(kRecordKeys[i])) continue;
        if (kind) {
            throw SessionError(fmt::format("has both \"{}\" and \"{}\"", kRecordKeys[static_cast<std::size_t>(*kind)],
                                           kRecordKeys[i]));
        }
        kind = static_cast<RecordKind>(i);
    }
    if (!kind) throw SessionError("has none of event, set, advance, query, fail, note");

    if (const auto at = record.find("at"); at != record.end() && !Fits(*at, kShift)) {
        throw SessionError(fmt::format("\"at\" must be {}", Description(kSeconds)));
    }
    switch (*kind) {
        case RecordKind::kEvent:
            CheckNamed(record, "event", kEvents);
            break;
        case RecordKind::kSet:
            CheckNamed(record, "set", kSets);
            break;
        case RecordKind::kQuery:
            CheckNamed(record, "query", kQueries);
            break;
        case RecordKind::kAdvance:
            CheckFields(record, kAdvanceFields, "advance", true);
            break;
        case RecordKind::kFail:
            CheckFail(record);
            break;
        case RecordKind::kNote:
            CheckFields(record, kNoteFields, "note", true);
            break;
    }
    if (kind == RecordKind::kEvent && record["event"] == "Control") StateOf(record, "event Control");
    if (kind == RecordKind::kSet && record["set"] == "control") {
        const std::string_view state = StateOf(record, "set control");
        if (state.empty()) throw SessionError("set control lacks the control's state");
        if (state == "column" && !record.contains("value")) throw SessionError("set control lacks \"value\"");
    }
    return *kind;
}

std::int32_t Word(const Json& value) { return static_cast<std::int32_t>(value.get<std::int64_t>()); }

std::int32_t SpellIdOf(const Json& value) { return static_cast<std::int16_t>(value.get<std::int32_t>()); }

std::int64_t Milliseconds(const Json& seconds) { return std::llround(seconds.get<double>() * 1000.0); }

std::int64_t MomentOf(std::string_view iso8601) {
    const auto moment = ParseMoment(iso8601);
    if (!moment) throw SessionError("not a moment");
    return *moment;
}

std::int32_t KeyOf(std::string_view number) {
    std::int64_t key = 0;
    std::from_chars(number.data(), number.data() + number.size(), key);
    return static_cast<std::int32_t>(key);
}

}  // namespace ombrel::sim
