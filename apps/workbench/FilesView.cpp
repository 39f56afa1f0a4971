#include "apps/workbench/FilesView.h"

#include <SDL.h>
#include <fmt/format.h>
#include <imgui.h>

#include <algorithm>
#include <fstream>

#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

namespace fs = std::filesystem;

constexpr double kLookEvery = 2;  // seconds
constexpr std::size_t kMostFiles = 500;
constexpr std::size_t kMostShown = 1 << 20;  // bytes

std::string Size(std::uintmax_t bytes) {
    return bytes < 10'000 ? fmt::format("{} bytes", bytes)
                          : fmt::format("{:.1f} KB", static_cast<double>(bytes) / 1024.0);
}

}  // namespace

void FilesView::Look() {
    looked_ = ImGui::GetTime();
    files_.clear();
    for (const std::string& folder : {game_.folders().documents, game_.folders().common_data}) {
        std::error_code error;
        for (fs::recursive_directory_iterator at(folder, fs::directory_options::skip_permission_denied, error), end;
             !error && at != end && files_.size() < kMostFiles; at.increment(error)) {
            if (!at->is_regular_file(error)) continue;
            const std::string extension = at->path().extension().string();
            if (extension != ".xml" && extension != ".txt" && extension != ".log" && extension != ".jsonl") continue;
            const auto size = at->file_size(error);
            files_.push_back({at->path(), fmt::format("{}   {}", fs::relative(at->path(), folder, error).string(),
                                                      Size(error ? 0 : size))});
        }
    }
    std::ranges::sort(files_, {}, &Entry::path);
    if (!shown_.empty()) Open(shown_);
}

void FilesView::Open(const fs::path& path) {
    shown_ = path;
    content_.clear();
    std::ifstream file(path, std::ios::binary);
    content_.resize(kMostShown);
    file.read(content_.data(), static_cast<std::streamsize>(content_.size()));
    content_.resize(static_cast<std::size_t>(std::max<std::streamsize>(0, file.gcount())));
    std::erase(content_, '\r');
}

void FilesView::Draw() {
    if (ImGui::GetTime() - looked_ > kLookEvery) Look();
    ImGui::TextDisabled("%s", game_.folders().documents.c_str());
    ImGui::TextDisabled("%s", game_.folders().common_data.c_str());
    ImGui::BeginChild("files", {0, ImGui::GetContentRegionAvail().y * 0.35f});
    for (const Entry& file : files_) {
        if (ImGui::Selectable(file.label.c_str(), file.path == shown_)) Open(file.path);
        if (ImGui::IsItemHovered()) ImGui::SetTooltip("%s", file.path.c_str());
    }
    if (files_.empty()) ImGui::TextDisabled("None yet: settings are saved as options change.");
    ImGui::EndChild();
    ImGui::BeginDisabled(shown_.empty());
    if (ImGui::Button("Open with its program")) SDL_OpenURL(("file://" + shown_.string()).c_str());
    ImGui::EndDisabled();
    ImGui::SameLine();
    ImGui::TextDisabled("%s", shown_.filename().c_str());
    ImGui::InputTextMultiline("##content", content_.data(), content_.size() + 1, {-1, -1},
                              ImGuiInputTextFlags_ReadOnly);
}

}  // namespace ombrel::workbench
