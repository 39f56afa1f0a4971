// Chat lines under any rules. An input sets options and then has lines come in:
//   say|TYPE|WINDOW|TEXT     from the game          mod|TYPE|WINDOW|TEXT     from another plug-in
// What a statement may be besides stands in support/Game.h; any other line comes in as open chat.
#include <cstdint>
#include <string>

#include "core/APluginCore.h"
#include "fuzz/support/Game.h"

namespace ombrel::fuzz {
namespace {

constexpr std::size_t kLongest = 4000;
constexpr std::size_t kMostLines = 20;

void Play(std::string_view script) {
    Game& game = Game::Shared();
    std::size_t heard = 0;
    for (const std::string_view line : Lines(script)) {
        const Statement statement(line);
        if (game.Do(statement)) continue;
        if (++heard > kMostLines) break;
        switch (statement.verb()) {
            case 's':
                game.Hear(statement.Number(1), statement.Number(2), statement.From(3));
                break;
            case 'm':
                game.client.plugin()->AddChatText(std::string(statement.From(3)), statement.Number(1),
                                                  statement.Number(2));
                break;
            default:
                game.Hear(2, 0, line);
        }
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
