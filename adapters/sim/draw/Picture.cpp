#include "adapters/sim/draw/Picture.h"

#include <cairo.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace ombrel::sim {
namespace {

constexpr std::int32_t kLargest = 16384;

void Check(cairo_status_t status, const std::string& what) {
    if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(what + ": " + cairo_status_to_string(status));
}

}  // namespace

void DestroyDrawing::operator()(_cairo_surface* surface) const { cairo_surface_destroy(surface); }
void DestroyDrawing::operator()(_cairo* context) const { cairo_destroy(context); }

Picture::Picture(std::int32_t width, std::int32_t height)
    : Picture(Surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::clamp(width, 1, kLargest),
                                                 std::clamp(height, 1, kLargest)))) {}

Picture::Picture(Surface surface) : surface_(std::move(surface)) {
    Check(cairo_surface_status(surface_.get()), "a picture");
}

Picture Picture::Read(const std::string& path) {
    Surface file(cairo_image_surface_create_from_png(path.c_str()));
    Check(cairo_surface_status(file.get()), path);
    Picture picture(cairo_image_surface_get_width(file.get()), cairo_image_surface_get_height(file.get()));
    const Drawing pen = picture.Pen();
    cairo_set_source_surface(pen.get(), file.get(), 0, 0);
    cairo_paint(pen.get());
    return picture;
}

void Picture::Write(const std::string& path) const {
    Check(cairo_surface_write_to_png(surface_.get(), path.c_str()), path);
}

std::int32_t Picture::width() const { return cairo_image_surface_get_width(surface_.get()); }
std::int32_t Picture::height() const { return cairo_image_surface_get_height(surface_.get()); }

std::uint32_t Picture::At(std::int32_t x, std::int32_t y) const {
    if (x < 0 || y < 0 || x >= width() || y >= height()) throw std::out_of_range("outside of the picture");
    cairo_surface_flush(surface_.get());
    const unsigned char* row =
        cairo_image_surface_get_data(surface_.get()) + y * cairo_image_surface_get_stride(surface_.get());
    return reinterpret_cast<const std::uint32_t*>(row)[x];
}

Drawing Picture::Pen() const { return Drawing(cairo_create(surface_.get())); }

}  // namespace ombrel::sim
