// How the workbench looks: the options view's colours, and the client's of chat.
#pragma once

#include <imgui.h>

#include <cstdint>

namespace ombrel::workbench {

// Loads the fonts and sets the colours, once, after the window stands.
void ApplyStyle();

enum class Weight { kRegular, kBold };

// The font whose size, in pixels, is nearest. It is drawn at its own size only, where letters are sharp.
ImFont* FontFor(float size, Weight weight);
ImFont* BoldFont();

constexpr ImU32 Rgb(std::uint32_t rgb, std::uint32_t alpha = 255) {
    return IM_COL32(rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255, alpha);
}

inline constexpr std::uint32_t kPanel = 0x1C1A16, kBorder = 0x8A7A4E, kField = 0xE8E0C8, kInk = 0x201C10,
                               kListBack = 0x12110E, kListLine = 0x2C2A24, kButton = 0xC9B98A, kTab = 0x3A362C,
                               kTabOpen = 0x5E5436, kGold = 0xE3C878, kDim = 0x9A927C, kMark = 0x7FD07F;

// The client's colour of a chat type; white for a type that it lacks.
ImU32 ChatColor(std::int32_t type);

}  // namespace ombrel::workbench
