#include "apps/workbench/PanelView.h"

#include <fmt/format.h>
#include <imgui.h>

#include <algorithm>
#include <filesystem>

#include "apps/workbench/Deeds.h"
#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

namespace fs = std::filesystem;

constexpr double kLookEvery = 3;  // seconds

}  // namespace

void PanelView::DrawDeeds() {
    if (!game_.in_world()) {
        ImGui::TextDisabled("Enter the world first.");
        ImGui::BeginDisabled();
    }
    const bool locked = !game_.in_world();
    ImGui::BeginChild("deeds");
    ImGui::PushStyleColor(ImGuiCol_ChildBg, Rgb(kPanel));
    std::string_view group;
    int place = 0;
    const float width = (ImGui::GetContentRegionAvail().x - ImGui::GetStyle().ItemSpacing.x) / 2;
    for (const Deed& deed : Deeds()) {
        if (deed.group != group) {
            group = deed.group;
            place = 0;
            ImGui::PushFont(BoldFont());
            ImGui::TextColored(ImGui::ColorConvertU32ToFloat4(Rgb(kGold)), "%.*s", static_cast<int>(group.size()),
                               group.data());
            ImGui::PopFont();
        }
        if (place++ % 2 == 1) ImGui::SameLine();
        if (ImGui::Button(deed.label, {width, 0})) deed.happen(game_);
        if (ImGui::IsItemHovered() && *deed.hint) ImGui::SetTooltip("%s", deed.hint);
    }
    ImGui::PopStyleColor();
    ImGui::EndChild();
    if (locked) ImGui::EndDisabled();
}

void PanelView::Look() {
    looked_ = ImGui::GetTime();
    files_.clear();
    for (const std::string& folder : {sessions_, game_.folders().documents}) {
        std::error_code error;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
            if (entry.path().extension() == ".jsonl") files_.push_back(entry.path().string());
        }
    }
    std::ranges::sort(files_);
}

void PanelView::DrawSessions() {
    if (ImGui::GetTime() - looked_ > kLookEvery) Look();
    ImGui::PushTextWrapPos();
    ImGui::TextDisabled(
        "A session is a client's life in a file: all that it told the plug-in. Playing one begins anew.");
    ImGui::PopTextWrapPos();
    ImGui::BeginChild("sessions", {0, -2 * ImGui::GetFrameHeightWithSpacing()});
    for (const std::string& file : files_) {
        const std::string name = fs::path(file).filename().string();
        const bool playing = game_.script() && game_.script()->name == name;
        if (ImGui::Selectable(name.c_str(), playing)) {
            game_.Play(file);
            break;
        }
        if (ImGui::IsItemHovered()) ImGui::SetTooltip("Play %s", file.c_str());
    }
    ImGui::EndChild();
    if (const auto& script = game_.script()) {
        ImGui::ProgressBar(
            static_cast<float>(script->next) / static_cast<float>(std::max<std::size_t>(1, script->records.size())),
            {-1, 0}, fmt::format("{}: {} of {}", script->name, script->next, script->records.size()).c_str());
        if (ImGui::Button("Back to a game of my own")) game_.Begin();
    }
}

}  // namespace ombrel::workbench
