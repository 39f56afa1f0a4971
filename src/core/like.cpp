#include "core/like.h"

#include <algorithm>
#include <cstring>

#include "core/failure.h"
#include "core/text.h"

namespace ombrel {
namespace {

template <class Add>
void ForEachUnit(std::string_view text, Add add) {
    for (std::size_t at = 0; at < text.size();) {
        const auto character = NextCharacter(text, at);
        if (character < 0x10000) {
            add(static_cast<char16_t>(character));
        } else {
            add(static_cast<char16_t>(0xD7C0 + (character >> 10)));
            add(static_cast<char16_t>(0xDC00 | (character & 0x3FF)));
        }
    }
}

// The 16-bit units of a text; those of a chat line stay on the stack.
class Units {
public:
    explicit Units(std::string_view text) {
        // A text has never more units than bytes.
        if (text.size() > std::size(near_)) {
            far_.resize(text.size());
            data_ = far_.data();
        }
        ForEachUnit(text, [this](char16_t unit) { data_[size_++] = unit; });
    }
    Units(const Units&) = delete;
    Units& operator=(const Units&) = delete;

    const char16_t* data() const { return data_; }
    std::size_t size() const { return size_; }

private:
    char16_t near_[512];
    std::u16string far_;
    char16_t* data_ = near_;
    std::size_t size_ = 0;
};

bool IsAscii(std::string_view text) {
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t bytes;
        std::memcpy(&bytes, text.data() + at, 8);
        if (bytes & 0x8080808080808080u) return false;
    }
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// How common a byte is in the game's lines: later in the list is more common, and what is not in it is rare.
std::size_t Commonness(char byte) {
    constexpr std::string_view kByCommonness = "zqjxkvbpgfwcmyuldhsirnaote ";
    const auto at = kByCommonness.find(byte);
    return at == std::string_view::npos ? 0 : at + 1;
}

// A byte may be read as a unit while it is ASCII.
template <class Unit>
char16_t AsUnit(Unit unit) {
    if constexpr (sizeof(Unit) == 1) {
        return static_cast<unsigned char>(unit);
    } else {
        return unit;
    }
}

}  // namespace

bool LikeMatch(std::string_view text, std::string_view pattern) { return LikePattern(pattern).Matches(text); }

LikePattern::LikePattern(std::string_view pattern) {
    const Units units(pattern);
    Parse({units.data(), units.size()});
    PrepareLiterals();
}

void LikePattern::Parse(std::u16string_view pattern) {
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        switch (pattern[at]) {
            case u'*':
                star_ = true;
                EndRun();
                break;
            case u'?':
                items_.push_back({.kind = Item::Kind::kAny});
                break;
            case u'#':
                items_.push_back({.kind = Item::Kind::kDigit});
                break;
            case u'[':
                at = ParseList(pattern, at + 1);
                break;
            default:
                items_.push_back({.kind = Item::Kind::kUnit, .unit = pattern[at]});
        }
    }
    EndRun();
}

// Reads a list from behind its "[". Returns where its "]" stands.
std::size_t LikePattern::ParseList(std::u16string_view pattern, std::size_t at) {
    const auto close = pattern.find(u']', at);
    if (close == std::u16string_view::npos) throw Failure(failure::kBadPattern);
    auto list = pattern.substr(at, close - at);
    if (list.empty()) return close;

    Item item{.kind = Item::Kind::kList, .begin = static_cast<std::uint32_t>(ranges_.size())};
    if (list.front() == u'!') {
        item.negated = true;
        list.remove_prefix(1);
    }
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto first = list[i];
        const bool end_dash = first == u'-' && (i == 0 || i + 1 == list.size());
        if (!end_dash && i + 2 < list.size() && list[i + 1] == u'-') {
            if (list[i + 2] < first) throw Failure(failure::kBadPattern);
            ranges_.push_back({first, list[i + 2]});
            i += 2;
        } else {
            ranges_.push_back({first, first});
        }
    }
    item.end = static_cast<std::uint32_t>(ranges_.size());

    const bool one_character =
        !item.negated && item.end - item.begin == 1 && ranges_.back().first == ranges_.back().last;
    if (one_character) item = {.kind = Item::Kind::kUnit, .unit = ranges_.back().first};
    items_.push_back(item);
    return close;
}

void LikePattern::EndRun() {
    const auto begin = runs_.empty() ? 0 : runs_.back().end;
    runs_.push_back({begin, static_cast<std::uint32_t>(items_.size())});
}

// Whether it stands for the same bytes in every text. Bytes that are no character all match U+FFFD.
bool LikePattern::IsLiteral(const Item& item) { return item.kind == Item::Kind::kUnit && item.unit != 0xFFFD; }

// The bytes of the characters from `begin` up to the first that is not literal, or `end`.
std::string LikePattern::LiteralOf(std::uint32_t begin, std::uint32_t end) const {
    std::string text;
    char32_t high = 0;
    for (auto i = begin; i < end && IsLiteral(items_[i]); ++i) {
        const char32_t unit = items_[i].unit;
        if (unit >= 0xD800 && unit < 0xDC00) {
            high = unit;
        } else if (unit >= 0xDC00 && unit < 0xE000) {
            AppendCharacter(text, 0x10000 + ((high & 0x3FF) << 10) + (unit & 0x3FF));
        } else {
            AppendCharacter(text, unit);
        }
    }
    return text;
}

void LikePattern::PrepareLiterals() {
    literal_ = std::all_of(items_.begin(), items_.end(), &IsLiteral);
    prefix_ = LiteralOf(runs_.front().begin, runs_.front().end);
    if (!literal_ || star_) {
        const auto last = runs_.back();
        auto begin = last.end;
        while (begin > last.begin && IsLiteral(items_[begin - 1])) --begin;
        suffix_ = LiteralOf(begin, last.end);
    }
    shortest_ = prefix_.size() + suffix_.size();
    if (!literal_) return;

    for (std::size_t i = 1; i + 1 < runs_.size(); ++i) {
        const auto text = LiteralOf(runs_[i].begin, runs_[i].end);
        if (text.empty()) continue;
        const auto rare =
            std::min_element(text.begin(), text.end(), [](char a, char b) { return Commonness(a) < Commonness(b); });
        middle_.push_back({static_cast<std::uint32_t>(literals_.size()), static_cast<std::uint32_t>(text.size()),
                           static_cast<std::uint32_t>(rare - text.begin())});
        literals_ += text;
    }
    shortest_ += literals_.size();
    items_ = {};
    runs_ = {};
    ranges_ = {};
}

bool LikePattern::MatchesAll(std::string_view text) const {
    if (literal_ && !star_) return text == prefix_;
    if (!text.starts_with(prefix_) || !text.ends_with(suffix_)) return false;
    if (literal_) return MatchesLiterals(text);
    if (IsAscii(text)) return MatchesRuns(text.data(), text.size());
    const Units units(text);
    return MatchesRuns(units.data(), units.size());
}

// The ends match already.
bool LikePattern::MatchesLiterals(std::string_view text) const {
    const char* from = text.data() + prefix_.size();
    const char* const end = text.data() + text.size() - suffix_.size();
    for (const auto& literal : middle_) {
        const char* const sought = literals_.data() + literal.begin;
        for (;;) {
            if (end - from < static_cast<std::ptrdiff_t>(literal.size)) return false;
            const auto places = static_cast<std::size_t>(end - from) - literal.size + 1;
            const auto* rare = static_cast<const char*>(std::memchr(from + literal.rare, sought[literal.rare], places));
            if (!rare) return false;
            from = rare - literal.rare;
            if (std::memcmp(from, sought, literal.size) == 0) break;
            ++from;
        }
        from += literal.size;
    }
    return true;
}

template <class Unit>
bool LikePattern::MatchesRuns(const Unit* text, std::size_t size) const {
    const auto length = [](Run run) { return static_cast<std::size_t>(run.end - run.begin); };
    const auto first = runs_.front();
    if (!star_) return size == length(first) && MatchesRun(text, first);

    const auto last = runs_.back();
    if (size < length(first) + length(last)) return false;
    auto end = size - length(last);
    if (!MatchesRun(text, first) || !MatchesRun(text + end, last)) return false;
    auto from = length(first);
    for (std::size_t i = 1; i + 1 < runs_.size(); ++i) {
        const auto run = runs_[i];
        while (from + length(run) <= end && !MatchesRun(text + from, run)) ++from;
        if (from + length(run) > end) return false;
        from += length(run);
    }
    return true;
}

template <class Unit>
bool LikePattern::MatchesRun(const Unit* text, Run run) const {
    for (auto i = run.begin; i < run.end; ++i, ++text) {
        if (!MatchesItem(AsUnit(*text), items_[i])) return false;
    }
    return true;
}

bool LikePattern::MatchesItem(char16_t unit, const Item& item) const {
    switch (item.kind) {
        case Item::Kind::kUnit:
            return unit == item.unit;
        case Item::Kind::kAny:
            return true;
        case Item::Kind::kDigit:
            return unit >= u'0' && unit <= u'9';
        case Item::Kind::kList:
            break;
    }
    const auto begin = ranges_.begin() + item.begin;
    const auto end = ranges_.begin() + item.end;
    const bool in_list =
        std::any_of(begin, end, [unit](Range range) { return unit >= range.first && unit <= range.last; });
    return in_list != item.negated;
}

}  // namespace ombrel
