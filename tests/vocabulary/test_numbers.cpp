// Numbers in words: digits, Chinese numerals, number words of a vocabulary.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::ScopedTZ;

class Numbers : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
};

// The English number words, as the English vocabulary holds them.
Vocabulary englishNumberWords() {
  return {
      {TWENTY_FOUR, L"twenty four"}, {TWENTY_THREE, L"twenty three"}, {TWENTY_TWO, L"twenty two"},
      {TWENTY_ONE, L"twenty one"},   {TWENTY, L"twenty"},             {NINETEEN, L"nineteen"},
      {EIGHTEEN, L"eighteen"},       {SEVENTEEN, L"seventeen"},       {SIXTEEN, L"sixteen"},
      {FIFTEEN, L"fifteen"},         {FOURTEEN, L"fourteen"},         {THIRTEEN, L"thirteen"},
      {TWELVE, L"twelve"},           {ELEVEN, L"eleven"},             {TEN, L"ten"},
      {ONE, L"one"},                 {TWO, L"two"},                   {THREE, L"three"},
      {FOUR, L"four"},               {FIVE, L"five"},                 {SIX, L"six"},
      {SEVEN, L"seven"},             {EIGHT, L"eight"},               {NINE, L"nine"},
      {FIRST, L"first|1st"},         {SECOND, L"second|2nd"},         {THIRD, L"third|3rd"},
      {FOURTH, L"fourth|4th"},       {FIFTH, L"fifth|5th"},
  };
}

bool wholeMatch(const std::wstring& alternation, const std::wstring& text) {
  return compilePattern(L"(?:" + alternation + L")").matchWhole(text);
}

// ---- translateNum -------------------------------------------------------------

TEST_F(Numbers, TranslateNumDigits) {
  EXPECT_EQ(parser.translateNum(L"007"), 7);
  EXPECT_EQ(parser.translateNum(L"0"), 0);
  EXPECT_EQ(parser.translateNum(L"2024"), 2024);
  EXPECT_EQ(parser.translateNum(L"12345678"), 12345678);
  EXPECT_EQ(parser.translateNum(L"99999999"), 99999999);
}

TEST_F(Numbers, TranslateNumEmptyIsZero) { EXPECT_EQ(parser.translateNum(L""), 0); }

TEST_F(Numbers, TranslateNumMixedTextTakesDigitSearch) {
  EXPECT_EQ(parser.translateNum(L"12a"), 1);
  EXPECT_EQ(parser.translateNum(L"-5"), 5);
  EXPECT_EQ(parser.translateNum(L" 42"), 2);
  EXPECT_EQ(parser.translateNum(L"abc"), 0);
}

TEST_F(Numbers, TranslateNumNineDigitsOrMoreTakeDigitSearch) {
  EXPECT_EQ(parser.translateNum(L"123456789"), 1);
  EXPECT_EQ(parser.translateNum(L"987654321"), 1);
  EXPECT_EQ(parser.translateNum(L"999999999"), 9);
  EXPECT_EQ(parser.translateNum(L"000000000"), 0);
}

TEST_F(Numbers, TranslateNumChineseNumerals) {
  EXPECT_EQ(parser.translateNum(L"十二"), 12);
  EXPECT_EQ(parser.translateNum(L"廿三"), 23);
  EXPECT_EQ(parser.translateNum(L"半"), 30);
}

TEST_F(Numbers, TranslateNumFullWidthDigitsAreNoDigits) { EXPECT_EQ(parser.translateNum(L"１２"), 0); }

// ---- matchNum ---------------------------------------------------------------------

TEST_F(Numbers, MatchNumTens) {
  EXPECT_EQ(parser.matchNum(L"十"), 10);
  EXPECT_EQ(parser.matchNum(L"十五"), 15);
  EXPECT_EQ(parser.matchNum(L"二十"), 20);
  EXPECT_EQ(parser.matchNum(L"三十一"), 31);
  EXPECT_EQ(parser.matchNum(L"五十九"), 59);
  EXPECT_EQ(parser.matchNum(L"一十"), 10);
}

TEST_F(Numbers, MatchNumTwentyCharacter) {
  EXPECT_EQ(parser.matchNum(L"廿三"), 23);
  EXPECT_EQ(parser.matchNum(L"廿"), 2) << "alone it is a whole-text word";
  EXPECT_EQ(parser.matchNum(L"x廿九"), 29) << "text before it is ignored";
}

TEST_F(Numbers, MatchNumPrefixes) {
  EXPECT_EQ(parser.matchNum(L"初五"), 5);
  EXPECT_EQ(parser.matchNum(L"第三"), 3);
  EXPECT_EQ(parser.matchNum(L"零"), 0);
  EXPECT_EQ(parser.matchNum(L"初"), 0);
  EXPECT_EQ(parser.matchNum(L"第"), 0);
  EXPECT_EQ(parser.matchNum(L"初十"), 10);
  EXPECT_EQ(parser.matchNum(L"第十五"), 15);
  EXPECT_EQ(parser.matchNum(L"零五"), 5);
  EXPECT_EQ(parser.matchNum(L"初两"), 2);
}

TEST_F(Numbers, MatchNumWholeTextTable) {
  const std::pair<const wchar_t*, int> table[] = {
      {L"半", 30},   {L"天", 7},   {L"1刻", 15},  {L"个", 1},  {L"一刻", 15}, {L"廿", 2},   {L"3刻", 45},
      {L"正", 1},    {L"三刻", 45}, {L"元", 1},    {L"两", 2},  {L"腊", 12},   {L"零两", 2}, {L"冬", 11},
      {L"中旬", 11}, {L"寒", 10},  {L"上旬", 1},  {L"日", 7},  {L"下旬", 21},
  };
  for (const auto& [text, value] : table) EXPECT_EQ(parser.matchNum(text), value) << testing::narrow(text);
}

TEST_F(Numbers, MatchNumTwoCharacterIsNotInDigitWords) { EXPECT_EQ(parser.matchNum(L"两点"), 0); }

TEST_F(Numbers, MatchNumMid) {
  EXPECT_EQ(parser.matchNum(L"mid"), 15);
  EXPECT_EQ(parser.matchNum(L"MID"), 15);
  EXPECT_EQ(parser.matchNum(L"Mid"), 15);
  EXPECT_EQ(parser.matchNum(L"middle"), 0);
}

TEST_F(Numbers, MatchNumDigitSearchGoesByValueNotPosition) {
  EXPECT_EQ(parser.matchNum(L"二一"), 1);
  EXPECT_EQ(parser.matchNum(L"一九"), 1);
  EXPECT_EQ(parser.matchNum(L"25"), 2);
  EXPECT_EQ(parser.matchNum(L"123456789"), 1);
  EXPECT_EQ(parser.matchNum(L"二零二四"), 0);
  EXPECT_EQ(parser.matchNum(L"九"), 9);
  EXPECT_EQ(parser.matchNum(L"7x"), 7);
}

TEST_F(Numbers, MatchNumChineseDigitWordsBeforeAsciiDigits) { EXPECT_EQ(parser.matchNum(L"9三"), 3); }

TEST_F(Numbers, MatchNumOnlyFirstTenSplits) {
  EXPECT_EQ(parser.matchNum(L"十十"), 20);
  EXPECT_EQ(parser.matchNum(L"廿十"), 20);
}

TEST_F(Numbers, MatchNumNothingIsZero) {
  EXPECT_EQ(parser.matchNum(L""), 0);
  EXPECT_EQ(parser.matchNum(L"abc"), 0);
  EXPECT_EQ(parser.matchNum(L"百"), 0);
}

// ---- matchEnglishNum ------------------------------------------------------------

TEST_F(Numbers, MatchEnglishNumCompoundsBeforeParts) {
  const Vocabulary words = englishNumberWords();
  EXPECT_EQ(parser.matchEnglishNum(L"twenty one", words), 21);
  EXPECT_EQ(parser.matchEnglishNum(L"twenty four", words), 24);
  EXPECT_EQ(parser.matchEnglishNum(L"twenty", words), 20);
  EXPECT_EQ(parser.matchEnglishNum(L"sixteen", words), 16);
  EXPECT_EQ(parser.matchEnglishNum(L"seventeen", words), 17);
  EXPECT_EQ(parser.matchEnglishNum(L"eighteen", words), 18);
  EXPECT_EQ(parser.matchEnglishNum(L"seven", words), 7);
  EXPECT_EQ(parser.matchEnglishNum(L"six", words), 6);
  EXPECT_EQ(parser.matchEnglishNum(L"ten", words), 10);
}

TEST_F(Numbers, MatchEnglishNumOrdinals) {
  const Vocabulary words = englishNumberWords();
  EXPECT_EQ(parser.matchEnglishNum(L"first", words), 1);
  EXPECT_EQ(parser.matchEnglishNum(L"1st", words), 1);
  EXPECT_EQ(parser.matchEnglishNum(L"2nd", words), 2);
  EXPECT_EQ(parser.matchEnglishNum(L"second", words), 2);
  EXPECT_EQ(parser.matchEnglishNum(L"third", words), 3);
  EXPECT_EQ(parser.matchEnglishNum(L"fourth", words), 4);
  EXPECT_EQ(parser.matchEnglishNum(L"5th", words), 5);
}

TEST_F(Numbers, MatchEnglishNumAboveTwentyFourGivesLowerWords) {
  const Vocabulary words = englishNumberWords();
  EXPECT_EQ(parser.matchEnglishNum(L"twenty five", words), 20);
  EXPECT_EQ(parser.matchEnglishNum(L"thirty one", words), 1);
}

TEST_F(Numbers, MatchEnglishNumSubstringHits) {
  const Vocabulary words = englishNumberWords();
  EXPECT_EQ(parser.matchEnglishNum(L"often", words), 10);
  EXPECT_EQ(parser.matchEnglishNum(L"none", words), 1);
}

TEST_F(Numbers, MatchEnglishNumFallsBackToTranslateNum) {
  const Vocabulary words = englishNumberWords();
  EXPECT_EQ(parser.matchEnglishNum(L"12", words), 12);
  EXPECT_EQ(parser.matchEnglishNum(L"十二", words), 12);
  EXPECT_EQ(parser.matchEnglishNum(L"thirty", words), 0);
  EXPECT_EQ(parser.matchEnglishNum(L"", words), 0);
}

TEST_F(Numbers, MatchEnglishNumWithEmptyVocabularyOnlyTranslates) {
  EXPECT_EQ(parser.matchEnglishNum(L"twenty", Vocabulary()), 0);
  EXPECT_EQ(parser.matchEnglishNum(L"8", Vocabulary()), 8);
}

TEST_F(Numbers, MatchEnglishNumWithEnglishTables) {
  Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");
  if (english.size() <= 1) GTEST_SKIP() << "English tables not in place yet";
  EXPECT_EQ(parser.matchEnglishNum(L"twenty three", english), 23);
  EXPECT_EQ(parser.matchEnglishNum(L"nineteen", english), 19);
  EXPECT_EQ(parser.matchEnglishNum(L"3rd", english), 3);
  EXPECT_EQ(parser.matchEnglishNum(L"9", english), 9);
}

// ---- getChinaNumPattern -----------------------------------------------------------

TEST_F(Numbers, ChinaNumPatternOnlyForKnownLimits) {
  EXPECT_EQ(parser.getChinaNumPattern(7), L"");
  EXPECT_EQ(parser.getChinaNumPattern(0), L"");
  EXPECT_EQ(parser.getChinaNumPattern(-6), L"");
  EXPECT_EQ(parser.getChinaNumPattern(100), L"");
}

TEST_F(Numbers, ChinaNumPatternTexts) {
  const std::wstring six = L"零?六|零?五|零?四|零?三|零?二|零?一";
  const std::wstring twelve = L"十二|十一|一十|十|零?九|零?八|零?七|" + six;
  EXPECT_EQ(parser.getChinaNumPattern(6), six);
  EXPECT_EQ(parser.getChinaNumPattern(12), twelve);
  EXPECT_EQ(parser.getChinaNumPattern(24),
            L"二十四|二十三|二十二|二十一|二十|十九|十八|十七|十六|十五|十四|十三|" + twelve);
}

TEST_F(Numbers, ChinaNumPatternsNest) {
  const std::wstring thirtyOne = parser.getChinaNumPattern(31);
  const std::wstring sixty = parser.getChinaNumPattern(60);
  EXPECT_EQ(thirtyOne.substr(0, 4), L"三十一|");
  EXPECT_EQ(sixty.substr(0, 3), L"六十|");
  EXPECT_EQ(sixty.substr(sixty.size() - thirtyOne.size()), thirtyOne);
  EXPECT_EQ(std::count(sixty.begin(), sixty.end(), L'|'), 60) << "61 alternatives: 十 and 一十 both";
}

TEST_F(Numbers, ChinaNumPatternMatchesItsRange) {
  const std::wstring thirtyOne = parser.getChinaNumPattern(31);
  for (const wchar_t* text : {L"三十一", L"二十五", L"零七", L"七", L"十", L"一十", L"十三"})
    EXPECT_TRUE(wholeMatch(thirtyOne, text)) << testing::narrow(text);
  EXPECT_FALSE(wholeMatch(thirtyOne, L"三十二"));
  EXPECT_FALSE(wholeMatch(parser.getChinaNumPattern(12), L"十三"));
  EXPECT_TRUE(wholeMatch(parser.getChinaNumPattern(60), L"五十九"));
  EXPECT_FALSE(wholeMatch(parser.getChinaNumPattern(6), L"零七"));
}

TEST_F(Numbers, ChinaNumPatternHoldsNoGroup) {
  EXPECT_EQ(compilePattern(parser.getChinaNumPattern(60)).groupCount(), 0u);
}

}  // namespace
}  // namespace nlpdate
