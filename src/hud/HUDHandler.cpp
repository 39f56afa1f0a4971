#include "hud/HUDHandler.h"

namespace ombrel {

HUDHandler::HUDHandler(std::string_view name) : title(name) {}

HUDHandler::~HUDHandler() = default;

void HUDHandler::SetPos(std::int32_t x, std::int32_t y, bool) {
    x_ = x;
    y_ = y;
}
void HUDHandler::UpdatePos() {}
void HUDHandler::SetEnabled(bool enabled) { enabled_ = enabled; }
void HUDHandler::HudOn() { enabled_ = true; }
void HUDHandler::HUDOff() { enabled_ = false; }
void HUDHandler::SetFontSize(std::int32_t pixels) { font_size_ = pixels; }
void HUDHandler::SetFontFace(const std::string& face) { font_face_ = face; }

}  // namespace ombrel
