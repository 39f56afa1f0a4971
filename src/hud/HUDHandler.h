// The canvas of the main, clock, item and status HUDs: a surface over the 3D area that shows keyed lines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ombrel {

class HUDHandler {
public:
    explicit HUDHandler(std::string_view title);
    ~HUDHandler();
    HUDHandler(const HUDHandler&) = delete;
    HUDHandler& operator=(const HUDHandler&) = delete;

    // Moves the HUD. With checkDock the new place decides whether it docks to the 3D area's edges.
    void SetPos(std::int32_t x, std::int32_t y, bool checkDock);
    void UpdatePos();  // the 3D area has changed
    void SetEnabled(bool enabled);
    void HudOn();
    void HUDOff();

    std::int32_t x() const { return x_; }
    std::int32_t y() const { return y_; }
    bool Enabled() const { return enabled_; }
    std::int32_t FontSize() const { return font_size_; }
    void SetFontSize(std::int32_t pixels);
    const std::string& FontFace() const { return font_face_; }
    void SetFontFace(const std::string& face);

    const std::string title;
    bool DrawTitle = true;
    bool Outline = false;
    bool DockVert = false;
    bool DockHorz = false;
    std::int16_t IconSize = 16;
    std::int32_t BackgroundColor = 0;  // 0xAARRGGBB

private:
    bool enabled_ = false;
    std::int32_t x_ = 5;
    std::int32_t y_ = 100;
    std::int32_t font_size_ = 16;
    std::string font_face_ = "Arial";
};

}  // namespace ombrel
