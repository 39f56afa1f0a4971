// All windows of the workbench, laid out.
#pragma once

#include <chrono>
#include <string>

#include "adapters/sim/draw/HudScreen.h"
#include "apps/workbench/CallsView.h"
#include "apps/workbench/ChatView.h"
#include "apps/workbench/FilesView.h"
#include "apps/workbench/Game.h"
#include "apps/workbench/OptionsView.h"
#include "apps/workbench/PanelView.h"
#include "apps/workbench/SceneView.h"

namespace ombrel::workbench {

class Workbench {
public:
    Workbench(Game& game, sim::HudScreen& screen, std::string sessions);

    // Everything, once.
    void Draw();

    bool quit() const { return quit_; }

private:
    void DrawBar();
    void DrawTime();
    void DrawSide(float left, float top, float width, float height);

    Game& game_;
    SceneView scene_;
    ChatView chat_;
    OptionsView options_;
    PanelView panel_;
    CallsView calls_;
    FilesView files_;
    bool options_open_ = true;
    bool was_in_world_ = false;
    bool quit_ = false;
};

}  // namespace ombrel::workbench
