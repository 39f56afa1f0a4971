#include "core/time.h"
#include "tests/spells/SpellTest.h"

namespace ombrel::test {
namespace {

class ItemSpellsTest : public SpellTest {
protected:
    void SetUp() override {
        SpellTest::SetUp();
        Carry(5, "Plate Helm");
        Carry(6, "Oak Wand");
        options().ChatOptions->SetData(0, options().FindName("Combine Item Spell Cast and Expire", "ChatOptions"),
                                       false);
    }

    void Read(const std::string& line) { client.ChatText(line + "\n", 7, 1); }

    // What the store has for an item, as "name seconds".
    static std::vector<std::string> Stored(const std::string& item) {
        std::vector<std::string> stored;
        const auto found = spells().ItemSpells.find(item);
        if (found == spells().ItemSpells.end()) return {"no such item"};
        for (const auto& [family, spell] : found->second.Spells)
            stored.push_back(spell->Name + " " + std::to_string(spell->finish - NowUnix()));
        return stored;
    }
};

TEST_F(ItemSpellsTest, ACastIsTimedFromItsChatLine) {
    Advance(1s);
    Read("You cast Impenetrability VI on Plate Helm");
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Impenetrability VI 2700"));
    EXPECT_EQ(spells().AllSpells.size(), 1u);  // at once
    Read("You cast Blade Bane VI on your Plate Helm, surpassing Blade Bane V");
    Read("Bob cast Blade Bane VI on your armor.");
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Impenetrability VI on Plate Helm 44:59", "Blade Bane VI on Plate Helm 44:59",
                                     "Blade Bane VI on your armor. 44:59"));
    EXPECT_EQ(std::get<std::int32_t>(options().BuffList->Data(0, 0, 1)), 100673982);
    EXPECT_EQ(spells().NextSpell, "Impenetrability VI on Plate Helm");
    EXPECT_EQ(Tracked(), "44:59");
}

TEST_F(ItemSpellsTest, OnlyWhatIsCarriedOrAllArmorTogetherIsTimed) {
    client.object(9).Name = "Lever";
    for (const char* target : {"Lever", "Plate Mail", "your armor", "Your armor.", ""})
        spells().AddItemSpell("Blade Bane VI", target);
    EXPECT_TRUE(spells().ItemSpells.empty());
    Read("You cast Wild Guess on Plate Helm");
    EXPECT_THAT(Stored("Plate Helm"), IsEmpty()) << "an unknown spell is gone at once";
    spells().AddItemSpell("Blade Bane VI", "your armor.");
    EXPECT_THAT(Stored("your armor."), ElementsAre("Blade Bane VI 2700"));
}

TEST_F(ItemSpellsTest, EachAugmentationAddsAFifthOfTheTableDuration) {
    Know(7001, "Hour", 900, 0, 3600);
    Know(7002, "Short", 901, 0, 12);
    const struct {
        std::int32_t count;
        const char* hour;
        const char* brief;
    } rows[] = {{0, "Hour 3600", "Short 12"}, {1, "Hour 4320", "Short 14"}, {2, "Hour 5040", "Short 17"}};
    for (const auto& row : rows) {
        client.sheet.Augmentation[238] = row.count;
        client.LoginComplete();
        spells().AddItemSpell("Hour", "Oak Wand");
        spells().AddItemSpell("Short", "Oak Wand");
        EXPECT_THAT(Stored("Oak Wand"), ElementsAre(row.hour, row.brief)) << row.count;
    }
    client.sheet.Augmentation[232] = 5;
    EXPECT_TRUE(client.ChatParser("/m augs"));
    spells().AddItemSpell("Hour", "Oak Wand");
    EXPECT_THAT(Stored("Oak Wand"), ElementsAre("Hour 7200", "Short 17"));
}

TEST_F(ItemSpellsTest, TheTableIsAskedForTheFamilyFirst) {
    for (const bool saved : {false, true}) {
        FailNext("Spells.ByID");
        if (saved) {
            spells().AddItemSpellfromData(1592, 100, "Oak Wand");
        } else {
            spells().AddItemSpell("Blade Bane VI", "Oak Wand");
        }
        EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'GetFamily' of class 'SpellFilterHandler'"))
            << saved;
    }
}

TEST_F(ItemSpellsTest, AWeakerCastLeavesTheTimerAndAnEqualOneRenewsIt) {
    spells().AddItemSpell("Impenetrability VI", "Plate Helm");
    Advance(100s);
    spells().AddItemSpell("Impenetrability I", "Plate Helm");
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Impenetrability VI 2600"));
    spells().AddItemSpell("Impenetrability I", "Oak Wand");
    EXPECT_THAT(Stored("Oak Wand"), ElementsAre("Impenetrability I 1800"));
    spells().AddItemSpell("Impenetrability VI", "Plate Helm");
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Impenetrability VI 2700"));
    spells().AddItemSpell("Brogard's Defiance", "Plate Helm");
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Brogard's Defiance 3600"));
}

TEST_F(ItemSpellsTest, ItemsAreMergedNeitherWithEachOtherNorWithTheCharacter) {
    spells().AddItemSpell("Strength Self VI", "Plate Helm");
    spells().AddItemSpell("Strength Self VI", "Oak Wand");
    Cast(spell::kStrengthVI, 2702);
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI on Plate Helm 44:59", "Strength Self VI on Oak Wand 44:59",
                                     "Strength Self VI 45:01"));
}

TEST_F(ItemSpellsTest, SpellsEndOnlyInABuildThatLooksAtItems) {
    spells().AddItemSpellfromData(spell::kBladeBaneVI, 10, "Plate Helm");
    options().SpellsItem->SetChecked(false);
    spells().RebuildList(true);
    Advance(60s);
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Blade Bane VI -50"));
    options().SpellsItem->SetChecked(true);
    spells().RebuildList(true);
    Advance(1s);
    EXPECT_THAT(Stored("Plate Helm"), IsEmpty());  // the item stays
}

TEST_F(ItemSpellsTest, WhatWasSavedIsWhatRemains) {
    spells().Augs(2);
    spells().AddItemSpellfromData(spell::kBladeBaneVI, 100, "Plate Helm");
    spells().AddItemSpellfromData(spell::kBladeBaneVI, 100, "Plate Mail");
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Blade Bane VI 100"));
    EXPECT_EQ(spells().ItemSpells.size(), 1u);
    EXPECT_TRUE(spells().AllSpells.empty());  // the list is made at login

    spells().RebuildList(true);
    Advance(30s);
    client.Logoff(1);
    client.Terminate();
    Advance(500s);
    client.Start();
    LogIn();
    EXPECT_THAT(Stored("Plate Helm"), ElementsAre("Blade Bane VI 70"));
    EXPECT_EQ(spells().AllSpells.size(), 1u);
}

TEST_F(ItemSpellsTest, RemovingWhatIsNotThereIsReported) {
    spells().AddItemSpell("Blade Bane VI", "Plate Helm");
    spells().RemoveItemSpell("Oak Wand", 174);
    spells().RemoveItemSpell("Plate Helm", 1);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'RemoveItemSpell' of class 'SpellHandler'",
                                           "Error #5 occured in 'RemoveItemSpell' of class 'SpellHandler'"));
    spells().RemoveItemSpell("Plate Helm", 174);
    EXPECT_THAT(Stored("Plate Helm"), IsEmpty());
}

TEST_F(ItemSpellsTest, ASpellTooLongForTheClockIsReported) {
    Know(7001, "Aeon", 900, 0, 2e9);
    spells().AddItemSpell("Aeon", "Plate Helm");
    spells().AddItemSpellfromData(7001, 2'000'000'000, "Plate Helm");
    EXPECT_THAT(TakeReports(), ElementsAre("Error #6 occured in 'AddItemSpell' of class 'SpellHandler'",
                                           "Error #6 occured in 'AddItemSpellfromData' of class 'SpellHandler'"));
    EXPECT_TRUE(spells().ItemSpells.empty());
}

TEST_F(ItemSpellsTest, DebugLinesTellOfWhatIsAdded) {
    Vars::DebugMode = true;
    spells().AddItemSpell("Blade Bane VI", "Plate Helm");
    spells().AddItemSpellfromData(spell::kBladeBaneVI, 100, "Oak Wand");
    Vars::DebugMode = false;
    EXPECT_THAT(Texts(),
                ElementsAre("<Ombrel-Debug> AddItemSpell Blade Bane VI Plate Helm", "<Ombrel-Debug> Build Spell List",
                            "<Ombrel-Debug> AddItemSpellFromData 1562 100 Oak Wand"));
}

}  // namespace
}  // namespace ombrel::test
