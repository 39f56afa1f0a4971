// Drawing surfaces over the 3D area.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "host/Types.h"

namespace ombrel::host {

// A font that measures. Drawing names its font at BeginText.
class Font {
public:
    virtual ~Font() = default;

    virtual std::int32_t TextWidth(std::string_view text) const = 0;  // pixels
};

// One surface. Rectangles are relative to its own left and top. Colours are 0xAARRGGBB. It shows only while it is
// enabled.
class HudView {
public:
    virtual ~HudView() = default;

    virtual void BeginRender(bool filter) = 0;
    virtual void Clear(const Rect& rect) = 0;
    virtual void Fill(const Rect& rect, std::int32_t color) = 0;
    virtual void BeginText(std::string_view face, std::int32_t height, std::int32_t weight, bool italic) = 0;
    // format: 0 left, 1 centred
    virtual void DrawText(const Rect& rect, std::int32_t color, std::int32_t format, std::string_view text) = 0;
    // image: 0x06000000 plus the icon's number
    virtual void DrawPortalImage(std::int32_t image, const Rect& rect) = 0;
    virtual void EndText() = 0;
    virtual void EndRender() = 0;

    virtual void SetRegion(const Rect& rect) = 0;  // moves the surface on the screen
    virtual void SetEnabled(bool enabled) = 0;
};

class RenderService {
public:
    virtual ~RenderService() = default;

    // A surface over that part of the screen, or nothing when none can be made.
    virtual std::unique_ptr<HudView> CreateHUD(const Rect& rect) = 0;
    virtual void RemoveHUD(HudView& view) = 0;

    // All surfaces are empty now and must be drawn again.
    std::function<void()> DeviceLost;
};

}  // namespace ombrel::host
