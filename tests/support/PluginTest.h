// The plug-in at work in a simulated client, for tests that read like an evening in the game.
//
//     TEST_F(PluginTest, ChatBeforeLoginIsLeftToTheClient) {
//         Start();
//         EXPECT_FALSE(client.ChatText("Tom says, \"hello\"\n", 2, 1));
//         EXPECT_THAT(Texts(), IsEmpty());
//     }
//
// Set the client's state, let it raise events, and look at what the player reads and what the plug-in asks of the
// client. Options are the controls themselves: options().FillMana->SetChecked(true). A test in which the plug-in
// reports a failure must expect it with TakeReports(): one that nobody asked for fails the test.
#pragma once

#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "tests/support/Matchers.h"
#include "tests/support/SourceFolder.h"
#include "tests/support/TempFolder.h"

namespace ombrel::test {

using namespace std::chrono_literals;

// A line that the plug-in wrote into a chat window.
struct Line {
    std::string text;
    std::int32_t color = 0;
    std::int32_t window = 0;

    friend bool operator==(const Line&, const Line&) = default;
    friend void PrintTo(const Line& line, std::ostream* out);
};

// The plug-in, its client and what passes between them. A test that needs one of its own for each of its cases makes
// them.
class GameSession {
public:
    GameSession();
    ~GameSession();
    GameSession(const GameSession&) = delete;
    GameSession& operator=(const GameSession&) = delete;

    // The client creates the plug-in and initializes it.
    void Start();

    // The character enters the world, with everything in the best of health.
    void LogIn();

    // A wave file in the Sounds folder, by its path with forward slashes. To be called before Start.
    void HaveSound(std::string_view file);

    void Advance(std::chrono::milliseconds time) { client.clock.Advance(time); }

    // A thing in the character's packs.
    sim::Object& Carry(host::Id id, const std::string& name);

    static ControlHandler& options() { return *Vars::ControlHandler; }
    static FilterHandler& filter() { return *Vars::FilterHandler; }

    // The texts of `lines`, and those lines that the client shows by itself.
    std::vector<std::string> Texts() const;

    // The calls that the plug-in made, as "UseItem id=5 flag=1", of one operation or all that begin with `name`.
    std::vector<std::string> CallsOf(std::string_view name) const;

    // Whether calls with these texts in them were made, one after the other.
    testing::AssertionResult CalledInOrder(std::initializer_list<std::string_view> texts) const;

    // Forgets lines and calls so far.
    void Forget();

    // Makes the next call of an operation fail, as "ACHooks.ChatOut".
    void FailNext(std::string_view operation, std::int32_t number = 5);

    // The reports in the error log, as "Error #5 occured in 'Find' of class 'FilterHandler'", which is empty
    // thereafter.
    std::vector<std::string> TakeReports();

    TempFolder documents;
    TempFolder common_data;
    TempFolder plugin_folder;        // in use once it holds a sound
    std::vector<Line> lines;         // written by the plug-in
    std::vector<std::string> shown;  // let through to the player
    std::vector<std::string> calls;
    sim::Client client;
};

class PluginTest : public testing::Test, protected GameSession {
protected:
    void TearDown() override;
};

}  // namespace ombrel::test
