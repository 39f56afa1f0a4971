// The status HUD: the game's short status messages, kept for a few seconds.
#pragma once

#include <string>

#include "core/Ref.h"
#include "hud/HUDHandler.h"

namespace ombrel {

class HUDStatusHandler {
public:
    HUDStatusHandler();
    ~HUDStatusHandler();
    HUDStatusHandler(const HUDStatusHandler&) = delete;
    HUDStatusHandler& operator=(const HUDStatusHandler&) = delete;

    void AddMessage(const std::string& message);
    void Update();  // each second: drops what is over
    void CreateHUD();
    void UpdateHUD();

    Owned<HUDHandler> StatusHud;
};

}  // namespace ombrel
