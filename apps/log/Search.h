// Which lines of chat logs somebody wants to see.
#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "apps/log/ChatLog.h"

namespace ombrel::log {

// Log classes by tag; 0 is a line whose log tells none.
inline constexpr std::array<std::string_view, 20> kClassNames = {
    "No class", "Open Chat",   "Tells",      "Fellowship", "Patron/Covassal", "Vassal",  "Allegiance",
    "Channels", "Magic",       "Spellwords", "Combat",     "System",          "Recalls", "Tinkers",
    "Rares",    "Stat Raises", "Level",      "Vitae",      "Ombrel",          "Other",
};

// Words, classes and days must all fit. Each set step throws std::runtime_error with the reason when it is given
// nonsense.
class Search {
public:
    void SetWords(std::string_view words);  // "this+that" has both, "this|that" either, without regard to case
    void AddClass(std::string_view name);   // a name, the beginning of one, or a tag
    void SetDays(std::string_view days);    // "2024-07-04", or "2024-07-01..2024-07-04" where an end may be left out
    bool Fits(const Line& line) const;

private:
    std::vector<std::vector<std::string>> alternatives_;
    std::set<int> tags_;
    bool any_day_ = true;
    std::string first_day_, last_day_;
};

}  // namespace ombrel::log
