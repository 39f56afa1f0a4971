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

fs::path Resources() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path installed = program.parent_path().parent_path() / "share" / "ombrel";
    return !error && fs::is_directory(installed) ? installed : fs::path(OMBREL_RESOURCES);
}

}  // namespace ombrel::replay
