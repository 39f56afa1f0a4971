// Where the program finds its resources and puts the player's files.
#pragma once

#include <filesystem>
#include <optional>

namespace ombrel::replay {

// A fresh folder that goes, with all in it, when this does. The name is the same in each run unless others run beside
// it: what the plug-in says of its files stays the same from run to run.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// The installed resources beside the program, else those that it was built with.
std::filesystem::path Resources();

}  // namespace ombrel::replay
