// The player's files: settings, data, logs.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "apps/workbench/Game.h"

namespace ombrel::workbench {

class FilesView {
public:
    explicit FilesView(Game& game) : game_(game) {}

    // Fills the current tab.
    void Draw();

private:
    struct Entry {
        std::filesystem::path path;
        std::string label;
    };
    void Look();
    void Open(const std::filesystem::path& path);

    Game& game_;
    std::vector<Entry> files_;
    std::filesystem::path shown_;
    std::string content_;
    double looked_ = -10;
};

}  // namespace ombrel::workbench
