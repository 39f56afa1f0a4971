#include "corpses/CorpseHandler.h"

#include <fmt/format.h>

#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr host::Id kCorpse = 0x100;
constexpr std::string_view kFile = "Ombrel/Data/Ombrel_Data_Frostfell_Aldra.xml";

class CorpseTest : public PluginTest {
protected:
    void SetUp() override {
        PutCharacter(host::Position{12.34, -45.66});
        LogIn();
        Forget();
    }

    void PutCharacter(std::optional<host::Position> place) {
        client.object(client.sheet.Character).Coordinates = place;
    }
    sim::Object& PutCorpse(host::Id id, std::optional<host::Position> place) {
        sim::Object& corpse = client.object(id);
        corpse.Name = "Corpse of Aldra";
        corpse.Coordinates = place;
        return corpse;
    }
    void Say(const std::string& line) { client.ChatText(line + "\n", 0, 0); }
    void Die() { client.Death("You have died."); }
    void Return() { client.ChangePortalMode(1); }

    static CorpseHandler& corpses() { return *Vars::CorpseHandler; }
    host::List& list() const { return *options().CorpsesList; }
    std::string Cell(std::int32_t column, std::int32_t row) const {
        return std::get<std::string>(list().Data(column, row));
    }
    // The rows of the list that are marked.
    std::vector<std::int32_t> Marked() const {
        std::vector<std::int32_t> rows;
        for (std::int32_t row = 0; row < list().Count(); ++row) {
            if (list().Color(0, row) == 0xFFFF80) rows.push_back(row);
        }
        return rows;
    }
};

// The scraps that a death is told in, by a letter each, and the corpse that is filed: its place, what the list says of
// it, whether the object has been seen.
struct DeathRow {
    const char* scraps;
    const char* place;  // nothing when no corpse is filed
    bool seen;
    const char* data;

    friend void PrintTo(const DeathRow& row, std::ostream* out) { *out << row.scraps; }
};

constexpr const char* kNothing = "You lost nothing.";
constexpr const char* kLost = "You've lost your Torch!";

const DeathRow kDeaths[] = {
    {"D P", "Dungeon 12.3 -45.7", false, kNothing},
    {"D D P", "Dungeon 12.3 -45.7", false, kNothing},
    {"A P", "Dungeon 12.3 -45.7", false, kNothing},
    {"D A P", "Dungeon 12.3 -45.7", false, kNothing},
    {"D L P", "Dungeon 12.3 -45.7", false, kLost},
    {"D C P", "20.0S, 3.5E -20 3.5", false, kNothing},
    {"D C O P", "7.3N, 8.9E 7.3 8.9", true, kNothing},
    {"D O C L P", "Dungeon 7.3 8.9", true, kLost},  // the coordinates came too late for the map
    {"D B P", "Dungeon 12.3 -45.7", false, kNothing},
    {"D E P", "Dungeon 12.3 -45.7", false, kNothing},
    {"D N C P", "20.0S, 3.5E -20 3.5", false, kNothing},  // entering the portal is not the way back
    {"P", "", false, ""},
    {"L C O P", "", false, ""},
    {"L C O D P", "Dungeon 12.3 -45.7", false, kNothing},  // what came before the death is not of it
    {"D", "", false, ""},
    {"D T P", "", false, ""},
};

class Deaths : public CorpseTest, public testing::WithParamInterface<DeathRow> {
protected:
    void Tell(char scrap) {
        switch (scrap) {
            case 'D':
                return Die();
            case 'A':
                return Say("Ack! You killed yourself!");
            case 'L':
                return Say(kLost);
            case 'C':
                return Say("Your corpse is located at (20.0S, 3.5E).");
            case 'B':
                return Say("Your corpse is located at (nowhere).");
            case 'E':
                return Say("Your corpse is located at (20.0S; 3.5E).");
            case 'O':
                PutCorpse(kCorpse, host::Position{7.26, 8.94});
                return client.CreateObject(kCorpse);
            case 'N':
                return client.ChangePortalMode(0);
            case 'P':
                return Return();
            case 'T':
                return options().CorpsesTrack->SetChecked(false);
            default:
                break;
        }
    }
};

TEST_P(Deaths, AreGatheredFromTheirScraps) {
    const DeathRow& row = GetParam();
    const std::string scraps = row.scraps;
    for (const char scrap : scraps) Tell(scrap);

    const bool broken = scraps.find_first_of("BE") != std::string::npos;
    EXPECT_EQ(TakeReports().size(), broken ? 1U : 0U);
    EXPECT_EQ(corpses().HasDied(), scraps == "D");
    if (std::string_view(row.place).empty()) {
        EXPECT_THAT(corpses().Corpses, IsEmpty());
        EXPECT_EQ(list().Count(), 0);
        return;
    }
    ASSERT_EQ(corpses().Corpses.size(), 1U);
    const CorpseInfo& corpse = corpses().Corpses[0];
    EXPECT_EQ(fmt::format("{} {} {}", Cell(0, 0), corpse.NS, corpse.EW), row.place);
    EXPECT_EQ(corpse.guid, row.seen ? kCorpse : 0);
    EXPECT_EQ(corpse.data, row.data);
    EXPECT_THAT(common_data.Read(kFile), HasSubstr("<Corpse ns="));

    // The next death starts afresh.
    Return();
    EXPECT_EQ(corpses().Corpses.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Scraps, Deaths, testing::ValuesIn(kDeaths));

TEST_F(CorpseTest, DecaysByTheLevelAndAMinuteAtTheLeast) {
    const std::pair<std::int32_t, std::int32_t> kDecays[] = {{0, 60}, {1, 300}, {42, 12600}, {275, 82500}};
    for (const auto& [level, seconds] : kDecays) {
        client.sheet.Level = level;
        Die();
        Return();
        EXPECT_EQ(corpses().Corpses.back().time, 1141560000 + seconds) << "level " << level;
    }
}

TEST_F(CorpseTest, TheListCountsDownAndTellsHowFarItIs) {
    client.sheet.Level = 1;
    Die();
    Say("Your corpse is located at (12.8N, 45.0W).");
    Return();
    EXPECT_EQ(Cell(0, 0), "12.8N, 45.0W");
    EXPECT_EQ(Cell(1, 0), "0.5S, 0.7W");
    EXPECT_EQ(Cell(2, 0), "05:00");
    Advance(61s);
    PutCharacter(host::Position{12.8, -45.0});
    Advance(1s);
    EXPECT_EQ(Cell(1, 0), "0.0N, 0.0E");
    EXPECT_EQ(Cell(2, 0), "03:58");
    Advance(600s);
    EXPECT_EQ(list().Count(), 1) << "decayed, and the row stays";
}

TEST_F(CorpseTest, WhatIsSelectedIsMarkedAndTold) {
    EXPECT_EQ(corpses().GetCorpse(), "None");
    for (int i = 0; i < 3; ++i) {
        PutCharacter(host::Position{1.0 + i, 2.0});
        Die();
        Say(fmt::format("Your corpse is located at ({}.0N, 2.0E).", i + 1));
        Return();
    }
    EXPECT_THAT(Marked(), ElementsAre(0));
    EXPECT_EQ(corpses().GetCorpse(), "1.0N, 2.0E");
    options().SelectedCorpse = 1;
    corpses().UpdateCorpseList();
    EXPECT_THAT(Marked(), ElementsAre(1));
    EXPECT_EQ(corpses().GetCorpse(), "2.0N, 2.0E");

    corpses().RemoveCorpsebyID(2);
    EXPECT_EQ(options().SelectedCorpse, -1);
    EXPECT_THAT(Marked(), ElementsAre(0));
    EXPECT_EQ(corpses().GetCorpse(), "1.0N, 2.0E");

    options().SelectedCorpse = 1;
    corpses().RemoveCorpsebyID(1);
    EXPECT_EQ(options().SelectedCorpse, -1) << "a row that has gone can't be marked each second";
    EXPECT_EQ(corpses().GetCorpse(), "3.0N, 2.0E");

    corpses().RemoveCorpsebyID(5);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #9 occured in 'RemoveCorpsebyID' of class 'CorpseHandler'"));
}

TEST_F(CorpseTest, OnlyAnOpenedCorpseThatVanishesIsDropped) {
    struct Row {
        const char* what;
        bool opened, automatic;
        std::size_t left;
    };
    for (const Row& row :
         {Row{"unopened", false, true, 1}, Row{"opened", true, true, 0}, Row{"by hand", true, false, 1}}) {
        SCOPED_TRACE(row.what);
        corpses().Corpses.clear();
        options().CorpsesAuto->SetChecked(row.automatic);
        Die();
        PutCorpse(kCorpse, host::Position{12.4, -45.6});
        client.CreateObject(kCorpse);
        Return();
        if (row.opened) client.ContainerOpened(kCorpse);
        client.ReleaseObject(kCorpse);
        client.RemoveObject(kCorpse);
        EXPECT_EQ(corpses().Corpses.size(), row.left);
        EXPECT_EQ(list().Count(), row.left);
    }
}

TEST_F(CorpseTest, ACorpseThatWasNeverSeenIsKnownByItsPlace) {
    Die();
    Say("Your corpse is located at (12.3N, 45.7W).");
    Return();
    PutCorpse(kCorpse, host::Position{12.3, -45.7});
    client.ContainerOpened(kCorpse);
    client.ReleaseObject(kCorpse);
    EXPECT_THAT(corpses().Corpses, IsEmpty());
    EXPECT_THAT(common_data.Read(kFile), Not(HasSubstr("<Corpse")));
}

TEST_F(CorpseTest, CorpsesOfOthersAreTheirs) {
    Die();
    sim::Object& other = client.object(0x200);
    other.Name = "Corpse of Bob";
    other.Coordinates = host::Position{1.0, 1.0};
    client.CreateObject(0x200);
    Return();
    EXPECT_EQ(corpses().Corpses.back().guid, 0);
    client.ContainerOpened(0x200);
    client.ReleaseObject(0x200);
    EXPECT_EQ(corpses().Corpses.size(), 1U);
}

TEST_F(CorpseTest, TheyComeBackAtTheNextLogin) {
    Die();
    Say(kLost);
    Return();
    const std::string saved = common_data.Read(kFile);
    client.Logoff(0);
    client.Terminate();
    client.Start();
    client.LoginComplete();
    ASSERT_EQ(corpses().Corpses.size(), 1U);
    EXPECT_EQ(list().Count(), 1);
    EXPECT_EQ(common_data.Read(kFile), saved);
    EXPECT_FALSE(corpses().HasDied());
}

}  // namespace
}  // namespace ombrel::test
