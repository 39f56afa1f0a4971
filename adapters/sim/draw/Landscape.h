// A landscape where the game would show its world.
#pragma once

#include <cstdint>

struct _cairo;

namespace ombrel::sim {

// Hills, a lake and a lifestone in the evening sun, the same at each call.
void PaintLandscape(_cairo* pen, std::int32_t width, std::int32_t height);

}  // namespace ombrel::sim
