#include <fmt/format.h>

#include <random>

#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kStack = host::key::kStackCount, kFull = host::key::kStackMaximum;
constexpr host::Id kPurse = 10, kPeas = 20, kWare = 90, kNote = 50, kOldNotes = 51;
constexpr const char* kNoteName = "Trade Note (250,000)";

class PeaTest : public PluginTest {
protected:
    void SetUp() override {
        LogIn();
        client.object(kWare).Name = kNoteName;
        client.vendor = {true, 0.5f, {kWare}};
        Forget();
    }

    sim::Object& Stack(host::Id id, const std::string& name, std::int32_t count) {
        sim::Object& stack = Carry(id, name);
        stack.Long = {{kStack, count}, {kFull, 250}};
        return stack;
    }
    void NewNote() {
        Stack(kNote, kNoteName, 1);
        client.CreateObject(kNote);
    }

    // What one step does: its debug lines without their rule, and its calls.
    std::vector<std::string> Step() {
        Forget();
        Vars::DebugMode = true;
        filter().SellPeas();
        Vars::DebugMode = false;
        std::vector<std::string> told;
        for (const Line& line : lines) {
            std::string text = line.text;
            const std::string start = "<Ombrel-Debug> ", rule(33, '-');
            if (text.starts_with(start + rule)) text = text.substr((start + rule).size());
            told.push_back(text);
        }
        for (const std::string& call : calls) {
            if (!call.starts_with("ChatOut") && !call.starts_with("Timer")) told.push_back(call);
        }
        return told;
    }
};

TEST_F(PeaTest, ARoundSellsPeasBuysANoteAndStacksIt) {
    Stack(kPurse, "Pyreal", 30000);
    Stack(kPeas, "Pyreal Pea", 4);
    Stack(kPeas + 1, "Pyreal Pea", 40);
    Stack(kPeas + 2, "Pyreal Pea", 50);
    Stack(kOldNotes - 1 + 10, kNoteName, 250);  // full
    Stack(kOldNotes + 20, kNoteName, 7);
    client.ChatParser("/m sellpeas");
    EXPECT_TRUE(filter().SellingPeas);
    EXPECT_THAT(CallsOf("TimerStart"), ElementsAre("TimerStart name=TimerHandler.SellingPeas milliseconds=500"));

    EXPECT_THAT(Step(), ElementsAre("Pyreal Count: 30000, Needed Pyreals: 257500", "Selling Pyreal Peas",
                                    "Selecting Item: 21", "SelectItem id=21"));
    EXPECT_THAT(Step(), ElementsAre("Splitting Selected Item to Stack Size 11", "SetStackSize count=11"));
    EXPECT_THAT(Step(), ElementsAre("Adding Item 21 to vendor window", "VendorAddSell id=21"));
    EXPECT_THAT(Step(), ElementsAre("Selling All Items", "VendorSellAll"));
    EXPECT_THAT(Step(), IsEmpty()) << "the money has not come";
    EXPECT_THAT(Step(), ElementsAre("Pyreal Count: 30000, Needed Pyreals: 257500", "Selling Pyreal Peas",
                                    "Selecting Item: 21", "SelectItem id=21"));
    for (int step = 0; step < 3; ++step) Step();
    client.object(kPurse).Long[kStack] = 305000;
    EXPECT_THAT(Step(),
                ElementsAre("Purchasing an MMD", "Adding Tradenote 90 to buy list", "VendorAddBuy id=90 count=1"));
    EXPECT_THAT(Step(), ElementsAre("Buying All Items", "VendorBuyAll"));
    for (int step = 0; step < 3; ++step) EXPECT_THAT(Step(), ElementsAre("Stacking MMD's")) << "no note yet";

    Vars::DebugMode = true;
    NewNote();
    Vars::DebugMode = false;
    EXPECT_THAT(Texts(), Contains("<Ombrel-Debug> New Trade Note created while Selling Peas"));
    EXPECT_THAT(Step(), ElementsAre("Stacking MMD's", "<Ombrel-Debug> Stack found, Stacking...",
                                    "MergeStacks source=50 target=71"));
    EXPECT_THAT(Step(), IsEmpty()) << "not stacked";
    EXPECT_THAT(Step(), Contains("MergeStacks source=50 target=71")) << "so once more";
    client.RemoveObject(kNote);
    client.object(kOldNotes + 20).Long[kStack] = 8;
    EXPECT_THAT(Step(), IsEmpty());
    EXPECT_EQ(filter().TradeNoteId, 0);
    client.object(kPurse).Long[kStack] = 0;
    EXPECT_THAT(Step(), Contains("Pyreal Count: 0, Needed Pyreals: 287500"));
    EXPECT_THAT(Texts(), Contains(HasSubstr("Selecting Item: 21"))) << "40 peas are more than 12";
}

TEST_F(PeaTest, WithoutAStackToJoinTheNoteIsLeftAlone) {
    Stack(kPurse, "Pyreal", 287501);
    Stack(kPeas, "Lead Pea", 1);
    filter().StartPeas();
    for (int step = 0; step < 8; ++step) Step();
    EXPECT_THAT(Step(), ElementsAre("Selling All Items", "VendorSellAll"));
    Step();
    EXPECT_THAT(Step(), ElementsAre("Buying All Items", "VendorBuyAll"));
    NewNote();
    EXPECT_THAT(Step(), ElementsAre("Stacking MMD's", "<Ombrel-Debug> No Stacks Found, Leaving alone."));
    EXPECT_EQ(filter().TradeNoteId, 0);
}

TEST_F(PeaTest, WhoHasTheMoneyBuysAtOnce) {
    Stack(kPurse, "Pyreal", 400000);
    Stack(kPeas, "Pyreal Pea", 3);
    filter().StartPeas();
    Step();
    EXPECT_THAT(Step(), ElementsAre("Splitting Selected Item to Stack Size -4", "SetStackSize count=-4"));
    Step();
    Step();
    EXPECT_THAT(Step(), Contains("VendorAddBuy id=90 count=1"));
}

TEST_F(PeaTest, WithoutPeasEachKindIsPassedOver) {
    filter().StartPeas();
    for (const char* name : {"Pyreal", "Gold", "Silver", "Copper", "Iron", "Lead"}) {
        EXPECT_THAT(Step(), ElementsAre("Pyreal Count: 0, Needed Pyreals: 287500",
                                        fmt::format("You have no more {} Pea's.  Moving on.", name)));
    }
    EXPECT_THAT(Step(), ElementsAre("<Ombrel> Done Selling Peas! MMD's Purchased: 0"));
    EXPECT_FALSE(filter().SellingPeas);
    EXPECT_FALSE(Vars::FilterHandler->SellingPeas);
    Advance(5s);
    EXPECT_EQ(Texts().size(), 1U) << "and the timer rests";
}

TEST_F(PeaTest, AStackThatIsTooSmallIsPassedOver) {
    Stack(kPeas, "Pyreal Pea", 11);  // 12 would do
    filter().StartPeas();
    EXPECT_THAT(Step(), Contains("SelectItem id=20")) << "the last, since none is larger";
    EXPECT_THAT(Step(), ElementsAre("Splitting Selected Item to Stack Size 12",
                                    "You have insufficient Pyreal Pea's.  Moving on."));
    EXPECT_THAT(Step(), Contains("You have no more Gold Pea's.  Moving on."));
}

TEST_F(PeaTest, TheBeatIsHalfASecondAndNoneWhileBusy) {
    Stack(kPeas, "Pyreal Pea", 100);
    filter().StartPeas();
    Forget();
    client.hooks.BusyState = 1;
    Advance(10s);
    EXPECT_THAT(CallsOf("SelectItem"), IsEmpty());
    client.hooks.BusyState = 0;
    Advance(5s);
    EXPECT_EQ(CallsOf("SelectItem").size(), 2U) << "ten steps are two rounds without money";
    EXPECT_EQ(CallsOf("VendorSellAll").size(), 2U);
}

TEST_F(PeaTest, ANoteThatNeverStacksIsTriedOnceASecond) {
    Stack(kPurse, "Pyreal", 300000);
    Stack(kPeas, "Pyreal Pea", 1);
    Stack(kOldNotes, kNoteName, 7).Long.erase(kFull);  // room, as far as is known
    filter().StartPeas();
    Advance(3s);
    NewNote();
    Forget();
    Advance(3600s);
    EXPECT_EQ(CallsOf("MergeStacks").size(), 3600U);
    EXPECT_THAT(Texts(), IsEmpty());
}

struct End {
    const char* what;
    std::function<void(sim::Client&)> happens;
    const char* line;

    friend void PrintTo(const End& end, std::ostream* out) { *out << end.what; }
};

const End kEnds[] = {
    {"the vendor closes", [](sim::Client& c) { c.vendor.open = false; },
     "<Ombrel> No vendor is open.  Please open a vendor window."},
    {"the note is sold out", [](sim::Client& c) { c.vendor.items.clear(); }, "<Ombrel> No MMD Notes Found in Vendor!"},
    {"too heavy", [](sim::Client& c) { c.StatusText("You are too encumbered to sell that!"); },
     "<Ombrel> Unable to sell due to being encumbered."},
    {"stopped", [](sim::Client& c) { c.ChatParser("/m stopsellpeas"); }, nullptr},
};

class Ends : public PeaTest, public testing::WithParamInterface<End> {};

TEST_P(Ends, EndASaleForGood) {
    Stack(kPeas, "Pyreal Pea", 100);
    filter().StartPeas();
    Advance(1s);
    GetParam().happens(client);
    Advance(5s);
    EXPECT_FALSE(filter().SellingPeas);
    const char* line = GetParam().line;
    EXPECT_THAT(Texts(), line ? testing::Matcher<std::vector<std::string>>(ElementsAre(line)) : IsEmpty());
    Forget();
    Advance(5s);
    EXPECT_THAT(CallsOf("Vendor"), IsEmpty());
    EXPECT_THAT(Texts(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Sales, Ends, testing::ValuesIn(kEnds));

TEST_F(PeaTest, AVendorThatPaysNothingIsReported) {
    client.vendor.SellRate = 0.0f;
    Stack(kPeas, "Pyreal Pea", 100);
    filter().StartPeas();
    Advance(500ms);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #11 occured in 'SellPeas' of class 'FilterHandler'"));
    filter().StopPeas();
}

// The count by trying, the stack by looking: the smallest count that pays, from the first stack above it or the last.
TEST_F(PeaTest, ThousandsOfPacksSellTheRightNumberFromTheRightStack) {
    std::mt19937 random(64);
    const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    constexpr std::pair<const char*, int> kKinds[] = {{"Pyreal", 50000}, {"Gold", 25000}, {"Silver", 12500},
                                                      {"Copper", 5000},  {"Iron", 2500},  {"Lead", 500}};
    for (int round = 0; round < 3000; ++round) {
        const int eighths = between(1, 16);
        client.vendor.SellRate = static_cast<float>(eighths) / 8;
        const int money = between(0, 350000);
        const std::size_t kind = static_cast<std::size_t>(between(0, 5));
        Stack(kPurse, "Pyreal", money);
        std::vector<std::pair<host::Id, int>> stacks;
        for (host::Id id = kPeas; id < kPeas + between(1, 5); ++id) {
            stacks.emplace_back(id, between(1, 100));
            Stack(id, fmt::format("{} Pea", kKinds[kind].first), stacks.back().second);
        }
        std::int64_t count = -2000;
        while (count * kKinds[kind].second * eighths < std::int64_t{8} * (287500 - money)) ++count;
        auto chosen = std::ranges::find_if(stacks, [&](const auto& stack) { return stack.second > count; });
        if (chosen == stacks.end()) chosen = stacks.end() - 1;

        filter().StartPeas();
        Forget();
        for (std::size_t step = 0; step < kind + 2; ++step) filter().SellPeas();
        ASSERT_THAT(CallsOf("SelectItem"), ElementsAre(fmt::format("SelectItem id={}", chosen->first))) << round;
        std::vector<std::string> splits;
        if (chosen->second >= count) splits.push_back(fmt::format("SetStackSize count={}", count));
        ASSERT_EQ(CallsOf("SetStackSize"), splits) << round;
        for (host::Id id = kPeas; id < kPeas + 6; ++id) client.RemoveObject(id);
    }
    filter().StopPeas();
}

// The queue keeps its pace too: an effect that never shows sends the tool again, once every other beat.
TEST_F(PeaTest, APeaThatNeverSplitsIsTriedAtTheQueuesPace) {
    options().SplitPeas->SetChecked(true);
    options().PeaThreshold->SetText("10");
    Carry(40, "Splitting Tool");
    Stack(kPeas, "Lead Pea", 5);
    Stack(41, "Lead Scarab", 9);
    client.ChatText("The spell consumed the following components: Lead Scarab\n", 7, 0);
    client.ChatClick("[Ombrel]", 0x710E0);
    Forget();
    Advance(40s);
    EXPECT_EQ(CallsOf("UseItemOnTarget id=40 target=20").size(), 100U);
    client.object(kPeas).Long[kStack] = 4;
    Forget();
    Advance(40s);
    EXPECT_THAT(CallsOf("UseItemOnTarget"), IsEmpty());
}

}  // namespace
}  // namespace ombrel::test
