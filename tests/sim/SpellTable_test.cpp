#include "adapters/sim/SpellTable.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "adapters/sim/Client.h"
#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

class SpellTableTest : public testing::Test {
protected:
    ~SpellTableTest() override { std::filesystem::remove(file); }

    std::string File(const std::string& content) {
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }

    std::string LoadError(const std::string& content) {
        try {
            SpellTable::Load(File(content));
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "none";
    }

    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("ombrel-spells-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ".tsv");
};

TEST_F(SpellTableTest, ColumnsGoByTheirNamesInAnyOrder) {
    Client client;
    client.LoadSpells(
        File("Name\tSource\tID\tDuration\tResearchable\tSpeed\tIcon\tFlags\r\n"
             "Fire\tE\t20\t-1\tTrue\t0.5\t\t19\r\n"
             "Portal Sending\tE\t12\t60.5\tFalse\t0\t7\t\n"
             "\n"
             "Portal Sending\tE\t9\t1"));
    const auto spells = client.site().GetSpells();
    const auto fire = spells->ByID(20);
    EXPECT_EQ(fire->Name(), "Fire");
    EXPECT_EQ(fire->Duration(), -1.0);
    EXPECT_TRUE(fire->Researchable());
    EXPECT_EQ(fire->Speed(), 0.5f);
    EXPECT_EQ(fire->Icon(), 0);
    EXPECT_EQ(fire->Flags(), 19);
    EXPECT_EQ(spells->ByID(12)->Duration(), 60.5);
    EXPECT_EQ(spells->ByName("Portal Sending")->ID(), 9);
    EXPECT_EQ(spells->ByName("fire"), nullptr);
    EXPECT_EQ(spells->ByID(-32766), nullptr);
}

TEST_F(SpellTableTest, ATableThatCannotBeReadSaysWhy) {
    EXPECT_THAT(LoadError("Name\tDiff\n"), HasSubstr(":1: "));
    EXPECT_THAT(LoadError("ID\tName\n1\tA\nx\tB\n"), HasSubstr(":3: "));
    EXPECT_THROW(SpellTable::Load("/no/such/spells.tsv"), std::runtime_error);
    const SpellTable table = SpellTable::Load(File("ID\tName\tIcon\n1\tA\tred\n"));
    EXPECT_THROW(table.ByID(1), Failure);
}

}  // namespace
}  // namespace ombrel::sim
