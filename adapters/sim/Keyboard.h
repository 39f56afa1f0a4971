// The keys of the player's keyboard, an American one.
#pragma once

#include <cstdint>

namespace ombrel::sim {

// The scan code of a virtual key code; 0 for a key that the keyboard lacks.
std::int32_t ScanCodeOf(std::int32_t key);

// The key that types a character, with 0x100 where shift is held; -1 for one that can't be typed.
std::int16_t KeyOf(char character);

}  // namespace ombrel::sim
