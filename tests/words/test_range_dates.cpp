// Word-language ranges between numeric dates and between day words.
#include <gtest/gtest.h>

#include "test_range_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::RangeCall;
using testing::RangeFound;
using testing::rangeOf;
using testing::ScopedTZ;

const RangeCall kDates = [](NLPNativeTitleParser& p, const std::wstring& t, const Vocabulary& v) {
  return p.matchEnDateDuration(t, v);
};

RangeFound datesAt(const std::string& now, const std::string& title, bool monthFirst = true,
                   const std::string& language = "en") {
  NLPNativeTitleParser parser = parserAt(now);
  parser.setIsUsOrUkDateFormat(monthFirst);
  return rangeOf(parser, kDates, title, language);
}

TEST(RangeDatesTest, NumericFormsAreCaseSensitiveAndDayWordFormsAreNot) {
  ScopedTZ zone("UTC");
  // The range word "to" is matched as written: upper case leaves no range word between the dates.
  EXPECT_FALSE(datesAt("2024-02-01T10:00:00", "2024-03-05 TO 2024-03-08").present);
  EXPECT_TRUE(datesAt("2024-02-01T10:00:00", "2024-03-05 to 2024-03-08").present);
  RangeFound words = datesAt("2024-03-13T10:11:12", "TODAY TO TOMORROW");
  ASSERT_TRUE(words.present);
  EXPECT_EQ(words.end, "2024-03-14T00:11:12");
}

TEST(RangeDatesTest, ADatePairWithTimesTriesEveryClockFormBeforeThePairWithout) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-02-01T10:00:00", "2024-03-05 9am - 2024-03-06 5pm");
  ASSERT_TRUE(found.present);
  EXPECT_EQ(found.start, "2024-03-05T09:00:00");
  EXPECT_EQ(found.end, "2024-03-06T17:00:00");
  EXPECT_EQ(found.reminder, "TRIGGER:-PT0S");
  RangeFound bare = datesAt("2024-02-01T10:00:00", "2024-03-05 - 2024-03-08");
  EXPECT_EQ(bare.start, "2024-03-05T00:00:00");
  EXPECT_EQ(bare.end, "2024-03-08T00:00:00");
  EXPECT_EQ(bare.reminder, "");
}

TEST(RangeDatesTest, AMonthDayAFlagAndABareDayEndInTheMonthAndYearOfTheStart) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-03-01T10:00:00", "3/20 - 25");
  EXPECT_EQ(found.text, "3/20 - 25");
  EXPECT_EQ(found.start, "2024-03-20T00:00:00");
  EXPECT_EQ(found.end, "2024-03-25T00:00:00");
}

TEST(RangeDatesTest, TheBareDayEndIsTakenBeforeTheStartRollsAYear) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-03-25T10:00:00", "3/20 - 25");
  EXPECT_EQ(found.start, "2025-03-20T00:00:00");
  EXPECT_EQ(found.end, "2024-03-25T00:00:00");
}

TEST(RangeDatesTest, ATwoCharacterFirstFieldMakesTheLastFieldTheYear) {
  ScopedTZ zone("UTC");
  RangeFound monthFirst = datesAt("2024-02-01T10:00:00", "03/05/24 9:00 - 17:00", true);
  EXPECT_EQ(monthFirst.start, "2024-03-05T09:00:00");
  EXPECT_EQ(monthFirst.end, "2024-03-05T17:00:00");
  RangeFound dayFirst = datesAt("2024-02-01T10:00:00", "03/05/24 9:00 - 17:00", false);
  EXPECT_EQ(dayFirst.start, "2024-05-03T09:00:00");
  EXPECT_EQ(dayFirst.end, "2024-05-03T17:00:00");
}

TEST(RangeDatesTest, AnEndOfTwelveAmLandsOnTheNextDay) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-02-01T10:00:00", "3/5 9pm - 12am");
  EXPECT_EQ(found.start, "2024-03-05T21:00:00");
  EXPECT_EQ(found.end, "2024-03-06T00:00:00");
}

TEST(RangeDatesTest, YearFirstDatesCrossTheYearEnd) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-12-01T10:00:00", "viagem 2024-12-30 até 2025-01-02", true, "pt");
  EXPECT_EQ(found.start, "2024-12-30T00:00:00");
  EXPECT_EQ(found.end, "2025-01-02T00:00:00");
}

TEST(RangeDatesTest, MonthDayPairsCrossTheMonthEnd) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-01-10T10:00:00", "поездка 1/30 до 2/2", true, "ru");
  EXPECT_EQ(found.start, "2024-01-30T00:00:00");
  EXPECT_EQ(found.end, "2024-02-02T00:00:00");
}

TEST(RangeDatesTest, TheSecondDayWordMovesTheDayAndTheFirstMovesTheYear) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-03-13T10:11:12", "trip tomorrow to the day after tomorrow");
  EXPECT_EQ(found.start, "2025-03-13T00:11:12");
  EXPECT_EQ(found.end, "2024-03-15T00:11:12");
  RangeFound yesterday = datesAt("2024-03-13T10:11:12", "trip yesterday to tomorrow");
  EXPECT_EQ(yesterday.start, "2023-03-13T00:11:12");
  EXPECT_EQ(yesterday.end, "2024-03-14T00:11:12");
}

TEST(RangeDatesTest, DayWordsWithTimesMoveTheDayAndKeepTheSecondsOfNow) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-03-13T10:11:12", "today 9am to tomorrow 5pm");
  EXPECT_EQ(found.start, "2024-03-13T09:00:12");
  EXPECT_EQ(found.end, "2024-03-14T17:00:12");
  EXPECT_EQ(found.reminder, "TRIGGER:-PT0S");
  RangeFound oneDay = datesAt("2024-03-13T10:11:12", "tomorrow 9am to 5pm");
  EXPECT_EQ(oneDay.start, "2024-03-14T09:00:12");
  EXPECT_EQ(oneDay.end, "2024-03-14T17:00:12");
}

TEST(RangeDatesTest, ADayWordToAMonthDateRollsAPastEndAYear) {
  ScopedTZ zone("UTC");
  RangeFound found = datesAt("2024-03-13T10:11:12", "today to march 1");
  EXPECT_EQ(found.start, "2024-03-13T00:11:12");
  EXPECT_EQ(found.end, "2025-03-01T00:11:12");
}

TEST(RangeDatesTest, ADayWordToAWeekdayAlwaysTargetsSunday) {
  ScopedTZ zone("UTC");
  // 2024-03-13 is a Wednesday; the Sunday of this week is the 10th, before the start, so a week on.
  RangeFound friday = datesAt("2024-03-13T10:11:12", "today to friday");
  EXPECT_EQ(friday.end, "2024-03-17T10:11:12");
  RangeFound monday = datesAt("2024-03-13T10:11:12", "today to monday");
  EXPECT_EQ(monday.end, "2024-03-17T10:11:12");
  RangeFound next = datesAt("2024-03-13T10:11:12", "today to next friday");
  EXPECT_EQ(next.end, "2024-03-17T10:11:12");
}

}  // namespace
}  // namespace nlpdate
