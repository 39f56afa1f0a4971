#include "adapters/sim/Client.h"

#include <memory>
#include <string>
#include <vector>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

constexpr std::string_view kHotkeyClass = "{6B6B9FA8-37DE-4FA3-8C60-52BD6A2F9855}";

// The client as a plug-in of the test's own meets it.
class ClientTest : public testing::Test {
protected:
    Client client;
    std::vector<std::string> log;
};

TEST_F(ClientTest, AnEventReachesTheSlotsOfEachObjectAndOfThoseThatAreLeft) {
    auto first = client.site().GetWorld(), second = client.site().GetWorld();
    first->CreateObject = [&](host::Id id) { log.push_back("first " + std::to_string(id)); };
    second->CreateObject = [&](host::Id id) { log.push_back("second " + std::to_string(id)); };
    client.CreateObject(3);
    first->CreateObject = [&, name = std::string("a name too long for any small buffer")](host::Id) {
        first.reset();
        second.reset();
        auto third = client.site().GetWorld();
        log.push_back(name);
    };
    client.CreateObject(4);
    client.CreateObject(5);
    EXPECT_THAT(log, ElementsAre("first 3", "second 3", "a name too long for any small buffer"));
}

TEST_F(ClientTest, EventsThatNobodyListensToDoNothing) {
    EXPECT_FALSE(client.ChatParser("/m help"));
    EXPECT_FALSE(client.Hotkey("OM:RunEvents"));
    EXPECT_FALSE(client.WindowMessage(512, 30, 40, 0, 0));
    EXPECT_EQ(client.system.cursor, (host::Point{30, 40}));
    const auto unbound = client.site().GetHooks();
    EXPECT_FALSE(client.StatusText("You're too busy!"));
    EXPECT_FALSE(client.ChatClick("Tom", 5));
}

TEST_F(ClientTest, APluginsObjectsMayOutliveTheClient) {
    auto brief = std::make_unique<Client>();
    const auto hotkeys = brief->site().GetDecal()->GetHotkeyService(kHotkeyClass);
    const auto timer = brief->site().CreateTimer("X.Y");
    brief.reset();
    ASSERT_TRUE(hotkeys);
}

TEST_F(ClientTest, MissingServicesAreFailures) {
    client.missing_services = {"World", "CharacterStats", "EchoFilter2", "RenderService", "Hotkeys"};
    client.spells_available = false;
    host::PluginSite& site = client.site();
    EXPECT_THROW(site.GetWorld(), Failure);
    EXPECT_THROW(site.GetCharacterStats(), Failure);
    EXPECT_THROW(site.GetEchoFilter2(), Failure);
    EXPECT_THROW(site.GetSpells(), Failure);
    EXPECT_THROW(site.GetRenderService(), Failure);
    EXPECT_EQ(site.GetDecal()->GetHotkeyService(kHotkeyClass), nullptr);
    EXPECT_NE(site.GetHooks(), nullptr);
}

TEST_F(ClientTest, ActionsAreAnsweredOnlyByAWorldThatReacts) {
    client.reaction = [this](const Action& action) {
        log.push_back(std::string(Operations()[action.operation].name) + " " + std::to_string(action.id) + " " +
                      std::to_string(action.target));
    };
    const auto hooks = client.site().GetHooks();
    hooks->UseItem(5, 0);
    EXPECT_THAT(log, IsEmpty());
    client.reacts = true;
    hooks->UseItemOnTarget(5, 6);
    hooks->RequestID(7);
    EXPECT_THAT(log, ElementsAre("UseItemOnTarget 5 6", "IdentifyObject 7 0"));
}

}  // namespace
}  // namespace ombrel::sim
