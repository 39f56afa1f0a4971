// The wildcard language of every pattern table.
//
//     *        any run of characters, also none          [list]   one character of the list
//     ?        any one character                         [!list]  one character that is not in it
//     #        one digit
//
// In a list, a-z is a range in ascending order; "-" at either end stands for itself, and so do * ? # and [, so that a
// literal [ is [[]. An empty list [] matches the empty string. Characters compare with case, by their 16-bit code, and the
// whole text must match the whole pattern. A list that is never closed or a range in descending order is failure 93.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel {

bool LikeMatch(std::string_view text, std::string_view pattern);

// A pattern made ready once for many texts.
class LikePattern {
public:
    // Throws Failure 93 for a malformed pattern.
    explicit LikePattern(std::string_view pattern);

    bool Matches(std::string_view text) const;

private:
    struct Compiled;
    std::string pattern_;
};

}  // namespace ombrel
