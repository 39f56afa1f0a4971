#include "core/text.h"

#include <algorithm>
#include <array>

namespace ombrel {
namespace {

unsigned char ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

constexpr std::array<unsigned char, 256> MakeAsciiLower() {
    std::array<unsigned char, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const bool capital = byte >= 'A' && byte <= 'Z';
        table[byte] = static_cast<unsigned char>(capital ? byte + ('a' - 'A') : byte);
    }
    return table;
}

constexpr auto kAsciiLower = MakeAsciiLower();

// One byte of the lower-cased text. The capitals beyond ASCII have two bytes, of which the second tells the letter, and
// so have their small letters: lower-casing moves nothing.
unsigned char LowerByte(std::string_view text, std::size_t at) {
    const auto byte = ByteAt(text, at);
    if (byte < 0x80) return kAsciiLower[byte];
    if (!IsContinuation(byte)) {
        const bool is_y_diaeresis = byte == 0xC5 && at + 1 < text.size() && ByteAt(text, at + 1) == 0xB8;
        return is_y_diaeresis ? 0xC3 : byte;
    }
    if (at == 0) return byte;
    const auto lead = ByteAt(text, at - 1);
    if (lead == 0xC3) {
        const bool capital = byte <= 0x9E && byte != 0x97;  // À to Þ without the multiplication sign
        return static_cast<unsigned char>(capital ? byte + 0x20 : byte);
    }
    if (lead == 0xC5) {
        switch (byte) {
            case 0xA0:  // Š
            case 0x92:  // Œ
            case 0xBD:  // Ž
                return static_cast<unsigned char>(byte + 1);
            case 0xB8:  // Ÿ
                return 0xBF;
            default:
                return byte;
        }
    }
    return byte;
}

bool StartsWithNoCase(std::string_view text, std::size_t at, std::string_view part) {
    if (text.size() - at < part.size()) return false;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (LowerByte(text, at + i) != LowerByte(part, i)) return false;
    }
    return true;
}

std::size_t FindNoCase(std::string_view text, std::string_view part, std::size_t from) {
    if (part.empty()) return from <= text.size() ? from : std::string_view::npos;
    for (std::size_t at = from; at + part.size() <= text.size(); ++at) {
        if (StartsWithNoCase(text, at, part)) return at;
    }
    return std::string_view::npos;
}

template <class Find>
std::string ReplaceFound(std::string_view text, std::string_view from, std::string_view to, int count, Find find) {
    std::string result;
    std::size_t done = 0;
    while (count != 0 && !from.empty()) {
        const auto at = find(done);
        if (at == std::string_view::npos) break;
        result.append(text, done, at - done).append(to);
        done = at + from.size();
        if (count > 0) --count;
    }
    return result.append(text, done);
}

// What the bytes 80 to 9F mean. The five that mean nothing stand for the control characters of their number.
constexpr char32_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& at) {
    constexpr char32_t kReplacement = 0xFFFD;
    const auto lead = ByteAt(text, at++);
    if (lead < 0x80) return lead;

    const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - at < more) return kReplacement;
    char32_t character = lead & (0x3Fu >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const auto byte = ByteAt(text, at + i);
        if (!IsContinuation(byte)) return kReplacement;
        character = character << 6 | (byte & 0x3Fu);
    }
    constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < kSmallest[more] || character > 0x10FFFF || surrogate) return kReplacement;
    at += more;
    return character;
}

void AppendCharacter(std::string& text, char32_t character) {
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0 | character >> 6);
        add(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        add(0xE0 | character >> 12);
        add(0x80 | (character >> 6 & 0x3F));
        add(0x80 | (character & 0x3F));
    } else {
        add(0xF0 | character >> 18);
        add(0x80 | (character >> 12 & 0x3F));
        add(0x80 | (character >> 6 & 0x3F));
        add(0x80 | (character & 0x3F));
    }
}

std::string ToLower(std::string_view text) {
    std::string result(text);
    for (std::size_t i = 0; i < text.size(); ++i) result[i] = static_cast<char>(LowerByte(text, i));
    return result;
}

std::string_view TrimLeft(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

std::string_view TrimRight(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

std::string_view Trim(std::string_view text) { return TrimLeft(TrimRight(text)); }

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> pieces;
    if (!separator.empty()) {
        for (auto at = text.find(separator); at != std::string_view::npos; at = text.find(separator)) {
            pieces.push_back(text.substr(0, at));
            text.remove_prefix(at + separator.size());
        }
    }
    pieces.push_back(text);
    return pieces;
}

bool Contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

bool ContainsNoCase(std::string_view text, std::string_view part) {
    return FindNoCase(text, part, 0) != std::string_view::npos;
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to, int count) {
    return ReplaceFound(text, from, to, count, [&](std::size_t start) { return text.find(from, start); });
}

std::string ReplaceNoCase(std::string_view text, std::string_view from, std::string_view to, int count) {
    return ReplaceFound(text, from, to, count, [&](std::size_t start) { return FindNoCase(text, from, start); });
}

std::size_t Length(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return !IsContinuation(static_cast<unsigned char>(byte)); }));
}

std::string_view DropLast(std::string_view text, std::size_t characters) {
    auto end = text.size();
    for (; characters > 0 && end > 0; --characters) {
        do --end;
        while (end > 0 && IsContinuation(ByteAt(text, end)));
    }
    return text.substr(0, end);
}

std::string ToWindows1252(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto character = NextCharacter(text, at);
        if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
            bytes += static_cast<char>(character);
            continue;
        }
        const auto* found = std::find(std::begin(kHighControls), std::end(kHighControls), character);
        bytes += found == std::end(kHighControls) ? '?' : static_cast<char>(0x80 + (found - kHighControls));
    }
    return bytes;
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendCharacter(text, byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : byte);
    }
    return text;
}

}  // namespace ombrel
