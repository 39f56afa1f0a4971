// Chat lines for people to read.
#pragma once

#include <span>
#include <string>

#include "apps/log/ChatLog.h"

namespace ombrel::log {

// A line for a terminal, with its date and without control characters.
std::string TerminalLine(const Line& line, bool colored);

// One page with everything in it, as the logs' style sheet makes it.
std::string HtmlPage(std::span<const Line> lines);

}  // namespace ombrel::log
