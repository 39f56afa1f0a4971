// Lines that the player types, under any aliases. What a statement may be besides stands in support/Game.h:
//   say|TYPE|WINDOW|TEXT     the game answers
// Any other line is typed.
#include <cstdint>
#include <string>

#include "fuzz/support/Game.h"

namespace ombrel::fuzz {
namespace {

constexpr std::size_t kLongest = 4000;
constexpr std::size_t kMostLines = 12;

// The experience table and the colours are a few hundred lines, and aliases can ask for them once more at each step.
constexpr std::size_t kMostWritten = 20'000;

void Play(std::string_view script) {
    Game& game = Game::Shared();
    std::size_t typed = 0;
    for (const std::string_view line : Lines(script)) {
        const Statement statement(line);
        if (!line.starts_with('/') && game.Do(statement)) continue;
        if (++typed > kMostLines) break;
        game.Forget();
        if (statement.verb() == 's')
            game.Hear(statement.Number(1), statement.Number(2), statement.From(3));
        else
            game.client.ChatParser(std::string(line));
        Require(game.written < kMostWritten, "a typed line brought forth thousands of others");
    }
    game.EndCalmly();
}

}  // namespace
}  // namespace ombrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrel::fuzz;
    if (size <= kLongest) Play(TextOf(data, size));
    return 0;
}
