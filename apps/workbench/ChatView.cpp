#include "apps/workbench/ChatView.h"

#include <fmt/format.h>
#include <imgui_stdlib.h>

#include <algorithm>
#include <charconv>

#include "adapters/sim/Transcript.h"
#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

constexpr std::size_t kMainWindow = 1, kLastWindow = 5;
constexpr float kMainShare = 0.62f;
constexpr float kIndent = 12;  // of a line's second and later rows

std::string_view WithoutLineFeed(std::string_view text) {
    while (!text.empty() && text.back() == '\n') text.remove_suffix(1);
    return text;
}

}  // namespace

// <Tell:IIDString:1342309377:Thessaly>Thessaly<\Tell>
std::vector<ChatView::Piece> ChatView::Pieces(std::string_view line) {
    constexpr std::string_view kStart = "<Tell:IIDString:", kEnd = "<\\Tell>";
    std::vector<Piece> pieces;
    while (!line.empty()) {
        const std::size_t start = line.find(kStart);
        const std::size_t close = start == line.npos ? line.npos : line.find('>', start);
        const std::size_t end = close == line.npos ? line.npos : line.find(kEnd, close);
        const std::size_t colon = end == line.npos ? line.npos : line.find(':', start + kStart.size());
        if (colon == line.npos || colon > close) {
            pieces.push_back({sim::ReadableChat(line)});
            break;
        }
        if (start > 0) pieces.push_back({sim::ReadableChat(line.substr(0, start))});
        Piece link{sim::ReadableChat(line.substr(close + 1, end - close - 1)), true,
                   std::string(line.substr(colon + 1, close - colon - 1))};
        std::int64_t id = 0;
        std::from_chars(line.data() + start + kStart.size(), line.data() + colon, id);
        link.id = static_cast<host::Id>(id);
        pieces.push_back(std::move(link));
        line.remove_prefix(end + kEnd.size());
    }
    return pieces;
}

void ChatView::Draw(ImVec2 at, ImVec2 size) {
    constexpr ImGuiWindowFlags kFixed = ImGuiWindowFlags_NoMove | ImGuiWindowFlags_NoResize |
                                        ImGuiWindowFlags_NoCollapse | ImGuiWindowFlags_NoBringToFrontOnFocus;
    const float main = std::floor(size.x * kMainShare);
    ImGui::SetNextWindowPos(at);
    ImGui::SetNextWindowSize({main, size.y});
    if (ImGui::Begin("Chat", nullptr, kFixed)) {
        DrawLines(kMainWindow);
        DrawInput();
    }
    ImGui::End();

    ImGui::SetNextWindowPos({at.x + main, at.y});
    ImGui::SetNextWindowSize({size.x - main, size.y});
    if (ImGui::Begin("Floating chat windows", nullptr, kFixed) && ImGui::BeginTabBar("floating")) {
        DrawFloating();
        ImGui::EndTabBar();
    }
    ImGui::End();

    if (!clicked_) return;
    const Piece link = *std::exchange(clicked_, std::nullopt);
    if (const auto name = game_.ClickLink(link.target, link.id)) {
        input_ = "/tell " + *name + ", ";
        Focus();
    }
}

// A window that is not shown tells how many lines have come to it since it was.
void ChatView::DrawFloating() {
    for (std::size_t window = kMainWindow + 1; window <= kLastWindow; ++window) {
        const std::size_t come = game_.chat[window].gone + game_.chat[window].lines.size();
        std::size_t& seen = seen_[window];
        seen = std::min(seen, come);  // a new game
        const std::string unseen = come > seen ? fmt::format(" ({})", come - seen) : "";
        if (!ImGui::BeginTabItem(fmt::format("{}{}###{}", window - 1, unseen, window).c_str())) continue;
        seen = come;
        DrawLines(window);
        ImGui::EndTabItem();
    }
}

void ChatView::DrawLines(std::size_t window) {
    const float below = window == kMainWindow ? ImGui::GetFrameHeightWithSpacing() : 0;
    ImGui::BeginChild("lines", {0, -below});
    ImGui::PushStyleVar(ImGuiStyleVar_ItemSpacing, {0, 2});
    const float width = ImGui::GetContentRegionAvail().x;
    int number = 0;
    for (ShownLine& shown : game_.chat[window].lines) {
        ImGui::PushID(number++);
        DrawLine(shown, width);
        ImGui::PopID();
    }
    if (number == 0 && window != kMainWindow) {
        ImGui::PushTextWrapPos();
        ImGui::TextDisabled("Lines come here when the options send them to window %d (tab Chat).",
                            static_cast<int>(window) - 1);
        ImGui::PopTextWrapPos();
    }
    ImGui::PopStyleVar();
    if (ImGui::GetScrollY() >= ImGui::GetScrollMaxY()) ImGui::SetScrollHereY(1);
    ImGui::EndChild();
}

// Words wrap by hand, since a line is made of pieces. One that is out of sight only takes its room.
void ChatView::DrawLine(ShownLine& shown, float width) {
    const ImVec2 start = ImGui::GetCursorScreenPos();
    if (shown.width == width && !ImGui::IsRectVisible(start, {start.x + width, start.y + shown.height}))
        return ImGui::Dummy({width, shown.height});
    const float height = ImGui::GetTextLineHeight();
    const ImU32 color = ChatColor(shown.line.color);
    ImDrawList& draw = *ImGui::GetWindowDrawList();
    float x = 0, y = 0;
    int number = 0;
    for (const Piece& piece : Pieces(WithoutLineFeed(shown.line.text))) {
        std::string_view rest = piece.text;
        while (!rest.empty()) {
            const std::size_t space = rest.find_first_of(" \n");
            const std::string_view word = rest.substr(0, space == rest.npos ? rest.size() : space + 1);
            rest.remove_prefix(word.size());
            const bool breaks = word.back() == '\n';
            const std::string_view text = breaks ? word.substr(0, word.size() - 1) : word;
            const float wide = ImGui::CalcTextSize(text.data(), text.data() + text.size()).x;
            if (x > 0 && x + wide > width) {
                x = kIndent;
                y += height;
            }
            const ImVec2 at{start.x + x, start.y + y};
            draw.AddText(at, piece.link ? Rgb(0xFFFFFF) : color, text.data(), text.data() + text.size());
            if (piece.link) {
                draw.AddLine({at.x, at.y + height - 1}, {at.x + wide, at.y + height - 1}, Rgb(0xFFFFFF, 110));
                ImGui::SetCursorScreenPos(at);
                ImGui::PushID(number++);
                if (ImGui::InvisibleButton("", {std::max(1.0f, wide), height})) clicked_ = piece;
                if (ImGui::IsItemHovered()) ImGui::SetMouseCursor(ImGuiMouseCursor_Hand);
                ImGui::PopID();
            }
            x += wide;
            if (breaks) {
                x = kIndent;
                y += height;
            }
        }
    }
    shown.width = width;
    shown.height = y + height;
    ImGui::SetCursorScreenPos(start);
    ImGui::Dummy({width, shown.height});
}

void ChatView::DrawInput() {
    ImGui::SetNextItemWidth(-1);
    if (focus_) ImGui::SetKeyboardFocusHere();
    focus_ = false;
    const auto recall = [](ImGuiInputTextCallbackData* data) {
        static_cast<ChatView*>(data->UserData)->Recall(*data);
        return 0;
    };
    constexpr ImGuiInputTextFlags kFlags = ImGuiInputTextFlags_EnterReturnsTrue | ImGuiInputTextFlags_CallbackHistory;
    const bool entered =
        ImGui::InputTextWithHint("##input", "Type here: something to say, or /m help", &input_, kFlags, recall, this);
    game_.client().hooks.ChatState = ImGui::IsItemActive();
    if (!entered) return;
    const std::string line = std::exchange(input_, {});
    if (!line.empty()) said_.push_back(line);
    recalled_ = said_.size();
    game_.Say(line);
    Focus();
}

void ChatView::Recall(ImGuiInputTextCallbackData& data) {
    if (data.EventKey == ImGuiKey_UpArrow && recalled_ > 0) --recalled_;
    if (data.EventKey == ImGuiKey_DownArrow && recalled_ < said_.size()) ++recalled_;
    data.DeleteChars(0, data.BufTextLen);
    if (recalled_ < said_.size()) data.InsertChars(0, said_[recalled_].c_str());
}

}  // namespace ombrel::workbench
