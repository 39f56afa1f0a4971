// The plug-in's own commands, "/m" and a word.
#pragma once

#include <string_view>
#include <vector>

namespace ombrel {

// As they are compared, in the order in which they are tried: "find*", "loc".
std::vector<std::string_view> ChatCommands();

}  // namespace ombrel
