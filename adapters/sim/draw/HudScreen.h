// What the player sees of the displays: surfaces that are really drawn, over a landscape.
//
//     HudScreen screen;
//     client.screen = &screen;
//     ... play ...
//     screen.Show(client.hooks.Region3D).Write("evening.png");
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "adapters/sim/draw/Picture.h"
#include "host/RenderService.h"

namespace ombrel::sim {

// A bar of the client stands above the 3D area. Displays count from the top of the window, and so does the mouse.
inline constexpr std::int32_t kBarHeight = 28;

class HudScreen final : public host::RenderService {
public:
    HudScreen();
    ~HudScreen() override;
    HudScreen(const HudScreen&) = delete;
    HudScreen& operator=(const HudScreen&) = delete;

    std::unique_ptr<host::HudView> CreateHUD(const host::Rect& rect) override;
    void RemoveHUD(host::HudView& view) override;

    // The 3D area with the enabled surfaces over it, the latest on top. Throws std::runtime_error where there is no
    // memory for it.
    Picture Show(const host::Rect& region) const;

private:
    class View;

    std::vector<View*> views_;  // in the order of their making
};

}  // namespace ombrel::sim
