#include "apps/workbench/CallsView.h"

#include <imgui.h>
#include <imgui_stdlib.h>

#include <algorithm>

#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

struct KindRow {
    const char* name;
    std::uint32_t color;
};
constexpr std::array<KindRow, 9> kKinds = {{
    {"chat", 0x7FFF7E},
    {"command", 0xEBEB3A},
    {"item", 0xE78F1E},
    {"input", 0xFF7EFF},
    {"sound", 0x3EBEFF},
    {"vendor", 0xF6908F},
    {"hotkey", 0x3EDCDC},
    {"host", 0xB4DCEF},
    {"draw", 0x9A927C},
}};

}  // namespace

bool CallsView::Wanted(const CallLine& call) const {
    const auto kind = static_cast<std::size_t>(call.kind);
    return kind < kinds_.size() && kinds_[kind] && (words_.empty() || call.text.find(words_) != std::string::npos);
}

void CallsView::Draw() {
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
        if (kind % 5 != 0) ImGui::SameLine();
        ImGui::PushStyleColor(ImGuiCol_Text, Rgb(kKinds[kind].color));
        ImGui::Checkbox(kKinds[kind].name, &kinds_[kind]);
        ImGui::PopStyleColor();
    }
    game_.draw_calls = kinds_.back();
    ImGui::SetNextItemWidth(-1);
    ImGui::InputTextWithHint("##words", "Only those with ...", &words_);
    if (ImGui::Button("Save these")) {
        game_.SaveCalls(game_.folders().documents + "/Workbench calls.jsonl",
                        [this](const CallLine& call) { return Wanted(call); });
    }
    if (ImGui::IsItemHovered())
        ImGui::SetTooltip("Writes the lines below to Workbench calls.jsonl in the documents folder");
    ImGui::SameLine();
    if (ImGui::Button("Save what I did")) game_.Save(game_.folders().documents + "/Workbench session.jsonl");
    if (ImGui::IsItemHovered())
        ImGui::SetTooltip("Writes all that has happened as a session, which ombrel-replay plays again");
    ImGui::SameLine();
    if (ImGui::Button("Clear")) game_.calls.clear();

    std::vector<const CallLine*> lines;
    for (const CallLine& call : game_.calls) {
        if (Wanted(call)) lines.push_back(&call);
    }
    ImGui::BeginChild("calls", {0, 0}, false, ImGuiWindowFlags_HorizontalScrollbar);
    ImGuiListClipper clipper;
    clipper.Begin(static_cast<int>(lines.size()));
    while (clipper.Step()) {
        for (int line = clipper.DisplayStart; line < clipper.DisplayEnd; ++line) {
            const CallLine& call = *lines[static_cast<std::size_t>(line)];
            ImGui::PushStyleColor(ImGuiCol_Text, Rgb(kKinds[static_cast<std::size_t>(call.kind)].color));
            ImGui::TextUnformatted(call.text.c_str());
            ImGui::PopStyleColor();
        }
    }
    clipper.End();
    if (ImGui::GetScrollY() >= ImGui::GetScrollMaxY()) ImGui::SetScrollHereY(1);
    ImGui::EndChild();
}

}  // namespace ombrel::workbench
