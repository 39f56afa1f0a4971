// Plays files through a fuzz target without a fuzzer: PROGRAM FILE_OR_FOLDER...
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const fs::path& place) {
    if (!fs::is_directory(place)) return {place};
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(place)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

int main(int count, char** arguments) {
    int played = 0;
    for (int i = 1; i < count; ++i) {
        for (const fs::path& file : FilesOf(arguments[i])) {
            std::printf("%s\n", file.string().c_str());
            std::fflush(stdout);
            std::ifstream stream(file, std::ios::binary);
            const std::string content{std::istreambuf_iterator<char>(stream), {}};
            if (!stream.is_open()) return 1;
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++played;
        }
    }
    return played > 0 ? 0 : 1;
}
