// The status HUD: the game's short status messages, each for a few seconds.
#pragma once

#include <cstdint>
#include <deque>
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

    void CreateHUD();  // from scratch
    void UpdateHUD();  // what has changed
    void ClickHUD(std::int32_t x, std::int32_t y);
    bool WithinTitle(std::int32_t x, std::int32_t y);

    void AddMessage(const std::string& message);  // the last one again only lives longer
    void Update();                                // each second: drops what is over

    Owned<HUDHandler> StatusHud;

private:
    void AddData();

    struct Message {
        std::string text;
        std::int32_t expires;  // moment
    };
    std::deque<Message> messages_;  // newest last
};

}  // namespace ombrel
