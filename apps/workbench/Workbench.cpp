#include "apps/workbench/Workbench.h"

#include <fmt/chrono.h>
#include <imgui.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

constexpr float kSideWidth = 420, kChatHeight = 232;
constexpr auto kSpeeds = std::to_array({1.0, 10.0, 60.0, 600.0});

}  // namespace

Workbench::Workbench(Game& game, sim::HudScreen& screen, std::string sessions)
    : game_(game),
      scene_(game, screen),
      chat_(game),
      options_(game),
      panel_(game, std::move(sessions)),
      calls_(game),
      files_(game) {}

void Workbench::Draw() {
    const ImVec2 all = ImGui::GetIO().DisplaySize;
    DrawBar();
    const float top = ImGui::GetFrameHeight() + 8;
    const float side = std::min(kSideWidth, std::floor(all.x * 0.4f));
    const float chat = std::min(kChatHeight, std::floor(all.y * 0.4f));
    scene_.Draw({0, top}, {all.x - side, all.y - top - chat});
    chat_.Draw({0, all.y - chat}, {all.x - side, chat});
    DrawSide(all.x - side, top, side, all.y - top);
    if (game_.in_world()) options_.Draw(options_open_, {all.x - side - 392, top + 12});
    if (game_.in_world() && !was_in_world_) chat_.Focus();
    was_in_world_ = game_.in_world();
}

void Workbench::DrawBar() {
    ImGui::PushStyleVar(ImGuiStyleVar_FramePadding, {8, 6});
    if (ImGui::BeginMainMenuBar()) {
        ImGui::PushFont(BoldFont());
        ImGui::TextColored(ImGui::ColorConvertU32ToFloat4(Rgb(kGold)), "Ombrel workbench");
        ImGui::PopFont();
        ImGui::Separator();
        if (ImGui::MenuItem("New game")) game_.Begin();
        if (ImGui::MenuItem("Options", nullptr, options_open_, game_.in_world())) options_open_ = !options_open_;
        ImGui::Separator();
        DrawTime();
        if (ImGui::MenuItem("Quit")) quit_ = true;
        if (!game_.notice.empty()) {
            ImGui::Separator();
            ImGui::TextDisabled("%s", game_.notice.c_str());
        }
        ImGui::EndMainMenuBar();
    }
    ImGui::PopStyleVar();
}

void Workbench::DrawTime() {
    const sim::Client& client = game_.client();
    const std::chrono::sys_time<std::chrono::milliseconds> local(
        std::chrono::milliseconds(client.clock.universal() - std::int64_t{client.system.zone.bias} * 60'000));
    ImGui::TextUnformatted(
        fmt::format("{:%d %b %Y  %H:%M:%S}", std::chrono::floor<std::chrono::seconds>(local)).c_str());
    if (ImGui::MenuItem(game_.paused ? "Go on" : "Pause")) game_.paused = !game_.paused;
    if (ImGui::MenuItem("Step")) game_.Step();
    if (ImGui::IsItemHovered()) ImGui::SetTooltip("A second on, or the next record of the session at play");
    for (const double speed : kSpeeds) {
        if (ImGui::MenuItem(fmt::format("x{:.0f}", speed).c_str(), nullptr, game_.speed == speed)) game_.speed = speed;
    }
}

void Workbench::DrawSide(float left, float top, float width, float height) {
    ImGui::SetNextWindowPos({left, top});
    ImGui::SetNextWindowSize({width, height});
    constexpr ImGuiWindowFlags kFixed =
        ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove | ImGuiWindowFlags_NoBringToFrontOnFocus;
    if (ImGui::Begin("Side", nullptr, kFixed) && ImGui::BeginTabBar("side")) {
        if (ImGui::BeginTabItem("Make things happen")) {
            panel_.DrawDeeds();
            ImGui::EndTabItem();
        }
        if (ImGui::BeginTabItem("Sessions")) {
            panel_.DrawSessions();
            ImGui::EndTabItem();
        }
        if (ImGui::BeginTabItem("Host calls")) {
            calls_.Draw();
            ImGui::EndTabItem();
        }
        if (ImGui::BeginTabItem("Files")) {
            files_.Draw();
            ImGui::EndTabItem();
        }
        ImGui::EndTabBar();
    }
    ImGui::End();
}

}  // namespace ombrel::workbench
