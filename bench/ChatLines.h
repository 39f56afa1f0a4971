// Chat lines to measure with.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ombrel::bench {

struct Line {
    std::int32_t type;
    std::string text;
};

// The collection of game texts where the machine has one, else the lines of the story. Never empty.
const std::vector<Line>& ChatLines();

}  // namespace ombrel::bench
