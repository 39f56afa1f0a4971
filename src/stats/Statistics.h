// The character's experience: earned, per hour, to the next level.
#pragma once

#include <cstdint>

namespace ombrel {

class Statistics {
public:
    Statistics();
    ~Statistics();
    Statistics(const Statistics&) = delete;
    Statistics& operator=(const Statistics&) = delete;

    void InitStatistics();  // at login, when the server's totals are in
    void UpdateTime();      // each second
    void UpdateAvgXP();     // each minute

    std::int32_t TotalSec = 0;   // seconds since login
    bool ShowXPChange = false;   // the main HUD shows the last change in full
    bool XPChangeOn = false;     // the player wants the change on the main HUD
};

}  // namespace ombrel
