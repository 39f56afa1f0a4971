// Wildcards: the matcher agrees with one that is slow and obvious. An input is a pattern, a line feed, and the text.
#include "core/like.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/failure.h"
#include "fuzz/support/Script.h"

namespace ombrel::fuzz {
namespace {

// Keeps the slow matcher's table small.
constexpr std::size_t kLongest = 300;

constexpr char16_t kNoCharacter = 0xFFFD;

// The 16-bit codes of a UTF-8 text, read as plainly as can be. Bytes that belong to no character become U+FFFD each.
std::u16string Codes(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    std::u16string codes;
    for (std::size_t at = 0; at < text.size();) {
        const unsigned lead = byte(at);
        const std::size_t length = lead < 0x80                   ? 1
                                   : lead >= 0xF0 && lead < 0xF5 ? 4
                                   : lead >= 0xE0 && lead < 0xF0 ? 3
                                   : lead >= 0xC2 && lead < 0xE0 ? 2
                                                                 : 0;
        bool whole = length > 0 && at + length <= text.size();
        char32_t character = length == 1 ? lead : lead & (0xFFu >> (length + 1));
        for (std::size_t i = 1; whole && i < length; ++i) {
            whole = (byte(at + i) & 0xC0) == 0x80;
            character = character << 6 | (byte(at + i) & 0x3F);
        }
        constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
        if (!whole || character < kLeast[length] || character > 0x10FFFF ||
            (character >= 0xD800 && character <= 0xDFFF)) {
            codes.push_back(kNoCharacter);
            ++at;
            continue;
        }
        at += length;
        if (character < 0x10000) {
            codes.push_back(static_cast<char16_t>(character));
        } else {
            codes.push_back(static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)));
            codes.push_back(static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
        }
    }
    return codes;
}

// One item of a pattern. A star has no set, anything else is the set of the codes that it takes.
struct Item {
    bool star = false;
    bool negated = false;
    std::vector<std::pair<char16_t, char16_t>> ranges;

    bool Takes(char16_t code) const {
        const bool in = std::ranges::any_of(
            ranges, [code](const auto& range) { return code >= range.first && code <= range.second; });
        return in != negated;
    }
};

// Nothing for a malformed pattern.
std::optional<std::vector<Item>> Items(std::u16string_view pattern) {
    std::vector<Item> items;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const char16_t code = pattern[at];
        if (code == u'*') {
            items.push_back({.star = true, .ranges = {}});
        } else if (code == u'?') {
            items.push_back({.ranges = {{0, 0xFFFF}}});
        } else if (code == u'#') {
            items.push_back({.ranges = {{u'0', u'9'}}});
        } else if (code != u'[') {
            items.push_back({.ranges = {{code, code}}});
        } else {
            std::u16string list;
            for (++at; at < pattern.size() && pattern[at] != u']'; ++at) list.push_back(pattern[at]);
            if (at == pattern.size()) return std::nullopt;
            if (list.empty()) continue;
            Item item;
            item.negated = list[0] == u'!';
            if (item.negated) list.erase(0, 1);
            while (!list.empty()) {
                // A dash between two others is a range; one at either end of the list stands for itself.
                const bool dash_first = item.ranges.empty() && list[0] == u'-';
                if (!dash_first && list.size() >= 3 && list[1] == u'-') {
                    if (list[0] > list[2]) return std::nullopt;
                    item.ranges.emplace_back(list[0], list[2]);
                    list.erase(0, 3);
                } else {
                    item.ranges.emplace_back(list[0], list[0]);
                    list.erase(0, 1);
                }
            }
            items.push_back(item);
        }
    }
    return items;
}

// A table says for each item and each place of the text whether what is left of both matches.
bool Matches(const std::vector<Item>& items, std::u16string_view text) {
    std::vector<bool> behind(text.size() + 1, false);
    behind[text.size()] = true;
    for (std::size_t i = items.size(); i-- > 0;) {
        std::vector<bool> here(text.size() + 1, false);
        for (std::size_t at = text.size() + 1; at-- > 0;) {
            if (items[i].star)
                here[at] = behind[at] || (at < text.size() && here[at + 1]);
            else
                here[at] = at < text.size() && items[i].Takes(text[at]) && behind[at + 1];
        }
        behind = here;
    }
    return behind[0];
}

void Compare(std::string_view text, std::string_view pattern) {
    const auto items = Items(Codes(pattern));
    try {
        const bool matches = LikeMatch(text, pattern);
        Require(items.has_value(), "a malformed pattern was taken");
        Require(matches == Matches(*items, Codes(text)), "the two matchers differ");
    } catch (const Failure& failure) {
        Require(!items.has_value(), "a sound pattern was refused");
        Require(failure.number() == failure::kBadPattern, "the wrong failure for a malformed pattern");
    }
}

}  // namespace
}  // namespace ombrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrel::fuzz;
    if (size > kLongest) return 0;
    const std::string_view input = TextOf(data, size);
    const std::size_t end = std::min(input.find('\n'), input.size());
    Compare(input.substr(std::min(end + 1, input.size())), input.substr(0, end));
    return 0;
}
