#include "hud/Requirements.h"

#include <memory>
#include <optional>

#include "adapters/sim/World.h"
#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::target {
namespace {

// The text for these properties; nothing when it fails, with the name of the procedure at work.
struct Outcome {
    std::optional<std::string> text;
    std::string procedure;
};

Outcome Read(std::string (*requirement)(Reading&), std::map<std::int32_t, std::int32_t> properties) {
    sim::Calls calls;
    const auto thing = std::make_shared<sim::Object>();
    thing->Long = std::move(properties);
    const sim::SimWorldObject object(calls, thing);
    Reading reading{object, "caller"};
    Outcome outcome;
    try {
        outcome.text = requirement(reading);
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.number(), failure::kSubscript);
    }
    outcome.procedure = reading.procedure;
    return outcome;
}

TEST(WieldRequirement, NamesWhatIsNeeded) {
    const struct {
        std::int32_t kind, skill, level;
        const char* text;
    } rows[] = {
        {0, 11, 250, ""},         {-1, 11, 250, ""},        {1, 1, 250, ", Ax 250"}, {1, 11, 250, ", Sw 250"},
        {2, 34, 290, ", WM 290"}, {2, 41, 400, ", 2H 400"}, {1, 43, 1, ", ?? 1"},    {1, 45, 325, ", ?? 325"},
        {1, 8, 5, ",  5"},         // a skill that the game doesn't use
        {3, 3, 100, ", Cor 100"},  // the game's quickness
        {3, 1, 100, ", Str 100"}, {4, 6, 200, ", Sel 200"}, {5, 1, 80, ", Hlt 80"},  {6, 3, 81, ", Stm 81"},
        {5, 5, 82, ", Mna 82"},   {5, 2, 83, ",  83"},      {7, 1, 180, ", Lv 180"}, {7, 999, 180, ", Lv 180"},
        {8, 34, 1, ", Trn WM"},   {8, 34, 2, ", Spc WM"},   {9, 1, 1, ""},           {12, 1, 1, ""},
    };
    for (const auto& row : rows) {
        const Outcome outcome = Read(&WieldReq, {{158, row.kind}, {159, row.skill}, {160, row.level}});
        EXPECT_EQ(outcome.text, row.text) << row.kind << ' ' << row.skill;
        EXPECT_EQ(outcome.procedure, "caller");
    }
    EXPECT_EQ(Read(&WieldReq, {}).text, "");
}

TEST(WieldRequirement, FailsRatherThanShowAWrongName) {
    const struct {
        std::int32_t kind, skill, level;
    } rows[] = {{1, 46, 325}, {2, 0, 1},  {1, -5, 1}, {1, INT32_MIN, 1}, {3, 7, 100},
                {4, 0, 100},  {5, 7, 80}, {8, 46, 1}, {8, 34, 3},        {8, 34, 0}};
    for (const auto& row : rows) {
        const Outcome outcome = Read(&WieldReq, {{158, row.kind}, {159, row.skill}, {160, row.level}});
        EXPECT_FALSE(outcome.text) << row.kind << ' ' << row.skill << ' ' << row.level << ": " << *outcome.text;
        EXPECT_EQ(outcome.procedure, "WieldReq");
    }
}

TEST(ActivationRequirement, JoinsWhatIsAsked) {
    EXPECT_EQ(Read(&ActivationReq, {}).text, "");
    EXPECT_EQ(Read(&ActivationReq, {{109, 180}}).text, ", Lr 180");
    EXPECT_EQ(Read(&ActivationReq, {{110, 4}}).text, ", Rk 4");
    EXPECT_EQ(Read(&ActivationReq, {{188, 2}}).text, ", Sho");
    EXPECT_EQ(Read(&ActivationReq, {{176, 15}, {115, 200}}).text, ", MC 200");
    EXPECT_EQ(Read(&ActivationReq, {{115, 200}}).text, "") << "a level without its skill";
    EXPECT_EQ(Read(&ActivationReq, {{109, 90}, {110, 4}, {115, 200}, {176, 14}, {188, 3}}).text,
              ", Lr 90, Via, Ma 200, Rk 4");
}

TEST(ActivationRequirement, FailsRatherThanShowAWrongName) {
    for (const auto& properties : {std::map<std::int32_t, std::int32_t>{{188, 4}}, {{188, -1}}, {{176, 45}}}) {
        const Outcome outcome = Read(&ActivationReq, properties);
        EXPECT_FALSE(outcome.text);
        EXPECT_EQ(outcome.procedure, "ActivationReq");
    }
}

}  // namespace
}  // namespace ombrel::target
