// An evening of chat through a session: 100,000 lines, with all calls of the plug-in recorded.
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>

#include "adapters/sim/Recorder.h"
#include "adapters/sim/SessionPlayer.h"
#include "adapters/sim/SessionReader.h"
#include "bench/ChatLines.h"
#include "bench/Game.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"

namespace ombrel::bench {
namespace {

constexpr int kLines = 100'000;

// Takes everything and keeps nothing.
class Nowhere final : public std::streambuf {
protected:
    int overflow(int character) override { return character; }
    std::streamsize xsputn(const char*, std::streamsize size) override { return size; }
};

// A hundred lines a second.
std::string Session() {
    std::string session;
    for (int i = 0; i < kLines; ++i) {
        const Line& line = ChatLines()[static_cast<std::size_t>(i) % ChatLines().size()];
        session += nlohmann::json{{"event", "ACHooks_ChatTextIntercept"},
                                  {"text", line.text + "\n"},
                                  {"color", line.type},
                                  {"window", 0},
                                  {"at", i / 100.0}}
                       .dump();
        session += '\n';
    }
    return session;
}

void Play(benchmark::State& state) {
    const std::string session = Session();
    Measure(state, kLines, [&] {
        Game game;
        Vars::ControlHandler->ChatLogEnable->SetChecked(false);
        Nowhere nowhere;
        std::ostream out(&nowhere);
        sim::Recorder recorder(out, game.client.clock);
        game.client.calls.listener = [&](const sim::Call& call) { recorder.Call(call); };
        sim::SessionPlayer player(game.client, &recorder);
        std::istringstream input(session);
        sim::SessionReader reader(input, "evening");
        while (const auto record = reader.Next()) player.Play(*record);
    });
}

void ReadOnly(benchmark::State& state) {
    const std::string session = Session();
    Measure(state, kLines, [&] {
        std::istringstream input(session);
        sim::SessionReader reader(input, "evening");
        while (const auto record = reader.Next()) benchmark::DoNotOptimize(record->json);
    });
}

}  // namespace

void AddReplay() {
    const std::string subject = "Replay 100,000 chat lines, a hundred a second/";
    benchmark::RegisterBenchmark((subject + "played and recorded, with the ticks of a thousand seconds").c_str(), Play)
        ->Iterations(1);
    benchmark::RegisterBenchmark((subject + "reading the session alone").c_str(), ReadOnly)->Iterations(1);
}

}  // namespace ombrel::bench
