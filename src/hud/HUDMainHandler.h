// The main HUD: the player's statistics.
#pragma once

#include "core/Ref.h"
#include "hud/HUDHandler.h"

namespace ombrel {

class HUDMainHandler {
public:
    HUDMainHandler();
    ~HUDMainHandler();
    HUDMainHandler(const HUDMainHandler&) = delete;
    HUDMainHandler& operator=(const HUDMainHandler&) = delete;

    void CreateHUD();  // from scratch
    void UpdateHUD();  // what has changed

    Owned<HUDHandler> MainHud;
};

}  // namespace ombrel
