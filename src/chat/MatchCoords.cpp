// Finds map coordinates in a text, "12.3N, 45.6E" in any of the ways in which players write them.
#include <regex>

#include "chat/ChatTextHandler.h"
#include "core/failure.h"

namespace ombrel {

namespace {

// The engine nests with each blank that it skips, and the client's stack is small.
constexpr std::size_t kMaxLength = 1000;

}  // namespace

std::vector<CoordsMatch> ChatTextHandler::MatchCoords(const std::string& text) try {
    static const std::string kNumber = "((?:\\d{1,3}(?:\\.\\d{1,4})?)|(?:\\.\\d{1,4}))";
    static const std::regex kCoords(kNumber + "\\s*([ns])[;/,\\s]{0,4}\\s*" + kNumber + "\\s*([ew])",
                                    std::regex::ECMAScript | std::regex::icase | std::regex::optimize);
    if (text.size() > kMaxLength) throw Failure(failure::kStackSpace);

    std::vector<CoordsMatch> matches;
    for (auto match = std::sregex_iterator(text.begin(), text.end(), kCoords); match != std::sregex_iterator(); ++match)
        matches.push_back({match->str(0), match->str(1), match->str(2), match->str(3), match->str(4)});
    return matches;
} catch (...) {
    ReportFailure("MatchCoords", "ChatTextHandler");
    return {};
}

}  // namespace ombrel
