#include <fmt/format.h>

#include <algorithm>
#include <pugixml.hpp>
#include <random>
#include <set>

#include "chat/LogHandler.h"
#include "corpses/CorpseHandler.h"
#include "spells/SpellHandler.h"
#include "tests/support/Mishaps.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::string_view kFile = "Ombrel/Data/Ombrel_Data_Frostfell_Aldra.xml";
constexpr std::string_view kEmpty = "<Ombrel>\r\t<Global enabled=\"False\"/>\r\t\r</Ombrel>";

class DataTest : public PluginTest {
protected:
    void SetUp() override { Start(); }

    void Load(std::string_view text) {
        common_data.Write(kFile, text);
        options().Data_Load(0);
    }
    std::string Saved() const { return common_data.Read(kFile); }

    // The text of the copy that was kept for a reason; empty when there is none.
    std::string Kept(std::string_view reason) const {
        for (const auto& entry : std::filesystem::directory_iterator(common_data.path() / "Ombrel/Data")) {
            const auto name = entry.path().filename().string();
            if (name.find(fmt::format("({} ", reason)) != std::string::npos)
                return common_data.Read("Ombrel/Data/" + name);
        }
        return {};
    }
};

TEST_F(DataTest, TheFirstLoginLeavesAnEmptyFileWithoutAWord) {
    options().GlobalSettings->SetChecked(true);  // of the character before
    options().Data_Load(0);
    EXPECT_EQ(Saved(), kEmpty);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(DataTest, TheNextCharacterTakesNothingAlong) {
    Load("<Ombrel><Corpse ns=\"1\"/><Item_Spell id=\"37\" remaining=\"100\" target=\"your armor.\"/><Log/></Ombrel>");
    std::filesystem::remove(common_data.path() / kFile);
    options().Data_Load(0);
    EXPECT_EQ(Saved(), kEmpty);
}

TEST_F(DataTest, WhatWasLearnedComesBack) {
    const std::string text =
        "<Ombrel>\r\t<Global enabled=\"True\"/>\r\t"
        "<Corpse ns=\"-0.5\" ew=\"12.3\" time=\"1141570000\" dungeon=\"False\" guid=\"-2147480000\" data=\"Two "
        "rings.\"/>\r\t"
        "<Item_Spell id=\"37\" remaining=\"100\" target=\"your armor.\"/>\r\t"
        "<Log message=\"Tom tells you, &quot;a&amp;b&quot;\" type=\"3\" color=\"3\" tag=\"2\" date=\"1141560000\"/>\r\t"
        "<Log message=\"\" type=\"0\" color=\"0\" tag=\"0\" date=\"0\"/>\r\t\r</Ombrel>";
    Load(text);
    EXPECT_TRUE(options().GlobalSettings->Checked());
    ASSERT_EQ(Vars::LogHandler->Log.size(), 2U);
    EXPECT_EQ(Vars::LogHandler->Log[0].message, "Tom tells you, \"a&b\"");
    EXPECT_EQ(Vars::SpellHandler->ItemSpells.size(), 1U);
    ASSERT_EQ(Vars::CorpseHandler->Corpses.size(), 1U);
    EXPECT_EQ(Vars::CorpseHandler->Corpses[0].NS, -0.5);
    EXPECT_EQ(Vars::CorpseHandler->Corpses[0].guid, -2147480000);
    EXPECT_EQ(options().ChatLogView->Count(), 2);
    EXPECT_EQ(Saved(), text);
}

TEST_F(DataTest, MissingAttributesAndUnknownElementsDoNoHarm) {
    Load("<Ombrel><Log/><Moon phase=\"full\"/><Global/></Ombrel>");
    EXPECT_EQ(Vars::LogHandler->Log.size(), 1U);
    EXPECT_EQ(Saved(),
              "<Ombrel>\r\t<Global enabled=\"False\"/>\r\t"
              "<Log message=\"\" type=\"0\" color=\"0\" tag=\"0\" date=\"0\"/>\r\t\r</Ombrel>");
}

TEST_F(DataTest, AFileThatWasNotReadToItsEndIsKeptAtTheNextSave) {
    const std::string text = "<Ombrel><Global enabled=\"True\"/><Log type=\"loud\"/><Log message=\"lost\"/></Ombrel>";
    Load(text);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'Data_Load' of class 'ControlHandler'"));
    EXPECT_EQ(Saved(), text);
    options().Data_Save();
    EXPECT_EQ(Kept("not taken over"), text);
}

TEST_F(DataTest, ASaveWithoutALoadKeepsWhatWasThere) {
    const std::string text = "<Ombrel><Log message=\"of yesterday\"/></Ombrel>";
    common_data.Write(kFile, text);
    client.Logoff(0);
    EXPECT_EQ(Saved(), kEmpty);
    EXPECT_EQ(Kept("not taken over"), text);
}

TEST_F(DataTest, TheGlobalFlagDecidesWhichSettingsAreLoaded) {
    common_data.Write(kFile, "<Ombrel><Global enabled=\"True\"/></Ombrel>");
    common_data.Write("Ombrel/Settings/Ombrel_Global_Settings.xml",
                      "<Ombrel Version=\"1.1.0.1\"><Exp filterthreshold=\"44\"/></Ombrel>");
    LogIn();
    EXPECT_EQ(options().XPFilterThreshold->Text(), "44");
    EXPECT_FALSE(std::filesystem::exists(common_data.path() / "Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml"));
}

// Everything that play may leave behind, in any number and with any text.
TEST_F(DataTest, WhateverIsKnownComesBackAsItWas) {
    std::mt19937 random(52);
    const auto between = [&](std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random);
    };
    const auto any = [&] { return between(INT32_MIN, INT32_MAX); };
    const auto text = [&] {
        static constexpr const char* kPieces[] = {"a",  " ",  "&",  "<", ">",      "\"",  "'",
                                                  "\n", "\t", "\r", "é", "\u2019", "]]>", "&amp;"};
        std::string made;
        for (int i = between(0, 12); i > 0; --i) made += kPieces[between(0, std::size(kPieces) - 1)];
        return made;
    };
    struct Fields {
        auto operator()(const CorpseInfo& c) const { return std::tie(c.guid, c.NS, c.EW, c.time, c.Dungeon, c.data); }
        auto operator()(const LogItem& l) const {
            return std::tie(l.message, l.msgtype, l.msgcolor, l.msgdate, l.msgtag);
        }
    };
    constexpr Fields fields;
    options().ChatLogMax->SetText("100");
    for (int round = 0; round < 200; ++round) {
        auto& corpses = Vars::CorpseHandler->Corpses;
        auto& spells = Vars::SpellHandler->ItemSpells;
        auto& log = Vars::LogHandler->Log;
        corpses.clear();
        spells.clear();
        log.clear();
        const bool global = between(0, 1) == 1;
        options().GlobalSettings->SetChecked(global);
        for (int i = between(0, 4); i > 0; --i)
            corpses.push_back(
                {any(), between(-1019, 1019) / 10.0, between(-1019, 1019) / 10.0, any(), between(0, 1) == 1, text()});
        for (int i = between(0, 3); i > 0; --i)
            Vars::SpellHandler->AddItemSpellfromData(between(1, 6000), between(0, 9999), "your armor.");
        for (int i = between(0, 20); i > 0; --i)
            log.push_back({text(), between(0, 33), between(0, 31), any(), between(1, 19), 0});
        const auto corpses_before = corpses;
        const auto log_before = log;
        options().Data_Save();
        const std::string saved = Saved();

        options().GlobalSettings->SetChecked(!global);
        options().Data_Load(0);
        ASSERT_EQ(Saved(), saved) << "round " << round;
        EXPECT_EQ(options().GlobalSettings->Checked(), global);
        EXPECT_TRUE(std::ranges::equal(corpses, corpses_before, {}, fields, fields));
        EXPECT_TRUE(std::ranges::equal(log, log_before, {}, fields, fields));
    }
}

// Whatever became of the file, the evening begins, and what there was is kept.
TEST_F(DataTest, ACutOrForeignFileCostsNothing) {
    std::string whole = "<Ombrel>\r\t<Global enabled=\"True\"/>\r\t";
    for (int i = 0; i < 20; ++i)
        whole += fmt::format("<Log message=\"line {} &amp; more\" type=\"2\" color=\"2\" tag=\"1\" date=\"{}\"/>\r\t",
                             i, 1141560000 + i);
    whole += "\r</Ombrel>";
    std::vector<std::pair<std::string, std::string>> rows = {
        {"", "unreadable"},
        {std::string(4096, '\0'), "unreadable"},
        {"\xff\xfe<\0O\0", "unreadable"},
        {"{\"corpses\": []}", "unreadable"},
        {"<html><body><Log message=\"x\"/></body></html>", "not taken over"},
        {"<Settings><Log type=\"x\"/></Settings>", "not taken over"},
        {"<Ombrel><Corpse time=\"soon\"/></Ombrel>", "not taken over"}};
    for (std::size_t length = 1; length < whole.size(); length += 61)
        rows.push_back({whole.substr(0, length), "unreadable"});
    for (const auto& [content, reason] : rows) {
        SCOPED_TRACE(testing::PrintToString(content.substr(0, 60)));
        std::filesystem::remove_all(common_data.path() / "Ombrel/Data");
        common_data.Write(kFile, content);
        client.LoginComplete();
        client.Logoff(0);
        EXPECT_TRUE(Vars::Loaded);
        EXPECT_EQ(Kept(reason), content);
        pugi::xml_document document;
        EXPECT_TRUE(document.load_string(Saved().c_str())) << Saved();
        TakeReports();
        Vars::Loaded = false;
        Vars::LogHandler->Log.clear();
    }
}

TEST_F(DataTest, AKillAtAnyMomentLeavesTheFileOfBeforeOrTheNewOne) {
    auto& log = Vars::LogHandler->Log;
    for (std::int32_t i = 0; i < 100; ++i) log.push_back({"", 2, 2, i, 1, 0});
    std::set<std::size_t> sizes;
    const auto save = [&](int i) {
        for (auto& line : log) line.message.assign(i % 2 == 0 ? 400 : 40, i % 2 == 0 ? 'x' : 'y');
        options().Data_Save();
    };
    for (const int i : {0, 1}) {
        save(i);
        sizes.insert(Saved().size());
    }
    for (int kill = 0; kill < Kills(); ++kill) {
        KillWhileDoing(save);
        ASSERT_THAT(sizes, Contains(Saved().size())) << "kill " << kill;
        options().Data_Load(0);
        ASSERT_EQ(log.size(), 100U) << "kill " << kill;
        for (const auto& line : log) ASSERT_EQ(line.message, log[0].message);
        ASSERT_EQ(Kept("unreadable") + Kept("not taken over"), "");
    }
}

}  // namespace
}  // namespace ombrel::test
