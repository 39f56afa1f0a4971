#include <fmt/format.h>

#include <set>
#include <string>

#include "chat/LogHandler.h"
#include "corpses/CorpseHandler.h"
#include "spells/SpellHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

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

TEST_F(DataTest, WhatWasLearnedComesBack) {
    const std::string text =
        "<Ombrel>\r\t<Global enabled=\"True\"/>\r\t"
        "<Corpse ns=\"-.5\" ew=\"12.3\" time=\"1141570000\" dungeon=\"False\" guid=\"-2147480000\" data=\"Two "
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

TEST_F(DataTest, ABrokenFileIsKept) {
    for (const std::string_view text : {"<Ombrel><Log message=\"a", "", "scrap"}) {
        std::filesystem::remove_all(common_data.path() / "Ombrel/Data");
        Load(text);
        EXPECT_EQ(Saved(), kEmpty);
        EXPECT_EQ(Kept("unreadable"), text);
    }
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

}  // namespace
}  // namespace ombrel::test
