// The clock HUD: clocks of several zones, the date and two timers.
#pragma once

#include "core/Ref.h"
#include "hud/HUDHandler.h"

namespace ombrel {

class HUDClockHandler {
public:
    HUDClockHandler();
    ~HUDClockHandler();
    HUDClockHandler(const HUDClockHandler&) = delete;
    HUDClockHandler& operator=(const HUDClockHandler&) = delete;

    void CreateHUD();  // from scratch
    void UpdateHUD();  // what has changed

    Owned<HUDHandler> ClockHUD;
};

}  // namespace ombrel
