// Text tests, unit words and the word-border family.
#include <gtest/gtest.h>


#include "support/test_support.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {
namespace {

using testing::ScopedTZ;

bool found(const std::wstring& patternText, const std::wstring& text) {
  return compilePattern(patternText, PatternCase::Insensitive).search(text);
}

// Every suite runs in a fixed zone, though these helpers read no clock.
class Zoned : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
};
class ContainStr : public Zoned {};
class IsAnOrA : public Zoned {};
class IsAsciiCode : public Zoned {};
class IsHalf : public Zoned {};
class Rreplace : public Zoned {};
class ToLowerCase : public Zoned {};
class Trim : public Zoned {};
class UnitWords : public Zoned {};
class WordBorderBehaviour : public Zoned {};
class WordBorderFamily : public Zoned {};
class WordBorderInEnd : public Zoned {};
class WordBorderInEndWithEnd : public Zoned {};
class WordBorderInEndWithOutReg : public Zoned {};
class WordBorderInStart : public Zoned {};
class WordBorderInStartAndEnd : public Zoned {};

// ---- containStr -------------------------------------------------------------

TEST_F(ContainStr, WholeWordOfAlternationIsLookedForAsSubstring) {
  EXPECT_FALSE(containStr(L"tomorrow", L"today|tod|td"));
  EXPECT_TRUE(containStr(L"tod", L"today|tod|td"));
  EXPECT_TRUE(containStr(L"xtodx", L"tod"));
}

TEST_F(ContainStr, BorderOnlyAlternativeMatchesAnything) {
  EXPECT_TRUE(containStr(L"anything", L"\\b"));
  EXPECT_TRUE(containStr(L"", L"\\b"));
  EXPECT_TRUE(containStr(L"xyz", L"abc|\\b\\b"));
}

TEST_F(ContainStr, EmptyTextOnlyMatchesAnEmptyAlternative) {
  EXPECT_FALSE(containStr(L"", L"abc"));
  EXPECT_FALSE(containStr(L"", L"abc|def"));
  EXPECT_TRUE(containStr(L"", L"|abc"));
  EXPECT_TRUE(containStr(L"", L"abc||def"));
}

TEST_F(ContainStr, TrailingBarGivesNoEmptyAlternative) {
  // The split drops an empty piece after the last bar.
  EXPECT_FALSE(containStr(L"", L"abc|"));
  EXPECT_FALSE(containStr(L"xyz", L"abc|"));
  EXPECT_TRUE(containStr(L"xabcx", L"abc|"));
}

TEST_F(ContainStr, EmptyPatternIsFalse) {
  EXPECT_FALSE(containStr(L"abc", L""));
  EXPECT_FALSE(containStr(L"", L""));
}

TEST_F(ContainStr, BordersAreRemovedAsPlainText) {
  EXPECT_TRUE(containStr(L"mon 3", L"mon\\b"));
  EXPECT_TRUE(containStr(L"monday", L"\\bmon\\b"));
  EXPECT_FALSE(containStr(L"tue", L"\\bmon\\b|wed\\b"));
}

TEST_F(ContainStr, OtherRegexSyntaxIsLiteral) {
  EXPECT_FALSE(containStr(L"st.", L"st\\.?"));
  EXPECT_TRUE(containStr(L"x st\\.? y", L"st\\.?"));
  EXPECT_FALSE(containStr(L"ab", L"a.")) << "the dot is not a wildcard";
}

TEST_F(ContainStr, IsCaseSensitive) {
  EXPECT_FALSE(containStr(L"Today", L"today"));
  EXPECT_TRUE(containStr(L"Today", L"Tod"));
}

TEST_F(ContainStr, WorksOnNonAsciiText) {
  EXPECT_TRUE(containStr(L"明天下午", L"今天|下午"));
  EXPECT_FALSE(containStr(L"明天", L"今天|后天"));
}

// ---- isAsciiCode ------------------------------------------------------------

TEST_F(IsAsciiCode, LettersHyphensAndUnderscores) {
  EXPECT_FALSE(isAsciiCode(L"o'clock"));
  EXPECT_TRUE(isAsciiCode(L"meio-dia"));
  EXPECT_FALSE(isAsciiCode(L""));
  EXPECT_TRUE(isAsciiCode(L"snake_case"));
  EXPECT_TRUE(isAsciiCode(L"MiXeD"));
  EXPECT_TRUE(isAsciiCode(L"-"));
}

TEST_F(IsAsciiCode, DigitsBlanksDotsAndOtherScriptsAreNot) {
  EXPECT_FALSE(isAsciiCode(L"abc1"));
  EXPECT_FALSE(isAsciiCode(L"1abc"));
  EXPECT_FALSE(isAsciiCode(L"half a"));
  EXPECT_FALSE(isAsciiCode(L"a.m"));
  EXPECT_FALSE(isAsciiCode(L"mon\\b"));
  EXPECT_FALSE(isAsciiCode(L"朝"));
  EXPECT_FALSE(isAsciiCode(L"утро"));
  EXPECT_FALSE(isAsciiCode(L"café"));
}

// ---- toLowerCase, trim, rreplace ----------------------------------------------

TEST_F(ToLowerCase, LowersAsciiOnly) {
  EXPECT_EQ(toLowerCase(L"ABC def GhI"), L"abc def ghi");
  EXPECT_EQ(toLowerCase(L"12:30 PM"), L"12:30 pm");
  EXPECT_EQ(toLowerCase(L""), L"");
  // The classic C locale maps ASCII only.
  EXPECT_EQ(toLowerCase(L"ÉTÉ"), L"ÉtÉ");
  EXPECT_EQ(toLowerCase(L"明天"), L"明天");
}

TEST_F(Trim, StripsBothEndsInPlaceAndReturnsCopy) {
  std::wstring text = L" \t abc  def \n\r";
  std::wstring copy = trim(text);
  EXPECT_EQ(text, L"abc  def");
  EXPECT_EQ(copy, L"abc  def");
}

TEST_F(Trim, BlankAndEmptyTexts) {
  std::wstring blank = L"   \t";
  EXPECT_EQ(trim(blank), L"");
  EXPECT_EQ(blank, L"");
  std::wstring empty;
  EXPECT_EQ(trim(empty), L"");
  std::wstring inner = L"a b";
  EXPECT_EQ(trim(inner), L"a b");
}

TEST_F(Rreplace, ReplacesLastOccurrenceOnly) {
  std::wstring text = L"a b a";
  rreplace(text, L"a", L"x");
  EXPECT_EQ(text, L"a b x");
}

TEST_F(Rreplace, MissingSearchLeavesTextAlone) {
  std::wstring text = L"a b a";
  rreplace(text, L"z", L"x");
  EXPECT_EQ(text, L"a b a");
}

TEST_F(Rreplace, OverlappingAndLongerReplacements) {
  std::wstring text = L"aaa";
  rreplace(text, L"aa", L"b");
  EXPECT_EQ(text, L"ab");
  std::wstring chinese = L"明天明天";
  rreplace(chinese, L"明天", L"后天下午");
  EXPECT_EQ(chinese, L"明天后天下午");
}

// ---- isAnOrA, isHalf, unit words ------------------------------------------------

TEST_F(IsAnOrA, ExactWordsOnly) {
  EXPECT_TRUE(isAnOrA(L"a"));
  EXPECT_TRUE(isAnOrA(L"an"));
  EXPECT_FALSE(isAnOrA(L"A"));
  EXPECT_FALSE(isAnOrA(L"and"));
  EXPECT_FALSE(isAnOrA(L"a "));
  EXPECT_FALSE(isAnOrA(L""));
}

TEST_F(IsHalf, ExactWordsOnly) {
  EXPECT_TRUE(isHalf(L"半"));
  EXPECT_TRUE(isHalf(L"half a"));
  EXPECT_TRUE(isHalf(L"half an"));
  EXPECT_FALSE(isHalf(L"half"));
  EXPECT_FALSE(isHalf(L"一半"));
  EXPECT_FALSE(isHalf(L"Half an"));
}

TEST_F(UnitWords, EveryListedWordIsAccepted) {
  for (const wchar_t* word : {L"minute", L"minutes", L"min", L"mins", L"分钟", L"分"})
    EXPECT_TRUE(isMinutesUnit(word)) << testing::narrow(word);
  for (const wchar_t* word : {L"小时", L"h", L"hr", L"hrs", L"hour", L"hours"})
    EXPECT_TRUE(isHourUnit(word)) << testing::narrow(word);
  for (const wchar_t* word : {L"天", L"day", L"d", L"days"}) EXPECT_TRUE(isDayUnit(word)) << testing::narrow(word);
  for (const wchar_t* word : {L"周", L"礼拜", L"星期", L"wk", L"wks", L"week", L"weeks"})
    EXPECT_TRUE(isWeekUnit(word)) << testing::narrow(word);
  for (const wchar_t* word : {L"月", L"month", L"months"}) EXPECT_TRUE(isMonthUnit(word)) << testing::narrow(word);
  for (const wchar_t* word : {L"年", L"year", L"years", L"yr", L"yrs"})
    EXPECT_TRUE(isYearUnit(word)) << testing::narrow(word);
}

TEST_F(UnitWords, ExactAndCaseSensitive) {
  EXPECT_FALSE(isMinutesUnit(L"Minutes"));
  EXPECT_FALSE(isMinutesUnit(L"m"));
  EXPECT_FALSE(isHourUnit(L"hour "));
  EXPECT_FALSE(isHourUnit(L"H"));
  EXPECT_FALSE(isDayUnit(L"dayz"));
  EXPECT_FALSE(isDayUnit(L"日"));
  EXPECT_FALSE(isWeekUnit(L"w"));
  EXPECT_FALSE(isMonthUnit(L"mo"));
  EXPECT_FALSE(isYearUnit(L"y"));
  EXPECT_FALSE(isYearUnit(L""));
}

TEST_F(UnitWords, UnitsDoNotOverlap) {
  EXPECT_FALSE(isDayUnit(L"hour"));
  EXPECT_FALSE(isHourUnit(L"minute"));
  EXPECT_FALSE(isMonthUnit(L"min"));
  EXPECT_FALSE(isWeekUnit(L"月"));
}

// ---- word-border family: texts ----------------------------------------------------

TEST_F(WordBorderInStart, AsciiGetsLeadingBorderOthersGetEnd) {
  EXPECT_EQ(addWordBorderInStart(L"morning|朝"), L"\\bmorning|朝(?:\\b|$|\\s)");
  EXPECT_EQ(addWordBorderInStart(L"o'clock"), L"o'clock(?:\\b|$|\\s)");
  EXPECT_EQ(addWordBorderInStart(L""), L"");
}

TEST_F(WordBorderInStart, OwnBorderIsKeptAndDecorated) {
  EXPECT_EQ(addWordBorderInStart(L"mon\\b|tue"), L"mon\\b(?:\\b|$|\\s)|\\btue");
}

TEST_F(WordBorderInStartAndEnd, AsciiOnlyByDefault) {
  EXPECT_EQ(addWordBorderInStartAndEnd(L"today|今日"), L"\\btoday\\b|今日");
  EXPECT_EQ(addWordBorderInStartAndEnd(L"half a"), L"half a");
  EXPECT_EQ(addWordBorderInStartAndEnd(L""), L"");
}

TEST_F(WordBorderInStartAndEnd, AlwaysDecoratesEveryAlternative) {
  EXPECT_EQ(addWordBorderInStartAndEnd(L"today|今日", true), L"\\btoday\\b|\\b今日\\b");
  EXPECT_EQ(addWordBorderInStartAndEnd(L"mon\\b", true), L"\\bmon\\b\\b");
  EXPECT_EQ(addWordBorderInStartAndEnd(L"", true), L"");
}

TEST_F(WordBorderInEnd, AsciiGetsBothSides) {
  EXPECT_EQ(addWordBorderInEnd(L"am|午前"), L"\\bam(?:\\)|\\.|\\b)|午前");
  EXPECT_EQ(addWordBorderInEnd(L"st\\.?"), L"st\\.?");
  EXPECT_EQ(addWordBorderInEnd(L""), L"");
}

TEST_F(WordBorderInEndWithOutReg, SameForEveryScript) {
  EXPECT_EQ(addWordBorderInEndWithOutReg(L"am|午前"), L"am(?:\\)|\\.|\\b)|午前(?:\\)|\\.|\\b)");
  EXPECT_EQ(addWordBorderInEndWithOutReg(L"mon\\b"), L"mon\\b(?:\\)|\\.|\\b)");
  EXPECT_EQ(addWordBorderInEndWithOutReg(L""), L"");
}

TEST_F(WordBorderInEndWithEnd, ShortAlternativesOnlyByLength) {
  EXPECT_EQ(addWordBorderInEndWithEnd(L"min|minutes"), L"(?:\\b|^|\\s)min(?:\\b|$|\\s)|minutes");
  EXPECT_EQ(addWordBorderInEndWithEnd(L"abcde|abcdef"), L"(?:\\b|^|\\s)abcde(?:\\b|$|\\s)|abcdef");
  EXPECT_EQ(addWordBorderInEndWithEnd(L"午前"), L"(?:\\b|^|\\s)午前(?:\\b|$|\\s)");
  EXPECT_EQ(addWordBorderInEndWithEnd(L"сегодня"), L"сегодня");
  EXPECT_EQ(addWordBorderInEndWithEnd(L""), L"");
}

TEST_F(WordBorderFamily, SplitKeepsEmptyPiecesExceptAfterLastBar) {
  EXPECT_EQ(addWordBorderInStartAndEnd(L"a|"), L"\\ba\\b");
  EXPECT_EQ(addWordBorderInStartAndEnd(L"|a"), L"|\\ba\\b");
  EXPECT_EQ(addWordBorderInStartAndEnd(L"a||b"), L"\\ba\\b||\\bb\\b");
  EXPECT_EQ(addWordBorderInStart(L"|a"), L"(?:\\b|$|\\s)|\\ba");
  EXPECT_EQ(addWordBorderInEndWithOutReg(L"x|"), L"x(?:\\)|\\.|\\b)");
}

// ---- word-border family: what the patterns match ------------------------------------

TEST_F(WordBorderBehaviour, AsciiWordDoesNotMatchInsideLongerWord) {
  const std::wstring pattern = addWordBorderInStartAndEnd(L"mon|tue");
  EXPECT_FALSE(found(pattern, L"month"));
  EXPECT_FALSE(found(pattern, L"salmon"));
  EXPECT_TRUE(found(pattern, L"see you mon 3pm"));
  EXPECT_TRUE(found(pattern, L"TUE"));
}

TEST_F(WordBorderBehaviour, NonAsciiWordNeedsEndOrBlank) {
  const std::wstring pattern = addWordBorderInStart(L"朝");
  EXPECT_TRUE(found(pattern, L"明日の朝"));
  EXPECT_TRUE(found(pattern, L"朝 9時"));
  EXPECT_FALSE(found(pattern, L"朝食"));
}

TEST_F(WordBorderBehaviour, EndBorderAcceptsDotAndParenthesis) {
  const std::wstring pattern = addWordBorderInEnd(L"am");
  EXPECT_TRUE(found(pattern, L"9 am."));
  EXPECT_TRUE(found(pattern, L"(9 am)"));
  EXPECT_FALSE(found(pattern, L"9am")) << "digits count as word letters";
  EXPECT_FALSE(found(pattern, L"9 ambient"));
}

TEST_F(WordBorderBehaviour, ShortWordWithBlankBorders) {
  const std::wstring pattern = addWordBorderInEndWithEnd(L"min|minutes");
  EXPECT_TRUE(found(pattern, L"5 min"));
  EXPECT_FALSE(found(pattern, L"admin"));
  EXPECT_TRUE(found(pattern, L"5minutes")) << "long alternatives are bare";
}

TEST_F(WordBorderBehaviour, AlternativeCarryingItsOwnBorder) {
  const std::wstring pattern = addWordBorderInStart(L"mon\\b");
  EXPECT_TRUE(found(pattern, L"mon 5"));
  EXPECT_FALSE(found(pattern, L"monday"));
}

}  // namespace
}  // namespace nlpdate
