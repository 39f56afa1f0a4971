#include "adapters/sim/draw/PortalImage.h"

#include <cairo.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace ombrel::sim {
namespace {

constexpr std::int32_t kBase = 0x6000000;

// Digits of three by five dots, rows from the top, the left dot highest.
constexpr std::int32_t kDigitWidth = 3, kDigitHeight = 5;
using Digit = std::array<std::uint8_t, kDigitHeight>;
constexpr std::array<Digit, 10> kDigits{{{7, 5, 5, 5, 7},
                                         {2, 6, 2, 2, 7},
                                         {7, 1, 7, 4, 7},
                                         {7, 1, 3, 1, 7},
                                         {5, 5, 7, 1, 1},
                                         {7, 4, 7, 1, 7},
                                         {7, 4, 7, 5, 7},
                                         {7, 1, 2, 2, 2},
                                         {7, 5, 7, 5, 7},
                                         {7, 5, 7, 1, 7}}};
constexpr Digit kMinus{0, 0, 7, 0, 0};

const Digit& DigitOf(char character) {
    return character == '-' ? kMinus : kDigits[static_cast<std::size_t>(character - '0')];
}

struct Shade {
    double red, green, blue;
};

// A colour on the wheel, turned on from number to number so that neighbours differ.
Shade ShadeOf(std::int32_t number, double lightness) {
    const double turn = std::fmod(std::abs(static_cast<double>(number)) * 0.381966, 1.0) * 2 * std::numbers::pi;
    const auto part = [&](double offset) { return lightness * (0.62 + 0.38 * std::cos(turn - offset)); };
    return {part(0), part(2.0944), part(4.1888)};
}

void RoundedRectangle(cairo_t* pen, double left, double top, double width, double height, double radius) {
    constexpr double kQuarter = std::numbers::pi / 2;
    cairo_new_path(pen);
    cairo_arc(pen, left + width - radius, top + radius, radius, -kQuarter, 0);
    cairo_arc(pen, left + width - radius, top + height - radius, radius, 0, kQuarter);
    cairo_arc(pen, left + radius, top + height - radius, radius, kQuarter, 2 * kQuarter);
    cairo_arc(pen, left + radius, top + radius, radius, 2 * kQuarter, 3 * kQuarter);
    cairo_close_path(pen);
}

void DrawTile(cairo_t* pen, std::int32_t number, const host::Rect& rect) {
    const double width = rect.right - rect.left, height = rect.bottom - rect.top;
    const Shade light = ShadeOf(number, 0.62), dark = ShadeOf(number, 0.30);
    cairo_pattern_t* shine = cairo_pattern_create_linear(rect.left, rect.top, rect.left, rect.bottom);
    cairo_pattern_add_color_stop_rgb(shine, 0, light.red, light.green, light.blue);
    cairo_pattern_add_color_stop_rgb(shine, 1, dark.red, dark.green, dark.blue);
    RoundedRectangle(pen, rect.left + 0.5, rect.top + 0.5, width - 1, height - 1, std::min(width, height) / 6);
    cairo_set_source(pen, shine);
    cairo_fill_preserve(pen);
    cairo_pattern_destroy(shine);
    cairo_set_source_rgba(pen, 1, 1, 1, 0.45);
    cairo_set_line_width(pen, 1);
    cairo_stroke(pen);
}

void DrawDots(cairo_t* pen, const Digit& digit, double left, double top, double dot) {
    for (std::int32_t y = 0; y < kDigitHeight; ++y) {
        for (std::int32_t x = 0; x < kDigitWidth; ++x) {
            if (digit[static_cast<std::size_t>(y)] >> (kDigitWidth - 1 - x) & 1)
                cairo_rectangle(pen, left + x * dot, top + y * dot, dot, dot);
        }
    }
}

// In one row, or in two where a row would be too long.
void DrawNumber(cairo_t* pen, std::int32_t number, const host::Rect& rect) {
    const std::string text = std::to_string(number);
    const std::size_t per_row = text.size() <= 3 ? text.size() : (text.size() + 1) / 2;
    const auto rows = static_cast<std::int32_t>((text.size() + per_row - 1) / per_row);
    const std::int32_t across = static_cast<std::int32_t>(per_row) * (kDigitWidth + 1) - 1;
    const std::int32_t down = rows * (kDigitHeight + 1) - 1;
    const std::int32_t width = rect.right - rect.left, height = rect.bottom - rect.top;
    const double dot = std::max(std::min(width / (across + 2), height / (down + 2)), 1);

    cairo_set_antialias(pen, CAIRO_ANTIALIAS_NONE);
    for (const double shadow : {1.0, 0.0}) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto row = static_cast<std::int32_t>(i / per_row);
            const std::size_t in_row = std::min(per_row, text.size() - static_cast<std::size_t>(row) * per_row);
            const double row_width = (static_cast<double>(in_row) * (kDigitWidth + 1) - 1) * dot;
            const double left = rect.left + std::floor((width - row_width) / 2) +
                                static_cast<double>(i % per_row) * (kDigitWidth + 1) * dot;
            const double top = rect.top + std::floor((height - down * dot) / 2) + row * (kDigitHeight + 1) * dot;
            DrawDots(pen, DigitOf(text[i]), left + shadow, top + shadow, dot);
        }
        cairo_set_source_rgba(pen, 1 - shadow, 1 - shadow, 1 - shadow, shadow == 0 ? 1 : 0.6);
        cairo_fill(pen);
    }
}

}  // namespace

void DrawPortalImage(cairo_t* pen, std::int32_t image, const host::Rect& rect) {
    if (rect.right <= rect.left || rect.bottom <= rect.top) return;
    cairo_save(pen);
    cairo_rectangle(pen, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    cairo_clip(pen);
    // Any number may come; one below the base wraps.
    const auto number = static_cast<std::int32_t>(static_cast<std::uint32_t>(image) - std::uint32_t{kBase});
    DrawTile(pen, number, rect);
    DrawNumber(pen, number, rect);
    cairo_restore(pen);
}

}  // namespace ombrel::sim
