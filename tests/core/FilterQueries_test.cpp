#include <fmt/format.h>

#include <functional>
#include <limits>

#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class FilterQueries : public PluginTest {
protected:
    FilterQueries() {
        LogIn();
        Forget();
    }

    sim::Object& Me() { return client.object(client.sheet.Character); }
};

TEST_F(FilterQueries, CoordinatesKeepTheirOddRounding) {
    const struct {
        double value;
        const char* text;
    } rows[] = {
        {0.0, "0.0"},    {0.04, "00"},    {0.05, "00"},   {0.06, "0.1"},    {0.46, "0.5"},
        {0.97, "01"},    {1.0, "1.0"},    {1.04, "1.0"},  {1.06, "1.1"},    {12.0, "12.0"},
        {12.34, "12.3"}, {12.25, "12.2"}, {9.97, "10.0"}, {99.96, "100.0"}, {101.95, "102.0"},
    };
    for (const auto& row : rows) EXPECT_EQ(filter().FormatCoord(row.value), row.text) << row.value;

    EXPECT_EQ(filter().ConvCoords(-0.04, 0.0), "00S, 0.0E");
    EXPECT_EQ(filter().ConvCoords(12.34, -45.67), "12.3N, 45.7W");
    EXPECT_EQ(filter().ConvCoords(-0.0, -0.0), "0.0N, 0.0E");
}

TEST_F(FilterQueries, CorpsesAreRememberedWithOneDecimal) {
    Me().Coordinates = {12.25, -45.67};
    EXPECT_EQ(filter().GetRawNS(), 12.3);  // halves go away from zero here, unlike in the texts
    EXPECT_EQ(filter().GetRawEW(), -45.7);
    EXPECT_EQ(filter().GetCharCoords(), "12.2N, 45.7W");
}

TEST_F(FilterQueries, AThingWithoutAPlaceStandsAtZero) {
    Me().Coordinates.reset();
    EXPECT_EQ(filter().GetCharCoords(), "0.0N, 0.0E");
    EXPECT_EQ(filter().GetRawNS(), 0.0);
}

TEST_F(FilterQueries, TheHudsAreaLiesBelowTheClientsFrame) {
    client.hooks.Region3D = {4, 26, 804, 626};
    EXPECT_EQ(filter().Get3DRect(), (host::Rect{4, 54, 804, 654}));

    client.hooks.Region3D.bottom = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(filter().Get3DRect(), host::Rect{});
    EXPECT_THAT(TakeReports(), ElementsAre("Error #6 occured in 'Get3DRect' of class 'FilterHandler'"));
}

TEST_F(FilterQueries, TheMonarchyIsCountedWithoutItsHead) {
    client.sheet.Followers = 3;
    client.sheet.AllegianceSize = 20;
    EXPECT_EQ(filter().GetMyFollowers(), 3);
    EXPECT_EQ(filter().GetAllegFollowers(), 19);
}

TEST_F(FilterQueries, ItemsAreCountedByStackWithoutTheVendorsGoods) {
    constexpr host::Id kVendor = 900;
    Carry(1, "Gold Pea").Long[host::key::kStackCount] = 40;
    Carry(2, "Gold Pea").Long[host::key::kStackCount] = 0;
    Carry(3, "Silver Pea");
    Carry(4, "Gold Pea").Long[host::key::kHolder] = kVendor;
    client.hooks.ReferenceContainer = kVendor;

    EXPECT_EQ(filter().GetItemCount("Gold Pea"), 41);
    EXPECT_EQ(filter().GetItemCount("gold pea"), 0);
    EXPECT_EQ(filter().GetIDinInv("Gold Pea"), 1);
    client.object(1).Long[host::key::kHolder] = kVendor;
    EXPECT_EQ(filter().GetIDinInv("Gold Pea"), 2);
    EXPECT_EQ(filter().GetIDinInv("Iron Pea"), -1);
}

TEST_F(FilterQueries, ObjectsAreFoundByTheirName) {
    client.object(7).Name = "Drudge Slave";
    client.object(8).Name = "Drudge Slave";
    client.object(7).Long[host::key::kIcon] = 4600;

    EXPECT_EQ(filter().GetID("Drudge Slave"), 7);
    EXPECT_EQ(filter().GetID("Drudge"), -1);
    EXPECT_EQ(filter().GetIcon("Drudge Slave"), 4600);
    EXPECT_EQ(filter().GetIcon("Drudge"), 0);

    client.object(7).ShortName = "Slave";
    EXPECT_EQ(filter().GetName(7), "Slave");
    EXPECT_EQ(filter().GetName(99), "");
    EXPECT_THAT(TakeReports(), ElementsAre("Error #91 occured in 'GetName' of class 'FilterHandler'"));
}

TEST_F(FilterQueries, WhatIsGoneHasNoFiguresAndIsNotActedOn) {
    Carry(1, "Mana Stone").Long = {{host::key::kStackCount, 3}, {host::key::kMana, 250}};
    Carry(2, "Mana Stone").valid = false;
    EXPECT_EQ(filter().GetItemStackCount(1), 3);
    EXPECT_EQ(filter().GetItemMana(1), 250);
    EXPECT_TRUE(filter().ItemExists(1));
    for (const host::Id gone : {2, 3}) {
        EXPECT_EQ(filter().GetItemStackCount(gone), -1);
        EXPECT_EQ(filter().GetItemMana(gone), -1);
        EXPECT_FALSE(filter().ItemExists(gone));
    }

    const host::Id me = client.sheet.Character;
    filter().UseItem(2, 1);
    filter().GiveItem(1, 2);
    filter().GiveItem(2, me);
    filter().ApplyItem(1, 3);
    EXPECT_THAT(calls, IsEmpty());

    filter().UseItem(1, 1);
    filter().GiveItem(1, me);
    filter().ApplyItem(1, me);
    EXPECT_THAT(calls, ElementsAre("UseItem id=1 flag=1", fmt::format("GiveItem id=1 target={}", me),
                                   fmt::format("UseItemOnTarget id=1 target={}", me)));
}

TEST_F(FilterQueries, FindTellsAndSelectsAllThatMatchWhateverTheCase) {
    client.object(10).Name = "Town Crier";
    client.object(10).Coordinates = {42.1, -33.6};
    client.object(11).Name = "Crier of Doom";
    Carry(12, "Crier's Bell");

    EXPECT_FALSE(filter().Find("crier"));
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> (Town Crier) 42.1N, 33.6W", "<Ombrel> (Crier of Doom) 0.0N, 0.0E"));
    EXPECT_EQ(client.hooks.CurrentSelection, 11);
}

TEST_F(FilterQueries, FindInPackSelectsTheFirst) {
    Carry(12, "Pyreal Mote");
    Carry(13, "Pyreal Bar");
    EXPECT_FALSE(filter().Find_in_Pack("Pyreal"));
    EXPECT_FALSE(filter().Find_in_Pack("Diamond"));
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Found Pyreal, GUID: 12", "<Ombrel> Failed to find Diamond"));
    EXPECT_EQ(client.hooks.CurrentSelection, 12);
}

TEST_F(FilterQueries, OnlyTheExactNameOfATalkerIsAnNpc) {
    client.object(20).Name = "Ulgrim";
    client.object(21).Name = "Ulgrim";
    client.object(21).Type = host::object_class::kNpc;
    EXPECT_TRUE(filter().IsNPC("Ulgrim"));
    EXPECT_FALSE(filter().IsNPC("ulgrim"));
    client.object(21).Type = host::object_class::kCreature;
    EXPECT_FALSE(filter().IsNPC("Ulgrim"));
}

TEST_F(FilterQueries, OfEqualSpellsTheOneThatLastsLongerIsActive) {
    client.enchantments = {
        {.SpellID = 1, .Family = 5, .permanent = 0, .ends = 60'000},
        {.SpellID = 1, .Family = 5, .permanent = 0, .ends = 90'000},
        {.SpellID = 1, .Family = 5, .permanent = 0, .ends = 90'000},
        {.SpellID = 2, .Family = 6, .permanent = 0, .ends = 120'000},
    };
    host::Enchantment best;
    EXPECT_TRUE(filter().GetActiveSpell(5, best));
    EXPECT_EQ(best.TimeRemaining, 90);
    EXPECT_FALSE(filter().GetActiveSpell(7, best));
    EXPECT_EQ(filter().GetMyEnchantmentCount(), 4);
}

TEST_F(FilterQueries, AFailureIsReportedUnderItsProcedureAndAnswersNothing) {
    Carry(1, "Gold Pea");
    const struct {
        const char* operation;
        std::function<std::string(FilterHandler&)> query;
        const char* answer;
        const char* procedure;
    } rows[] = {
        {"CharacterStats.Server", [](auto& f) { return f.GetMyServer(); }, "", "GetMyServer"},
        {"CharacterStats.Level", [](auto& f) { return fmt::to_string(f.GetMyCharLevel()); }, "0", "GetMyCharLevel"},
        {"CharacterStats.EnchantmentCount", [](auto& f) { return fmt::to_string(f.GetActiveSpellFamily("x")); }, "0",
         "GetActiveSpellFamily"},
        {"CharacterStats.EnchantmentCount", [](auto& f) { return fmt::to_string(f.IsSpellActive("x")); }, "false",
         "Spell_Active"},
        {"World.All", [](auto& f) { return fmt::to_string(f.GetID("x")); }, "0", "GetID"},
        {"World.Inventory", [](auto& f) { return fmt::to_string(f.GetIDinInv("x")); }, "0", "GetIDinInv"},
        {"World.ByName", [](auto& f) { return fmt::to_string(f.IsNPC("x")); }, "false", "Find"},
        {"World.Landscape", [](auto& f) { return fmt::to_string(f.Find("x")); }, "false", "Find"},
        {"WorldObject.Long", [](auto& f) { return fmt::to_string(f.GetItemMana(1)); }, "0", "GetItemStackCount"},
        {"WorldObject.Long", [](auto& f) { return fmt::to_string(f.GetItemStackCount(1)); }, "0", "GetItemStackCount"},
        {"ACHooks.Region3D", [](auto& f) { return fmt::to_string(f.Get3DRect().bottom); }, "0", "Get3DRect"},
        {"ACHooks.IdentifyObject", [](auto& f) { return f.IDObject(1), ""; }, "", "IDObject"},
    };
    for (const auto& row : rows) {
        FailNext(row.operation);
        EXPECT_EQ(row.query(filter()), row.answer) << row.procedure;
        EXPECT_THAT(TakeReports(),
                    ElementsAre(fmt::format("Error #5 occured in '{}' of class 'FilterHandler'", row.procedure)));
    }
}

}  // namespace
}  // namespace ombrel::test
