// The example sessions of a day's play, and what comes of them.

#include <fmt/format.h>

#include <algorithm>

#include "core/files.h"
#include "tests/replay/Replay.h"

namespace ombrel::sim {
namespace {

constexpr host::Id kSelf = 1342179857;
constexpr host::Id kFirstThing = static_cast<host::Id>(0x80001000);

// A story of sessions/, played to its end.
class Story {
public:
    explicit Story(const std::string& name) : replay_("chat,item,vendor") {
        replay_.client.chat_listener = [this](const Client::ChatLine& line) { read.push_back(line.text); };
        replay_.PlayStory(name);
        replay_.client.chat_listener = nullptr;
        output_ = replay_.Output();
        EXPECT_FALSE(std::filesystem::exists(replay_.folder.path / "documents/Asheron's Call/Ombrel Errors.txt"));
    }

    // What a player has read, from the game and from the plug-in.
    std::vector<std::string> Read(std::string_view part) const {
        std::vector<std::string> found;
        std::ranges::copy_if(read, std::back_inserter(found),
                             [&](const std::string& line) { return line.find(part) != std::string::npos; });
        return found;
    }

    // How often an operation was called.
    std::size_t Calls(const std::string& name) const {
        return static_cast<std::size_t>(std::ranges::count_if(output_, [&](const std::string& line) {
            return line.find("\"call\": \"" + name + "\"") != std::string::npos;
        }));
    }

    // The rows of a list at each question for it.
    std::vector<Json> Rows() const {
        std::vector<Json> rows;
        for (const std::string& line : output_) {
            const Json json = Json::parse(line);
            if (json.contains("rows")) rows.push_back(json["rows"]);
        }
        return rows;
    }

    std::vector<bool> KeysHandled() const {
        std::vector<bool> handled;
        for (const std::string& line : output_) {
            const Json json = Json::parse(line);
            if (json.contains("handled")) handled.push_back(json["handled"].get<bool>());
        }
        return handled;
    }

    // How many of a thing the character carries.
    std::int32_t Count(std::string_view name) const {
        std::int32_t count = 0;
        for (const auto& object : client().objects()) {
            if (object->Name != name || !client().Carries(*object)) continue;
            const auto stack = object->Long.find(host::key::kStackCount);
            count += stack == object->Long.end() ? 1 : stack->second;
        }
        return count;
    }

    const Client& client() const { return replay_.client; }
    std::string DataFile() {
        return ReadFile((replay_.folder.path / "common/Ombrel/Data/Ombrel_Data_Frostfell_Tamsin Reed.xml").string());
    }

    std::vector<std::string> read;

private:
    Replay replay_;
    std::vector<std::string> output_;
};

TEST(Stories, ADeathInTheOpenIsListedUntilTheCorpseIsEmptied) {
    Story story("a-death-in-the-open");
    EXPECT_THAT(story.Read("Corpse Location"),
                ElementsAre("<Ombrel> My Corpse Location: 42.1N, 33.6E", "<Ombrel> My Corpse Location: None",
                            "<Ombrel> My Corpse Location: 42.1N, 33.6E"));
    const auto rows = story.Rows();
    ASSERT_EQ(rows.size(), 4U);
    ASSERT_EQ(rows[0].size(), 1U);
    EXPECT_EQ(rows[0][0][1], "0.3S, 0.5W") << "from the lifestone";
    EXPECT_EQ(rows[0][0][2], "3:29:50");
    EXPECT_EQ(rows[1][0][1], "0.0N, 0.0E") << "beside it";
    EXPECT_THAT(rows[2], IsEmpty()) << "emptied and gone";
    ASSERT_EQ(rows[3].size(), 1U) << "the second death, told of twice";
    EXPECT_THAT(story.DataFile(), HasSubstr("You've lost 6,225 Pyreals, your Gold Amuli Coat"));
    EXPECT_EQ(story.Count("Pyreal"), 6225 + 0);
    EXPECT_EQ(story.client().sheet.Vitae, 90);
}

TEST(Stories, ADeathUnderGroundHasNoPlaceAndStaysUntilItIsTakenOff) {
    Story story("a-death-in-a-dungeon");
    const auto rows = story.Rows();
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0][0][0], "Dungeon");
    ASSERT_EQ(rows[1].size(), 2U);
    EXPECT_EQ(rows[1][1][0], "41.9N, 33.2E");
    EXPECT_EQ(rows[2].size(), 2U) << "decayed, and still listed";
    ASSERT_EQ(rows[3].size(), 1U);
    EXPECT_EQ(rows[3][0][0], "41.9N, 33.2E");
    EXPECT_THAT(story.Read("My Corpse Location"),
                ElementsAre("<Ombrel> My Corpse Location: Dungeon", "<Ombrel> My Corpse Location: 41.9N, 33.2E"));
    EXPECT_THAT(story.client().objects(),
                Not(Contains(testing::Pointee(testing::Field(&Object::Name, HasSubstr("Corpse of"))))));
}

TEST(Stories, GearThatRunsLowIsFilledAtLogin) {
    Story story("mana-at-login");
    EXPECT_THAT(story.Read("ana"), ElementsAre("<Ombrel> Needed mana: 3158", HasSubstr("gives 2,300 points of mana")));
    EXPECT_EQ(story.Calls("UseItemOnTarget"), 1U) << "the stone that comes closest, once";
    EXPECT_EQ(story.client().FindObject(kFirstThing + 17)->Long.at(107), 0);
}

TEST(Stories, ALowManaLineFillsOnceAndChargesGoWithTheirUse) {
    Story story("mana-by-chat");
    EXPECT_THAT(story.Read("Needed mana"),
                ElementsAre("<Ombrel> Needed mana: 3158", "<Ombrel> Needed mana: 2346", "<Ombrel> Needed mana: 1346"));
    EXPECT_EQ(story.Read("Preparing to autofill your items...").size(), 2U);
    EXPECT_EQ(story.Calls("UseItemOnTarget"), 3U);
    EXPECT_EQ(story.Count("Mana Charge"), 0);
    EXPECT_EQ(story.client().FindObject(kFirstThing)->Long.at(107), 1450) << "full";
}

TEST(Stories, OneKeyPicksKitOrFoodForEveryWound) {
    Story story("an-evening-of-healing");
    EXPECT_THAT(story.Read("Treated Healing Kit"),
                ElementsAre(HasSubstr("has 1 use left"), HasSubstr("is used up"), HasSubstr("has 11 uses left")))
        << "the worn kit first";
    EXPECT_THAT(story.read, IsSupersetOf({"The Health Elixir restores 65 points of your Health.\n",
                                          "The Healing Pizza restores 30 points of your Health.\n",
                                          "The Hearty Beef Stew restores 39 points of your Stamina.\n",
                                          "The Mana Potion restores 25 points of your Mana.\n"}));
    EXPECT_THAT(story.read, Contains(HasSubstr("You fail to heal yourself. Your Plentiful Healing Kit")));
    EXPECT_THAT(story.read, Contains(HasSubstr("Handy Healing Kit has 19 uses left"))) << "for a scratch the least kit";
    const auto handled = story.KeysHandled();
    ASSERT_GE(handled.size(), 4U);
    EXPECT_FALSE(handled.back());
    EXPECT_FALSE(handled[handled.size() - 2]);
    EXPECT_EQ(std::ranges::count(handled, false), 2) << "only when switched off";
}

TEST(Stories, ASackOfPeasBecomesOneStackOfNotes) {
    Story story("selling-peas");
    EXPECT_THAT(story.Read("MMD's Purchased"), ElementsAre("<Ombrel> Done Selling Peas! MMD's Purchased: 10",
                                                           "<Ombrel> Done Selling Peas! MMD's Purchased: 1",
                                                           "<Ombrel> Done Selling Peas! MMD's Purchased: 1"));
    EXPECT_EQ(story.Calls("VendorBuyAll"), 12U);
    EXPECT_EQ(story.Calls("MergeStacks"), 11U);
    std::vector<std::int32_t> notes;
    for (const auto& object : story.client().objects()) {
        if (object->Name == "Trade Note (250,000)" && story.client().Carries(*object))
            notes.push_back(object->Long.at(host::key::kStackCount));
    }
    EXPECT_THAT(notes, ElementsAre(12));
    EXPECT_EQ(story.Count("Lead Pea"), 17);
    EXPECT_LT(story.Count("Pyreal"), 287500);
}

TEST(Stories, ASaleEndsWithTheBurdenOrTheShop) {
    Story heavy("selling-peas-too-heavy");
    EXPECT_THAT(heavy.Read("<Ombrel> "), Contains("<Ombrel> Unable to sell due to being encumbered."));
    EXPECT_EQ(heavy.Calls("VendorSellAll"), 1U);
    EXPECT_EQ(heavy.Count("Silver Pea"), 40) << "nothing was taken";

    Story closed("selling-peas-to-a-shop-that-closes");
    EXPECT_EQ(closed.Read("No vendor is open.  Please open a vendor window.").size(), 2U);
    EXPECT_EQ(closed.Read("No MMD Notes Found in Vendor!").size(), 1U);
    EXPECT_EQ(closed.Count("Trade Note (250,000)"), 2);
}

TEST(Stories, TheCardShowsWhatIsLookedAt) {
    Replay replay("chat");
    replay.PlayStory("target-card");

    std::vector<Json> cards;
    for (const std::string& line : replay.Output()) {
        EXPECT_EQ(line.find("Error #"), std::string::npos) << line;
        if (Json answer = Json::parse(line); answer.contains("rows")) cards.push_back(std::move(answer));
    }
    const auto rows = [&](std::size_t card) { return cards.at(card)["rows"].get<std::vector<std::string>>(); };
    ASSERT_THAT(cards, SizeIs(8));
    EXPECT_THAT(rows(0), ElementsAre("Silver Simi", "7,600p, 320bu, D, Sw 325", "22.1-34, 12 8 0.5, Wk 6, Tk 3",
                                     "Lr 160, 900m"));
    EXPECT_THAT(rows(1), ElementsAre("Gold Amuli Coat", "[Waiting for ID]"));
    EXPECT_THAT(rows(2), ElementsAre("Gold Amuli Coat", "14,500p, 1,450bu, A B D, Lv 80", "AL 340, Wk 7, Tk 4",
                                     "Lr 180, 412m", "Major Focus, Epic Quickness"));
    EXPECT_THAT(rows(3), ElementsAre("4 Peppermint Pumpkin Pies", "140p, 300bu", "Stamina 45"));
    EXPECT_THAT(rows(4), ElementsAre("Glenden Wood Portal", "Level 10-60 No Sum"));
    EXPECT_THAT(rows(5), ElementsAre("Olthoi Soldier", "[Waiting for ID]"));
    EXPECT_THAT(rows(6), ElementsAre("Olthoi Soldier", "215 / 215", "Level 60"));
    EXPECT_THAT(rows(7), ElementsAre("Olthoi Soldier", "81 / 215", "Level 60"));

    const Json soldier = cards.back()["object"];
    const auto debuff = [&](int family, int spell, int remaining) {
        return Json{{"object", soldier}, {"family", family}, {"spell", spell}, {"remaining", remaining}};
    };
    EXPECT_EQ(cards[5]["debuffs"], Json::array());
    EXPECT_EQ(cards[7]["debuffs"], Json({debuff(106, 1065, 139), debuff(116, 2074, 174), debuff(114, 2164, 182)}));
}

TEST(Stories, BuffsThatRunOutAreToldInTimeAndTheQueueWaitsItsTurn) {
    Replay replay("chat,item");
    replay.PlayStory("buffs-running-out");

    std::vector<std::string> told;
    for (const std::string& line : replay.Output()) {
        const auto record = Json::parse(line);
        if (!record.contains("call")) continue;
        const double at = record["at"];
        const std::string call = record["call"];
        if (call.starts_with("UseItem")) told.push_back(fmt::format("{:.1f} {} {}", at, call, record["id"].get<int>()));
        const std::string text = record.value("text", "");
        if (text.starts_with("<Ombrel>")) told.push_back(fmt::format("{:.1f} {}", at, text.substr(9, 34)));
    }
    EXPECT_THAT(told,
                ElementsAre("0.0 Failed to find character's setting", "0.0 Plugin Loaded! Type /m help for co",
                            "3.0 UseItem -2147479293",  // the benediction
                            "9.0 Adding Tusker Spit Ale to the even", "9.0 Adding Hunter's Stock Amber to the",
                            "9.2 Please enter peace mode to continu",  // the fight
                            "14.2 UseItemOnTarget -2147479295", "16.6 UseItemOnTarget -2147479294",
                            "1202.0 Your buffs will expire in 5 minute", "1322.0 Your buffs will expire in 3 minute",
                            "1442.0 Your buffs will expire in 1 minute", "1696.0 Your beer spells are getting low!",
                            "1700.0 Ready to keep em' coming!", "1701.0 Adding Tusker Spit Ale to the even",
                            "1701.0 Adding Hunter's Stock Amber to the", "1701.2 UseItemOnTarget -2147479295",
                            "1703.6 UseItemOnTarget -2147479294",
                            "1704.0 Please enter peace mode to continu",  // busy with the second
                            "1708.0 Adding Tusker Spit Ale to the even", "1708.0 Adding Hunter's Stock Amber to the",
                            "1708.2 Please enter peace mode to continu", "1709.0 Event Queue Cleared"));
}

}  // namespace
}  // namespace ombrel::sim
