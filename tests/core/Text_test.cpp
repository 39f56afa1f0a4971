#include "core/text.h"

#include "tests/support/Matchers.h"

namespace ombrel {
namespace {

TEST(Text, LowersTheLettersOfTheGamesCharacterSet) {
    EXPECT_EQ(ToLower("Tom SAYS [Z@`{]"), "tom says [z@`{]");
    EXPECT_EQ(ToLower("\u00c0\u00d6\u00d7\u00d8\u00de\u00df\u00e9\u00f7"),
              "\u00e0\u00f6\u00d7\u00f8\u00fe\u00df\u00e9\u00f7");
    EXPECT_EQ(ToLower("\u0160\u0152\u017d\u0178\u0161\u0153\u017e"), "\u0161\u0153\u017e\u00ff\u0161\u0153\u017e");
    EXPECT_EQ(ToLower("\u20ac\u2019\u0410\u0540"), "\u20ac\u2019\u0410\u0540");  // nothing else changes
    EXPECT_EQ(ToLower("\xC5"), "\xC5");                                          // nor does half a letter
}

TEST(Text, TrimsBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(TrimLeft("  a "), "a ");
    EXPECT_EQ(TrimRight("  a "), "  a");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Text, SplitsAtEverySeparator) {
    EXPECT_THAT(Split("a,b,,c,", ","), ElementsAre("a", "b", "", "c", ""));
    EXPECT_THAT(Split("", ","), ElementsAre(""));
    EXPECT_THAT(Split("a, b", ", "), ElementsAre("a", "b"));
    EXPECT_THAT(Split("a,b", ""), ElementsAre("a,b"));
}

TEST(Text, FindsWithAndWithoutRegardToCase) {
    EXPECT_TRUE(Contains("Corpse of Tom", "of"));
    EXPECT_FALSE(Contains("Corpse of Tom", "OF"));
    EXPECT_TRUE(ContainsNoCase("Corpse of Tom", "TOM"));
    EXPECT_TRUE(ContainsNoCase("\u00c9t\u00e9 \u0178", "\u00e9T\u00c9 \u00ff"));
    EXPECT_TRUE(ContainsNoCase("x", ""));
    EXPECT_FALSE(ContainsNoCase("", "x"));
    EXPECT_FALSE(ContainsNoCase("To", "Tom"));
    EXPECT_FALSE(ContainsNoCase("\u0161", "\u0162"));
}

TEST(Text, ReplacesEachOrTheFirst) {
    EXPECT_EQ(Replace("aXaXa", "X", "--"), "a--a--a");
    EXPECT_EQ(Replace("aXaXa", "X", "", 1), "aaXa");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("abc", "B", "x"), "abc");
    EXPECT_EQ(Replace("a", "a", "aa"), "aa");
    EXPECT_EQ(ReplaceNoCase("Tom, tom, TOM", "toM", "you"), "you, you, you");
    EXPECT_EQ(ReplaceNoCase("Tom, tom, TOM", "toM", "you", 2), "you, you, TOM");
    EXPECT_EQ(ReplaceNoCase("\u00c9 e \u00e9", "\u00e9", "x"), "x e x");
}

TEST(Text, CountsCharactersAndNotBytes) {
    EXPECT_EQ(Length("Tom\u2019s \U0001F600"), 7u);
    EXPECT_EQ(DropLast("Tom\u2019"), "Tom");
    EXPECT_EQ(DropLast("a\U0001F600b", 2), "a");
    EXPECT_EQ(DropLast("ab", 5), "");
    EXPECT_EQ(DropLast(""), "");
}

TEST(Text, TurnsEveryByteOfTheGamesCharacterSetIntoTextAndBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    EXPECT_EQ(ToWindows1252(FromWindows1252(bytes)), bytes);

    EXPECT_EQ(FromWindows1252("Tom\x92s \x80\xE9\x9F"), "Tom\u2019s \u20ac\u00e9\u0178");
    EXPECT_EQ(ToWindows1252("\u0142\U0001F600x"), "??x");
    EXPECT_EQ(ToWindows1252("\xE9x\xE2\x80"), "?x??");  // bytes that are no text
}

TEST(Text, ReadsOnlyWellFormedCharacters) {
    // Longer than needed, half of a pair, beyond the last character, cut short.
    for (const char* bytes : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF0\x9F\x98", "\x80"}) {
        std::size_t at = 0;
        EXPECT_EQ(NextCharacter(bytes, at), U'\uFFFD');
        EXPECT_EQ(at, 1u);
    }
    for (const char32_t character : {U'a', U'\u00e9', U'\u2019', U'\uFFFF', U'\U0001F600', U'\U0010FFFF'}) {
        std::string text;
        AppendCharacter(text, character);
        std::size_t at = 0;
        EXPECT_EQ(NextCharacter(text, at), character);
        EXPECT_EQ(at, text.size());
    }
}

}  // namespace
}  // namespace ombrel
