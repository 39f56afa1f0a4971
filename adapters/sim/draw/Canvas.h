// A picture to draw on, with the few shapes that a view is made of.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "host/Types.h"

namespace ombrel::sim {

// 0x00RRGGBB
using Rgb = std::uint32_t;

enum class Align : std::uint8_t { kLeft, kCenter, kRight };

struct TextStyle {
    double size = 14;
    bool bold = false;
    bool italic = false;
    Rgb color = 0xFFFFFF;
    Align align = Align::kLeft;
};

class Canvas {
public:
    Canvas(std::int32_t width, std::int32_t height, double scale);

    // Draws only within the rectangle until the next call of `Unclip`.
    void Clip(const host::Rect& rect);
    void Unclip();

    void Fill(const host::Rect& rect, Rgb color);
    void Frame(const host::Rect& rect, Rgb color);  // one pixel, inside the rectangle
    void Line(double x1, double y1, double x2, double y2, double width, Rgb color);
    void Triangle(const host::Rect& rect, bool up, Rgb color);

    // A line of text in the middle of the rectangle's height, cut off at its edges.
    void Text(const host::Rect& rect, std::string_view text, const TextStyle& style);

    double Width(std::string_view text, const TextStyle& style);

    // Throws std::runtime_error with the path.
    void Write(const std::string& path) const;

private:
    void SetColor(Rgb color);

    struct Destroy {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* context) const { cairo_destroy(context); }
    };
    std::unique_ptr<cairo_surface_t, Destroy> surface_;
    std::unique_ptr<cairo_t, Destroy> cairo_;
};

}  // namespace ombrel::sim
