#include "adapters/sim/draw/Icons.h"

#include <array>
#include <cstddef>

namespace ombrel::sim {
namespace {

// The colours of the plug-in's own icons, from 101 on: those of chat, then those of the displays.
constexpr std::array<std::uint32_t, 31> kColorIcons = {
    0xFFFFFF, 0xD2D2C7, 0xFF544E, 0xDD7B72, 0x3EBEFF, 0xB4DCEF, 0x3EDCDC, 0x7FFF7E, 0xEBEB3A, 0xBBBB47, 0xFF7EFF,
    0xF6908F, 0xE78F1E, 0x000000, 0xC0C0C0, 0x000000, 0xFF0000, 0xFF9999, 0x4040FF, 0x80FFFF, 0x00C0C0, 0x00AF00,
    0x00FF00, 0xFFFF00, 0xC0C000, 0xFF00FF, 0xFFA4FF, 0xFFC0C0, 0xFFE5B4, 0xFF8000, 0xFFC488};
constexpr std::int32_t kFirstColorIcon = 101, kDefaultColorIcon = 114;
constexpr std::int32_t kUpIcon = 0x60028FD, kDownIcon = 0x60028FC, kDeleteIcon = 0x60011F8;

}  // namespace

Icon IconOf(std::int32_t library, std::int32_t number) {
    if (library != 0) {
        const std::int32_t index = number - kFirstColorIcon;
        if (number == kDefaultColorIcon || index < 0 || static_cast<std::size_t>(index) >= kColorIcons.size())
            return {IconShape::kNoColor};
        return {IconShape::kColor, kColorIcons[static_cast<std::size_t>(index)]};
    }
    if (number == kUpIcon) return {IconShape::kUp, 0xD8C070};
    if (number == kDownIcon) return {IconShape::kDown, 0xD8C070};
    if (number == kDeleteIcon) return {IconShape::kDelete, 0xD04038};
    const std::uint32_t shade = static_cast<std::uint32_t>(number) * 2654435761U;
    return {IconShape::kColor, (shade & 0x7F7F7F) + 0x404040};
}

}  // namespace ombrel::sim
