// Where the programs find what lies beside the plug-in.
#pragma once

#include <filesystem>

namespace ombrel {

// The installed resources beside the program, else those that it was built with.
std::filesystem::path Resources();

// Example sessions, installed or built with likewise.
std::filesystem::path Sessions();

}  // namespace ombrel
