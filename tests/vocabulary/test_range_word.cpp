#include <gtest/gtest.h>

#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/range_word.h"
#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

TEST(RangeWord, EnglishAddsItsOwnWordsAfterTheSharedOnes) {
  EXPECT_EQ(getDurationFlag(NLPTranslation::getTransKeyToValue(L"en")),
            L"\\s*(-|~|～|到|至|—|to|until|-|~|～|to|until)\\s*");
}

TEST(RangeWord, AnEmptyOrMissingValueAddsNothing) {
  EXPECT_EQ(getDurationFlag(Vocabulary{}), L"\\s*(-|~|～|到|至|—|to|until)\\s*");
  EXPECT_EQ(getDurationFlag(Vocabulary{{DURATION_FLAG, L""}}), L"\\s*(-|~|～|到|至|—|to|until)\\s*");
}

TEST(RangeWord, HasExactlyOneGroupInEveryLanguage) {
  for (const wchar_t* language : {L"en", L"fr", L"ja", L"ru", L"pt", L"ko", L"zh_CN"}) {
    EXPECT_EQ(compilePattern(getDurationFlag(NLPTranslation::getTransKeyToValue(language))).groupCount(), 1u)
        << testing::narrow(language);
  }
}

TEST(RangeWord, FrenchAndJapaneseWordsJoinARange) {
  PatternMatch match;
  const std::wstring french = L"lundi à mardi";
  EXPECT_FALSE(compilePattern(getDurationFlag(NLPTranslation::getTransKeyToValue(L"fr"))).search(french, match));
  const std::wstring japanese = L"月曜日から水曜日";
  ASSERT_TRUE(compilePattern(getDurationFlag(NLPTranslation::getTransKeyToValue(L"ja"))).search(japanese, match));
  EXPECT_EQ(match.str(1), L"から");
}

}  // namespace
}  // namespace nlpdate
