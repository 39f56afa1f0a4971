// Plain values that cross the host boundary.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace ombrel::host {

// The game's 32-bit object identifier, read signed. 0 is no object.
using Id = std::int32_t;

// Screen and surface rectangles, in pixels; right and bottom lie outside.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    friend bool operator==(const Rect&, const Rect&) = default;
};

struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

// A place on the map of the game: north and east are positive.
struct Position {
    double ns = 0.0;
    double ew = 0.0;

    friend bool operator==(const Position&, const Position&) = default;
};

}  // namespace ombrel::host
