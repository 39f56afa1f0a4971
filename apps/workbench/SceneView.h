// The 3D area: a landscape with the plug-in's displays over it, which react to the mouse and the keys.
#pragma once

#include <imgui.h>

#include <cstdint>

#include "adapters/sim/draw/HudScreen.h"
#include "apps/workbench/Game.h"
#include "apps/workbench/Window.h"

namespace ombrel::workbench {

class SceneView {
public:
    SceneView(Game& game, sim::HudScreen& screen) : game_(game), screen_(screen) {}

    void Draw(ImVec2 at, ImVec2 size);

private:
    void Fit(ImVec2 size);
    float Width() const;  // of the game's window, in its pixels
    float Height() const;
    void Paint();
    void PassMouse(ImVec2 at);
    void DrawEntrance(ImVec2 at, ImVec2 size);

    Game& game_;
    sim::HudScreen& screen_;
    Texture texture_;
    std::uint64_t painted_ = ~std::uint64_t{0};  // the game's changes when it was painted last
    float scale_ = 1;                            // pixels here for one of the game's window
    ImVec2 mouse_{-1, -1};
    bool pressed_ = false;
};

}  // namespace ombrel::workbench
