#include "hud/TitleBar.h"

#include "config/ControlHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"

namespace ombrel {

void ClickTitleBar(HudFrame& frame, std::int32_t x, std::int32_t y, void (ControlHandler::*toggle)()) {
    switch (frame.ClickHUD(x, y)) {
        case 1:
            return ((*Vars::ControlHandler).*toggle)();
        case 2:
            frame.DrawTitle = false;
            wtcw(
                "Click on the HUD while holding shift to reshow the title bar.  Click on the HUD while holding control "
                "to "
                "move the hud");
            return frame.DrawHUD(false);
        default:
            return;
    }
}

}  // namespace ombrel
