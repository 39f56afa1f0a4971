#include "chat/LogHandler.h"
#include "core/cells.h"
#include "tests/config/ViewTest.h"

namespace ombrel::test {
namespace {

class LogControlsTest : public ViewTest {
protected:
    static LogHandler& log() { return *Vars::LogHandler; }

    bool HaveLog(const char* file) const {
        return std::filesystem::exists(documents.path() / "Asheron's Call/Logs" / file);
    }

    void SetUp() override { LogIn(); }

    void KeepLines() {
        Check("Chat_Log_Enable", true);
        for (std::int32_t row = 0; row < options().ChatLogOptions->Count(); ++row)
            options().ChatLogOptions->SetData(2, row, true);
        for (const char* text : {"Tom says, \"apples\"", "Ann says, \"pears\""}) log().AddToLog(text, 2, 2);
        Forget();
        Saved();
    }

    std::vector<std::string> Shown() const {
        std::vector<std::string> rows;
        for (std::int32_t row = 0; row < options().ChatLogView->Count(); ++row)
            rows.push_back(CellText(*options().ChatLogView, 0, row));
        return rows;
    }
};

TEST_F(LogControlsTest, ThePlayerSearchesFiltersTurnsAndEmptiesTheView) {
    KeepLines();
    const std::string apples = "Tom says, \"apples\"", pears = "Ann says, \"pears\"";
    auto& search = Control<sim::SimEdit>("Chat_Log_Search");
    search.Type("tom");
    EXPECT_THAT(Shown(), ElementsAre(apples));

    // Leaving the field searches only for what is new.
    options().ChatLogView->SetData(0, 0, std::string("untouched"));
    search.Finish();
    EXPECT_THAT(Shown(), ElementsAre("untouched"));
    search.PutText("");
    search.Finish();
    EXPECT_THAT(Shown(), ElementsAre(pears, apples));

    Press("Chat_Log_Dir");
    EXPECT_THAT(Shown(), ElementsAre(apples, pears));
    Press("Chat_Log_Dir");
    EXPECT_THAT(Shown(), ElementsAre(pears, apples));

    Control<sim::SimChoice>("Chat_Log_Filter").Select(2);
    EXPECT_THAT(Shown(), IsEmpty());
    Control<sim::SimChoice>("Chat_Log_Filter").Select(1);
    EXPECT_THAT(Shown(), ElementsAre(pears, apples));

    auto& view = Control<sim::SimList>("Chat_Log_View");
    view.Click(0, 1);
    view.Click(0, 2);
    view.Click(0, -1);
    EXPECT_THAT(Texts(), ElementsAre("---<3/5/2006 12:00:00 PM> " + apples));

    auto& max = Control<sim::SimEdit>("Chat_Log_Max");
    max.Type("1");
    EXPECT_EQ(Shown().size(), 2u) << "while the player types";
    max.Finish();
    EXPECT_THAT(Shown(), ElementsAre(pears));
    for (const char* typed : {"many", "99999999999"}) {
        max.Type(typed);
        max.Finish();
        EXPECT_THAT(Shown(), ElementsAre(pears));
    }
    EXPECT_THAT(TakeReports(), IsEmpty());

    Press("Chat_Log_Clear");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_THAT(log().Log, IsEmpty());
}

TEST_F(LogControlsTest, AutomaticLoggingStartsAtOnceAndIsNotStoppedByItsBox) {
    options().ChatLogByDate->SetChecked(false);
    Check("Chat_Log_Auto", true);
    EXPECT_TRUE(log().FileLogging());
    EXPECT_EQ(log().logfile(), "Frostfell_Aldra");
    EXPECT_TRUE(HaveLog("Frostfell_Aldra.txt"));
    Check("Chat_Log_Auto", false);
    EXPECT_TRUE(log().FileLogging());

    // A log that is open keeps its name.
    log().SetLogfile("by hand");
    Check("Chat_Log_Auto", true);
    EXPECT_EQ(log().logfile(), "by hand");
}

TEST_F(LogControlsTest, NameAndFormatFollowTheirBoxes) {
    Check("Chat_Log_By_Date", true);
    EXPECT_EQ(log().logfile(), "Frostfell_Aldra_2006-03-05");
    EXPECT_FALSE(log().FileLogging());
    Check("Chat_Log_By_Date", false);
    EXPECT_EQ(log().logfile(), "Frostfell_Aldra");

    options().ChatLogOptions->SetData(4, options().FindName("Other", "ChatLog"), true);
    log().SetFileLogging(true);
    log().AddToLog("first", 31, 2);
    Check("Chat_Log_XML", true);
    EXPECT_EQ(log().logfile(), "Frostfell_Aldra");
    Advance(1s);
    EXPECT_TRUE(HaveLog("Frostfell_Aldra.xml"));
    Check("Chat_Log_XML", false);
    log().AddToLog("second", 31, 2);
    Advance(1s);
    EXPECT_THAT(documents.Read("Asheron's Call/Logs/Frostfell_Aldra.txt"), HasSubstr("second"));

    std::filesystem::remove_all(documents.path() / "Asheron's Call/Logs");
    documents.Write("Asheron's Call/Logs", "in the way");
    Check("Chat_Log_By_Date", true);
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'ChatLogByDate_Change' of class 'ControlHandler'")));
}

TEST_F(LogControlsTest, GoingAwayIsTheClientsOwnCommandAndRowsOfTheLogAreSaved) {
    Saved();
    Click("Chat_Log_Options", 2, 0);
    EXPECT_TRUE(Saved());
    Forget();
    Check("Chat_Log_AFK", true);
    Check("Chat_Log_AFK", false);
    EXPECT_THAT(CallsOf("InvokeChatParser"), AllOf(SizeIs(2), Each(HasSubstr("*afk*"))));
}

}  // namespace
}  // namespace ombrel::test
