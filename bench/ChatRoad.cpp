// The whole road of a chat line, from the client's event to its last stage, beside the sorting that it holds.
#include <string>

#include "bench/ChatLines.h"
#include "bench/Game.h"
#include "bench/OmbrelSorter.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"

namespace ombrel::bench {
namespace {

// The lines that set nothing off: no call of the plug-in, no copy of its own. Most lines of an evening are such; what
// the others cost is what they set off, experience and displays, and not the road.
std::vector<Line> QuietLines() {
    Game game;
    bool quiet = true;
    game.client.calls.listener = [&quiet](const sim::Call&) { quiet = false; };
    std::vector<Line> lines;
    for (const Line& line : ChatLines()) {
        quiet = true;
        const bool eaten = game.client.ChatText(line.text, line.type, 0);
        if (quiet && !eaten) lines.push_back(line);
    }
    return lines;
}

void WholeRoad(benchmark::State& state, const std::vector<Line>& lines, bool log_view) {
    Game game;
    Vars::ControlHandler->ChatLogEnable->SetChecked(log_view);
    Measure(state, static_cast<std::int64_t>(lines.size()), [&] {
        for (const Line& line : lines) benchmark::DoNotOptimize(game.client.ChatText(line.text, line.type, 0));
    });
}

void QuietRoad(benchmark::State& state) { WholeRoad(state, QuietLines(), false); }
void EveryRoad(benchmark::State& state) { WholeRoad(state, ChatLines(), false); }
void LoggedRoad(benchmark::State& state) { WholeRoad(state, ChatLines(), true); }

void SortingAlone(benchmark::State& state) {
    Game game;
    const OmbrelSorter sorter;
    const std::vector<Line> lines = QuietLines();
    Measure(state, static_cast<std::int64_t>(lines.size()), [&] {
        for (const Line& line : lines) {
            benchmark::DoNotOptimize(sorter.Row(line));
        }
    });
}

}  // namespace

void AddChatRoad() {
    const std::string subject = "A chat line that sets nothing off, from the client and back/";
    benchmark::RegisterBenchmark((subject + "all stages").c_str(), QuietRoad);
    benchmark::RegisterBenchmark((subject + "sorting alone").c_str(), SortingAlone);
    const std::string all = "Any chat line, with what it sets off/";
    benchmark::RegisterBenchmark((all + "all stages").c_str(), EveryRoad);
    benchmark::RegisterBenchmark((all + "and the log view, whose lines are saved").c_str(), LoggedRoad);
}

}  // namespace ombrel::bench
