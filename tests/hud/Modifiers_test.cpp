#include "hud/Modifiers.h"

#include <memory>

#include "adapters/sim/World.h"
#include "tests/support/Matchers.h"

namespace ombrel::target {
namespace {

TEST(BonusText, IsWhatAFactorAddsInPercent) {
    const struct {
        double factor;
        const char* text;
    } rows[] = {{1.12, "12"},    {1.0, "0"},   {1.005, "0.5"}, {1.085, "8.5"}, {0.96, "-4"},
                {0.996, "-0.4"}, {2.0, "100"}, {0.0, "-100"},  {-0.01, ""},    {-1.0, ""}};
    for (const auto& row : rows) EXPECT_EQ(BonusText(row.factor), row.text) << row.factor;
}

TEST(PercentText, IsAWholeShare) {
    EXPECT_EQ(PercentText(2.35), "235");
    EXPECT_EQ(PercentText(0.1), "10");
    EXPECT_EQ(PercentText(0.025), "2") << "a half goes to the even neighbour";
    EXPECT_EQ(PercentText(0), "0");
}

TEST(Modifiers, StandBehindAComma) {
    const auto text = [](std::string (*modifiers)(const Reading&), std::map<std::int32_t, double> properties) {
        sim::Calls calls;
        const auto thing = std::make_shared<sim::Object>();
        thing->Double = std::move(properties);
        const sim::SimWorldObject object(calls, thing);
        return modifiers(Reading{object});
    };
    constexpr std::int32_t kAttack = 0x0A00000C;
    EXPECT_EQ(text(&ModifiersText, {{kAttack, 1.12}, {29, 1.08}, {150, 1.005}}), ", 12 8 0.5");
    EXPECT_EQ(text(&ModifiersText, {{29, 1.08}}), ", 8");
    EXPECT_EQ(text(&ModifiersText, {{kAttack, 1.07}, {144, 0.1}, {150, 1.01}}), ", 7 1");
    EXPECT_EQ(text(&ModifiersText, {}), "");
    EXPECT_EQ(text(&CasterModifiersText, {{kAttack, 1.12}, {144, 0.08}, {29, 1.12}, {150, 1.03}}), ", 8 12 3");
    EXPECT_EQ(text(&CasterModifiersText, {}), ", 0");
}

}  // namespace
}  // namespace ombrel::target
