#include "adapters/sim/Character.h"

#include <memory>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

using namespace std::chrono_literals;

class CharacterTest : public testing::Test {
protected:
    Client client;
    std::unique_ptr<host::CharacterStats> stats = client.site().GetCharacterStats();
};

TEST_F(CharacterTest, EnchantmentsRunOutWithTheClock) {
    client.Enchant(2, 2.5, 1);
    client.Enchant(157, -1, 80);
    client.Enchant(6, 1, 3);
    const auto remaining = [&](std::int32_t index) { return stats->Enchantment(index).TimeRemaining; };

    EXPECT_EQ(stats->EnchantmentCount(), 3);
    EXPECT_EQ(remaining(0), 3);
    client.clock.Advance(500ms);
    EXPECT_EQ(remaining(0), 2);
    client.clock.Advance(499ms);
    EXPECT_EQ(remaining(2), 1);
    client.clock.Advance(1ms);
    EXPECT_EQ(stats->EnchantmentCount(), 2);
    EXPECT_EQ(remaining(0), 2);
    client.clock.Shift(3'600'000);
    EXPECT_EQ(remaining(0), 2) << "enchantments don't follow the player's clock";
    client.clock.Advance(1h);
    EXPECT_EQ(stats->EnchantmentCount(), 1);
    EXPECT_EQ(stats->Enchantment(0), (host::Enchantment{.SpellID = 157, .TimeRemaining = -1, .Family = 80}));
    EXPECT_THROW(stats->Enchantment(1), Failure);
}

TEST_F(CharacterTest, SpellNumbersAreReadSigned) {
    client.Enchant(0x8002, 10, 0);
    client.Enchant(-32765, 10, 0);
    EXPECT_EQ(stats->Enchantment(0).SpellID, -32766);
    EXPECT_EQ(stats->Enchantment(1).SpellID, -32765);

    std::int32_t told = 0;
    stats->ChangeEnchantments = [&](std::int32_t, const host::Enchantment& enchantment) { told = enchantment.SpellID; };
    client.ChangeEnchantments(0, {.SpellID = 0x8003});
    EXPECT_EQ(told, -32765);
}

}  // namespace
}  // namespace ombrel::sim
