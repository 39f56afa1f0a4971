#include "adapters/sim/Calls.h"

#include <set>
#include <string>
#include <vector>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

TEST(Operations, GoByNameOrByObjectAndName) {
    const struct {
        std::string_view name;
        std::optional<Op> operation;
    } rows[] = {
        {"ChatOut", "ACHooks.ChatOut"_op},
        {"ACHooks.ChatOut", "ACHooks.ChatOut"_op},
        {"World.Inventory", "World.Inventory"_op},
        {"Inventory", "World.Inventory"_op},
        {"CharacterStats.Level", "CharacterStats.Level"_op},
        {"List.Data", "List.Data"_op},
        {"RequestID", "ACHooks.IdentifyObject"_op},
        {"TimerStart", "Timer.Start"_op},
        {"Timer.TimerStart", "Timer.Start"_op},
        {"Clear", "HudView.Clear"_op},  // the one that is recorded, before those of lists and choices
        {"Stop", std::nullopt},         // of timers and sounds
        {"ByName", std::nullopt},
        {"World.Data", std::nullopt},
        {"World.", std::nullopt},
        {"", std::nullopt},
        {"chatout", std::nullopt},
    };
    for (const auto& row : rows) EXPECT_EQ(FindOperation(row.name), row.operation) << row.name;
}

TEST(Operations, AreNamedOnce) {
    std::set<std::string> names;
    std::set<std::string_view> recorded;
    for (const Operation& row : Operations()) {
        EXPECT_TRUE(names.insert(std::string(row.object) + "." + std::string(row.name)).second) << row.name;
        if (row.kind != CallKind::kQuestion) {
            EXPECT_TRUE(recorded.insert(row.name).second) << row.name;
        }
    }
}

TEST(Calls, ListenersHearWhatIsDoneAndNotWhatIsAsked) {
    Calls calls;
    std::vector<std::string> heard;
    calls.listener = [&](const Call& call) {
        std::string line(Operations()[call.operation].name);
        for (const Argument& argument : call.arguments) line += " " + std::string(argument.name);
        heard.push_back(line + (call.failed ? " failed" : ""));
    };
    calls.Note("ACHooks.GiveItem"_op, {{"id", 5}, {"target", 6}});
    calls.Note("World.Object"_op);
    EXPECT_THROW(calls.NoteFailed("SoundDevice.SoundLoad"_op, {{"path", "x.wav"}}, 53, "File not found"), Failure);
    EXPECT_THAT(heard, ElementsAre("GiveItem id target", "SoundLoad path failed"));
    EXPECT_EQ(calls.Count("World.Object"_op), 1u);
}

TEST(Calls, FailAsOftenAsTheyWereToldTo) {
    Calls calls;
    const Op ask = "World.Inventory"_op;
    calls.Fail(ask, 2, -2147467259, "Unspecified error");
    for (int i = 0; i < 2; ++i) {
        try {
            calls.Note(ask);
            FAIL() << "call " << i << " went well";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), -2147467259);
            EXPECT_EQ(failure.description(), "Unspecified error");
        }
    }
    EXPECT_NO_THROW(calls.Note(ask));
    EXPECT_EQ(calls.Count(ask), 3u);
}

}  // namespace
}  // namespace ombrel::sim
