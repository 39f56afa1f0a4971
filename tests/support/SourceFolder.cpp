#include "tests/support/SourceFolder.h"

#include <fmt/format.h>

#include <cstdlib>

namespace ombrel::test {

const std::string& SourceFolder() {
    static const std::string folder = OMBREL_SOURCE_DIR;
    return folder;
}

std::string SpellTablePath() { return SourceFolder() + "/resources/sim/spells.tsv"; }

std::string GameData(std::string_view file) {
    const char* const folder = std::getenv("OMBREL_DATA");
    return fmt::format("{}/{}", folder ? folder : SourceFolder() + "/../shared/data", file);
}

}  // namespace ombrel::test
