// The panel at the right: what can be made to happen, sessions to play.
#pragma once

#include <string>
#include <vector>

#include "apps/workbench/Game.h"

namespace ombrel::workbench {

class PanelView {
public:
    // Sessions are those in the folder.
    PanelView(Game& game, std::string sessions) : game_(game), sessions_(std::move(sessions)) {}

    // Both fill the current tab.
    void DrawDeeds();
    void DrawSessions();

private:
    void Look();

    Game& game_;
    std::string sessions_;
    std::vector<std::string> files_;
    double looked_ = -10;
};

}  // namespace ombrel::workbench
