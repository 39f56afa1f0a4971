#include "corpses/CorpseHandler.h"
#include "spells/SpellHandler.h"
#include "stats/Statistics.h"
#include "tests/chat/ChatTest.h"

namespace ombrel::test {
namespace {

using ChatReactionsTest = ChatTest;

constexpr host::Id kGuardian = 0x7000;
constexpr host::Id kHyssop = 0x7001;

TEST_F(ChatReactionsTest, TheRightTempleGetsItsHyssopAndAnyOtherIsAskedAgain) {
    client.object(kGuardian).Name = "Guardian of the Temple of Forgetfulness";
    Carry(kHyssop, "Hyssop");
    const std::string begin = "Guardian of the Temple of Forgetfulness tells you, \"";
    Shown(begin + "Bring me the essence of Malar.\"", 3);
    EXPECT_THAT(CallsOf("GiveItem"), IsEmpty());

    chat().templeForgetPending = true;
    Shown(begin + "Bring me the essence of Palenqual.\"", 3);
    EXPECT_THAT(CallsOf("UseItem"), ElementsAre("UseItem id=28672 flag=0"));
    EXPECT_TRUE(chat().templeForgetPending);
    EXPECT_TRUE(Shown(begin + "Bring me the essence of Malar.\"", 3));
    EXPECT_THAT(CallsOf("GiveItem"), ElementsAre("GiveItem id=28673 target=28672"));
    EXPECT_FALSE(chat().templeForgetPending);
}

TEST_F(ChatReactionsTest, ARareFindIsWrittenEverywhereAndTwiceInTheMainWindow) {
    const std::string text = "Bob has discovered the Infinite Deadly Fire Arrowheads!";
    EXPECT_THAT(Written(text, 5), IsEmpty());
    Switch("Send Rare Message to All Windows");
    EXPECT_THAT(Written(text, 5),
                ElementsAre(Line{text, 5, 1}, Line{text, 5, 1}, Line{text, 5, 2}, Line{text, 5, 3}, Line{text, 5, 4},
                            Line{text, 5, 5}, Line{text, 26, 1}, Line{text, 26, 1}, Line{text, 26, 1}));
    EXPECT_EQ(shown.size(), 1u);
    EXPECT_THAT(Written(text, 2), IsEmpty());
}

TEST_F(ChatReactionsTest, OnlyOurOwnQuestionForFriendsIsTakenFromTheScreen) {
    EXPECT_TRUE(Shown("Your friends:", 0));
    filter().FriendsCheck = true;
    EXPECT_FALSE(Shown("Your friends:", 0));
    EXPECT_TRUE(Shown("Bob waves.", 12));
    EXPECT_TRUE(filter().FriendsCheck);
    EXPECT_THAT(Written("Bob, Eve", 0), ElementsAre(Line{"Your friends: ", 0, 1}));
    EXPECT_EQ(shown.size(), 1u);
    EXPECT_FALSE(filter().FriendsCheck);

    filter().FriendsCheck = true;
    EXPECT_FALSE(Shown("You have no friends that are online", 0));
    EXPECT_FALSE(filter().FriendsCheck);
}

TEST_F(ChatReactionsTest, TheLineOfLowManaTellsThatItIsTakenCareOf) {
    const std::string text = "Your Platinum Amulet is low on Mana.";
    options().FillMana->SetChecked(false);
    EXPECT_TRUE(Shown(text, 7));
    options().FillMana->SetChecked(true);
    EXPECT_THAT(Written(text, 7), Contains(Line{text + " Preparing to autofill your items...", 7, 1}));
    EXPECT_TRUE(Shown(text, 2));
}

TEST_F(ChatReactionsTest, TheVitaeLineTellsWhatIsLeft) {
    client.sheet.Vitae = 15;
    const std::string text = "Your experience has reduced your Vitae penalty!";
    EXPECT_TRUE(Shown(text, 7));
    Switch("Improved Vitae Message");
    EXPECT_THAT(Written(text, 7), ElementsAre(Line{"Your experience has reduced your Vitae penalty to 15%!", 7, 1}));
}

TEST_F(ChatReactionsTest, BurntComponentsAreCountedAndLowOnesSplitFromPeas) {
    Carry(1, "Hyssop").Long[0x0D000006] = 40;
    Carry(2, "Lead Scarab").Long[0x0D000006] = 7;
    Carry(3, "Splitting Tool");
    Carry(4, "Lead Pea");
    const std::string begin = "The spell consumed the following components: ";
    Switch("Show Comp Count on Burn");
    EXPECT_THAT(Written(begin + "Hyssop, Lead Scarab, Yarrow.", 7),
                ElementsAre(Line{begin + "Hyssop (40), Lead Scarab (7), Yarrow. (0)", 7, 1}));
    EXPECT_THAT(Written(begin, 7), ElementsAre(Line{begin + " (0)", 7, 1}));
    EXPECT_THAT(Texts(), Not(Contains(HasSubstr("event queue"))));

    options().SplitPeas->SetChecked(true);
    options().PeaThreshold->SetText("8");
    OwnLinesGoTo({0});
    Written(begin + "Hyssop, Lead Scarab", 7);
    EXPECT_THAT(Texts(),
                ElementsAre(HasSubstr("Adding Lead Pea to the event queue"), begin + "Hyssop (40), Lead Scarab (7)"));

    options().PeaThreshold->SetText("many");
    EXPECT_TRUE(Shown(begin + "Hyssop", 7));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'IncomingText' of class 'ChatTextHandler'"));
}

TEST_F(ChatReactionsTest, ItemSpellsThatEndTogetherMakeOneLine) {
    const auto item = [](const std::string& name) {
        return "The spell Impenetrability VI on " + name + " has expired.";
    };
    EXPECT_TRUE(Shown(item("Helm"), 7));

    Switch("Combine Item Spell Cast and Expire");
    EXPECT_FALSE(Shown(item("Helm"), 7));
    Advance(200ms);
    EXPECT_FALSE(Shown(item("Coat"), 7));
    EXPECT_THAT(lines, IsEmpty());
    Advance(99ms);
    EXPECT_THAT(lines, IsEmpty());
    Advance(1ms);
    EXPECT_THAT(lines, ElementsAre(Line{"The spell Impenetrability VI on your armor has expired.", 7, 1}));

    Forget();
    EXPECT_FALSE(Shown(item("Sword"), 7));
    Advance(300ms);
    EXPECT_THAT(lines, ElementsAre(Line{item("Sword"), 7, 1}));
    EXPECT_TRUE(CalledInOrder({"ChatOut", "TimerStop name=ChatTextHandler.TimeSpells"}));
    Advance(5s);
    EXPECT_EQ(lines.size(), 1u);
    EXPECT_TRUE(chat().SpellsExpiring.empty());
}

TEST_F(ChatReactionsTest, CastsOnItemsAreGatheredAndThoseOnOneselfAreNot) {
    Switch("Combine Item Spell Cast and Expire");
    EXPECT_TRUE(Shown("You cast Heal Self VI on yourself and restore 50 points of your health.", 7));
    EXPECT_TRUE(Shown("You cast Drain and lose 5 points of your mana.", 7));
    EXPECT_FALSE(Shown("You cast Impenetrability VI on Helm", 7));
    EXPECT_FALSE(Shown("You cast Impenetrability VI on Coat, surpassing Impenetrability V", 7));
    Forget();
    Advance(300ms);
    EXPECT_THAT(lines, ElementsAre(Line{"You cast Impenetrability VI on your armor.", 7, 1}));
    EXPECT_TRUE(CalledInOrder({"ChatOut", "TimerStop name=ChatTextHandler.TimeCast"}));
}

TEST_F(ChatReactionsTest, ASpellThatStillRunsExpiresUnseenOnRequest) {
    sim::SpellRow spell;
    spell.ID = 1066;
    spell.Name = "Swift Hands";
    client.spells.Put(spell);
    client.Enchant(1066, 100, 1);
    EXPECT_TRUE(Shown("Swift Hands has expired.", 7));
    Switch("Filter Nonexpired Spells");
    EXPECT_FALSE(Shown("Swift Hands has expired.", 7));
    EXPECT_TRUE(Shown("Some Other Spell has expired.", 7));
    client.enchantments.clear();
    EXPECT_TRUE(Shown("Swift Hands has expired.", 7));
}

TEST_F(ChatReactionsTest, SpellsCastOnItemsAreTimed) {
    options().SpellsItem->SetChecked(true);
    Carry(1, "Sword");
    Carry(2, "Coat");
    const struct {
        const char* text;
        const char* item;
    } rows[] = {
        {"You cast Blood Drinker VI on Sword, surpassing Blood Drinker V", "Sword"},
        {"You cast Impenetrability VI on Coat", "Coat"},
        {"Bob cast Impenetrability VI on your Coat, surpassing Impenetrability V", "Coat"},
        {"You cast Impenetrability VI on your armor.", "your armor."},
    };
    for (const auto& row : rows) {
        Vars::SpellHandler->ItemSpells.clear();
        Shown(row.text, 7);
        EXPECT_TRUE(Vars::SpellHandler->ItemSpells.contains(row.item)) << row.text;
    }
    Vars::SpellHandler->ItemSpells.clear();
    Shown("You cast Heal Self VI on yourself", 7);
    Shown("You cast Blood Drinker VI on Drudge", 7);
    options().SpellsItem->SetChecked(false);
    Shown("You cast Blood Drinker VI on Sword", 7);
    EXPECT_TRUE(Vars::SpellHandler->ItemSpells.empty());
    EXPECT_THAT(TakeReports(), IsEmpty());

    options().SpellsItem->SetChecked(true);
    EXPECT_TRUE(Shown("broadcast on your Sword", 7));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #9 occured in 'IncomingText' of class 'ChatTextHandler'"));
}

TEST_F(ChatReactionsTest, AKillIsCountedAndTellsWhatThePlayerWantsToKnow) {
    Vars::LastKillText = "You flatten Drudge!";
    Statistics& statistics = *Vars::Statistics;
    EXPECT_THAT(Written("You flatten Drudge!", 0), ElementsAre(Line{"You flatten Drudge!", 0, 1}));
    EXPECT_EQ(statistics.Kills, 1);

    for (const char* option :
         {"Monster XP", "Unassigned XP", "XP to Level", "XP/Hr", "Kills to Level", "Time to Level"})
        Switch(std::string("Kill: Show ") + option);
    statistics.MonsterXP = 1500;
    statistics.KillsLevel = -1;
    options().XPUn->SetText("10");
    options().XPNext->SetText("20");
    options().XPHour->SetText("30");
    EXPECT_THAT(
        Written("Well done! You flatten Drudge!", 0),
        ElementsAre(Line{"Well done! You flatten Drudge for 1,500 XP! You have 10 XP unassigned. It will take 20 "
                         "XP to level. You are making 30 XP per hour. It will take Infinate similar kills to "
                         "level. It will take Infinity to level.",
                         0, 1}));
    EXPECT_TRUE(Shown("You flatten drudge!", 0));
    EXPECT_EQ(statistics.Kills, 2);
}

TEST_F(ChatReactionsTest, ADeathByOnesOwnHandIsADeath) {
    EXPECT_TRUE(Shown("Ack! You killed yourself!", 2));
    EXPECT_FALSE(Vars::SpellHandler->bRebuildList);
    EXPECT_TRUE(Shown("Ack! You killed yourself!", 0));
    EXPECT_TRUE(Vars::SpellHandler->bRebuildList);
    EXPECT_TRUE(Vars::CorpseHandler->HasDied());
}

}  // namespace
}  // namespace ombrel::test
