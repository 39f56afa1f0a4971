#include "adapters/sim/Keyboard.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace ombrel::sim {

namespace {

constexpr std::int16_t kShift = 0x100;

// A key that types: its code, its scan code, what it types without and with shift. Letters have their capital's code.
struct Key {
    std::int16_t code;
    std::int16_t scan;
    char plain;
    char shifted;
};

constexpr Key kKeys[] = {
    {0x08, 0x0E, '\b', '\b'}, {0x09, 0x0F, '\t', '\t'}, {0x0D, 0x1C, '\r', '\r'}, {0x1B, 0x01, '\x1b', '\x1b'},
    {0x20, 0x39, ' ', ' '},   {'1', 0x02, '1', '!'},    {'2', 0x03, '2', '@'},    {'3', 0x04, '3', '#'},
    {'4', 0x05, '4', '$'},    {'5', 0x06, '5', '%'},    {'6', 0x07, '6', '^'},    {'7', 0x08, '7', '&'},
    {'8', 0x09, '8', '*'},    {'9', 0x0A, '9', '('},    {'0', 0x0B, '0', ')'},    {0xBD, 0x0C, '-', '_'},
    {0xBB, 0x0D, '=', '+'},   {'Q', 0x10, 'q', 'Q'},    {'W', 0x11, 'w', 'W'},    {'E', 0x12, 'e', 'E'},
    {'R', 0x13, 'r', 'R'},    {'T', 0x14, 't', 'T'},    {'Y', 0x15, 'y', 'Y'},    {'U', 0x16, 'u', 'U'},
    {'I', 0x17, 'i', 'I'},    {'O', 0x18, 'o', 'O'},    {'P', 0x19, 'p', 'P'},    {0xDB, 0x1A, '[', '{'},
    {0xDD, 0x1B, ']', '}'},   {'A', 0x1E, 'a', 'A'},    {'S', 0x1F, 's', 'S'},    {'D', 0x20, 'd', 'D'},
    {'F', 0x21, 'f', 'F'},    {'G', 0x22, 'g', 'G'},    {'H', 0x23, 'h', 'H'},    {'J', 0x24, 'j', 'J'},
    {'K', 0x25, 'k', 'K'},    {'L', 0x26, 'l', 'L'},    {0xBA, 0x27, ';', ':'},   {0xDE, 0x28, '\'', '"'},
    {0xC0, 0x29, '`', '~'},   {0xDC, 0x2B, '\\', '|'},  {'Z', 0x2C, 'z', 'Z'},    {'X', 0x2D, 'x', 'X'},
    {'C', 0x2E, 'c', 'C'},    {'V', 0x2F, 'v', 'V'},    {'B', 0x30, 'b', 'B'},    {'N', 0x31, 'n', 'N'},
    {'M', 0x32, 'm', 'M'},    {0xBC, 0x33, ',', '<'},   {0xBE, 0x34, '.', '>'},   {0xBF, 0x35, '/', '?'},
};

// Keys that type nothing.
struct OtherKey {
    std::int16_t code;
    std::int16_t scan;
};

constexpr OtherKey kOtherKeys[] = {
    {0x10, 0x2A}, {0x11, 0x1D}, {0x12, 0x38}, {0x14, 0x3A}, {0x21, 0x49}, {0x22, 0x51}, {0x23, 0x4F}, {0x24, 0x47},
    {0x25, 0x4B}, {0x26, 0x48}, {0x27, 0x4D}, {0x28, 0x50}, {0x2C, 0x54}, {0x2D, 0x52}, {0x2E, 0x53}, {0x70, 0x3B},
    {0x71, 0x3C}, {0x72, 0x3D}, {0x73, 0x3E}, {0x74, 0x3F}, {0x75, 0x40}, {0x76, 0x41}, {0x77, 0x42}, {0x78, 0x43},
    {0x79, 0x44}, {0x7A, 0x57}, {0x7B, 0x58}, {0x90, 0x45}, {0x91, 0x46},
};

}  // namespace

std::int32_t ScanCodeOf(std::int32_t key) {
    if (const auto* found = std::ranges::find(kKeys, key, &Key::code); found != std::end(kKeys)) return found->scan;
    const auto* found = std::ranges::find(kOtherKeys, key, &OtherKey::code);
    return found == std::end(kOtherKeys) ? 0 : found->scan;
}

std::int16_t KeyOf(char character) {
    for (const Key& key : kKeys) {
        if (key.plain == character) return key.code;
        if (key.shifted == character) return static_cast<std::int16_t>(key.code | kShift);
    }
    return -1;
}

}  // namespace ombrel::sim
