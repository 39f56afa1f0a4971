// The program itself: its options, its exit statuses, its streams.

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>

#include "adapters/sim/draw/Picture.h"
#include "core/files.h"
#include "tests/replay/Replay.h"

namespace ombrel::sim {
namespace {

namespace fs = std::filesystem;

class Program : public testing::Test {
protected:
    // Runs the program in the scratch folder; arguments as for a shell.
    int Run(const std::string& arguments) {
        const std::string command = "cd '" + folder.path.string() +
                                    "' && env -u CLICOLOR_FORCE TMPDIR=. '" OMBREL_REPLAY "' " + arguments +
                                    " >out 2>err";
        const int status = std::system(command.c_str());
        out = Content("out");
        err = Content("err");
        return WEXITSTATUS(status);
    }

    std::string Content(const char* name) const { return ReadFile((folder.path / name).string()); }

    void Write(const char* name, const std::string& text) {
        std::ofstream(folder.path / name, std::ios::binary) << text;
    }

    std::vector<nlohmann::json> Lines(const std::string& text) {
        std::vector<nlohmann::json> lines;
        std::istringstream input(text);
        for (std::string line; std::getline(input, line);) lines.push_back(nlohmann::json::parse(line));
        return lines;
    }

    ScratchFolder folder;
    std::string out, err;
};

const std::string kExample = test::SourceFolder() + "/tests/replay/cases/example.jsonl";

TEST_F(Program, PlaysTheExampleOfTheFormat) {
    ASSERT_EQ(Run("--calls - " + kExample), 0) << err;
    std::istringstream expected(ReadFile(test::SourceFolder() + "/tests/replay/cases/example.expected.jsonl"));
    std::size_t position = 0;
    for (std::string line; std::getline(expected, line);) {
        const std::size_t found = out.find(line + "\n", position);
        ASSERT_NE(found, std::string::npos) << "missing, or out of order: " << line << "\nin\n" << out;
        position = found;
    }
    EXPECT_EQ(err, "");

    const std::string first = out;
    Run("--calls - " + kExample);
    EXPECT_EQ(out, first);
    for (const auto& entry : fs::directory_iterator(folder.path)) {
        EXPECT_THAT(entry.path().filename().string(), Not(HasSubstr("ombrel-replay"))) << "left behind";
    }
}

TEST_F(Program, TellsTheFileAndLineOfAWrongRecord) {
    Write("a.jsonl", "{\"note\": \"fine\"}\n\n{\"event\": \"Char_Jump\"}\n{\"note\": \"never\"}\n");
    EXPECT_EQ(Run("--calls calls.jsonl a.jsonl"), 2);
    EXPECT_EQ(err, "ombrel-replay: a.jsonl:3: unknown event \"Char_Jump\"\n");
    EXPECT_EQ(Content("calls.jsonl"), "{\"at\": 0.0, \"note\": \"fine\"}\n");

    Write("behind.jsonl", "{\"at\": 5, \"note\": \"a\"}\n{\"at\": 4, \"note\": \"b\"}\n");
    EXPECT_EQ(Run("--calls - - < behind.jsonl"), 2);
    EXPECT_EQ(err, "ombrel-replay: standard input:2: the moment lies behind\n");
}

TEST_F(Program, RefusesAWrongCommandLineInOneLine) {
    Write("a.jsonl", "");
    for (const char* arguments : {"", "--nothing a.jsonl", "--trace chat,weather a.jsonl", "missing.jsonl",
                                  "--calls . a.jsonl", "--calls no/such/folder a.jsonl", "--chat missing.tsv",
                                  "--plugin-folder missing a.jsonl", "--spells missing.tsv a.jsonl", "."}) {
        EXPECT_EQ(Run(arguments), 2) << arguments;
        EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
        EXPECT_EQ(out, "") << arguments;
    }
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_THAT(out, HasSubstr("--common-data"));
}

TEST_F(Program, FailsWhereItsOutputCannotBeWritten) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "waits for a machine with /dev/full, a file on a full disk";
    EXPECT_EQ(Run("--calls /dev/full " + kExample), 1);
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
}

// The evening ends with the plug-in, so what shows is how it looked till then.
TEST_F(Program, DrawsTheEndOfASession) {
    Write("area.jsonl", "{\"set\": \"hooks\", \"Region3D\": [0, 0, 400, 300]}\n");
    Write("login.jsonl", "{\"event\": \"Char_LoginComplete\"}\n");
    Write("end.jsonl", "{\"event\": \"Terminate\"}\n");
    ASSERT_EQ(Run("--calls - --screenshot empty.png area.jsonl"), 0) << err;
    ASSERT_EQ(Run("--calls - --screenshot huds.png area.jsonl login.jsonl"), 0) << err;
    ASSERT_EQ(Run("--calls - --screenshot end.png area.jsonl login.jsonl end.jsonl"), 0) << err;

    const Picture picture = Picture::Read((folder.path / "huds.png").string());
    EXPECT_EQ(picture.width(), 400);
    EXPECT_EQ(picture.height(), 300);
    EXPECT_NE(Content("huds.png"), Content("empty.png"));
    EXPECT_EQ(Content("huds.png"), Content("end.png"));

    EXPECT_EQ(Run("--calls - --screenshot nowhere/huds.png area.jsonl"), 1);
    EXPECT_THAT(err, MatchesRegex("ombrel-replay: nowhere/huds.png: .*\n"));
}

TEST_F(Program, PutsNothingIntoAFolderThatIsNamed) {
    fs::create_directory(folder.path / "mine");
    Write("a.jsonl", "{\"event\": \"Initialize\"}\n");
    ASSERT_EQ(Run("--documents docs --common-data mine a.jsonl"), 0) << err;
    EXPECT_TRUE(fs::is_empty(folder.path / "mine"));
}

TEST_F(Program, PrintsWhatAPlayerReads) {
    Write("a.jsonl",
          "{\"event\": \"Char_LoginComplete\"}\n"
          "{\"at\": 65, \"event\": \"ACHooks_ChatTextIntercept\", \"text\": \"Hello there\\n\", \"color\": 2, "
          "\"window\": 0}\n");
    ASSERT_EQ(Run("a.jsonl"), 0) << err;
    EXPECT_THAT(out, HasSubstr("[00:00:00] [main] <Ombrel> Plugin Loaded!"));
    EXPECT_THAT(out, HasSubstr("[00:01:05] [main] Hello there\n"));
    EXPECT_THAT(out, Not(HasSubstr("\x1b")));

    ASSERT_EQ(Run("--calls - a.jsonl"), 0);
    EXPECT_NO_THROW(Lines(out));
    EXPECT_EQ(err, "");
    ASSERT_EQ(Run("--calls - --transcript a.jsonl"), 0);
    EXPECT_NO_THROW(Lines(out));
    EXPECT_THAT(err, HasSubstr("Hello there"));
}

TEST_F(Program, FeedsChatLinesAfterALogin) {
    Write("chat.tsv", "type\ttext\n2\tHello\\nthere\tnote\n-1\tToo busy\n");
    ASSERT_EQ(Run("--calls - --trace chat --chat chat.tsv"), 0) << err;
    const auto lines = Lines(out);
    ASSERT_GE(lines.size(), 3u);
    EXPECT_THAT(out, HasSubstr("Plugin Loaded!"));
    EXPECT_EQ(lines[lines.size() - 2]["result"], "ACHooks_ChatTextIntercept");
    EXPECT_EQ(lines.back()["result"], "ACHooks_StatusTextIntercept");

    Write("a.jsonl", "{\"note\": \"no login\"}\n");
    ASSERT_EQ(Run("--calls - --chat chat.tsv a.jsonl"), 0) << err;
    EXPECT_THAT(out, Not(HasSubstr("Plugin Loaded!")));
}

TEST_F(Program, PlaysSeveralSessionsInOneClient) {
    Write("a.jsonl", "{\"at\": 5, \"note\": \"a\"}\n");
    Write("b.jsonl", "{\"note\": \"b\"}\n");
    ASSERT_EQ(Run("--calls - a.jsonl b.jsonl"), 0) << err;
    EXPECT_EQ(out, "{\"at\": 5.0, \"note\": \"a\"}\n{\"at\": 5.0, \"note\": \"b\"}\n");
}

}  // namespace
}  // namespace ombrel::sim
