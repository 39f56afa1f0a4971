#include "core/Hub.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <new>
#include <stdexcept>

#include "chat/ChatTextHandler.h"
#include "core/FilterHandler.h"
#include "core/failure.h"
#include "tests/core/ServicesTest.h"

namespace ombrel {
namespace {

const std::string kRule = std::string(80, '-') + "\r\n";
const std::string kVersionLine = "Ombrel v1.1.0 (7/4/2024 1:05:09 PM)";

using test::Line;

class Hub : public ServicesTest {
protected:
    ~Hub() override {
        Vars::ChatTextHandler.Release();
        Vars::FilterHandler.Release();
    }

    // The chat writers' way to the client; nothing else of the plug-in works.
    void OpenChat() {
        Vars::FilterHandler = std::make_unique<FilterHandler>();
        Vars::ChatTextHandler = std::make_unique<ChatTextHandler>();
        Vars::FilterHandler->ACHooks = client.site().GetHooks();
        Forget();
        std::filesystem::remove_all(documents.path() / "Asheron's Call");
        ErrorLogBusy = false;
    }

    std::string Errors() const { return documents.Read("Asheron's Call/Ombrel Errors.txt"); }
    std::string Debug() const { return documents.Read("Asheron's Call/Ombrel Debug.txt"); }
};

TEST_F(Hub, TimeSpansReadAsClocksAndWords) {
    const struct {
        double seconds;
        std::int32_t style;
        bool showSign;
        const char* text;
    } cases[] = {{0, 1, false, "00:00:00"},
                 {0, 0, false, ""},
                 {0, 10, false, ""},
                 {307, 0, false, "05:07"},
                 {307.9, 0, false, "05:07"},
                 {5, 0, false, "05"},
                 {65, 0, false, "01:05"},
                 {600, 0, false, "10:00"},
                 {3600, 0, false, "1:00:00"},
                 {3600, 2, false, "01:00:00"},
                 {36000, 0, false, "10:00:00"},
                 {3907, 1, false, "01:05:07"},
                 {86400, 1, false, "00:00:00"},
                 {90061, 0, false, "1:01:01"},
                 {-75, 1, true, "-00:01:15"},
                 {-75, 0, true, "-01:15"},
                 {-75, 1, false, "00:00:00"},
                 {-75, 0, false, ""}};
    for (const auto& row : cases) EXPECT_EQ(ConvTime(row.seconds, row.style, row.showSign), row.text) << row.seconds;
    EXPECT_EQ(ConvTime(86400, 10, false), "1 Days, 0 Hours, 0 Minutes, 0 Seconds");
    EXPECT_EQ(ConvTime(3660, 10, false), "1 Hours, 1 Minutes, 0 Seconds");
    EXPECT_EQ(ConvTime(61, 10, false), "1 Minutes, 1 Seconds");
    EXPECT_EQ(ConvTime(59, 10, false), "59 Seconds");
    EXPECT_EQ(ConvTime(-75, 10, true), "1 Minutes, 15 Seconds");
}

TEST_F(Hub, CountsAreGroupedByThousands) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {7, "7"},
        {999, "999"},
        {1000, "1,000"},
        {1234567, "1,234,567"},
        {-999, "-999"},
        {-1000, "-1,000"},
        {-123456, "-123,456"},
        {2.5, "3"},
        {999.5, "1,000"},
        {0.4, "0"},
        {-1, "-1"},
        {191226310247.0, "191,226,310,247"},
        {9007199254740991.0, "9,007,199,254,740,991"},
        {18446744073709551616.0, "18,446,744,073,709,551,616"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(FormatCount(value, false), text);
    EXPECT_EQ(FormatCount(-1, true), "Infinate");
    EXPECT_EQ(FormatCount(-2, true), "-2");
}

TEST_F(Hub, RoundsAndTakesRemainders) {
    EXPECT_EQ(RoundUp(1.1), 2.0);
    EXPECT_EQ(RoundUp(-1.9), -1.0);
    EXPECT_EQ(RoundDown(-1.1), -2.0);
    EXPECT_EQ(FMod(75, 60), 15.0);
    EXPECT_EQ(FMod(0, 60), -60.0);
    EXPECT_EQ(FMod(-75, 60), -15.0);
    EXPECT_EQ(SignOf(-0.5), -1.0);
    EXPECT_EQ(SignOf(0), 0.0);
}

TEST_F(Hub, ColoursGoByName) {
    EXPECT_EQ(static_cast<std::uint32_t>(ConvertColor("Peach", 10)), 0xFFFFE5B4u);
    EXPECT_EQ(static_cast<std::uint32_t>(ConvertColor("Blue", 3)), 0x4D4040FFu);
    EXPECT_EQ(ConvertColor("Black", 0), 0);
    EXPECT_EQ(static_cast<std::uint32_t>(ConvertColor("Mauve", 9)), 0xE6FFFFFFu);
    EXPECT_EQ(static_cast<std::uint32_t>(ConvertColor("red", -1)), 0xFFFFFFFFu);
    EXPECT_EQ(static_cast<std::uint32_t>(GetHUDOutlineColor("Black")), 0xFFFFFFFFu);
    EXPECT_EQ(static_cast<std::uint32_t>(GetHUDOutlineColor("White")), 0xFF000000u);
    EXPECT_EQ(GetColorFromIcon("White"), 101);
    EXPECT_EQ(GetColorFromIcon("Mauve"), 101);
    EXPECT_EQ(GetColorFromHUDIcon(114), "White");
    EXPECT_EQ(GetColorFromHUDIcon(132), "White");
    for (std::int32_t icon = 115; icon <= 131; ++icon) EXPECT_EQ(GetColorFromIcon(GetColorFromHUDIcon(icon)), icon);
    EXPECT_EQ(GetColorFromHUDIcon(131), "Light Orange");
}

TEST_F(Hub, AFolderThatIsNotThereIsAnErrorTextThatNoFileIsMadeUnder) {
    client.system.documents = std::string("/home/tom\0\0\0", 12);
    EXPECT_EQ(GetMyDoc(), "/home/tom");
    client.system.documents_status = 1;
    EXPECT_EQ(GetMyDoc(), "Folder Does Not Exist");
    client.system.common_data_status = 0x80070057;
    EXPECT_EQ(GetDataFolder(), "Folder Not Valid on this OS");
    client.system.common_data_status = 0;
    client.system.common_data = "";
    EXPECT_EQ(GetDataFolder(), "Folder Not Valid on this OS");
}

TEST_F(Hub, AReportLeavesABlockInTheErrorLog) {
    ErrorReport("DoThis", "TimerHandler", 91, "Object variable not set", 0);
    const auto first = kRule + kVersionLine + "\r\nError #91 occured in 'DoThis' of class 'TimerHandler'\r\n" +
                       "Object variable not set\r\n" + kRule;
    EXPECT_EQ(Errors(), first);
    ErrorReport("ConvTime", "!Hub", 6, "", 120);
    EXPECT_EQ(Errors(),
              first + kVersionLine + "\r\nError #6 occured in 'ConvTime' of module 'Hub' at line 120\r\n" + kRule);
    ErrorReport("Load", "@Main", 5, "", 0);
    EXPECT_THAT(Errors(), HasSubstr("'Load' of form 'Main'\r\n"));
    EXPECT_EQ(Debug(), "");
}

TEST_F(Hub, AReportIsToldInChatUnlessItComesFromDebugOrChatFails) {
    OpenChat();
    ErrorReport("DoThis", "TimerHandler", 91, "", 0);
    ErrorReport("Debug", "TimerHandler", 92, "", 0);
    EXPECT_THAT(lines, ElementsAre(Line{"<Ombrel> Error #91 occured in 'DoThis' of class 'TimerHandler'", 6, 1}));
    EXPECT_THAT(Errors(), HasSubstr("#92"));

    lines.clear();
    const auto chat_out = *sim::FindOperation("ACHooks.ChatOut");
    const auto tried = client.calls.Count(chat_out);
    client.calls.Fail(chat_out, 9, 5, "");
    ErrorReport("DoThis", "TimerHandler", 91, "", 0);
    EXPECT_EQ(client.calls.Count(chat_out), tried + 1);
    EXPECT_THAT(Errors(), HasSubstr("Error #91 occured in 'DoThis'"));
    EXPECT_THAT(Errors(), HasSubstr("Error #5 occured in 'WriteToChatWindow' of class 'FilterHandler'"));

    client.calls.ClearFailures();
    ErrorReport("DoThis", "TimerHandler", 91, "", 0);
    EXPECT_EQ(lines.size(), 1u);
    Vars::ChatTextHandler.Release();
    ErrorReport("DoThis", "TimerHandler", 93, "", 0);
    EXPECT_EQ(lines.size(), 1u);
}

TEST_F(Hub, AnErrorLogThatFailedStaysBusyWhileChatGoesOn) {
    OpenChat();
    client.system.documents_status = 1;
    ErrorReport("DoThis", "TimerHandler", 91, "", 0);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_THAT(lines[0].text, HasSubstr("'DoThis'"));
    EXPECT_THAT(lines[1].text, HasSubstr("Error #76 occured in 'ErrorReport' of module 'Hub'"));
    EXPECT_TRUE(ErrorLogBusy);

    client.system.documents_status = 0;
    ErrorReport("DoThis", "TimerHandler", 92, "", 0);
    EXPECT_EQ(lines.size(), 3u);
    EXPECT_EQ(Errors(), "");
}

TEST_F(Hub, DebugLinesGoToTheirLogAndPastAllRulesToChat) {
    OpenChat();
    wtcw_debug("nobody listens");
    EXPECT_EQ(Debug(), "");
    Vars::DebugMode = true;
    wtcw_debug("one");
    Vars::DebugSilent = true;
    wtcw_debug("two");
    ErrorReport("DoThis", "!Hub", 5, "why", 0);
    EXPECT_EQ(Debug(), kVersionLine + " - one\r\n" + kVersionLine + " - two\r\n" + kVersionLine +
                           " - Error #5 occured in 'DoThis' of module 'Hub', why\r\n");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], (Line{"<Ombrel-Debug> one", 32, 1}));
    EXPECT_EQ(lines[1].color, 6);
    Vars::DebugMode = false;
}

TEST_F(Hub, ADebugLogThatFailedIsToldOfOnceAndInTheErrorLogOnly) {
    OpenChat();
    AppendFile(Path("Asheron's Call\\Ombrel Debug.txt\\in the way"), "");
    Vars::DebugMode = true;
    wtcw_debug("one");
    wtcw_debug("two");
    Vars::DebugMode = false;
    EXPECT_TRUE(DebugLogBusy);
    const auto errors = Errors();
    const auto told = errors.find("occured in 'wtcw_debug' of module 'Hub'");
    EXPECT_NE(told, std::string::npos);
    EXPECT_EQ(errors.find("occured in", told + 1), std::string::npos);
    EXPECT_THAT(lines, ElementsAre(Line{"<Ombrel-Debug> one", 32, 1}, Line{"<Ombrel-Debug> two", 32, 1}));
}

TEST_F(Hub, ReportsBeforeThereIsAnythingDoNoHarm) {
    Vars::Platform = {};
    Vars::DebugMode = true;
    wtcw("text");
    wtcw_error("text");
    wtcw_debug("text");
    ErrorReport("DoThis", "!Hub", 5, "", 0);
    EXPECT_EQ(GetMyDoc(), "Folder Not Valid on this OS");
    Vars::DebugMode = false;
    EXPECT_FALSE(ErrorLogBusy);  // what was missing was not the file
    Vars::Platform = &client.platform();
    ErrorReport("DoThis", "!Hub", 5, "", 0);
    EXPECT_THAT(Errors(), HasSubstr("Error #5"));
}

TEST_F(Hub, WhateverIsThrownIsReportedByItsKind) {
    const auto file_error = [](std::errc code) {
        return [code] { throw std::filesystem::filesystem_error("reading", std::make_error_code(code)); };
    };
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[] { throw Failure(failure::kSubscript); },
         "Error #9 occured in 'P' of class 'C'\r\nSubscript out of range\r\n"},
        {[] { throw Failure(13, "no number"); }, "Error #13 occured in 'P' of class 'C'\r\nno number\r\n"},
        {[] { throw std::bad_alloc(); }, "Error #7 occured in 'P' of class 'C'\r\nOut of memory\r\n"},
        {[] { throw std::runtime_error("odd"); }, "Error #5 occured in 'P' of class 'C'\r\nodd\r\n"},
        {[] { throw 1; }, "Error #5 occured in 'P' of class 'C'\r\nInvalid procedure call or argument\r\n"},
        {file_error(std::errc::no_such_file_or_directory), "Error #53 "},
        {file_error(std::errc::permission_denied), "Error #70 "},
        {file_error(std::errc::is_a_directory), "Error #75 "},
        {file_error(std::errc::not_a_directory), "Error #76 "},
        {file_error(std::errc::no_space_on_device), "Error #61 "},
        {file_error(std::errc::io_error), "Error #57 "},
    };
    for (const auto& [procedure, expected] : cases) {
        std::filesystem::remove_all(documents.path() / "Asheron's Call");
        try {
            procedure();
        } catch (...) {
            ReportFailure("P", "C");
        }
        EXPECT_THAT(Errors(), HasSubstr(expected));
    }
}

TEST_F(Hub, ASoundPlaysWhenItsFileIsThere) {
    OpenChat();
    AppendFile(Path("Sounds\\ping.wav"), "RIFF");
    PlayWavFile("ping.wav");
    PlayWavFile("none.wav");
    EXPECT_THAT(CallsOf("sndPlaySound"), ElementsAre("sndPlaySound path=" + Path("Sounds\\ping.wav") + " flags=3"));
    EXPECT_THAT(lines,
                ElementsAre(Line{"<Ombrel> PlaySoundError: none.wav was not found in your install directory.", 6, 1}));
}

TEST_F(Hub, AClickLandsInTheWindowAndTheCursorGoesBack) {
    client.system.cursor = {7, 8};
    SendClick(20, 10);
    EXPECT_EQ(client.calls.Count(*sim::FindOperation("Platform.ClientToScreen")), 1u);
    EXPECT_THAT(calls, ElementsAre("SetCursorPos x=20 y=10", "mouse_event flags=2", "mouse_event flags=4",
                                   "SetCursorPos x=7 y=8"));
}

}  // namespace
}  // namespace ombrel
