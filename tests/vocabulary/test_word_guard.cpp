// The literal first test of a word group.
#include <gtest/gtest.h>

#include "vocabulary/word_guard.h"

namespace nlpdate {
namespace {

TEST(WordGuard, BordersAreStrippedAndLettersFolded) {
  const WordGuard guard(L"sunday|(?:\\b|^|\\s)sun(?:\\b|$|\\s)|\\bMonday\\b|\\bmon\\b\\b|weekend\\b");
  ASSERT_TRUE(guard.usable());
  EXPECT_EQ(guard.literals(), (std::vector<std::wstring>{L"mon", L"monday", L"sun", L"sunday", L"weekend"}));
  EXPECT_TRUE(guard.mayMatch(L"see you SUNDAY"));
  EXPECT_TRUE(guard.mayMatch(L"xmonx"));  // a literal test: borders are the pattern's business
  EXPECT_FALSE(guard.mayMatch(L"see you tuesday"));
  EXPECT_FALSE(guard.mayMatch(L""));
}

TEST(WordGuard, AQuantifiedLetterEndsTheLiteralBeforeIt) {
  const WordGuard guard(L"tues?|st\\.?|ab{2}c|wed*");
  ASSERT_TRUE(guard.usable());
  EXPECT_EQ(guard.literals(), (std::vector<std::wstring>{L"a", L"st", L"tue", L"we"}));
}

TEST(WordGuard, OnlyAsciiLettersFold) {
  const WordGuard guard(L"Été|среда");
  EXPECT_TRUE(guard.mayMatch(L"l'Été"));
  EXPECT_FALSE(guard.mayMatch(L"l'été"));  // é and É are different letters to the patterns
  EXPECT_FALSE(guard.mayMatch(L"СРЕДА"));
  EXPECT_TRUE(guard.mayMatch(L"в среда"));
}

TEST(WordGuard, BarsInsideGroupsAndClassesDoNotSplit) {
  const WordGuard guard(L"april(?:$(?:\\)|\\.|\\b)|\\s)|[|]x|may");
  EXPECT_FALSE(guard.usable());  // "[|]x" starts with a class
  const WordGuard grouped(L"april(?:$|\\s)|may(?:\\)|\\.|\\b)");
  ASSERT_TRUE(grouped.usable());
  EXPECT_EQ(grouped.literals(), (std::vector<std::wstring>{L"april", L"may"}));
}

TEST(WordGuard, AnAlternativeWithoutALeadingLiteralMakesItUnusable) {
  for (const wchar_t* text : {L"", L"sun|", L"|sun", L"^|next", L"\\d+|day", L"(?:a|b)c", L".x", L"\\bx?"}) {
    const WordGuard guard(text);
    EXPECT_FALSE(guard.usable()) << text;
    EXPECT_TRUE(guard.mayMatch(L"anything"));
  }
}

TEST(WordGuard, LiteralsSharingAFirstLetterAreEachTried) {
  const WordGuard guard(L"monday|month|mon\\b");
  EXPECT_TRUE(guard.mayMatch(L"every MONTH"));
  EXPECT_TRUE(guard.mayMatch(L"xmon"));      // at the very end
  EXPECT_FALSE(guard.mayMatch(L"mo"));       // longer than what is left
  EXPECT_FALSE(guard.mayMatch(L"m o n"));
  const WordGuard cyrillic(L"понедельник|пн");
  EXPECT_TRUE(cyrillic.mayMatch(L"в пн утром"));
  EXPECT_FALSE(cyrillic.mayMatch(L"в ПН утром"));  // no folding beyond ASCII
}

TEST(WordGuard, FoldAsciiLeavesOtherUnitsAlone) { EXPECT_EQ(foldAscii(L"AbC-Éé-ДZ"), L"abc-Éé-Дz"); }

}  // namespace
}  // namespace nlpdate
