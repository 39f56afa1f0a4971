// The chat windows: the main one with its input line, and the four that float.
#pragma once

#include <imgui.h>

#include <array>
#include <cstdint>
#include <string>

#include "apps/workbench/Game.h"

namespace ombrel::workbench {

class ChatView {
public:
    explicit ChatView(Game& game) : game_(game) {}

    void Draw(ImVec2 at, ImVec2 size);

    // Puts the keyboard into the input line.
    void Focus() { focus_ = true; }

private:
    void DrawLines(std::int32_t window);
    void DrawLine(const sim::Client::ChatLine& line);
    void DrawInput();
    void Recall(ImGuiInputTextCallbackData& data);

    Game& game_;
    std::string input_;
    std::vector<std::string> said_;  // lines typed so far, the newest last
    std::size_t recalled_ = 0;       // how far back the arrow keys have gone
    bool focus_ = false;
    std::array<std::size_t, 6> seen_{};  // lines of each window that were there when it was shown last
};

}  // namespace ombrel::workbench
