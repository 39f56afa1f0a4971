// Text in the way the plug-in's rules treat it. All text is UTF-8; letters are those of the game's character set.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel {

std::string ToLower(std::string_view text);
std::string_view Trim(std::string_view text);  // blanks at both ends; no other white space
std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);

// The pieces between the separators; an empty text has one empty piece.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

bool Contains(std::string_view text, std::string_view part);  // with case
bool ContainsNoCase(std::string_view text, std::string_view part);

// Replaces every occurrence, or the first `count`, comparing with case. An empty `from` replaces nothing.
std::string Replace(std::string_view text, std::string_view from, std::string_view to, int count = -1);
// The same without regard to case.
std::string ReplaceNoCase(std::string_view text, std::string_view from, std::string_view to, int count = -1);

// Number of characters, and a text without its last one.
std::size_t Length(std::string_view text);
std::string_view DropLast(std::string_view text, std::size_t characters = 1);

// The character at `at`, which moves on behind it. A byte that is no part of a character is U+FFFD. `at` is inside the
// text.
char32_t NextCharacter(std::string_view text, std::size_t& at);
void AppendCharacter(std::string& text, char32_t character);

// The game's own character set, for text logs and key codes. A character that it lacks becomes "?".
std::string ToWindows1252(std::string_view text);
std::string FromWindows1252(std::string_view bytes);

}  // namespace ombrel
