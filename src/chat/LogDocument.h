// The text of XML logs: how one begins and ends, its lines, and mending one that a crash has cut off.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "chat/LogItem.h"

namespace ombrel {

inline constexpr std::string_view kLogHead = "<?xml-stylesheet type=\"text/xsl\" href=\"style/ombrellog.xsl\"?><Log>\r";
inline constexpr std::string_view kLogTail = "</Log>";

// One line. Failure 9 for a colour that the table lacks.
std::string XmlMessage(const LogItem& item);

struct MendedLog {
    std::string content;      // a document that ends in the end tag of its root; empty when there is none to be made
    std::size_t end_tag = 0;  // where lines go
    bool lossless = true;     // whether all that is missing is an unfinished line
};

// The log in what a file holds. A document stays as it is, but for a root without an end tag of its own and for another
// character set; a broken one ends behind its last finished line.
MendedLog MendLog(std::string content);

}  // namespace ombrel
