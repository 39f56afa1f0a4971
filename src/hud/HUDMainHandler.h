// The main HUD: the player's statistics, copied from what the options view shows.
#pragma once

#include <cstdint>
#include <string>

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
    void ClickHUD(std::int32_t x, std::int32_t y);
    bool WithinTitle(std::int32_t x, std::int32_t y);

    Owned<HUDHandler> MainHud;

private:
    void AddData();

    std::string value_, text_;  // of the line being built; kept, so that no refresh needs memory of its own
};

}  // namespace ombrel
