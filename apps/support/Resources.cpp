#include "apps/support/Resources.h"

namespace ombrel {

namespace fs = std::filesystem;

fs::path Resources() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path installed = program.parent_path().parent_path() / "share" / "ombrel";
    return !error && fs::is_directory(installed) ? installed : fs::path(OMBREL_RESOURCES);
}

fs::path Sessions() {
    const fs::path installed = Resources() / "sessions";
    return fs::is_directory(installed) ? installed : Resources().parent_path() / "sessions";
}

}  // namespace ombrel
