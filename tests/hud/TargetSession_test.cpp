// The story of the target's card, played as players of sessions do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/replay/Replay.h"

namespace ombrel::sim {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

TEST(TargetSession, ShowsWhatIsLookedAt) {
    std::ifstream file(OMBREL_SOURCE_DIR "/sessions/target-card.jsonl");
    const std::string session{std::istreambuf_iterator<char>(file), {}};
    Replay replay("chat");
    replay.client.LoadSpells(OMBREL_SOURCE_DIR "/resources/sim/spells.tsv");
    replay.Play(session);

    std::vector<Json> cards;
    for (const std::string& line : replay.Output()) {
        EXPECT_EQ(line.find("Error #"), std::string::npos) << line;
        if (Json answer = Json::parse(line); answer.contains("rows")) cards.push_back(std::move(answer));
    }
    const auto rows = [&](std::size_t card) { return cards.at(card)["rows"].get<std::vector<std::string>>(); };
    ASSERT_THAT(cards, SizeIs(8));
    EXPECT_THAT(rows(0), ElementsAre("Silver Simi", "7,600p, 320bu, D, Sw 325", "22.1-34, 12 8 0.5, Wk 6, Tk 3",
                                     "Lr 160, 900m"));
    EXPECT_THAT(rows(1), ElementsAre("Gold Amuli Coat", "[Waiting for ID]"));
    EXPECT_THAT(rows(2), ElementsAre("Gold Amuli Coat", "14,500p, 1,450bu, A B D, Lv 80", "AL 340, Wk 7, Tk 4",
                                     "Lr 180, 412m", "Major Focus, Epic Quickness"));
    EXPECT_THAT(rows(3), ElementsAre("4 Peppermint Pumpkin Pies", "140p, 300bu", "Stamina 45"));
    EXPECT_THAT(rows(4), ElementsAre("Glenden Wood Portal", "Level 10-60 No Sum"));
    EXPECT_THAT(rows(5), ElementsAre("Olthoi Soldier", "[Waiting for ID]"));
    EXPECT_THAT(rows(6), ElementsAre("Olthoi Soldier", "215 / 215", "Level 60"));
    EXPECT_THAT(rows(7), ElementsAre("Olthoi Soldier", "81 / 215", "Level 60"));

    const Json soldier = cards.back()["object"];
    const auto debuff = [&](int family, int spell, int remaining) {
        return Json{{"object", soldier}, {"family", family}, {"spell", spell}, {"remaining", remaining}};
    };
    EXPECT_EQ(cards[5]["debuffs"], Json::array());
    EXPECT_EQ(cards[7]["debuffs"], Json({debuff(106, 1065, 139), debuff(116, 2074, 174), debuff(114, 2164, 182)}));
}

}  // namespace
}  // namespace ombrel::sim
