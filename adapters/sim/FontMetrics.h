// How wide texts are: one table for every host of ours, so that sizes are the same everywhere.
//
// There are two classes of faces, those with the widths of Arial and the monospaced ones with those of Courier New.
#pragma once

#include <cstdint>
#include <string_view>

namespace ombrel::sim {

bool IsMonospaced(std::string_view face);

// The width in pixels of a text in a font whose lines are `size` pixels high. A character that the game lacks is as
// wide as a question mark.
std::int32_t TextWidth(std::string_view text, std::string_view face, std::int32_t size, bool bold);

// The em of a font whose lines are `size` pixels high, for drawing in these widths.
double EmSize(std::int32_t size);

}  // namespace ombrel::sim
