#include "apps/workbench/SceneView.h"

#include <cairo.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

constexpr int kMouseMove = 512, kButtonDown = 513, kButtonUp = 514;  // messages of the game window
constexpr int kShift = 16, kControl = 17;                            // key codes

}  // namespace

void SceneView::Draw(ImVec2 at, ImVec2 size) {
    constexpr ImGuiWindowFlags kFixed = ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove |
                                        ImGuiWindowFlags_NoBringToFrontOnFocus | ImGuiWindowFlags_NoScrollWithMouse |
                                        ImGuiWindowFlags_NoBackground;
    ImGui::SetNextWindowPos(at);
    ImGui::SetNextWindowSize(size);
    ImGui::PushStyleVar(ImGuiStyleVar_WindowPadding, {0, 0});
    ImGui::PushStyleVar(ImGuiStyleVar_WindowBorderSize, 0);
    const bool shown = ImGui::Begin("3D area", nullptr, kFixed);
    ImGui::PopStyleVar(2);
    if (shown) {
        Fit({std::floor(size.x), std::floor(size.y)});
        if (painted_ != game_.changes()) Paint();
        const ImVec2 low{at.x + std::floor((size.x - Width() * scale_) / 2),
                         at.y + std::floor((size.y - Height() * scale_) / 2)};
        ImGui::SetCursorScreenPos(low);
        ImGui::Image(texture_.id(), {Width() * scale_, Height() * scale_});
        ImGui::SetCursorScreenPos(at);
        ImGui::InvisibleButton("area", size);
        ImGui::SetItemAllowOverlap();
        PassMouse(low);
        if (!game_.in_world() && !game_.script()) DrawEntrance(at, size);
    }
    ImGui::End();
}

float SceneView::Width() const {
    const host::Rect& region = game_.client().hooks.Region3D;
    return static_cast<float>(std::max(1, region.right - region.left));
}

float SceneView::Height() const {
    const host::Rect& region = game_.client().hooks.Region3D;
    return static_cast<float>(std::max(1, region.bottom - region.top));
}

// The game's window is as large as the picture of it. A session at play has its own size, which is shown as large as it
// goes.
void SceneView::Fit(ImVec2 size) {
    if (!game_.script() && (Width() != size.x || Height() != size.y)) {
        game_.Do({{"event", "ACHooks_AC3DRegionChanged"},
                  {"left", 0},
                  {"top", 0},
                  {"right", static_cast<int>(size.x)},
                  {"bottom", static_cast<int>(size.y)}});
    }
    scale_ = std::min(size.x / Width(), size.y / Height());
}

void SceneView::Paint() {
    const sim::Picture picture = screen_.Show(game_.client().hooks.Region3D);
    cairo_surface_t* surface = picture.surface();
    cairo_surface_flush(surface);
    texture_.Put(cairo_image_surface_get_data(surface), picture.width(), picture.height(),
                 cairo_image_surface_get_stride(surface), scale_ != 1.0f);
    painted_ = game_.changes();
}

void SceneView::PassMouse(ImVec2 at) {
    const ImGuiIO& io = ImGui::GetIO();
    const bool held = ImGui::IsItemActive();
    if (!game_.in_world() || (!ImGui::IsItemHovered() && !held && !pressed_)) return;
    const host::Rect& region = game_.client().hooks.Region3D;
    const int x = region.left + static_cast<int>((io.MousePos.x - at.x) / scale_);
    const int y = region.top + sim::kBarHeight + static_cast<int>((io.MousePos.y - at.y) / scale_);
    const auto send = [&](int message) {
        game_.Do({{"event", "WindowMessage"}, {"message", message}, {"x", x}, {"y", y}});
    };
    std::vector<int> keys;
    if (io.KeyCtrl) keys.push_back(kControl);
    if (io.KeyShift) keys.push_back(kShift);
    if (io.MousePos.x != mouse_.x || io.MousePos.y != mouse_.y) send(kMouseMove);
    mouse_ = io.MousePos;
    if (held && !pressed_) {
        game_.Hold(keys);
        send(kButtonDown);
    }
    if (!held && pressed_) send(kButtonUp);
    pressed_ = held;
}

void SceneView::DrawEntrance(ImVec2 at, ImVec2 size) {
    const ImVec2 card{430, 178};
    const ImVec2 corner{std::floor(at.x + (size.x - card.x) / 2), std::floor(at.y + (size.y - card.y) / 2)};
    ImDrawList& draw = *ImGui::GetWindowDrawList();
    draw.AddRectFilled(corner, {corner.x + card.x, corner.y + card.y}, Rgb(kPanel, 235), 6);
    draw.AddRect(corner, {corner.x + card.x, corner.y + card.y}, Rgb(kBorder), 6);
    ImGui::SetCursorScreenPos({corner.x + 24, corner.y + 18});
    ImGui::BeginGroup();
    ImGui::PushFont(BoldFont());
    ImGui::Text("%s of %s", game_.client().sheet.Name.c_str(), game_.client().sheet.Server.c_str());
    ImGui::PopFont();
    ImGui::TextUnformatted(
        "A client without the game: the plug-in is really at work in it.\n"
        "1. Enter the world.\n"
        "2. Type /m help into the chat below.\n"
        "3. Make things happen, at the right; change its options.");
    ImGui::Dummy({0, 4});
    ImGui::PushFont(BoldFont());
    ImGui::PushStyleColor(ImGuiCol_Button, Rgb(kButton));
    ImGui::PushStyleColor(ImGuiCol_ButtonHovered, Rgb(0xDCCEA2));
    ImGui::PushStyleColor(ImGuiCol_ButtonActive, Rgb(0xA8986C));
    ImGui::PushStyleColor(ImGuiCol_Text, Rgb(kInk));
    const bool enter = ImGui::Button("Enter the world", {card.x - 48, 38});
    ImGui::PopStyleColor(4);
    if (enter) game_.Do({{"event", "Char_LoginComplete"}});
    ImGui::PopFont();
    ImGui::EndGroup();
}

}  // namespace ombrel::workbench
