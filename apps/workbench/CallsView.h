// The calls that the plug-in makes in its host, as they come.
#pragma once

#include <array>
#include <string>

#include "apps/workbench/Game.h"

namespace ombrel::workbench {

class CallsView {
public:
    explicit CallsView(Game& game) : game_(game) {}

    // Fills the current tab.
    void Draw();

private:
    bool Wanted(const CallLine& call) const;

    Game& game_;
    std::array<bool, 9> kinds_{true, true, true, true, true, true, true, true, false};  // as CallKind counts them
    std::string words_;
};

}  // namespace ombrel::workbench
