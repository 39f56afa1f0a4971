// The canvas of the target HUD: a card of one object, with its health and the debuffs on it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/World.h"

namespace ombrel {

class HudHandlerT {
public:
    explicit HudHandlerT(std::string_view title);
    ~HudHandlerT();
    HudHandlerT(const HudHandlerT&) = delete;
    HudHandlerT& operator=(const HudHandlerT&) = delete;

    void SetPos(std::int32_t x, std::int32_t y, bool checkDock);
    void UpdatePos();
    void TitleFade(std::int32_t level);
    void SetEnabled(bool enabled);
    void HudOn();
    void HUDOff();
    void SetObject(host::WorldObjectPtr object);
    const host::WorldObjectPtr& Object() const { return object_; }
    void RemoveDebuff(host::Id object);
    void UpdateHealth(bool drawAlone);

    std::int32_t x() const { return x_; }
    std::int32_t y() const { return y_; }
    bool Enabled() const { return enabled_; }
    std::int32_t FontSize() const { return font_size_; }
    void SetFontSize(std::int32_t pixels);
    const std::string& FontFace() const { return font_face_; }
    void SetFontFace(const std::string& face);

    const std::string title;
    std::string FontColor = "White";
    bool DrawTitle = true;
    bool Outline = false;
    bool DockVert = false;
    bool DockHorz = false;
    std::int16_t IconSize = 16;
    std::int32_t BackgroundColor = 0;  // 0xAARRGGBB

private:
    host::WorldObjectPtr object_;
    bool enabled_ = false;
    std::int32_t x_ = 5;
    std::int32_t y_ = 100;
    std::int32_t font_size_ = 16;
    std::string font_face_ = "Arial";
};

}  // namespace ombrel
