// Every message of the game comes past the plug-in; most are none of its business and should cost next to nothing.
#include "bench/Game.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "core/failure.h"

namespace ombrel::bench {
namespace {

// A message of which nothing but the type may be read.
class UnreadMessage final : public host::Message {
public:
    std::int32_t Type() const override { return 0xF74C; }

    std::int32_t Long(std::string_view) const override { throw Failure(failure::kInvalidCall); }
    double Double(std::string_view) const override { throw Failure(failure::kInvalidCall); }
    std::string Text(std::string_view) const override { throw Failure(failure::kInvalidCall); }
    std::vector<std::uint8_t> Bytes(std::string_view) const override { throw Failure(failure::kInvalidCall); }
    host::MessageMemberPtr Struct(std::string_view) const override { throw Failure(failure::kInvalidCall); }
    host::MessageMemberPtr Item(std::int32_t) const override { throw Failure(failure::kInvalidCall); }
};

void Messages(benchmark::State& state, bool listening) {
    Game game;
    if (!listening) game.client.Terminate();
    const UnreadMessage message;
    constexpr int kMessages = 1000;
    Measure(state, kMessages, [&] {
        for (int i = 0; i < kMessages; ++i) game.client.EchoServer(message);
    });
}

}  // namespace

void AddMessages() {
    benchmark::RegisterBenchmark("A server message that is not read/with the plug-in", Messages, true);
    benchmark::RegisterBenchmark("A server message that is not read/the client alone", Messages, false);
}

}  // namespace ombrel::bench
