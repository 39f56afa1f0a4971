#include "apps/replay/Folders.h"

#include <fmt/format.h>

namespace ombrel::replay {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    const fs::path parent = fs::absolute(fs::temp_directory_path()).lexically_normal();
    for (int number = 1; path_.empty(); ++number) {
        const fs::path candidate = parent / fmt::format("ombrel-replay-{}", number);
        if (!fs::create_directory(candidate)) continue;
        path_ = candidate;
        fs::permissions(path_, fs::perms::owner_all);
    }
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace ombrel::replay
