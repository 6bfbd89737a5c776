#include "core/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "core/case_folding.h"

namespace backbeat {
namespace {

TEST(Capitals, EveryScriptHasItsOwn) {
  EXPECT_EQ(upperCase("Half moon café, œuvre"), "HALF MOON CAFÉ, ŒUVRE");
  EXPECT_EQ(upperCase("σίσυφος µ"), "ΣΊΣΥΦΟΣ Μ");  // the final sigma, and the micro sign as the letter it is
  EXPECT_EQ(upperCase("привет, ԲԱՐԵՎ"), "ПРИВЕТ, ԲԱՐԵՎ");
  EXPECT_EQ(upperCase("Straße ẞ 🔥"), "STRAßE ẞ 🔥");
  EXPECT_EQ(upperCase("\u01C5 \uAB70 \u13A0"), "\u01C4 \u13A0 \u13A0");
}

bool equalIgnoringCase(std::string_view a, std::string_view b) { return foldCase(a) == foldCase(b); }

TEST(CaseFolding, TitlesThatDifferOnlyInCaseAreTheSame) {
  EXPECT_TRUE(equalIgnoringCase("Midnight DRIVE", "midnight drive"));
  EXPECT_TRUE(equalIgnoringCase("ÉTÉ ŒUVRE ŽIŽKOV", "été œuvre žižkov"));
  EXPECT_TRUE(equalIgnoringCase("ΣΊΣΥΦΟΣ", "σίσυφος"));  // the final sigma is a sigma
  EXPECT_TRUE(equalIgnoringCase("ПРИВЕТ Ёж", "привет ёЖ"));
  EXPECT_TRUE(equalIgnoringCase("ԲԱՐԵՎ", "բարեվ"));
  EXPECT_TRUE(equalIgnoringCase("\u212Aelvin", "kelvin"));           // the Kelvin sign folds across to a plain letter
  EXPECT_TRUE(equalIgnoringCase("\U00010400", "\U00010428"));        // outside the first plane
  EXPECT_TRUE(equalIgnoringCase("\u13A0 \uAB70", "\uAB70 \u13A0"));  // Cherokee folds upwards
  EXPECT_TRUE(equalIgnoringCase("", ""));
}

TEST(CaseFolding, DifferentTitlesStayDifferent) {
  EXPECT_FALSE(equalIgnoringCase("Straße", "STRASSE"));
  EXPECT_FALSE(equalIgnoringCase("Istanbul", "İstanbul"));
  EXPECT_FALSE(equalIgnoringCase("résumé", "resume"));
  EXPECT_FALSE(equalIgnoringCase("drive", "driver"));
  EXPECT_FALSE(equalIgnoringCase("driver", "drive"));
  EXPECT_FALSE(equalIgnoringCase("[", "{"));  // the neighbours of the letters are no letters
  EXPECT_FALSE(equalIgnoringCase("\u00D7", "\u00F7"));
}

TEST(CaseFolding, FoldsToOneFormThatFoldsNoFurther) {
  EXPECT_EQ(foldCase("Lạc LỐI 🎤 \u0130 ǅ"), "lạc lối 🎤 \u0130 ǆ");
  int changed = 0;
  for (char32_t c = 1; c <= 0x1FFFF; ++c) {
    std::string letter;
    appendCodePoint(letter, c);
    const std::string once = foldCase(letter);
    if (c < 0xD800 || c > 0xDFFF) changed += once != letter;
    ASSERT_EQ(foldCase(once), once) << "U+" << std::hex << static_cast<uint32_t>(c);
    ASSERT_EQ(firstCharacters(once, 1), once);
  }
  EXPECT_EQ(changed, 1454);
}

TEST(Text, TrimsWhiteSpaceOfEveryScriptButOnlyAtTheEnds) {
  EXPECT_EQ(trimmed(" \t\r\n Night Drive \v\f"), "Night Drive");
  EXPECT_EQ(trimmed("\u3000\u00A0夜 の\u2003歌\u2028\u0085"), "夜 の\u2003歌");
  EXPECT_EQ(trimmed("\u200Bseen"), "\u200Bseen");  // a zero-width space joins letters, it does not part words
  EXPECT_EQ(trimmed(" \n\u2029 "), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed("\xFF "), "\xFF");
}

TEST(Text, BrokenBytesAreReplacedAndWholeTextsKept) {
  const std::string whole = "plain é 歌 🎤 \u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  EXPECT_EQ(validUtf8(whole), whole);
  EXPECT_EQ(validUtf8("a\x80z"), "a\uFFFDz");                                 // a stray continuation
  EXPECT_EQ(validUtf8("a\xE6\xAD"), "a\uFFFD");                               // cut short at the end
  EXPECT_EQ(validUtf8("\xF0\x9F\x8E!"), "\uFFFD!");                           // cut short by another character
  EXPECT_EQ(validUtf8("\xC0\xAF\xE0\x80\xAF").find('/'), std::string::npos);  // overlong forms hide nothing
  EXPECT_EQ(validUtf8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");                 // a surrogate
  EXPECT_EQ(validUtf8("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");       // past the last code point
  EXPECT_EQ(validUtf8("\xFF\xFE"), "\uFFFD\uFFFD");
}

TEST(Text, CutsBetweenCharacters) {
  EXPECT_EQ(firstCharacters("歌 🎤é", 3), "歌 🎤");
  EXPECT_EQ(firstCharacters("歌 🎤é", 0), "");
  EXPECT_EQ(firstCharacters("歌 🎤é", 9), "歌 🎤é");
  EXPECT_EQ(firstCharacters("", 2), "");
}

}  // namespace
}  // namespace backbeat
