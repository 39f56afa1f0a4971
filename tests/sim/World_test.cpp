#include "adapters/sim/World.h"

#include <memory>
#include <string>
#include <vector>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

using Names = std::vector<std::string>;

Names Rest(host::WorldIterator& walk) {
    Names names;
    while (const auto object = walk.Next()) names.push_back(object->Name());
    return names;
}

Names Rest(const host::WorldIteratorPtr& walk) { return Rest(*walk); }

class WorldTest : public testing::Test {
protected:
    static constexpr host::Id kBob = 0x50000001;

    Object& Make(host::Id id, const std::string& name, std::optional<host::Id> container = {}) {
        Object& object = client.object(id);
        object.Name = name;
        object.Container = container;
        return object;
    }

    Client client;
    std::unique_ptr<host::World> world = client.site().GetWorld();
    std::unique_ptr<host::ACHooks> hooks = client.site().GetHooks();
};

TEST_F(WorldTest, TheInventoryIsAllThatHangsOnTheCharacter) {
    Make(10, "sack", kBob);
    Make(12, "pea", 11);  // its pouch comes later
    Make(11, "pouch", 10);
    Make(13, "helm").Long[kWielderKey] = kBob;
    Make(14, "cap", 0).Long[kWielderKey] = kBob;
    Make(15, "rock");
    Make(16, "coin in a chest", 17);
    Make(18, "ring a", 19);
    Make(19, "ring b", 18);
    Make(20, "club of an ogre").Long[kWielderKey] = 99;
    EXPECT_THAT(Rest(world->Inventory()), ElementsAre("sack", "pea", "pouch", "helm", "cap"));
    EXPECT_THAT(Rest(world->Owned()), ElementsAre("sack", "pea", "pouch", "helm", "cap"));
    EXPECT_THAT(Rest(world->Landscape()), ElementsAre("rock"));
    const auto peas = world->Inventory();
    peas->ByName("pea");
    EXPECT_THAT(Rest(peas), ElementsAre("pea"));
}

TEST_F(WorldTest, WhatIsWornHasAContainerButNoHolder) {
    Make(13, "helm").Long[kWielderKey] = kBob;
    Make(10, "sack", kBob);
    const auto helm = world->Object(13), sack = world->Object(10);
    EXPECT_EQ(helm->Container(), kBob);
    EXPECT_EQ(helm->Long(host::key::kHolder, -1), 0);
    EXPECT_EQ(sack->Long(host::key::kHolder, -1), kBob);
    client.object(10).Long[host::key::kHolder] = 7;
    EXPECT_EQ(sack->Long(host::key::kHolder, -1), 7);
}

TEST_F(WorldTest, AWalkBearsThatObjectsComeAndGo) {
    for (host::Id id = 1; id <= 4; ++id) Make(id, std::to_string(id));
    const auto walk = world->All();
    const auto first = walk->Next();
    client.RemoveObject(1);
    client.RemoveObject(3);
    Make(3, "3 again");
    EXPECT_THAT(Rest(walk), ElementsAre("2", "4"));
    EXPECT_EQ(first->Name(), "1");
    EXPECT_THAT(Rest(world->All()), ElementsAre("2", "4", "3 again"));
    EXPECT_EQ(world->Object(1), nullptr);
}

TEST_F(WorldTest, TheVendorSellsWhatIsOnHisListInItsOrder) {
    EXPECT_EQ(world->Vendor(), nullptr);
    Make(1, "Trade Note (100)", 9);
    Make(2, "Pyreal Pea", 9);
    Make(3, "Trade Note (100)", 9);
    client.vendor = {.open = true, .SellRate = 0.9f, .items = {3, 8, 2, 1}};
    const auto vendor = world->Vendor();
    EXPECT_EQ(vendor->SellRate(), 0.9f);
    const auto notes = vendor->ByName("Trade Note (100)");
    EXPECT_EQ(notes->Next()->GUID(), 3);
    EXPECT_EQ(notes->Next()->GUID(), 1);
    EXPECT_EQ(notes->Next(), nullptr);
    EXPECT_TRUE(hooks->VendorOpen());
}

}  // namespace
}  // namespace ombrel::sim
