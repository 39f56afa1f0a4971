// The example sessions, as a player lives them: what is told at the end of the evening must be what happened.
#include <fmt/format.h>

#include "core/files.h"
#include "stats/Statistics.h"
#include "tests/replay/Replay.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

namespace fs = std::filesystem;

class ChatStories : public testing::Test {
protected:
    ChatStories() : replay("chat,command,input") {
        replay.client.chat_listener = [this](const sim::Client::ChatLine& line) {
            std::string text = line.text;
            if (text.ends_with('\n')) text.pop_back();
            read.push_back(fmt::format("[{}] {}", line.window, text));
        };
    }

    void Play(const std::string& name) {
        replay.PlayStory(name);
        for (const std::string& record : replay.Output()) {
            const sim::Json output = sim::Json::parse(record);
            const std::string call = output.value("call", "");
            if (call == "InvokeChatParser") sent.push_back(output["text"]);
            if (call == "keybd_event" && output["flags"] == 0) keys += static_cast<char>(output["key"].get<int>());
            if (output.contains("answer") && output.contains("text")) answers.push_back(output["text"]);
        }
    }

    std::string Document(const std::string& file) const {
        const std::string path = (replay.folder.path / "documents/Asheron's Call" / file).string();
        return FileExists(path) ? ReadFile(path) : "";
    }

    sim::Replay replay;
    std::vector<std::string> read;     // every line with its window, as the player reads it
    std::vector<std::string> sent;     // commands to the client
    std::vector<std::string> answers;  // texts of the controls that the session asks for
    std::string keys;                  // pressed, by key code
};

TEST_F(ChatStories, AHuntIsCountedRatedAndSurvived) {
    Play("a-hunt");
    EXPECT_THAT(read, IsSupersetOf({
                          "[1] <Ombrel> XP: 8,500. [ 26,747,084 XP to level ]",
                          "[1] You split Mosswart Feeder apart for 8,500 XP! It will take 26,747,084 XP to level. It "
                          "will take 3,147 similar kills to level. It will take 2 Days, 8 Hours, 48 Minutes, 56 "
                          "Seconds to level.",
                          "[1] <Ombrel> XP: 8,500 (Unassigned: 8,400, Skill: 100).  [ 26,738,584 XP to level ]",
                          "[1] <Ombrel> Tamsin Reed has made 37,500 XP in 1 Minutes, 35 Seconds for an average of "
                          "1,421,053 XP/Hr while killing 3 creatures.",
                          "[1] Armor Self VI has expired.",
                          "[1] The spell Blade Bane VI on your armor has expired.",
                          "[1] You cast Blade Bane VI on your armor.",
                          "[1] <Ombrel> My Corpse Location: 42.6N, 34.0E",
                          "[1] Your experience has reduced your Vitae penalty to 96%!",
                      }));
    EXPECT_THAT(read, Not(Contains(HasSubstr("Strength Self VI has expired")))) << "it was cast anew";
    EXPECT_THAT(read, Not(Contains(HasSubstr("Leather Boots")))) << "part of the armour";
    EXPECT_THAT(sent, Contains("/f My Corpse Location: 42.6N, 34.0E"));
    EXPECT_THAT(answers, ElementsAre("1,226,785,600", "27,746,600", "321,067,200", "0"));
    EXPECT_THAT(Document("Ombrel Errors.txt"), IsEmpty());
}

TEST_F(ChatStories, ANightOfTalkIsKeptDayByDay) {
    Play("past-midnight");
    EXPECT_THAT(read, IsSupersetOf({
                          HasSubstr("[1] [Fellowship] "),
                          HasSubstr("[3] [Fellowship] "),
                          HasSubstr("says, \"Darned! #### it, my left boot!\""),
                          HasSubstr("+Envoy Sela says, \"darn, the server restarts at dawn\""),
                          HasSubstr("[2] Mira Fenn is recalling"),
                          HasSubstr("[1] Somebody leaves."),
                      }));
    EXPECT_THAT(read, Not(Contains(HasSubstr("selling boots"))));
    EXPECT_THAT(sent, ElementsAre("thank you, Alden! Typhoon season is over.", "/wave", "*afk*",
                                  "/tell Mira Fenn, Auto Response: tea, back at midnight",
                                  "/tell Shopkeeper Orwen, Auto Response: tea, back at midnight", "*afk*"));
    EXPECT_EQ(keys, "\r\xBFTELL ALDEN QUILL") << "into the chat box, and left there";

    EXPECT_EQ(Document("Logs/Frostfell_Tamsin Reed_2006-03-06.txt"),
              "<3/6/2006 11:52:05 PM> Alden Quill says, \"Evening, Tamsin.\"\r\n"
              "<3/6/2006 11:52:05 PM> You say, \"thank you, Alden! Typhoon season is over.\"\r\n"
              "<3/6/2006 11:52:25 PM> [Fellowship] Mira Fenn says, \"Where is Tamsin?\"\r\n"
              "<3/6/2006 11:52:25 PM> [General] Brannoc says, \"Darned! #### it, my left boot!\"\r\n"
              "<3/6/2006 11:52:25 PM> +Envoy Sela says, \"darn, the server restarts at dawn\"\r\n"
              "<3/6/2006 11:52:25 PM> Mira Fenn is recalling to the lifestone.\r\n"
              "<3/6/2006 11:52:55 PM> Mira Fenn tells you, \"still there?\"\r\n"
              "<3/6/2006 11:52:55 PM> Shopkeeper Orwen tells you, \"Candles, tapers, and a fair price for both.\"\r\n"
              "<3/6/2006 11:56:55 PM> Mira Fenn tells you, \"half past something\"\r\n"
              "<3/6/2006 11:56:55 PM> You tell Mira Fenn, \"Back.\"\r\n"
              "<3/6/2006 11:58:55 PM> Alden Quill says, \"Almost tomorrow.\"\r\n");
    EXPECT_EQ(Document("Logs/Frostfell_Tamsin Reed_2006-03-07.txt"),
              "<3/7/2006 12:00:55 AM> Alden Quill says, \"And now it is.\"\r\n");
    EXPECT_EQ(Document("Logs/Lake Story.txt"),
              "<3/7/2006 12:00:58 AM> Alden Quill says, \"Tell me a story.\"\r\n"
              "<3/8/2006 12:00:58 AM> Alden Quill says, \"That was a long one.\"\r\n");
    EXPECT_THAT(Document("Ombrel Errors.txt"), IsEmpty());
}

}  // namespace
}  // namespace ombrel::test
