// The chat windows: the main one with its input line, and the four that float.
#pragma once

#include <imgui.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "apps/workbench/Game.h"

namespace ombrel::workbench {

class ChatView {
public:
    explicit ChatView(Game& game) : game_(game) {}

    void Draw(ImVec2 at, ImVec2 size);

    // Puts the keyboard into the input line.
    void Focus() { focus_ = true; }

private:
    // A piece of a line: plain, or a link with what a click on it says.
    struct Piece {
        std::string text;
        bool link = false;
        std::string target = {};
        host::Id id = 0;
    };
    static std::vector<Piece> Pieces(std::string_view line);

    void DrawFloating();
    void DrawLines(std::size_t window);
    void DrawLine(ShownLine& shown, float width);
    void DrawInput();
    void Recall(ImGuiInputTextCallbackData& data);

    Game& game_;
    std::string input_;
    std::vector<std::string> said_;  // lines typed so far, the newest last
    std::size_t recalled_ = 0;       // how far back the arrow keys have gone
    bool focus_ = false;
    std::optional<Piece> clicked_;
    std::array<std::size_t, 6> seen_{};  // lines of each window that had come when it was shown last
};

}  // namespace ombrel::workbench
