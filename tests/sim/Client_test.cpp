#include "adapters/sim/Client.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "core/failure.h"

namespace ombrel::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kHotkeyClass = "{6B6B9FA8-37DE-4FA3-8C60-52BD6A2F9855}";

class SomeMessage final : public host::Message {
public:
    std::int32_t Type() const override { return 0xF7B0; }
    std::int32_t Long(std::string_view) const override { return 0; }
    double Double(std::string_view) const override { return 0; }
    std::string Text(std::string_view) const override { return {}; }
    std::vector<std::uint8_t> Bytes(std::string_view) const override { return {}; }
    host::MessageMemberPtr Struct(std::string_view) const override { return nullptr; }
    host::MessageMemberPtr Item(std::int32_t) const override { return nullptr; }
};

// The client as a plug-in of the test's own meets it.
class ClientTest : public testing::Test {
protected:
    void Log(const std::string& line) { log.push_back(line); }
    template <class... Numbers>
    auto Logger(const std::string& name) {
        return [this, name](Numbers... numbers) {
            std::string line = name;
            ((line += " " + std::to_string(numbers)), ...);
            Log(line);
        };
    }

    Client client;
    std::vector<std::string> log;
};

TEST_F(ClientTest, EventsReachTheSlotsOfEachObject) {
    host::PluginSite& site = client.site();
    const auto hooks = site.GetHooks();
    hooks->ContainerOpened = Logger<host::Id>("ContainerOpened");
    hooks->ObjectSelected = [&](host::Id id) {
        Log("ObjectSelected " + std::to_string(id == hooks->CurrentSelection()));
    };
    hooks->AC3DRegionChanged = Logger<std::int32_t, std::int32_t, std::int32_t, std::int32_t>("Region");
    const auto character = site.GetCharacterStats();
    character->LoginComplete = Logger<>("LoginComplete");
    character->Logoff = Logger<std::int32_t>("Logoff");
    character->ChangePortalMode = Logger<std::int32_t>("Portal");
    character->Death = [&](const std::string& text) { Log(text); };
    const auto world = site.GetWorld(), second = site.GetWorld();
    world->CreateObject = Logger<host::Id>("Create");
    second->CreateObject = Logger<host::Id>("Create too");
    world->ChangeObject = Logger<host::Id, std::int32_t>("Change");
    world->MoveObject = Logger<host::Id>("Move");
    world->ReleaseObject = Logger<host::Id>("Release");
    const auto echo = site.GetEchoFilter2();
    echo->EchoServer = [&](const host::Message& message) { Log("Server " + std::to_string(message.Type())); };
    echo->EchoClient = [&](const host::Message& message) { Log("Client " + std::to_string(message.Type())); };
    const auto render = site.GetRenderService();
    render->DeviceLost = Logger<>("DeviceLost");

    client.ContainerOpened(1);
    client.ObjectSelected(2);
    client.RegionChanged({1, 2, 3, 4});
    client.LoginComplete();
    client.Logoff(1);
    client.ChangePortalMode(0);
    client.Death("You have died.");
    client.CreateObject(3);
    client.ChangeObject(4, 2);
    client.MoveObject(5);
    client.ReleaseObject(6);
    client.EchoServer(SomeMessage());
    client.EchoClient(SomeMessage());
    client.DeviceLost();
    EXPECT_THAT(log, ElementsAre("ContainerOpened 1", "ObjectSelected 1", "Region 1 2 3 4", "LoginComplete", "Logoff 1",
                                 "Portal 0", "You have died.", "Create 3", "Create too 3", "Change 4 2", "Move 5",
                                 "Release 6", "Server 63408", "Client 63408", "DeviceLost"));
    EXPECT_EQ(hooks->Region3D(), (host::Rect{1, 2, 3, 4}));
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

TEST_F(ClientTest, APlayerReadsWhatIsNotEaten) {
    client.chat_listener = [this](const Client::ChatLine& line) {
        Log(std::to_string(line.window) + (line.from_plugin ? " ours " : " game ") + line.text);
    };
    const auto hooks = client.site().GetHooks();
    hooks->ChatTextIntercept = [&](const std::string& text, std::int32_t color, std::int32_t window, bool& eat) {
        eat = text == "secret";
        if (eat) hooks->ChatOut("hidden", color, window + 2);
    };
    EXPECT_FALSE(client.ChatText("hello", 2, 0));
    EXPECT_TRUE(client.ChatText("secret", 2, 0));
    hooks->ChatOutRaw("secret", 2, 1);
    EXPECT_THAT(log, ElementsAre("1 game hello", "2 ours hidden", "1 ours secret"));
}

TEST_F(ClientTest, AnObjectMayGoInItsOwnEvent) {
    auto first = client.site().GetHooks(), second = client.site().GetHooks();
    first->ContainerOpened = [&, name = std::string("a name too long for any small buffer")](host::Id) {
        first.reset();
        second.reset();
        auto third = client.site().GetHooks();
        Log(name);
    };
    second->ContainerOpened = Logger<host::Id>("second");
    client.ContainerOpened(1);
    client.ContainerOpened(1);
    EXPECT_THAT(log, ElementsAre("a name too long for any small buffer"));
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

TEST_F(ClientTest, AHotkeyThatIsRegisteredIsKnownAndReachesWhoTookTheService) {
    const auto hotkeys = client.site().GetDecal()->GetHotkeyService("{6b6b9fa8-37de-4fa3-8c60-52bd6a2f9855}");
    hotkeys->HotkeyEvent = [](const std::string& name, bool& handled) { handled = name == "OM:RunEvents"; };
    EXPECT_FALSE(hotkeys->QueryHotkey("OM:RunEvents"));
    hotkeys->HotkeyRegister("Ombrel", "OM:RunEvents", "Runs queued events");
    EXPECT_TRUE(hotkeys->QueryHotkey("OM:RunEvents"));
    EXPECT_TRUE(client.Hotkey("OM:RunEvents"));
    EXPECT_FALSE(client.Hotkey("Other:Key"));
    EXPECT_EQ(client.site().GetDecal()->GetHotkeyService("{00000000-0000-0000-0000-000000000000}"), nullptr);
}

TEST_F(ClientTest, ActionsAreAnsweredOnlyByAWorldThatReacts) {
    client.reaction = [this](const Action& action) {
        Log(std::string(Operations()[action.operation].name) + " " + std::to_string(action.id) + " " +
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

TEST_F(ClientTest, SelectingChangesTheSelectionAndRaisesNothing) {
    const auto hooks = client.site().GetHooks();
    hooks->ObjectSelected = Logger<host::Id>("selected");
    hooks->SelectItem(9);
    EXPECT_EQ(hooks->CurrentSelection(), 9);
    EXPECT_THAT(log, IsEmpty());
}

}  // namespace
}  // namespace ombrel::sim
