#include "adapters/sim/SessionPlayer.h"

#include <algorithm>
#include <map>

#include "adapters/sim/View.h"
#include "tests/replay/Replay.h"

namespace ombrel::sim {
namespace {

TEST(SessionPlayer, StartsThePluginBeforeTheFirstEvent) {
    Replay replay("host");
    replay.Play(R"({"set": "services", "missing": ["Spells"]}
                   {"advance": 5}
                   {"query": "view"})");
    EXPECT_FALSE(replay.client.plugin());
    EXPECT_THAT(replay.Output(), ElementsAre(R"({"at": 5.0, "answer": "view"})"));

    replay.Play(R"({"at": 8, "event": "ACHooks_StatusTextIntercept", "text": "x"})");
    const auto output = replay.Output();
    EXPECT_THAT(output, Contains(R"({"at": 5.0, "call": "LoadView"})"));
    EXPECT_EQ(output.back(), R"({"at": 8.0, "result": "ACHooks_StatusTextIntercept", "eat": false})");
    EXPECT_TRUE(replay.client.missing_services.contains("Spells"));
}

TEST(SessionPlayer, StartsThePluginOnceWhereTheSessionDoes) {
    Replay replay("host");
    replay.Play(R"({"event": "Initialize"})");
    replay.Play(R"({"event": "Char_LoginComplete"})");
    EXPECT_EQ(replay.client.calls.Count(*FindOperation("LoadView")), 1u);

    replay.Play(R"({"event": "Terminate"})");
    EXPECT_FALSE(replay.client.view());
    EXPECT_EQ(replay.ReasonOf(R"({"event": "ACHooks_ChatTextIntercept", "text": "x", "color": 0, "window": 0})"), "");
    replay.Play(R"({"event": "Initialize"})");
    EXPECT_EQ(replay.client.calls.Count(*FindOperation("LoadView")), 2u);
    EXPECT_TRUE(replay.client.view());
}

TEST(SessionPlayer, RunsTheClockToTheMomentOfARecord) {
    Replay replay;
    replay.Play(R"({"at": 2.5, "note": "a"}
                   {"advance": 0.25}
                   {"note": "b"}
                   {"at": 2.75, "note": "c"})");
    EXPECT_THAT(replay.Output(), ElementsAre(R"({"at": 2.5, "note": "a"})", R"({"at": 2.75, "note": "b"})",
                                             R"({"at": 2.75, "note": "c"})"));

    EXPECT_EQ(replay.ReasonOf(R"({"at": 2.749, "note": "d"})"), "the moment lies behind");
    EXPECT_EQ(replay.ReasonOf(R"({"at": -1, "note": "d"})"), "the moment lies behind");
    EXPECT_THAT(replay.Output(), IsEmpty());
}

TEST(SessionPlayer, DoesNothingOfAWrongRecord) {
    Replay replay;
    EXPECT_THAT(replay.ReasonOf(R"({"at": 5, "event": "Control", "name": "No_Such", "type": "Change"})"),
                HasSubstr("unknown control \"No_Such\""));
    EXPECT_EQ(replay.client.clock.now(), 0);
    EXPECT_FALSE(replay.client.plugin());
    EXPECT_THAT(replay.ReasonOf(R"({"at": 5, "set": "clock", "now": "2006-03-05T12:00:00Z"})"), HasSubstr("has run"));
    EXPECT_EQ(replay.client.clock.now(), 0);
}

TEST(SessionPlayer, RaisesEveryEvent) {
    const std::map<std::string_view, std::string> fields = {
        {"Char_Logoff", R"("kind": 1)"},
        {"Char_ChangeVital", R"("vital": 2, "value": 50)"},
        {"Char_ChangeEnchantments",
         R"("change": 1, "enchantment": {"SpellID": 2, "TimeRemaining": 1800, "Family": 1})"},
        {"Char_ChangePortalMode", R"("mode": 1)"},
        {"Char_Death", R"("text": "You have been slain by a Drudge")"},
        {"ACHooks_ChatTextIntercept", R"("text": "x\n", "color": 0, "window": 0)"},
        {"ACHooks_ChatParserIntercept", R"("text": "/m help")"},
        {"ACHooks_StatusTextIntercept", R"("text": "x")"},
        {"ACHooks_ChatClickIntercept", R"("text": "Bob", "id": 5)"},
        {"ACHooks_ContainerOpened", R"("id": 5)"},
        {"ACHooks_ObjectSelected", R"("id": 5)"},
        {"ACHooks_AC3DRegionChanged", R"("left": 0, "top": 0, "right": 640, "bottom": 480)"},
        {"World_CreateObject", R"("id": 5)"},
        {"World_MoveObject", R"("id": 5)"},
        {"World_ReleaseObject", R"("id": 5)"},
        {"World_ChangeObject", R"("id": 5, "change": 2)"},
        {"NetEcho_EchoServer", R"("message": {"Type": 1})"},
        {"NetEcho_EchoClient", R"("message": {"Type": 1})"},
        {"WindowMessage", R"("message": 512, "x": 10, "y": 20, "wParam": 0, "lParam": 0)"},
        {"HK_HotkeyEvent", R"("name": "x")"},
        {"AddChatText", R"("text": "x", "color": 0, "window": 1)"},
        {"Control", R"("name": "XP_Auto", "type": "Change", "checked": true)"},
    };
    Replay replay;
    replay.Play(R"({"event": "Char_LoginComplete"})");
    for (const Shape& shape : EventShapes()) {
        const auto found = fields.find(shape.name);
        ASSERT_EQ(found == fields.end(), shape.fields.empty()) << shape.name;
        const std::string rest = found == fields.end() ? "" : ", " + found->second;
        EXPECT_EQ(replay.ReasonOf("{\"event\": \"" + std::string(shape.name) + "\"" + rest + "}"), "") << shape.name;
        replay.Play(R"({"event": "Initialize"})");
    }
    const auto output = replay.Output();
    for (const char* event :
         {"ChatTextIntercept", "ChatParserIntercept", "StatusTextIntercept", "ChatClickIntercept"}) {
        EXPECT_THAT(output, Contains(HasSubstr(std::string("\"result\": \"ACHooks_") + event + "\", \"eat\": ")));
    }
    EXPECT_THAT(output, Contains(HasSubstr(R"("result": "WindowMessage", "eat": )")));
    EXPECT_THAT(output, Contains(HasSubstr(R"("result": "HK_HotkeyEvent", "handled": )")));
}

TEST(SessionPlayer, SetsTheWorldAndTheCharacter) {
    Replay replay;
    Client& client = replay.client;
    replay.Play(
        R"({"set": "character", "Server": "Beta", "Character": 3000000000, "Vital": {"2": 250}, "Skill": {"6": 400}}
                   {"set": "character", "Level": 42, "Augmentation": {"232": 1}}
                   {"set": "character", "Augmentation": {"238": 0}}
                   {"set": "object", "id": 5, "Name": "Kit", "Container": 0, "Coordinates": [1.5, -2], "Long": {"107": 4294967295, "5": 1}, "Bool": {"2": true}, "valid": false}
                   {"set": "object", "id": 5, "Coordinates": null, "Long": {"5": null, "6": 2}}
                   {"set": "hooks", "Region3D": [1, 2, 3, 4], "CombatMode": 8}
                   {"set": "vendor", "open": true, "items": [4294967295]}
                   {"set": "keys", "down": [16]}
                   {"set": "spells", "rows": [{"ID": 9999, "Name": "Bovine Haste", "Duration": 60, "Flags": 4294967295}]}
                   {"set": "clock", "now": "2006-03-05T13:00:00Z", "shift": -60, "bias": 300})");
    EXPECT_EQ(client.sheet.Server, "Beta");
    EXPECT_EQ(client.sheet.Name, "Bob");
    EXPECT_EQ(client.sheet.Character, -1294967296);
    EXPECT_EQ(client.sheet.Level, 42);
    EXPECT_EQ(client.sheet.Vital, (std::map<std::int32_t, std::int32_t>{{2, 250}, {4, 100}, {6, 100}}));
    EXPECT_EQ(client.sheet.Augmentation, (std::map<std::int32_t, std::int32_t>{{238, 0}}));
    const Object& object = *client.FindObject(5);
    EXPECT_EQ(object.Name, "Kit");
    EXPECT_EQ(object.Container, 0);
    EXPECT_FALSE(object.Coordinates);
    EXPECT_EQ(object.Long, (std::map<std::int32_t, std::int32_t>{{6, 2}, {107, -1}}));
    EXPECT_FALSE(object.valid);
    EXPECT_EQ(client.hooks.Region3D, (host::Rect{1, 2, 3, 4}));
    EXPECT_EQ(client.hooks.CombatMode, 8);
    EXPECT_EQ(client.vendor.items, std::vector<host::Id>{-1});
    EXPECT_EQ(client.spells.ByName("Bovine Haste")->Duration, 60.0);
    EXPECT_EQ(client.spells.ByID(9999)->Flags, -1);
    EXPECT_EQ(client.clock.universal(), 1'141'563'540'000);

    replay.Play(R"({"set": "remove", "id": 5})");
    EXPECT_FALSE(client.FindObject(5));
}

TEST(SessionPlayer, KeepsWhatIsSetOfTheViewUntilItIsThere) {
    Replay replay;
    replay.Play(R"({"set": "control", "name": "Chat_Log_Max", "text": "123"}
                   {"set": "view", "left": 40}
                   {"event": "Initialize"})");
    EXPECT_EQ(replay.client.view()->Get<SimEdit>("Chat_Log_Max")->text(), "123");
    EXPECT_EQ(replay.Answer(R"({"query": "view"})")["left"], 40);
}

TEST(SessionPlayer, TellsControlsOfOneKindFromAnother) {
    Replay replay;
    replay.Play(R"({"event": "Char_LoginComplete"})");
    const std::pair<const char*, const char*> rows[] = {
        {R"({"event": "Control", "name": "XP_Auto", "type": "End"})", "a check box, which has no End"},
        {R"({"event": "Control", "name": "XP_Auto", "type": "Change", "text": "x"})", "which has no \"text\""},
        {R"({"event": "Control", "name": "Filter_Add", "type": "Accepted", "text": "x"})", "no \"text\""},
        {R"({"event": "Control", "name": "HUD_LIST", "type": "Change"})", "lacks \"column\""},
        {R"({"event": "Control", "name": "Session_Time", "type": "Change"})", "a static text, which has no Change"},
        {R"({"event": "Control", "name": "HUD_Main_Color", "type": "Change", "selected": 1000})", "no entry 1000"},
        {R"({"set": "control", "name": "HUD_LIST", "column": 99, "row": 0, "value": 1})", "no column 99"},
        {R"({"set": "control", "name": "HUD_LIST", "column": 0, "row": 999, "value": true})", "no row 999"},
        {R"({"set": "control", "name": "HUD_LIST", "column": 0, "row": 0, "value": "True"})", "true or false"},
        {R"({"set": "control", "name": "Chat_Log_Max", "checked": true})", "which has no \"checked\""},
        {R"({"query": "list", "name": "XP_Auto"})", "no list"},
        {R"({"query": "control", "name": "xp_auto"})", "unknown control"},
    };
    for (const auto& [record, reason] : rows) EXPECT_THAT(replay.ReasonOf(record), HasSubstr(reason)) << record;
}

TEST(SessionPlayer, AnswersWhatItIsAsked) {
    Replay replay;
    replay.Play(R"({"event": "Char_LoginComplete"})");

    replay.Play(R"({"set": "control", "name": "XP_Auto", "checked": true})");
    EXPECT_EQ(replay.Answer(R"({"query": "control", "name": "XP_Auto"})"),
              Json::parse(R"({"at": 0.0, "answer": "control", "name": "XP_Auto", "checked": true})"));
    replay.Play(R"({"set": "control", "name": "HUD_Main_Color", "selected": 1})");
    const Json choice = replay.Answer(R"({"query": "control", "name": "HUD_Main_Color"})");
    EXPECT_EQ(choice["selected"], 1);
    EXPECT_EQ(choice["text"], choice["entries"][1]);
    EXPECT_EQ(choice["entries"].size(), choice["data"].size());
    replay.Play(R"({"set": "control", "name": "Vitals_sldrBlock", "position": 40})");
    EXPECT_EQ(replay.Answer(R"({"query": "control", "name": "Vitals_sldrBlock"})")["position"], 40);

    const Json list = replay.Answer(R"({"query": "list", "name": "HUD_General"})");
    EXPECT_EQ(list["rows"][0][1], "Main");
    EXPECT_TRUE(list["rows"][0][4].contains("icon")) << list["rows"][0];
    EXPECT_TRUE(list["rows"][0][4].contains("library"));
    EXPECT_THAT(list["colors"].dump(), HasSubstr(R"("row":0)"));

    const Json timers = replay.Answer(R"({"query": "timers"})");
    EXPECT_THAT(timers["running"].dump(), HasSubstr(R"({"milliseconds":1000,"name":"TimerHandler.CoreTimer"})"));
    for (const char* name : {"Main", "Clock", "Item", "Status", "Target"}) {
        const Json hud = replay.Answer(std::string(R"({"query": "hud", "name": ")") + name + "\"}");
        EXPECT_EQ(hud["name"], name);
        EXPECT_TRUE(hud["enabled"].is_boolean()) << hud;
        EXPECT_TRUE(hud["fontFace"].is_string()) << hud;
    }
}

TEST(SessionPlayer, FlipsAClickedCheckCellBeforeTheEvent) {
    Replay replay;
    replay.Play(R"({"event": "Char_LoginComplete"})");
    const auto cell = [&] {
        return replay.Answer(R"({"query": "list", "name": "HUD_LIST"})")["rows"][2][0].get<bool>();
    };
    const bool before = cell();
    replay.Play(R"({"event": "Control", "name": "HUD_LIST", "type": "Change", "column": 0, "row": 2})");
    EXPECT_EQ(cell(), !before);
}

TEST(SessionPlayer, MakesTheNextCallsFail) {
    Replay replay;
    replay.Play(R"({"event": "Char_LoginComplete"}
                   {"advance": 1}
                   {"fail": "ChatOut", "number": 57}
                   {"event": "ACHooks_ChatParserIntercept", "text": "/m loc"})");
    const auto output = replay.Output();
    const auto failed = std::count_if(output.begin(), output.end(), [](const std::string& line) {
        return line.find("\"failed\": true") != std::string::npos;
    });
    EXPECT_EQ(failed, 1);

    // One that is only asked is never recorded. Six drinks are looked for, and two searches fail.
    replay.Play(R"({"fail": "World.Inventory", "times": 2, "number": 91, "description": "gone"}
                   {"event": "HK_HotkeyEvent", "name": "OM:DrinkBeersNow"})");
    const auto after = replay.Output();
    const auto reports = std::count_if(after.begin(), after.end(), [](const std::string& line) {
        return line.find("Error #91 occured in 'GetIDinInv'") != std::string::npos;
    });
    EXPECT_EQ(reports, 2);
    EXPECT_THAT(after, Not(Contains(HasSubstr("Inventory"))));
}

TEST(SessionPlayer, FiresEachDueTimerOnceAfterAHang) {
    Replay replay;
    replay.Play(R"({"event": "Char_LoginComplete"}
                   {"advance": 60, "stalled": true})");
    EXPECT_EQ(replay.Answer(R"({"query": "control", "name": "Session_Time"})")["text"], "00:01:00");
    EXPECT_EQ(replay.client.clock.now(), 60'000);
}

TEST(Recorder, WritesTheKindsThatAreTraced) {
    Replay chat("chat");
    chat.Play(R"({"event": "Char_LoginComplete"})");
    const auto output = chat.Output();
    EXPECT_THAT(output, Not(IsEmpty()));
    EXPECT_THAT(output, Each(HasSubstr("\"call\": \"ChatOut\"")));

    EXPECT_FALSE(Trace::Parse("chat,weather"));
    EXPECT_FALSE(Trace::Parse(""));
    EXPECT_FALSE(Trace().Has(CallKind::kDraw));
    EXPECT_TRUE(Trace::Parse("all")->Has(CallKind::kDraw));
    EXPECT_FALSE(Trace::Parse("all")->Has(CallKind::kQuestion));
}

}  // namespace
}  // namespace ombrel::sim
