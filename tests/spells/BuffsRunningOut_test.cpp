// The story of an evening, as a player would have it play out.
#include <fmt/format.h>
#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "core/text.h"
#include "tests/replay/Replay.h"

namespace ombrel::sim {
namespace {

TEST(BuffsRunningOut, TellsThePlayerInTimeAndLetsTheQueueWaitItsTurn) {
    Replay replay("chat,item");
    replay.client.LoadSpells(OMBREL_SOURCE_DIR "/resources/sim/spells.tsv");
    std::ostringstream session;
    session << std::ifstream(OMBREL_SOURCE_DIR "/sessions/buffs-running-out.jsonl").rdbuf();
    replay.Play(session.str());

    std::vector<std::string> told;
    for (const std::string& line : replay.Output()) {
        const auto record = Json::parse(line);
        if (!record.contains("call")) continue;
        const double at = record["at"];
        const std::string call = record["call"];
        if (call.starts_with("UseItem")) told.push_back(fmt::format("{:.1f} {} {}", at, call, record["id"].get<int>()));
        const std::string text = record.value("text", "");
        if (text.starts_with("<Ombrel>")) told.push_back(fmt::format("{:.1f} {}", at, text.substr(9, 34)));
    }
    EXPECT_THAT(told, testing::ElementsAre(
                          "0.0 Failed to find character's setting", "0.0 Plugin Loaded! Type /m help for co",
                          "3.0 UseItem -2147479293",  // the benediction
                          "9.0 Adding Tusker Spit Ale to the even", "9.0 Adding Hunter's Stock Amber to the",
                          "9.2 Please enter peace mode to continu",  // the fight
                          "14.2 UseItemOnTarget -2147479295", "16.6 UseItemOnTarget -2147479294",
                          "1202.0 Your buffs will expire in 5 minute", "1322.0 Your buffs will expire in 3 minute",
                          "1442.0 Your buffs will expire in 1 minute", "1696.0 Your beer spells are getting low!",
                          "1700.0 Ready to keep em' coming!", "1701.0 Adding Tusker Spit Ale to the even",
                          "1701.0 Adding Hunter's Stock Amber to the", "1701.2 UseItemOnTarget -2147479295",
                          "1703.6 UseItemOnTarget -2147479294",
                          "1704.0 Please enter peace mode to continu",  // busy with the second
                          "1708.0 Adding Tusker Spit Ale to the even", "1708.0 Adding Hunter's Stock Amber to the",
                          "1708.2 Please enter peace mode to continu", "1709.0 Event Queue Cleared"));
}

}  // namespace
}  // namespace ombrel::sim
