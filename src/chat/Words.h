// Words in a line: what stands with no letter beside it. Only a to z count as letters; callers lower-case their texts
// and put a blank at either end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/like.h"
#include "core/text.h"

namespace ombrel {

// Matches lines in which the word stands alone. A word may hold wildcards.
inline LikePattern WordPattern(const std::string& word) { return LikePattern("*[!a-z]" + word + "[!a-z]*"); }

// Whether the `size` bytes from `at` stand alone.
inline bool StandsAlone(std::string_view lower, std::size_t at, std::size_t size) {
    const auto is_letter = [](char c) { return c >= 'a' && c <= 'z'; };
    return at > 0 && at + size < lower.size() && !is_letter(lower[at - 1]) && !is_letter(lower[at + size]);
}

// Where a search goes on behind a word found at `at`: as many characters further as the word has, whatever stands there
// by now.
inline std::size_t Behind(std::string_view text, std::size_t at, std::string_view word) {
    for (std::size_t left = Length(word); left > 0 && at < text.size(); --left) NextCharacter(text, at);
    return at;
}

}  // namespace ombrel
