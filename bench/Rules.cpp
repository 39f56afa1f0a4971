// A player's whole set of rules on every line, beside two clients of text games that have rules of the same kinds.
//
// All get the same lines and rules that mean the same, as far as the others can: a colour for each row of the pattern
// list, custom rules that colour what they find anywhere in a line, words to mask, aliases. Lines carry their type in
// front for the others, who know no types. What is compared is processor time, with start-up taken off. Ours includes
// the simulated client and its ticks, theirs the connection and the terminal.
#include <fmt/format.h>
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <stdexcept>

#include "bench/ChatLines.h"
#include "bench/Game.h"
#include "bench/MudClient.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"
#include "core/text.h"

namespace ombrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLines = 20'000;
constexpr std::size_t kLinesASecond = 100;
constexpr std::string_view kLastLine = "That was the last line.";

struct Scene {
    std::size_t custom_rules;
    bool log;
};

constexpr std::array<std::string_view, 20> kWords = {"fool", "troll", "crow", "wart", "hare", "slashing", "bludgeon",
                                                     "plum", "gnat",  "toad", "weed", "soot", "moth",     "crab",
                                                     "pike", "mule",  "lard", "snow", "lamp", "salt"};

// What custom rules look for: in some lines, and for the most part in none.
std::vector<std::string> CustomTexts(std::size_t count) {
    constexpr std::array<std::string_view, 20> kTexts = {"rare item",  "lifestone", "portal", "Pyreal", "salvage",
                                                         "fellowship", "luminance", "quest",  "key",    "chest",
                                                         "vendor",     "trophy",    "arrow",  "shield", "allegiance",
                                                         "corpse",     "Korvus",    "Maeve",  "health", "components"};
    std::vector<std::string> texts(kTexts.begin(), kTexts.end());
    for (std::size_t i = kTexts.size(); i < count; ++i)
        texts.push_back(fmt::format("{} {}", kTexts[i % kTexts.size()], i));
    texts.resize(count);
    return texts;
}

std::vector<Line> Lines() {
    std::vector<Line> lines;
    for (std::size_t i = 0; i < kLines; ++i) {
        Line line = ChatLines()[i % ChatLines().size()];
        line.text = Replace(line.text, "\n", " ");
        lines.push_back(std::move(line));
    }
    return lines;
}

double ProcessorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void SwitchAllOn(host::List& list, std::int32_t column) {
    for (std::int32_t row = 0; row < list.Count(); ++row) list.SetData(column, row, true);
}

void SetUpRules(const Scene& scene) {
    ControlHandler& controls = *Vars::ControlHandler;
    ChatTextHandler& chat = *Vars::ChatTextHandler;
    controls.ChatLogEnable->SetChecked(false);

    host::List& colors = *controls.ChatColor;
    SwitchAllOn(colors, 0);
    for (std::int32_t row = 0; row < colors.Count(); ++row) {
        colors.SetData(2, row, std::string("M"));
        colors.SetData(3, row, chat.GetIconFromColor("Light Blue"), 1);
    }
    for (const std::string& text : CustomTexts(scene.custom_rules)) {
        host::List& list = *controls.ChatCustom;
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, true);
        list.SetData(1, row, "*" + text + "*");
        list.SetData(2, row, std::string("M"));
        list.SetData(3, row, std::string("All"));
        list.SetData(4, row, chat.GetIconFromColor("Red"), 1);
        list.SetData(5, row, std::string("None"));
    }
    for (const std::string_view word : kWords) {
        host::List& list = *controls.ChatFilter;
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, true);
        list.SetData(1, row, std::string(word));
        list.SetData(2, row, std::string("Part"));
        list.SetData(3, row, std::string("Replace"));
    }
    for (std::size_t i = 0; i < kWords.size(); ++i) {
        host::List& list = *controls.ChatAlias;
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, true);
        list.SetData(1, row, fmt::format("zz{}", i));
        list.SetData(2, row, std::string("hello there"));
    }
    if (!scene.log) return;
    SwitchAllOn(*controls.ChatLogOptions, 4);
    controls.ChatLogXML->SetChecked(false);
    controls.ChatLogTimestamp->SetChecked(false);
    Vars::LogHandler->SetLogfile("bench");
    Vars::LogHandler->SetFileLogging(true);
}

void Ours(benchmark::State& state, const Scene& scene) {
    const std::vector<Line> lines = Lines();
    Game game;
    SetUpRules(scene);
    std::size_t recolored = 0;
    game.client.chat_listener = [&](const sim::Client::ChatLine& line) { recolored += line.from_plugin; };
    MeasureProcessor(state, static_cast<std::int64_t>(lines.size()), [&] {
        const double before = ProcessorSeconds();
        for (std::size_t i = 0; i < lines.size(); ++i) {
            benchmark::DoNotOptimize(game.client.ChatText(lines[i].text, lines[i].type, 1));
            if (i % kLinesASecond == kLinesASecond - 1) game.client.clock.Advance(std::chrono::seconds(1));
        }
        return ProcessorSeconds() - before;
    });
    game.client.chat_listener = nullptr;
    if (recolored < lines.size() / 2) state.SkipWithError("the rules did not work");
}

// A pattern of the list for another client: the three that are no text become what they stand for.
std::string Textual(const std::string& like) {
    static const std::map<std::string, std::string> kPseudo = {
        {"_KILL_", "You split *"}, {"_EXPIRE_", "*has expired."}, {"_NPC_", "*tells you*"}};
    const auto found = kPseudo.find(like);
    return found == kPseudo.end() ? like : found->second;
}

std::string WithEscapes(std::string_view text, std::string_view characters) {
    std::string escaped;
    for (const char character : text) {
        if (characters.find(character) != std::string_view::npos) escaped += '\\';
        escaped += character;
    }
    return escaped;
}

// TinTin++ takes patterns as regular expressions, where %* stands for anything. It tries every highlight on every line.
std::string TinTinRules(const Scene& scene, const std::vector<ChatListItem>& list) {
    const auto pattern = [](const std::string& like) {
        return Replace(WithEscapes(Replace(like, "[[]", "["), "[].(){}?+^$|"), "*", "%*");
    };
    std::string rules = "#config {LOG} {PLAIN}\n";
    for (const ChatListItem& item : list)
        rules += fmt::format("#highlight {{^{} {}}} {{light blue}}\n", item.color, pattern(Textual(item.TextIn)));
    for (const std::string& text : CustomTexts(scene.custom_rules))
        rules += fmt::format("#highlight {{%*{}%*}} {{light red}}\n", text);
    for (const std::string_view word : kWords)
        rules += fmt::format("#substitute {{{}}} {{{}}}\n", word, std::string(word.size(), '#'));
    for (std::size_t i = 0; i < kWords.size(); ++i) rules += fmt::format("#alias {{zz{}}} {{hello there}}\n", i);
    rules += "#event {SESSION DISCONNECTED} {#end}\n";
    if (scene.log) rules += "#event {SESSION CONNECTED} {#log {append} {chat.log}}\n";
    return rules;
}

// TinyFugue takes wildcards, and the first that matches by priority, as the colour rows do.
std::string TinyFugueRules(const Scene& scene, const std::vector<ChatListItem>& list) {
    std::string rules = "/set more off\n/visual off\n";
    int priority = 1000;
    for (const std::string_view word : kWords) {
        rules += fmt::format("/def -F -p{0} -mregexp -t\"{1}\" w{0} = /substitute -p -- %{{PL}}{2}%{{PR}}\n",
                             priority--, word, std::string(word.size(), '#'));
    }
    for (const std::string& text : CustomTexts(scene.custom_rules))
        rules += fmt::format("/def -p{0} -mglob -aCred -t\"*{1}*\" u{0}\n", priority--, text);
    for (const ChatListItem& item : list) {
        const std::string pattern = WithEscapes(Replace(Textual(item.TextIn), "[[]", "["), "[\"");
        rules += fmt::format("/def -p{0} -mglob -aCblue -t\"{1} {2}\" c{0}\n", priority--, item.color, pattern);
    }
    for (std::size_t i = 0; i < kWords.size(); ++i)
        rules += fmt::format("/def -mglob -h\"SEND zz{0}\" a{0} = /send hello there\n", i);
    rules += "/def -h\"DISCONNECT\" bye = /quit -y\n";
    if (scene.log) rules += "/log chat.log\n";
    return rules;
}

enum class Rival { kTinTin, kTinyFugue };

// One run with the lines, and one with a single line, whose time is start-up.
void Theirs(benchmark::State& state, const Scene& scene, Rival rival) {
    Game game;
    const auto& list = Vars::ChatTextHandler->ChatList;
    const bool tintin = rival == Rival::kTinTin;
    const fs::path home = game.folder() / "client";
    fs::create_directories(home);
    std::ofstream(home / "rules") << (tintin ? TinTinRules(scene, list) : TinyFugueRules(scene, list));
    const std::vector<std::string> command = tintin ? std::vector<std::string>{"/usr/games/tt++",
                                                                               "-G",
                                                                               "-T",
                                                                               "-r",
                                                                               "rules",
                                                                               "-e",
                                                                               "#session {game} {127.0.0.1} {PORT}"}
                                                    : std::vector<std::string>{"tf", "-frules", "127.0.0.1", "PORT"};

    const std::string last = fmt::format("0 {}\r\n", kLastLine);
    std::string all;
    for (const Line& line : Lines()) all += fmt::format("{} {}\r\n", line.type, line.text);
    all += last;
    try {
        MeasureProcessor(state, kLines, [&] {
            const double start = RunClient(command, home, last).seconds;
            fs::remove(home / "chat.log");
            const ClientRun run = RunClient(command, home, all);
            if (run.shown.find(kLastLine) == std::string::npos)
                throw std::runtime_error("lines are missing: " + run.shown);
            std::ifstream log(home / "chat.log");
            const auto logged = std::count(std::istreambuf_iterator<char>(log), {}, '\n');
            if (scene.log && logged < static_cast<std::ptrdiff_t>(kLines))
                throw std::runtime_error(fmt::format("{} lines in the log", logged));
            return run.seconds - start;
        });
    } catch (const std::exception& error) {
        state.SkipWithError(error.what());
    }
}

}  // namespace

void AddRules() {
    const std::pair<const char*, Scene> scenes[] = {
        {"A line by 44 colour rows, 20 words, 20 rules, processor time/", {20, false}},
        {"A line by 44 colour rows, 20 words, 200 rules, processor time/", {200, false}},
        {"A line by 44 colour rows, 20 words, 20 rules, into a text log/", {20, true}},
    };
    for (const auto& [name, scene] : scenes) {
        const std::string subject = name;
        for (auto* const each : {
                 benchmark::RegisterBenchmark((subject + "Ombrel").c_str(), Ours, scene),
                 benchmark::RegisterBenchmark((subject + "TinyFugue").c_str(), Theirs, scene, Rival::kTinyFugue),
                 benchmark::RegisterBenchmark((subject + "TinTin++").c_str(), Theirs, scene, Rival::kTinTin),
             })
            each->UseManualTime()->Iterations(1);
    }
}

}  // namespace ombrel::bench
