// The item HUD: how many of chosen items are in the packs, with warnings when they run low.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Ref.h"
#include "host/Timer.h"
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
    void ClickHUD(std::int32_t x, std::int32_t y);
    bool WithinTitle(std::int32_t x, std::int32_t y);

    void updatetimer_Timeout();

    Owned<HUDHandler> ItemHUD;
    Owned<host::Timer> updatetimer;  // gathers a burst of changes into one count

private:
    void AddData();
    std::int32_t IconOf(std::int32_t row, const std::string& name, std::int32_t count);

    std::vector<std::int32_t> last_counts_;  // by row
};

}  // namespace ombrel
