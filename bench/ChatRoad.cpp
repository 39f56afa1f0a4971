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

void WholeRoad(benchmark::State& state, bool log_view) {
    Game game;
    Vars::ControlHandler->ChatLogEnable->SetChecked(log_view);
    Measure(state, static_cast<std::int64_t>(ChatLines().size()), [&] {
        for (const Line& line : ChatLines()) benchmark::DoNotOptimize(game.client.ChatText(line.text, line.type, 0));
    });
}

void SortingAlone(benchmark::State& state) {
    Game game;
    const OmbrelSorter sorter;
    Measure(state, static_cast<std::int64_t>(ChatLines().size()), [&] {
        for (const Line& line : ChatLines()) {
            benchmark::DoNotOptimize(sorter.Row(line));
        }
    });
}

}  // namespace

void AddChatRoad() {
    const std::string subject = "A chat line, from the client and back/";
    benchmark::RegisterBenchmark((subject + "all stages").c_str(), WholeRoad, false);
    benchmark::RegisterBenchmark((subject + "all stages and the log view, whose lines are saved").c_str(), WholeRoad,
                                 true);
    benchmark::RegisterBenchmark((subject + "sorting alone").c_str(), SortingAlone);
}

}  // namespace ombrel::bench
