// What stands for the icons of lists: the plug-in's own colours, arrows, and the client's pictures.
#pragma once

#include <cstdint>

namespace ombrel::sim {

enum class IconShape : std::uint8_t { kColor, kNoColor, kUp, kDown, kDelete };

struct Icon {
    IconShape shape = IconShape::kColor;
    std::uint32_t color = 0;  // 0xRRGGBB
};

// `library` is 0 for the client's icons, the plug-in's module otherwise.
Icon IconOf(std::int32_t library, std::int32_t number);

}  // namespace ombrel::sim
