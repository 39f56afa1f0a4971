// The clock HUD: clocks of several zones, the date, and two timers.
#pragma once

#include <cstdint>
#include <string>

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
    void ClickHUD(std::int32_t x, std::int32_t y);
    bool WithinTitle(std::int32_t x, std::int32_t y);

    void StartUpTime();  // starts the timer that counts up, or stops it
    void StartDnTime();  // starts the timer that counts down from the time in the view

    Owned<HUDHandler> ClockHUD;

private:
    void UpdateControl(bool force);
    void AddData();
    void AddRow(std::int32_t row, const std::string& key, bool newline);

    std::string name_, text_;    // of the line being built; kept, so that no refresh needs memory of its own
    std::int32_t minute_ = -1;   // of the last refresh
    std::int32_t down_end_ = 0;  // moment, 0 when off
    std::int32_t up_start_ = 0;
};

}  // namespace ombrel
