// Stand-ins for the game's icons, which only the game has.
#pragma once

#include <cstdint>

#include "host/Types.h"

struct _cairo;

namespace ombrel::sim {

// A tile in a colour of its own with the icon's number on it, legible from 16 pixels on. Image: 0x06000000 plus the
// number.
void DrawPortalImage(_cairo* pen, std::int32_t image, const host::Rect& rect);

}  // namespace ombrel::sim
