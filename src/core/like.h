// The wildcard language of every pattern table.
//
//     *        any run of characters, also none          [list]   one character of the list
//     ?        any one character                         [!list]  one character that is not in it
//     #        one digit
//
// In a list, a-z is a range in ascending order; "-" at either end stands for itself, and so do * ? # and [, so that a
// literal [ is [[]. An empty list [] matches the empty string. Characters compare with case, by their 16-bit code, and
// the whole text must match the whole pattern. A list that is never closed or a range in descending order is
// failure 93.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel {

bool LikeMatch(std::string_view text, std::string_view pattern);

// A pattern made ready once for many texts.
//
// What stands between two stars has a fixed length. So each such run is looked for once, as far left as it goes, and
// never has to be given back: no pattern takes longer than the text's length times its own.
class LikePattern {
public:
    // Throws Failure 93 for a malformed pattern.
    explicit LikePattern(std::string_view pattern);

    // The ends tell most texts apart at once.
    bool Matches(std::string_view text) const {
        if (text.size() < shortest_) return false;
        if (!prefix_.empty() && text.front() != prefix_.front()) return false;
        if (!suffix_.empty() && text.back() != suffix_.back()) return false;
        return MatchesAll(text);
    }

private:
    // One character of the text.
    struct Item {
        enum class Kind : std::uint8_t { kUnit, kAny, kDigit, kList };
        Kind kind;
        bool negated = false;  // of a list
        char16_t unit = 0;
        std::uint32_t begin = 0;  // of a list in ranges_
        std::uint32_t end = 0;
    };
    struct Range {
        char16_t first;
        char16_t last;
    };
    // What stands between two stars, in items_.
    struct Run {
        std::uint32_t begin;
        std::uint32_t end;
    };
    // The same where it is a literal, in literals_. It is looked for by its rarest byte, at `rare`.
    struct Literal {
        std::uint32_t begin;
        std::uint32_t size;
        std::uint32_t rare;
    };

    void Parse(std::u16string_view pattern);
    std::size_t ParseList(std::u16string_view pattern, std::size_t at);
    void EndRun();
    void PrepareLiterals();
    static bool IsLiteral(const Item& item);
    std::string LiteralOf(std::uint32_t begin, std::uint32_t end) const;
    bool MatchesAll(std::string_view text) const;
    bool MatchesLiterals(std::string_view text) const;
    template <class Unit>
    bool MatchesRuns(const Unit* text, std::size_t size) const;
    template <class Unit>
    bool MatchesRun(const Unit* text, Run run) const;
    bool MatchesItem(char16_t unit, const Item& item) const;

    std::string prefix_;  // the literals that every match begins and ends with
    std::string suffix_;
    std::size_t shortest_ = 0;  // bytes of all the literals that don't overlap
    bool star_ = false;
    bool literal_ = true;  // made of literals and stars alone: bytes do, and the items are not needed
    std::string literals_;
    std::vector<Literal> middle_;
    std::vector<Item> items_;
    std::vector<Run> runs_;
    std::vector<Range> ranges_;
};

}  // namespace ombrel
