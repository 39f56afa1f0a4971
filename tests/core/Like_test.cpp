#include "core/like.h"

#include <random>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel {
namespace {

struct Case {
    const char* text;
    const char* pattern;
    bool matches;
};

TEST(Like, FollowsItsTable) {
    const Case cases[] = {
        {"Tom [5]", "Tom [[]#]", true},
        {"tom", "Tom", false},
        {"Abc", "a*", false},
        {"", "", true},
        {"", "*", true},
        {"", "?", false},
        {"a", "", false},
        {"Critical hit! Wow. You hit", "Critical hit!*You*", true},
        {"Critical hit! They hit", "Critical hit!*You*", false},
        {"[General] hello", "[[]General] *", true},
        {"You cast Fire for 5 with ease", "You * for * with *", true},
        {"You  with  for ", "You * for * with *", false},
        {"aXbXc", "a*X*X*c", true},
        {"aXc", "a*X*X*c", false},  // one X can't serve two pieces
        {"ab", "ab*b", false},      // nor can the ends share a letter
        {"abb", "ab*b", true},
        {"aab", "*ab", true},
        {"abab", "*a?", true},
        {"7", "#", true},
        {"x", "#", false},
        {"b", "[a-c]", true},
        {"B", "[a-c]", false},
        {"-", "[-a]", true},
        {"-", "[a-]", true},
        {"b", "[a-]", false},
        {"-", "[!-a]", false},
        {"*", "[*]", true},
        {"x", "[*]", false},
        {"!", "[a!]", true},
        {"]", "]", true},
        {"ac", "a[]c", true},
        {"a]c", "a[]c", false},
        {"abc", "a[!]c", true},
        {"ac", "a[!]c", false},
        {"\u00e9", "?", true},
        {"\u00e9t\u00e9", "\u00e9*\u00e9", true},
        {"\u00e9", "[\u00e0-\u00ef]", true},
        {"\U0001F600", "?", false},  // two codes
        {"\U0001F600", "??", true},
        {"\U0001F600!", "\U0001F600?", true},
        {"\xff says", "\xfe says", true},  // bytes that are no character are alike
        {"\xff says", "\xfe*", true},
    };
    for (const auto& row : cases)
        EXPECT_EQ(LikeMatch(row.text, row.pattern), row.matches) << row.text << " like " << row.pattern;
}

TEST(Like, RefusesMalformedPatternsWhateverTheText) {
    for (const char* pattern : {"[", "[a", "x[!", "[z-a]", "[\u00e9-a]", "abc[d-"}) {
        try {
            LikePattern made(pattern);
            ADD_FAILURE() << pattern;
        } catch (const Failure& thrown) {
            EXPECT_EQ(thrown.number(), failure::kBadPattern) << pattern;
        }
    }
}

TEST(Like, ACopyMatchesLikeItsOriginal) {
    auto copy = LikePattern("*says,*");
    {
        const LikePattern original("Tom tells you*#");
        copy = original;
    }
    EXPECT_TRUE(copy.Matches("Tom tells you 5"));
    EXPECT_FALSE(copy.Matches("Tom says, 5"));
}

TEST(Like, ManyStarsDontTakeForever) {
    std::string pattern;
    for (int i = 0; i < 40; ++i) pattern += "a*?";
    EXPECT_FALSE(LikeMatch(std::string(5000, 'a') + "b", pattern + "c"));
}

// The language again, as plainly as it can be put: one item at a time, every length tried for a star. Malformed
// patterns throw only where they are reached.
struct Malformed {};

bool InList(char16_t c, std::u16string_view list) {
    bool found = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool range = i + 2 < list.size() && list[i + 1] == u'-' && !(i == 0 && list[i] == u'-');
        if (range && list[i] > list[i + 2]) throw Malformed();
        const auto last = range ? list[i + 2] : list[i];
        if (c >= list[i] && c <= last) found = true;
        if (range) i += 2;
    }
    return found;
}

bool SlowMatch(std::u16string_view text, std::u16string_view pattern) {
    if (pattern.empty()) return text.empty();
    const auto item = pattern[0];
    const auto rest = pattern.substr(1);
    if (item == u'*') return SlowMatch(text, rest) || (!text.empty() && SlowMatch(text.substr(1), pattern));
    if (item == u'[') {
        const auto close = rest.find(u']');
        if (close == rest.npos) throw Malformed();
        const auto behind = rest.substr(close + 1);
        auto list = rest.substr(0, close);
        if (list.empty()) return SlowMatch(text, behind);
        const bool negated = list[0] == u'!';
        if (negated) list.remove_prefix(1);
        if (text.empty()) return false;
        return InList(text[0], list) != negated && SlowMatch(text.substr(1), behind);
    }
    if (text.empty()) return false;
    if (item == u'#' && (text[0] < u'0' || text[0] > u'9')) return false;
    if (item != u'?' && item != u'#' && item != text[0]) return false;
    return SlowMatch(text.substr(1), rest);
}

// Walks over every list of the pattern.
bool IsMalformed(std::u16string_view pattern) {
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != u'[') continue;
        const auto close = pattern.find(u']', i);
        if (close == pattern.npos) return true;
        auto list = pattern.substr(i + 1, close - i - 1);
        if (!list.empty() && list[0] == u'!') list.remove_prefix(1);
        try {
            InList(u'a', list);
        } catch (const Malformed&) {
            return true;
        }
        i = close;
    }
    return false;
}

struct Letter {
    const char* utf8;
    std::u16string_view utf16;
};

// Texts of few different letters, so that they match often.
constexpr Letter kLetters[] = {{"a", u"a"}, {"b", u"b"}, {"5", u"5"},           {"-", u"-"},
                               {"]", u"]"}, {"*", u"*"}, {"?", u"?"},           {"#", u"#"},
                               {"[", u"["}, {"!", u"!"}, {"\u00e9", u"\u00e9"}, {"\U0001F600", u"\U0001F600"}};

class RandomTexts {
public:
    explicit RandomTexts(unsigned seed) : random_(seed) {}

    struct Both {
        std::string utf8;
        std::u16string utf16;
        void Add(const Letter& letter) {
            utf8 += letter.utf8;
            utf16 += letter.utf16;
        }
    };

    // Letters below `ascii` are ASCII.
    Both Make(int longest, int letters) {
        Both made;
        for (int left = Below(longest + 1); left > 0; --left) made.Add(kLetters[Below(letters)]);
        return made;
    }

    // Ordinary letters, stars, and now and then something special.
    Both MakePattern(int longest) {
        Both made;
        for (int left = Below(longest + 1); left > 0; --left) {
            switch (Below(6)) {
                case 0:
                    made.Add(kLetters[5]);
                    break;
                case 1:
                    made.Add(kLetters[5 + Below(7)]);
                    break;
                case 2:
                    if (Below(3) == 0) {
                        made.Add({"[", u"["});
                        if (Below(3) == 0) made.Add({"!", u"!"});
                        for (int inside = Below(4); inside > 0; --inside) made.Add(kLetters[Below(4)]);
                        made.Add({"]", u"]"});
                    }
                    break;
                default:
                    made.Add(kLetters[Below(3)]);
            }
        }
        return made;
    }

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

private:
    std::mt19937 random_;
};

TEST(Like, AgreesWithASlowAndObviousMatcher) {
    RandomTexts random(20240704);
    int matches = 0;
    int malformed = 0;
    for (int round = 0; round < 60000; ++round) {
        const auto pattern = random.MakePattern(9);
        const auto text = random.Make(9, random.Below(2) ? 3 : static_cast<int>(std::size(kLetters)));
        const bool bad = IsMalformed(pattern.utf16);
        try {
            const bool found = LikeMatch(text.utf8, pattern.utf8);
            ASSERT_FALSE(bad) << pattern.utf8;
            ASSERT_EQ(found, SlowMatch(text.utf16, pattern.utf16)) << text.utf8 << " like " << pattern.utf8;
            matches += found;
        } catch (const Failure&) {
            ASSERT_TRUE(bad) << pattern.utf8;
            ++malformed;
        }
    }
    // Both outcomes were really tried.
    EXPECT_GT(matches, 1000);
    EXPECT_GT(malformed, 1000);
}

}  // namespace
}  // namespace ombrel
