// Real chat lines of the game, where the machine has a collection: a file chat-lines.tsv beside the project, or in the
// folder that OMBREL_DATA names. Columns: chat type, text with \n for a line feed, what the line is.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ombrel::test {

struct GameLine {
    std::int32_t type;  // -1 for a status text, which is no chat line
    std::string text;
    std::string note;
};

// None where there is no collection.
std::vector<GameLine> GameLines();

inline constexpr const char* kNoGameLines =
    "waits for real chat lines: set OMBREL_DATA to a folder with chat-lines.tsv";

}  // namespace ombrel::test
