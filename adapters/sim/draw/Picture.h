// A picture in memory, with transparency.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

struct _cairo;
struct _cairo_surface;

namespace ombrel::sim {

struct DestroyDrawing {
    void operator()(_cairo_surface* surface) const;
    void operator()(_cairo* context) const;
};
using Surface = std::unique_ptr<_cairo_surface, DestroyDrawing>;
using Drawing = std::unique_ptr<_cairo, DestroyDrawing>;  // a pen for one surface

class Picture {
public:
    // Clear all over. One that is too large for the drawing library is cut; throws std::runtime_error where the memory
    // does not suffice.
    Picture(std::int32_t width, std::int32_t height);

    // Both throw std::runtime_error with the path.
    static Picture Read(const std::string& path);
    void Write(const std::string& path) const;

    std::int32_t width() const;
    std::int32_t height() const;
    std::uint32_t At(std::int32_t x, std::int32_t y) const;  // 0xAARRGGBB, the colours multiplied by their alpha

    _cairo_surface* surface() const { return surface_.get(); }
    Drawing Pen() const;

private:
    explicit Picture(Surface surface);

    Surface surface_;
};

}  // namespace ombrel::sim
