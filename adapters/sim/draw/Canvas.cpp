#include "adapters/sim/draw/Canvas.h"

#include <cmath>
#include <stdexcept>

namespace ombrel::sim {
namespace {

constexpr const char* kFace = "Liberation Sans";

void SelectFont(cairo_t* cairo, const TextStyle& style) {
    cairo_select_font_face(cairo, kFace, style.italic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                           style.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo, style.size);
}

}  // namespace

Canvas::Canvas(std::int32_t width, std::int32_t height, double scale)
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(std::lround(width * scale)),
                                          static_cast<int>(std::lround(height * scale)))),
      cairo_(cairo_create(surface_.get())) {
    cairo_scale(cairo_.get(), scale, scale);
}

void Canvas::SetColor(Rgb color) {
    cairo_set_source_rgb(cairo_.get(), (color >> 16 & 0xFF) / 255.0, (color >> 8 & 0xFF) / 255.0,
                         (color & 0xFF) / 255.0);
}

void Canvas::Clip(const host::Rect& rect) {
    cairo_save(cairo_.get());
    cairo_rectangle(cairo_.get(), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    cairo_clip(cairo_.get());
}

void Canvas::Unclip() { cairo_restore(cairo_.get()); }

void Canvas::Fill(const host::Rect& rect, Rgb color) {
    SetColor(color);
    cairo_rectangle(cairo_.get(), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    cairo_fill(cairo_.get());
}

void Canvas::Frame(const host::Rect& rect, Rgb color) {
    SetColor(color);
    cairo_set_line_width(cairo_.get(), 1);
    cairo_rectangle(cairo_.get(), rect.left + 0.5, rect.top + 0.5, rect.right - rect.left - 1,
                    rect.bottom - rect.top - 1);
    cairo_stroke(cairo_.get());
}

void Canvas::Line(double x1, double y1, double x2, double y2, double width, Rgb color) {
    SetColor(color);
    cairo_set_line_width(cairo_.get(), width);
    cairo_move_to(cairo_.get(), x1, y1);
    cairo_line_to(cairo_.get(), x2, y2);
    cairo_stroke(cairo_.get());
}

void Canvas::Triangle(const host::Rect& rect, bool up, Rgb color) {
    SetColor(color);
    cairo_move_to(cairo_.get(), rect.left, up ? rect.bottom : rect.top);
    cairo_line_to(cairo_.get(), rect.right, up ? rect.bottom : rect.top);
    cairo_line_to(cairo_.get(), (rect.left + rect.right) / 2.0, up ? rect.top : rect.bottom);
    cairo_close_path(cairo_.get());
    cairo_fill(cairo_.get());
}

void Canvas::Text(const host::Rect& rect, std::string_view text, const TextStyle& style) {
    if (text.empty()) return;
    const double width = Width(text, style), room = rect.right - rect.left;
    double x = rect.left;
    if (style.align == Align::kCenter) x += (room - width) / 2;
    if (style.align == Align::kRight) x += room - width;

    Clip(rect);
    SelectFont(cairo_.get(), style);
    cairo_font_extents_t font;
    cairo_font_extents(cairo_.get(), &font);
    SetColor(style.color);
    cairo_move_to(cairo_.get(), x, (rect.top + rect.bottom + font.ascent - font.descent) / 2);
    cairo_show_text(cairo_.get(), std::string(text).c_str());
    Unclip();
}

void Canvas::Write(const std::string& path) const {
    const cairo_status_t status = cairo_surface_write_to_png(surface_.get(), path.c_str());
    if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(path + ": " + cairo_status_to_string(status));
}

double Canvas::Width(std::string_view text, const TextStyle& style) {
    SelectFont(cairo_.get(), style);
    cairo_text_extents_t extents;
    cairo_text_extents(cairo_.get(), std::string(text).c_str(), &extents);
    return extents.x_advance;
}

}  // namespace ombrel::sim
