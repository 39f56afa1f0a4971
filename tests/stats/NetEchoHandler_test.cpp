// What the game's messages come to, and that all others cost nothing.
#include "stats/NetEchoHandler.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "chat/ChatTextHandler.h"
#include "hud/HUDTargetHandler.h"
#include "stats/Statistics.h"
#include "tests/support/GameLines.h"
#include "tests/support/Messages.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr host::Id kDrudge = 0xDB000201 - 0x100000000;
constexpr host::Id kOlthoi = 0xDB000202 - 0x100000000;

class NetEchoHandlerTest : public PluginTest {
protected:
    void SetUp() override {
        client.LoadSpells(SpellTablePath());
        LogIn();
        for (const host::Id id : {kDrudge, kOlthoi}) {
            client.object(id).Name = "Creature";
            client.object(id).Type = host::object_class::kCreature;
        }
        Forget();
    }

    static NetEchoHandler& echo() { return *Vars::NetEchoHandler; }
    static Statistics& stats() { return *Vars::Statistics; }

    void Server(const Json& message) { ServerSays(client, message); }

    // Current health, its maximum and the ratio, as "18 of 36, 0.5".
    static std::string Target() {
        return fmt::format("{} of {}, {}", echo().TargetHealth, echo().TargetHealthMax, echo().TargetHealthRatio);
    }
};

TEST_F(NetEchoHandlerTest, EightBytesMakeANumberLowByteFirst) {
    const struct {
        std::uint64_t value;
        double number;
    } rows[] = {{0, 0},
                {1, 1},
                {0x100000000, 4294967296.0},
                {1'226'755'600, 1226755600.0},
                {191'226'310'247, 191226310247.0},
                {0x8000000000000000, 9223372036854775808.0},
                {0xFFFFFFFFFFFFFFFF, 18446744073709551616.0}};
    for (const auto& row : rows)
        EXPECT_EQ(NetEchoHandler::DoubleFromQword(Qword(row.value).get<std::vector<std::uint8_t>>()), row.number);
    EXPECT_THROW(NetEchoHandler::DoubleFromQword(std::vector<std::uint8_t>(7)), Failure);
}

TEST_F(NetEchoHandlerTest, APairOfTotalsIsOneChangeInEitherOrder) {
    for (const int other : {0, 3, 6, 7, -1}) Server(Quality(other, 40));
    EXPECT_FALSE(echo().TotalSeen || echo().UnassignedSeen);
    Server(Quality(kTotalXP, 8500));
    EXPECT_EQ(stats().CharTotalXP, 0);
    EXPECT_TRUE(echo().TotalSeen);
    Server(EffectOn(5, 44));
    Advance(2s);
    Server(Quality(kUnassignedXP, 8400));
    EXPECT_EQ(stats().CharTotalXP, 8500);
    EXPECT_EQ(stats().MonsterXP, 8390);
    EXPECT_FALSE(echo().TotalSeen);
    EXPECT_FALSE(echo().UnassignedSeen);

    Server(Quality(kUnassignedXP, 8500));
    EXPECT_EQ(stats().CharUnXP, 8400);
    EXPECT_TRUE(echo().UnassignedSeen);
    Server(Quality(kTotalXP, 8610));
    EXPECT_EQ(stats().CharUnXP, 8500);
    EXPECT_EQ(stats().MonsterXP, 99);
    EXPECT_FALSE(echo().TotalSeen);
    EXPECT_FALSE(echo().UnassignedSeen);
}

TEST_F(NetEchoHandlerTest, AFallOfUnassignedExperienceIsAChangeByItself) {
    Server(Quality(kTotalXP, 8500));
    Server(Quality(kUnassignedXP, 8500));
    Forget();
    Server(Quality(kUnassignedXP, 1000));
    EXPECT_EQ(stats().CharUnXP, 1000);
    EXPECT_FALSE(echo().UnassignedSeen);

    // A fall that is the second half of a pair as well takes over both, and leaves the first half waiting.
    Server(Quality(kTotalXP, 9000));
    Server(Quality(kUnassignedXP, 200));
    EXPECT_EQ(stats().CharTotalXP, 9000);
    EXPECT_EQ(stats().CharUnXP, 200);
    EXPECT_TRUE(echo().TotalSeen);
    EXPECT_FALSE(echo().UnassignedSeen);
    EXPECT_THAT(Texts(), IsEmpty()) << "nothing of this is told";
}

TEST_F(NetEchoHandlerTest, TheSnapshotAtLoginBringsTotalsAndCallsNothing) {
    Server(LoginSnapshot(1'200'000'000, 1'234'567));
    EXPECT_EQ(echo().TotalXP, 1'200'000'000);
    EXPECT_EQ(echo().UnassignedXP, 1'234'567);
    EXPECT_FALSE(echo().TotalSeen || echo().UnassignedSeen);
    EXPECT_EQ(stats().CharTotalXP, 0);
    EXPECT_TRUE(Vars::ChatTextHandler->GetTargetList(4, 27)) << "its options are read too";

    Json without = LoginSnapshot(7, 7);
    without["properties"]["flags"] = 0x7F;
    without["options"] = WindowOptions({0, 0x00000018});
    Server(without);
    EXPECT_EQ(echo().TotalXP, 1'200'000'000) << "without their flag the totals are not there";
    EXPECT_TRUE(Vars::ChatTextHandler->GetTargetList(1, 4));
    EXPECT_FALSE(Vars::ChatTextHandler->GetTargetList(4, 27));
}

TEST_F(NetEchoHandlerTest, TheLastKillIsRememberedWordForWord) {
    Server(KillText("You split Drudge Prowler apart!"));
    Server(Json{{"Type", kEvent}, {"event", 0x1AC}, {"text", "You are fatally punctured by Olthoi Soldier!"}});
    EXPECT_EQ(Vars::LastKillText, "You split Drudge Prowler apart!");
    client.ChatText("You split Drudge Prowler apart!\n", 0, 1);
    EXPECT_EQ(stats().Kills, 1);
}

TEST_F(NetEchoHandlerTest, EveryKillLineOfTheGameCounts) {
    const std::vector<GameLine> game_lines = GameLines();
    if (game_lines.empty()) GTEST_SKIP() << kNoGameLines;

    std::int32_t kills = 0;
    for (const GameLine& line : game_lines) {
        if (line.note.find("the same text comes in event 0x1AD") == std::string::npos) continue;
        Server(KillText(line.text));
        client.ChatText(line.text + "\n", line.type, 1);
        client.ChatText("Bob says, \"gratz\"\n", 2, 1);
        EXPECT_EQ(stats().Kills, ++kills) << line.text;
    }
    EXPECT_GT(kills, 20);
    EXPECT_EQ(options().Kills->Text(), std::to_string(kills));
}

TEST_F(NetEchoHandlerTest, TheTargetsHealthFollowsItsIdentification) {
    client.ObjectSelected(kDrudge);
    EXPECT_EQ(Target(), "0 of 0, 1");
    Server(HealthOf(kDrudge, 0.75));
    EXPECT_EQ(Target(), "0 of 0, 0.75") << "without a maximum";
    Server(Identified(kDrudge, 0x100, 36, 36));
    EXPECT_EQ(Target(), "36 of 36, 1");
    Server(HealthOf(kDrudge, 0.5));
    EXPECT_EQ(Target(), "18 of 36, 0.5");
    Server(HealthOf(kDrudge, 0.375));
    EXPECT_EQ(Target(), "14 of 36, 0.375") << "13.5 goes to the even number";
    Server(HealthOf(kDrudge, 0.125));
    EXPECT_EQ(Target(), "4 of 36, 0.125") << "4.5 too";
    Server(HealthOf(kDrudge, 0.0));
    EXPECT_EQ(Target(), "0 of 36, 0");
    Server(Identified(kDrudge, 0x100, 560, 540));
    EXPECT_EQ(Target(), "560 of 540, 1");

    client.ObjectSelected(kOlthoi);
    EXPECT_EQ(Target(), "0 of 0, 1") << "another target";
}

TEST_F(NetEchoHandlerTest, WhatIsNotAboutTheTargetChangesNothing) {
    Server(Identified(kDrudge, 0x100, 20, 36));
    Server(HealthOf(kDrudge, 0.5));
    EXPECT_EQ(Target(), "0 of 0, 1") << "nothing is selected";

    client.ObjectSelected(kDrudge);
    Server(Identified(kDrudge, 0x100, 30, 36));
    const std::string before = Target();
    Server(Identified(kOlthoi, 0x100, 215, 215));
    Server(HealthOf(kOlthoi, 0.1));
    Json failed = Identified(kDrudge, 0x100, 5, 36);
    for (const int success : {0, 2, -1}) {
        failed["success"] = success;
        Server(failed);
    }
    EXPECT_EQ(Target(), before);
    Server(Identified(kDrudge, 0x10, 1, 1));
    EXPECT_EQ(Target(), before) << "an identification without health";
}

TEST_F(NetEchoHandlerTest, TheTargetsSpellsAreNamed) {
    client.ObjectSelected(kDrudge);
    const Json item = Identified(kDrudge, 0x95, 0, 0, {2108, 2581, static_cast<std::int32_t>(0x800005CE)});
    Server(item);
    EXPECT_EQ(echo().TargetSpells, "Brogard's Defiance;Minor Focus;Unknown -2147482162;");
    Server(Identified(kDrudge, 0x100, 1, 1));
    EXPECT_EQ(echo().TargetSpells, "");
    Server(item);
    client.ObjectSelected(kOlthoi);
    EXPECT_EQ(echo().TargetSpells, "");
}

TEST_F(NetEchoHandlerTest, NoMaximumIsReportedAndKeepsTheRatio) {
    client.ObjectSelected(kDrudge);
    Server(HealthOf(kDrudge, 0.5));
    Server(Identified(kDrudge, 0x100, 10, 0));
    EXPECT_EQ(Target(), "10 of 0, 0.5");
    EXPECT_THAT(TakeReports(), ElementsAre("Error #11 occured in 'NetEcho_EchoMessage' of class 'NetEchoHandler'"));
}

// Fails every look at a message but that at its type.
class OnlyAType : public host::Message {
public:
    explicit OnlyAType(std::int32_t type) : type_(type) {}
    std::int32_t Type() const override { return type_; }
    std::int32_t Long(std::string_view) const override { throw Failure(5); }
    double Double(std::string_view) const override { throw Failure(5); }
    std::string Text(std::string_view) const override { throw Failure(5); }
    std::vector<std::uint8_t> Bytes(std::string_view) const override { throw Failure(5); }
    host::MessageMemberPtr Struct(std::string_view) const override { throw Failure(5); }
    host::MessageMemberPtr Item(std::int32_t) const override { throw Failure(5); }

private:
    std::int32_t type_;
};

TEST_F(NetEchoHandlerTest, OtherMessagesAreNotLookedInto) {
    for (const std::int32_t type : {0, 0x02CE, 0x02D0, 0xF754, 0xF756, 0xF7B1, 0xF748, -1})
        client.EchoServer(OnlyAType(type));
    for (const std::int32_t type : {0, 0x02CF, 0xF755, 0xF7B0, 0xF7B2, -1}) client.EchoClient(OnlyAType(type));
    EXPECT_THAT(TakeReports(), IsEmpty());

    for (const int event : {0x12, 0x14, 0xC8, 0x1AC, 0x1AE, 0x1C1}) Server(Json{{"Type", kEvent}, {"event", event}});
    ClientSays(client, Json{{"Type", kAction}, {"action", 0xC8}});
    EXPECT_THAT(TakeReports(), IsEmpty());
}

// Every field that a message needs, taken out of it.
TEST_F(NetEchoHandlerTest, AFieldThatIsMissingIsReportedAndLeavesWhatWas) {
    client.ObjectSelected(kDrudge);
    Json item = Identified(kDrudge, 0x100, 20, 36, {2108});
    const Json messages[] = {Quality(kTotalXP, 5),        Quality(kUnassignedXP, 5), EffectOn(5, 44),
                             KillText("You flatten it!"), HealthOf(kDrudge, 0.5),    item};
    for (const Json& message : messages) {
        for (const auto& [field, value] : message.items()) {
            if (field == "Type" || field.starts_with("spell")) continue;
            Json broken = message;
            broken.erase(field);
            Server(broken);
            EXPECT_THAT(TakeReports(),
                        ElementsAre("Error #5 occured in 'NetEcho_EchoMessage' of class 'NetEchoHandler'"))
                << field << " of " << message;
        }
    }
    EXPECT_EQ(Target(), "0 of 0, 1");
    EXPECT_EQ(echo().TotalXP + echo().UnassignedXP, 0);
    EXPECT_NE(Vars::LastKillText, "You flatten it!");

    item.erase("spells");
    Server(item);
    EXPECT_EQ(Target(), "20 of 36, " + fmt::format("{}", 20.0 / 36)) << "what came before the gap stands";
    EXPECT_THAT(TakeReports(), SizeIs(1));

    ClientSays(client, Json{{"Type", kAction}});
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'EchoClient' of class 'NetEchoHandler'"));
    ClientSays(client, Json{{"Type", kAction}, {"action", 0x1A1}});
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'HandleOptions' of class 'NetEchoHandler'"));
}

TEST_F(NetEchoHandlerTest, WithoutTheEchoThePlayerIsToldAndPlaysOn) {
    GameSession::client.Terminate();
    client.missing_services = {"EchoFilter2"};
    client.Start();
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'Class_Initialize' of class 'NetEchoHandler'")));
    client.LoginComplete();
    EXPECT_THAT(Texts(), Contains(HasSubstr("echo filter is missing")).Times(1));
    EXPECT_THAT(TakeReports(), IsEmpty());
}

// The windows of chat.

class ChatWindows : public NetEchoHandlerTest {
protected:
    using Types = std::set<int>;

    void Change(const Json& options) { ClientSays(client, OptionsChanged(options)); }

    // The types that a window shows, without the plug-in's own.
    static Types Shown(std::int32_t window) {
        Types types;
        for (std::int32_t type = 0; type < 32; ++type) {
            if (Vars::ChatTextHandler->GetTargetList(window, type)) types.insert(type);
        }
        return types;
    }

    static std::vector<Types> AllShown() { return {Shown(0), Shown(1), Shown(2), Shown(3), Shown(4)}; }

    const std::vector<Types> defaults{
        {0, 2, 3, 4, 5, 6, 7, 10, 11, 12, 13, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 27, 28, 29, 30},
        {2, 3, 4, 12},
        {10, 11, 18},
        {19},
        {27, 28, 29, 30}};
};

TEST_F(ChatWindows, EachBitOfAFilterShowsItsKindOfChat) {
    const struct {
        Types bits, types;
    } kinds[] = {{{0, 5, 13, 16, 20, 23, 24, 25}, {0, 5, 6, 13, 16, 20, 23, 24, 25}},
                 {{2, 12}, {2, 12}},
                 {{3, 4}, {3, 4}},
                 {{6, 21, 22}, {21, 22, 6}},
                 {{7, 17}, {17, 7}},
                 {{10, 11, 18}, {10, 11, 18}},
                 {{19}, {19}},
                 {{26}, {26}},
                 {{27}, {27}},
                 {{28}, {28}},
                 {{29}, {29}},
                 {{30}, {30}}};
    for (int bit = 0; bit < 32; ++bit) {
        SCOPED_TRACE(bit);
        const auto* kind = std::ranges::find_if(kinds, [bit](const auto& row) { return row.bits.contains(bit); });
        Change(WindowOptions({0, 0, 1U << bit, 0, 0}));
        if (kind == std::end(kinds)) {
            EXPECT_EQ(AllShown(), defaults) << "a filter that shows nothing counts as none";
        } else {
            EXPECT_EQ(AllShown(), (std::vector<Types>{{}, {}, kind->types, {}, {}}));
        }
    }
}

TEST_F(ChatWindows, EachWindowHasAFilterOfItsOwn) {
    const Json whole = WindowOptions({0, 0, 0x00600040});
    Json beside = OptionsChanged({{"flags", 0x340}});
    for (const char* const field : {"optionPropertyCount", "optionProperties"}) beside[field] = whole[field];
    ClientSays(client, beside);
    EXPECT_EQ(AllShown(), (std::vector<Types>{{}, {}, {6, 21, 22}, {}, {}})) << "beside the options, not in them";

    Change(WindowOptions({0x7BF8FFFF, 0x0000101C, 0x00040C00, 0x00080000, 0x78000000}));
    EXPECT_EQ(AllShown(), defaults);
    Change(WindowOptions({0, 0xFFFFFFFF}));
    Types all = defaults[0];
    all.insert(26);
    EXPECT_EQ(AllShown(), (std::vector<Types>{{}, all, {}, {}, {}}));
    EXPECT_EQ(Vars::ChatTextHandler->TargetCount, 27);
}

TEST_F(ChatWindows, WhatIsNotAFilterOfAWindowIsPassedOver) {
    Json options = WindowOptions({0x18});
    Json& property = options["optionProperties"][1]["windows"][0]["properties"][1];
    property["key"] = 0x10000080;
    Change(options);
    EXPECT_EQ(AllShown(), defaults);
    property["key"] = 0x1000007F;
    options["optionProperties"][1]["windows"][0]["type"] = 0x1000008A;
    Change(options);
    EXPECT_EQ(AllShown(), defaults);
}

TEST_F(ChatWindows, WithoutWindowsTheClientsDefaultsStand) {
    Json no_windows = WindowOptions({});
    no_windows["optionProperties"][1].erase("windows");
    const Json options[] = {
        {{"flags", 0x40}},
        {{"flags", 0x240}, {"optionPropertyCount", 0}},
        {{"flags", 0x240}, {"optionPropertyCount", 1}, {"optionProperties", {{{"type", 0x10000080}}}}},
        WindowOptions({0, 0, 0, 0, 0}),
        no_windows,
    };
    for (const Json& each : options) {
        Change(WindowOptions({0x00080000}));
        Change(each);
        EXPECT_EQ(AllShown(), defaults) << each;
    }
}

TEST_F(ChatWindows, ASixthWindowIsReportedAndTheFiveStand) {
    Change(WindowOptions({0, 0x18, 0, 0, 0x18, 0x18, 0x18}));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #9 occured in 'HandleOptions' of class 'NetEchoHandler'"));
    EXPECT_EQ(AllShown(), (std::vector<Types>{{}, {3, 4}, {}, {}, {3, 4}}));
}

TEST_F(ChatWindows, ThePlugInsOwnLinesStayWhereThePlayerPutThem) {
    auto& chat = *Vars::ChatTextHandler;
    for (std::int32_t window = 0; window < 5; ++window) chat.SetTargetList(window, chat_type::kOmbrel, window == 3);
    Change(WindowOptions({0x18}));
    Change({{"flags", 0}});
    for (std::int32_t window = 0; window < 5; ++window)
        EXPECT_EQ(chat.GetTargetList(window, chat_type::kOmbrel), window == 3);
}

}  // namespace
}  // namespace ombrel::test
