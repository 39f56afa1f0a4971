// Where the program puts the player's files, and finds its resources.
#pragma once

#include <filesystem>
#include <optional>

#include "apps/support/Resources.h"

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

}  // namespace ombrel::replay
