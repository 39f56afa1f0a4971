// Files of chat lines: chat type, tab, text; what follows a further tab is ignored.
#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <string>

namespace ombrel::sim {

// A chat type of -1 is a status text over the 3D area.
inline constexpr std::int32_t kStatusText = -1;

// Hands over each line of the file, with backslash n turned into a line feed. A first line that begins with no number
// is the header. Throws SessionError, which names the line, for any other line without a type and a text.
void ReadChatFile(std::istream& input, const std::string& name,
                  const std::function<void(std::int32_t type, const std::string& text)>& feed);

}  // namespace ombrel::sim
