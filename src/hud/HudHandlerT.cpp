#include "hud/HudHandlerT.h"

namespace ombrel {

HudHandlerT::HudHandlerT(std::string_view name) : title(name) {}

HudHandlerT::~HudHandlerT() = default;

void HudHandlerT::SetPos(std::int32_t x, std::int32_t y, bool) {
    x_ = x;
    y_ = y;
}
void HudHandlerT::UpdatePos() {}
void HudHandlerT::SetEnabled(bool enabled) { enabled_ = enabled; }
void HudHandlerT::HudOn() { enabled_ = true; }
void HudHandlerT::HUDOff() { enabled_ = false; }
void HudHandlerT::SetFontSize(std::int32_t pixels) { font_size_ = pixels; }
void HudHandlerT::SetFontFace(const std::string& face) { font_face_ = face; }
void HudHandlerT::TitleFade(std::int32_t) {}
void HudHandlerT::SetObject(host::WorldObjectPtr object) { object_ = std::move(object); }
void HudHandlerT::RemoveDebuff(host::Id) {}
void HudHandlerT::UpdateHealth(bool) {}

}  // namespace ombrel
