// Text on surfaces, as wide as the plug-in has measured it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/Types.h"

struct _cairo;

namespace ombrel::sim {

struct HudFont {
    std::string face;
    std::int32_t height = 0;  // of a line, in pixels
    bool bold = false;
    bool italic = false;
};

enum class HudAlign : std::uint8_t { kLeft, kCentred };

// Draws a line at the rectangle's top, cut off at its edges, in 0xAARRGGBB. A face that this machine lacks is drawn in
// one of its kind, stretched to the width that its letters have in the game.
void DrawHudText(_cairo* pen, const host::Rect& rect, std::string_view text, const HudFont& font, HudAlign align,
                 std::uint32_t color);

}  // namespace ombrel::sim
