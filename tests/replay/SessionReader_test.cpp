#include "adapters/sim/SessionReader.h"

#include <sstream>

#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

std::string ReasonOf(std::string_view line) {
    try {
        ParseRecord(line);
    } catch (const SessionError& error) {
        return error.what();
    }
    return "no error";
}

struct WrongRecord {
    const char* line;
    const char* reason;
};

TEST(SessionReader, RefusesWhatTheFormatDoesNotName) {
    const WrongRecord rows[] = {
        // The record itself
        {R"(not json)", "not JSON"},
        {R"({"note": "cut)", "not JSON"},
        {R"({"note": "x"} {"note": "y"})", "not JSON"},
        {"{\"note\": \"\xFF\"}", "not JSON"},
        {R"({"advance": 1e999})", "not JSON"},
        {R"([1])", "not a JSON object"},
        {R"({})", "none of event"},
        {R"({"at": 1})", "none of event"},
        {R"({"event": "Terminate", "note": "x"})", "both \"event\" and \"note\""},
        {R"({"note": "x", "note": "y"})", "\"note\" stands twice"},
        {R"({"set": "object", "id": 1, "Long": {"5": 1, "5": 2}})", "\"5\" stands twice"},
        {R"({"note": 5})", "\"note\" of note must be a text"},
        {R"({"note": "x", "color": 1})", "note has no field \"color\""},
        {R"({"note": "x", "at": "5"})", "\"at\" must be a number"},
        // Events
        {R"({"event": "Char_Jump"})", "unknown event \"Char_Jump\""},
        {R"({"event": 5})", "\"event\" must be a text"},
        {R"({"event": "Char_LoginComplete", "kind": 1})", "has no field \"kind\""},
        {R"({"event": "Char_Logoff"})", "lacks \"kind\""},
        {R"({"event": "Char_Logoff", "kind": 1.5})", "whole number"},
        {R"({"event": "Char_Logoff", "kind": 2147483648})", "whole number of 32 bits"},
        {R"({"event": "Char_ChangeVital", "vital": 3, "value": 1})", "2, 4 or 6"},
        {R"({"event": "ACHooks_ChatTextIntercept", "text": "x", "color": "7", "window": 0})", "\"color\""},
        {R"({"event": "World_CreateObject", "id": 4294967296})", "\"id\""},
        {R"({"event": "World_CreateObject", "id": -2147483649})", "\"id\""},
        {R"({"event": "NetEcho_EchoServer", "message": {"key": 1}})", "Type"},
        {R"({"event": "NetEcho_EchoServer", "message": [1]})", "Type"},
        {R"({"event": "Char_ChangeEnchantments", "change": 0, "enchantment": {"SpellID": 65536}})", "16 bits"},
        {R"({"event": "Char_ChangeEnchantments", "change": 0, "enchantment": {"Spell": 5}})", "no field \"Spell\""},
        {R"({"event": "Control", "name": "XP_Auto", "type": "Click"})", "Change, End or Accepted"},
        {R"({"event": "Control", "name": "a", "type": "Change", "checked": true, "text": "x"})", "both"},
        {R"({"event": "Control", "name": "a", "type": "Change", "column": 1})", "lacks \"row\""},
        {R"({"event": "Control", "name": "a", "type": "Change", "row": 1})", "without \"column\""},
        {R"({"event": "Control", "name": "a", "type": "Change", "value": 1})", "no field \"value\""},
        // Sets
        {R"({"set": "weather"})", "unknown set \"weather\""},
        {R"({"set": "clock", "now": "yesterday"})", "a moment"},
        {R"({"set": "clock", "now": "2006-02-30T12:00:00Z"})", "a moment"},
        {R"({"set": "clock", "now": "2006-03-05T12:00:00"})", "a moment"},
        {R"({"set": "clock", "daylight": 1})", "true or false"},
        {R"({"set": "character", "Hitpoints": 5})", "no field \"Hitpoints\""},
        {R"({"set": "character", "Vital": {"3": 5}})", "\"Vital\""},
        {R"({"set": "character", "Skill": {"axe": 5}})", "\"Skill\""},
        {R"({"set": "character", "Skill": {"1": null}})", "\"Skill\""},
        {R"({"set": "hooks", "Region3D": [0, 0, 800]})", "left, top, right, bottom"},
        {R"({"set": "hooks", "ChatState": 1})", "true or false"},
        {R"({"set": "object", "Name": "x"})", "lacks \"id\""},
        {R"({"set": "object", "id": 1, "Coordinates": [1]})", "ns, ew"},
        {R"({"set": "object", "id": 1, "Long": {"0x05": 1}})", "\"Long\""},
        {R"({"set": "object", "id": 1, "Long": {"5": "1"}})", "\"Long\""},
        {R"({"set": "object", "id": 1, "Bool": {"5": 1}})", "\"Bool\""},
        {R"({"set": "remove"})", "lacks \"id\""},
        {R"({"set": "enchantments", "list": [5]})", "enchantments"},
        {R"({"set": "spells", "rows": [{"Name": "x"}]})", "lacks \"ID\""},
        {R"({"set": "spells", "rows": [{"ID": 1, "Colour": "x"}]})", "no field \"Colour\""},
        {R"({"set": "services", "missing": ["Weather"]})", "World, CharacterStats"},
        {R"({"set": "keys", "down": [true]})", "\"down\""},
        {R"({"set": "decal", "MapKey": {"Jump": "x"}})", "\"MapKey\""},
        {R"({"set": "control", "name": "XP_Auto"})", "lacks the control's state"},
        {R"({"set": "control", "name": "HUD_LIST", "column": 0, "row": 0})", "lacks \"value\""},
        {R"({"set": "control", "name": "HUD_LIST", "column": 0, "row": 0, "value": 1.5})", "\"value\""},
        // The rest
        {R"({"advance": -1})", "0 or more"},
        {R"({"advance": 5, "stalled": "yes"})", "true or false"},
        {R"({"query": "weather"})", "unknown query \"weather\""},
        {R"({"query": "hud", "name": "Minimap"})", "Main, Clock, Item, Status or Target"},
        {R"({"query": "hud"})", "lacks \"name\""},
        {R"({"query": "timers", "name": "x"})", "no field \"name\""},
        {R"({"fail": "World.Everything", "number": 5})", "unknown operation \"World.Everything\""},
        {R"({"fail": "ChatOut"})", "lacks \"number\""},
        {R"({"fail": "ChatOut", "number": 5, "times": -1})", "\"times\""},
    };
    for (const WrongRecord& row : rows) EXPECT_THAT(ReasonOf(row.line), HasSubstr(row.reason)) << row.line;
}

TEST(SessionReader, TakesEveryRecordOfTheFormat) {
    const char* const lines[] = {
        R"({"event": "Char_ChangeEnchantments", "change": 1})",
        R"({"event": "Char_ChangeEnchantments", "change": 1, "enchantment": {"SpellID": -32766}})",
        R"({"event": "WindowMessage", "message": 512, "x": 10, "y": -20, "wParam": 4294967295, "lParam": 0})",
        R"({"event": "WindowMessage", "message": 513, "x": 10, "y": 20})",
        R"({"event": "NetEcho_EchoServer", "message": {"Type": 63408, "event": 201, "spells": [{"spell": 1}]}})",
        R"({"event": "Control", "name": "HUD_LIST", "type": "Change", "column": 0, "row": 3})",
        R"({"event": "Control", "name": "Filter_Add", "type": "Accepted"})",
        R"({"set": "clock", "now": "2006-03-05T12:00:00.250Z", "bias": 300, "shift": -3600})",
        R"({"set": "object", "id": 2415919105, "Container": 0, "Coordinates": null, "Long": {"218103810": null, "107": 4294967295}})",
        R"({"set": "enchantments", "list": [{"SpellID": 32770, "TimeRemaining": 12.5, "Family": 1}]})",
        R"({"set": "spells", "available": false})",
        R"({"set": "control", "name": "HUD_LIST", "column": 4, "row": 0, "sub": 1, "value": 116})",
        R"({"set": "folders", "documents": 2147942402})",
        R"({"advance": 0.25, "stalled": true, "at": 3})",
        R"({"at": 1e2, "fail": "World.Inventory", "times": 3, "number": 91, "description": "gone"})",
        R"({"query": "hud", "name": "Target"})",
        R"({"query": "view"})",
        R"({"event": "Char_Logoff", "kind": 5.0})",
    };
    for (const char* line : lines) EXPECT_EQ(ReasonOf(line), "no error") << line;
}

TEST(SessionReader, PassesOverBlankLinesAndKeepsCountOfThem) {
    std::istringstream input("\xEF\xBB\xBF{\"note\": \"first\"}\r\n\n   \t\r\n{\"note\": \"second\"}\n{");
    SessionReader reader(input, "evening.jsonl");

    EXPECT_EQ(reader.Next()->json["note"], "first");
    EXPECT_EQ(reader.Where(), "evening.jsonl:1");
    EXPECT_EQ(reader.Next()->json["note"], "second");
    EXPECT_EQ(reader.Where(), "evening.jsonl:4");
    EXPECT_THROW(reader.Next(), SessionError);
    EXPECT_EQ(reader.Where(), "evening.jsonl:5");
    EXPECT_FALSE(reader.Next());
}

TEST(SessionReader, ReadsNumbersAsTheGameHoldsThem) {
    EXPECT_EQ(Word(Json(2415919105u)), -1879048191);
    EXPECT_EQ(Word(Json(-5)), -5);
    EXPECT_EQ(SpellIdOf(Json(32770)), -32766);
    EXPECT_EQ(SpellIdOf(Json(2318)), 2318);
    EXPECT_EQ(Milliseconds(Json(0.0005)), 1);
    EXPECT_EQ(Milliseconds(Json(1.1)), 1100);
    EXPECT_EQ(MomentOf("1970-01-02T00:00:01.5Z"), 86'401'500);
    EXPECT_EQ(KeyOf("3435973836"), -858993460);
}

}  // namespace
}  // namespace ombrel::sim
