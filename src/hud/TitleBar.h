// Clicks on the title bar of a HUD.
#pragma once

#include <cstdint>

#include "hud/HudFrame.h"

namespace ombrel {

class ControlHandler;

// The "X" turns the HUD off through its option, the "O" hides the title bar and tells how to get it back.
void ClickTitleBar(HudFrame& frame, std::int32_t x, std::int32_t y, void (ControlHandler::*toggle)());

// Whether a point is on the bar itself, by which a HUD is dragged.
inline bool WithinTitleBar(const HudFrame& frame, std::int32_t x, std::int32_t y) { return frame.ClickHUD(x, y) == 0; }

}  // namespace ombrel
