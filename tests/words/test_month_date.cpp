// Dates that name a month, in several languages, with the roll forward of
// a passed date and the second look at two numbers around the month.
#include <gtest/gtest.h>


#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/translation.h"
#include "words/month_patterns.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class MonthDate : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  std::optional<NLPRecognizeDate> result;
  NLPNativeTitleParser parser;

  void read(const std::string& now, const std::string& title, const std::string& language = "en") {
    parser = parserAt(now);
    result = parser.matchEnMonth(wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  }
  std::string start() const { return tmText(*result->getStartCal().value()); }
  std::string text() const { return narrow(result->getRecogString().front()); }
  long position() const { return result->getRecognizeStringStartPosition(); }
  size_t onTimeCount() const {
    size_t count = 0;
    for (const auto& item : parser.parserDueDate.reminder) count += item == ON_TIME;
    return count;
  }
};

bool mainPatternMatches(const std::string& title, const std::string& language) {
  Pattern pattern =
      compilePattern(getEnMonthRecognition(NLPTranslation::getTransKeyToValue(wide(language))), PatternCase::Insensitive);
  PatternMatch match;
  std::wstring text = wide(title);
  return pattern.search(text, match) && !match[7].str().empty();
}

}  // namespace

TEST_F(MonthDate, CalendarSetsMonthAndKeepsTheRest) {
  NLPNativeTitleParser clock = parserAt("2024-03-08T10:20:30");
  Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");
  EXPECT_EQ(tmText(*clock.getEnMonthCalendar(L"  JUNE ", english)), "2024-06-08T10:20:30");
  EXPECT_EQ(clock.getEnMonthCalendar(L"dec", english)->tm_mon, 11);
  EXPECT_EQ(clock.getEnMonthCalendar(L"sept", english)->tm_mon, 8);
  EXPECT_EQ(tmText(*clock.getEnMonthCalendar(L"", english)), "2024-03-08T10:20:30");
  EXPECT_EQ(tmText(*clock.getEnMonthCalendar(L"someday", english)), "2024-03-08T10:20:30");
}

TEST_F(MonthDate, CalendarTestsDecemberFirst) {
  NLPNativeTitleParser clock = parserAt("2024-03-08T10:00:00");
  // "nov dec" holds two months: the December test comes first.
  EXPECT_EQ(clock.getEnMonthCalendar(L"nov dec", NLPTranslation::getTransKeyToValue(L"en"))->tm_mon, 11);
  EXPECT_EQ(clock.getEnMonthCalendar(L"janvier", NLPTranslation::getTransKeyToValue(L"fr"))->tm_mon, 0);
  EXPECT_EQ(clock.getEnMonthCalendar(L"марта", NLPTranslation::getTransKeyToValue(L"ru"))->tm_mon, 2);
}

TEST_F(MonthDate, MonthAloneInLaterMonthIsFirstOfNextYear) {
  read("2024-05-10T10:00:00", "trip in march");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2025-03-01T00:00:00");
}

TEST_F(MonthDate, MonthAloneInEarlierMonthIsItsFirst) {
  read("2024-05-10T10:00:00", "trip in august");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-08-01T00:00:00");
}

TEST_F(MonthDate, MonthAloneInItsOwnMonthKeepsToday) {
  read("2024-03-08T10:00:00", "taxes march");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(text(), " march");
  EXPECT_EQ(position(), 5);
}

TEST_F(MonthDate, DayBeforeMonthPassedMeansNextYear) {
  read("2024-03-13T10:00:00", "12 march");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2025-03-12T00:00:00");
}

TEST_F(MonthDate, DayBeforeMonthTodayStaysThisYear) {
  read("2024-03-12T23:00:00", "12 march");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
}

TEST_F(MonthDate, WrittenYearIsKeptEvenIfPast) {
  read("2024-05-01T10:00:00", "dentist 12 march 2024");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
  EXPECT_EQ(text(), " 12 march 2024");
}

TEST_F(MonthDate, DayBehindMonth) {
  read("2024-03-08T10:00:00", "on march 12th");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
  EXPECT_EQ(text(), "on march 12th");
  EXPECT_EQ(position(), 0);
}

TEST_F(MonthDate, TwoDigitNumberBehindDayStaysOutside) {
  read("2024-03-08T10:00:00", "march 12 24");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), "march 12");
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
}

TEST_F(MonthDate, SecondLookReadsShortYear) {
  read("2024-03-08T10:00:00", "12 march 15");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2015-03-12T00:00:00");
  EXPECT_EQ(text(), "12 march 15");
}

TEST_F(MonthDate, SecondLookLeavesTimeDigitsOut) {
  read("2024-03-08T10:00:00", "12 march 8p");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
  EXPECT_EQ(text(), "12 march ");
}

TEST_F(MonthDate, SecondLookRemovesLastOccurrenceOfDigits) {
  read("2024-03-08T10:00:00", "8 march 8p");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), "8 march ");
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
}

TEST_F(MonthDate, MainPatternClearsStartDateWithoutReminder) {
  parser = parserAt("2024-03-08T10:00:00");
  parser.parserDueDate.startDate = timePointFromSeconds(1);
  result = parser.matchEnMonth(L"12 april", NLPTranslation::getTransKeyToValue(L"en"));
  ASSERT_TRUE(result);
  EXPECT_FALSE(parser.parserDueDate.startDate);
  EXPECT_EQ(onTimeCount(), 0u);
  EXPECT_EQ(start(), "2024-04-12T00:00:00");
}

TEST_F(MonthDate, MiddleOfMonth) {
  read("2024-03-08T10:00:00", "mid march");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-15T00:00:00");
  read("2024-03-20T10:00:00", "mid march");
  EXPECT_EQ(start(), "2025-03-15T00:00:00");
}

TEST_F(MonthDate, OrdinalPassedMeansNextMonth) {
  read("2024-03-10T10:00:00", "pay on the 5th");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-04-05T00:00:00");
  EXPECT_EQ(text(), " 5th");
}

TEST_F(MonthDate, OrdinalTodayStaysThisMonth) {
  read("2024-03-05T22:00:00", "5th");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-05T00:00:00");
}

TEST_F(MonthDate, OrdinalOnLastDayOfYear) {
  read("2024-12-31T10:00:00", "on 3rd");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), "on 3rd");
  EXPECT_EQ(start(), "2025-01-03T00:00:00");
}

TEST_F(MonthDate, OrdinalOnLastDayOfMonth) {
  read("2024-01-31T10:00:00", "5th");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-02-05T00:00:00");
  // A day the month lacks is carried over, not refused.
  read("2024-04-10T10:00:00", "31st");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-05-01T00:00:00");
}

TEST_F(MonthDate, OrdinalKeepsStartDate) {
  parser = parserAt("2024-03-08T10:00:00");
  parser.parserDueDate.startDate = timePointFromSeconds(1);
  result = parser.matchEnMonth(L"20th", NLPTranslation::getTransKeyToValue(L"en"));
  ASSERT_TRUE(result);
  EXPECT_TRUE(parser.parserDueDate.startDate);
}

TEST_F(MonthDate, ClockTimeLaterTodayStays) {
  read("2024-03-12T08:00:00", "12 mar 9:30");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T09:30:00");
  EXPECT_EQ(text(), "12 mar 9:30");
  EXPECT_EQ(onTimeCount(), 1u);
}

TEST_F(MonthDate, ClockTimePassedTriesEveningFirst) {
  read("2024-03-12T10:00:00", "12 mar 9:30");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T21:30:00");
}

TEST_F(MonthDate, ClockTimePassedInEveningMovesToTomorrow) {
  read("2024-03-12T22:00:00", "12 mar 9:30");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-13T09:30:00");
}

TEST_F(MonthDate, ClockTimeAfternoonPassedMovesToTomorrow) {
  read("2024-03-12T16:00:00", "12 mar 15:00");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-13T15:00:00");
}

TEST_F(MonthDate, ClockTimeOfEarlierDateMovesToNextYear) {
  read("2024-03-20T10:00:00", "12 mar 15:00");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2025-03-12T15:00:00");
}

TEST_F(MonthDate, ClockTimeClearsStartDate) {
  parser = parserAt("2024-03-08T10:00:00");
  parser.parserDueDate.startDate = timePointFromSeconds(1);
  result = parser.matchEnMonth(L"12 april, 14:00", NLPTranslation::getTransKeyToValue(L"en"));
  ASSERT_TRUE(result);
  EXPECT_FALSE(parser.parserDueDate.startDate);
  EXPECT_EQ(start(), "2024-04-12T14:00:00");
}

TEST_F(MonthDate, ClockTimeBeforeMonth) {
  read("2024-03-08T10:00:00", "call 9:30 mar 12");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), "9:30 mar 12");
  EXPECT_EQ(position(), 5);
  EXPECT_EQ(start(), "2024-03-12T09:30:00");
  EXPECT_EQ(onTimeCount(), 1u);
}

TEST_F(MonthDate, DayPastMonthEndCarriesOver) {
  read("2024-01-10T10:00:00", "30 february");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-01T00:00:00");
}

TEST_F(MonthDate, FrenchAvrilInMainPatternButNotApr) {
  EXPECT_TRUE(mainPatternMatches("12 avril", "fr"));
  EXPECT_FALSE(mainPatternMatches("12 apr", "fr"));
  EXPECT_TRUE(mainPatternMatches("12 apr", "en"));
  read("2024-03-08T10:00:00", "réunion 12 avril", "fr");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-04-12T00:00:00");
}

TEST_F(MonthDate, FrenchAprFallsToDayBeforeMonthWithoutRoll) {
  read("2024-05-08T10:00:00", "réunion 12 apr", "fr");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), " 12 apr");
  // The last pattern keeps the date as written: no roll to next year.
  EXPECT_EQ(start(), "2024-04-12T00:00:00");
}

TEST_F(MonthDate, Russian) {
  read("2024-03-08T10:00:00", "встреча 12 марта", "ru");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
  read("2024-03-08T10:00:00", "отчёт 5 января 2025", "ru");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2025-01-05T00:00:00");
}

TEST_F(MonthDate, Portuguese) {
  read("2024-03-08T10:00:00", "consulta 20 de maio", "pt");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-05-20T00:00:00");
  read("2024-03-08T10:00:00", "viagem março", "pt");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
}

TEST_F(MonthDate, Korean) {
  read("2024-03-08T10:00:00", "회의 4월 12일", "ko");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-04-12T00:00:00");
}

TEST_F(MonthDate, KoreanSecondLookStartsWithMonth) {
  // "20" of "2026" is the day behind the month; the month-first look makes the record anew on it.
  read("2024-03-08T10:00:00", "12 4월 2026", "ko");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-04-20T00:00:00");
  EXPECT_EQ(text(), " 4월 20");
}

TEST_F(MonthDate, KoreanSecondLookYearKeepsDayBeforeMonth) {
  read("2024-03-08T10:00:00", "5 4월 12, 2026", "ko");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2026-04-05T00:00:00");
  EXPECT_EQ(text(), " 4월 12, 2026");
}

TEST_F(MonthDate, Japanese) {
  read("2024-03-08T10:00:00", "meeting 12 june", "ja");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-06-12T00:00:00");
}

TEST_F(MonthDate, NothingToRead) {
  read("2024-03-08T10:00:00", "call mom");
  EXPECT_FALSE(result);
  EXPECT_TRUE(parser.parserDueDate.reminder.empty());
}

TEST_F(MonthDate, SecondLookPatternGroups) {
  Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");
  Pattern pattern = compilePattern(getEnMonthRecognitionStartWithDay(english), PatternCase::Insensitive);
  PatternMatch match;
  std::wstring title = L"12 march 8p";
  ASSERT_TRUE(pattern.search(title, match));
  EXPECT_EQ(match[5].str(), L"12");
  EXPECT_EQ(match[12].str(), L"8");
  EXPECT_EQ(match[13].str(), L"p");
  Pattern monthFirst = compilePattern(getEnMonthRecognitionStartWithMonth(english), PatternCase::Insensitive);
  title = L"march 12, 2025";
  ASSERT_TRUE(monthFirst.search(title, match));
  EXPECT_EQ(match.size(), 13u);
  EXPECT_EQ(match[7].str(), L"march");
  EXPECT_EQ(match[9].str(), L"12");
  EXPECT_EQ(match[12].str(), L"2025");
}

TEST_F(MonthDate, MainPatternHasTwelveGroups) {
  Pattern pattern =
      compilePattern(getEnMonthRecognition(NLPTranslation::getTransKeyToValue(L"en")), PatternCase::Insensitive);
  PatternMatch match;
  std::wstring title = L"on 12th of december 2025";
  ASSERT_TRUE(pattern.search(title, match));
  EXPECT_EQ(match.size(), 13u);
  EXPECT_EQ(match[5].str(), L"12");
  EXPECT_EQ(match[7].str(), L"december");
  // The day behind the month takes "20" of the year; the second look reads the year.
  EXPECT_EQ(match[9].str(), L"20");
  EXPECT_EQ(match[12].str(), L"");
}

TEST_F(MonthDate, FourDigitYearAfterDayAndMonthComesFromSecondLook) {
  read("2024-03-08T10:00:00", "on 12th of december 2025");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2025-12-12T00:00:00");
  EXPECT_EQ(text(), "on 12th of december 2025");
}

TEST_F(MonthDate, YearBehindMonthWithComma) {
  read("2024-03-08T10:00:00", "march, 2023");
  ASSERT_TRUE(result);
  // A month alone outside the present month and year is its 1st; a written year never rolls.
  EXPECT_EQ(start(), "2023-03-01T00:00:00");
}

// The main pattern reads "1" before "2월"; the month-first second look finds "12월" with
// the day behind it, makes the record anew and takes its text, "의" of "회의" included.
TEST_F(MonthDate, KoreanDecemberSettledByMonthFirstLook) {
  read("2024-03-08T10:00:00", "회의 12월 5일", "ko");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), "의 12월 5일");
  EXPECT_EQ(position(), 2);
  EXPECT_EQ(start(), "2024-12-05T00:00:00");
}

// Only "mid" reads as 15; the French "mi" reads as day 0, the last day of the month before.
TEST_F(MonthDate, FrenchMiReadsAsDayZero) {
  read("2024-03-08T10:00:00", "réunion mi mars", "fr");
  ASSERT_TRUE(result);
  EXPECT_EQ(text(), " mi mars");
  // February 29 has passed, so a year on: February 29 of 2025 is March 1.
  EXPECT_EQ(start(), "2025-03-01T00:00:00");
}

TEST_F(MonthDate, ClockTimeKeepsTheSecondsOfNow) {
  read("2024-03-08T10:20:30", "12 mar 14:00");
  ASSERT_TRUE(result);
  EXPECT_EQ(start(), "2024-03-12T14:00:30");
}
