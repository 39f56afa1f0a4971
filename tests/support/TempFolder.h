// A folder of a test's own, which goes with it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ombrel::test {

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    // Files below the folder, by paths with forward slashes. One that is missing reads as empty.
    void Write(std::string_view file, std::string_view content) const;
    std::string Read(std::string_view file) const;

private:
    std::filesystem::path path_;
};

}  // namespace ombrel::test
