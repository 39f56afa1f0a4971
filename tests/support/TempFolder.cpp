#include "tests/support/TempFolder.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <system_error>

namespace ombrel::test {

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "ombrel-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::system_error(errno, std::generic_category(), pattern);
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void TempFolder::Write(std::string_view file, std::string_view content) const {
    const std::filesystem::path path = path_ / file;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string TempFolder::Read(std::string_view file) const {
    std::ifstream in(path_ / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace ombrel::test
