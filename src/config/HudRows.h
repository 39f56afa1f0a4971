// The list of HUDs in the options view: its rows, its columns, and the canvas behind each row.
#pragma once

#include <cstdint>
#include <string_view>

#include "hud/HudFrame.h"

namespace ombrel {

class ControlHandler;

namespace hud {

constexpr std::int32_t kMain = 0;
constexpr std::int32_t kClock = 1;
constexpr std::int32_t kItems = 2;
constexpr std::int32_t kStatus = 3;
constexpr std::int32_t kTarget = 4;
constexpr std::int32_t kCount = 5;

// Columns of HudGeneral; 1 is the name.
constexpr std::int32_t kOn = 0;
constexpr std::int32_t kFont = 2;
constexpr std::int32_t kSize = 3;
constexpr std::int32_t kBackground = 4;
constexpr std::int32_t kAlpha = 5;
constexpr std::int32_t kOutline = 6;

// The frame of the HUD of a row: place, look, and whether it shows.
HudFrame& FrameOf(std::int32_t row);

// Draws a HUD from scratch.
void Create(std::int32_t row);
void CreateAll();

// A HUD shows when its row is ticked, and HUDs are on as a whole.
void ApplyEnabled(const ControlHandler& controls, std::int32_t row);

// Hand the canvas what its row says of it; ApplyLook all four.
void ApplyFont(const ControlHandler& controls, std::int32_t row);
void ApplySize(const ControlHandler& controls, std::int32_t row);
void ApplyBackground(const ControlHandler& controls, std::int32_t row);
void ApplyOutline(const ControlHandler& controls, std::int32_t row);
void ApplyLook(const ControlHandler& controls, std::int32_t row);

// Options of single HUDs that have a copy elsewhere.
void ApplyIconSize(const ControlHandler& controls);
void ApplyTargetColor(const ControlHandler& controls);
void ApplyXPChange(ControlHandler& controls);       // whether the main HUD shows the last change
void StartRefresh(const ControlHandler& controls);  // the main HUD, at the chosen period

// The step that ConvertColor takes for the entry of the alpha choice: "100%" lets everything through and is 0, "0%"
// is 10.
std::int32_t AlphaIndex(std::string_view alpha);

}  // namespace hud
}  // namespace ombrel
