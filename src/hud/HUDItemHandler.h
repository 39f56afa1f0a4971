// The item HUD: counts of chosen items in the packs.
#pragma once

#include "core/Ref.h"
#include "hud/HUDHandler.h"

namespace ombrel {

class HUDItemHandler {
public:
    HUDItemHandler();
    ~HUDItemHandler();
    HUDItemHandler(const HUDItemHandler&) = delete;
    HUDItemHandler& operator=(const HUDItemHandler&) = delete;

    void CreateHUD();  // from scratch
    void UpdateHUD();  // what has changed

    Owned<HUDHandler> ItemHUD;
};

}  // namespace ombrel
