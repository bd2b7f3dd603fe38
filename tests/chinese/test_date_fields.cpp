// Year, month and day setters that the calendar-date patterns share.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class DateFields : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");

  // A record at midnight of the given local date.
  static TMPtr at(int year, int month, int day) {
    std::tm value{};
    value.tm_year = year - 1900;
    value.tm_mon = month - 1;
    value.tm_mday = day;
    value.tm_isdst = -1;
    return mkTM(newTM(value));
  }
};

}  // namespace

TEST_F(DateFields, EmptyYearRollsPassedDate) {
  TMPtr passed = at(2024, 3, 7);
  parser.setYear(L"", passed);
  EXPECT_EQ(tmText(*passed), "2025-03-07T00:00:00");
  TMPtr today = at(2024, 3, 8);
  parser.setYear(L"", today);
  EXPECT_EQ(tmText(*today), "2024-03-08T00:00:00");
}

TEST_F(DateFields, NextYearWord) {
  TMPtr record = at(2024, 3, 5);
  parser.setYear(L"明年", record);
  EXPECT_EQ(tmText(*record), "2025-03-05T00:00:00");
}

TEST_F(DateFields, ShortYears) {
  TMPtr record = at(2024, 3, 5);
  parser.setYear(L"24", record);
  EXPECT_EQ(record->tm_year + 1900, 2024);
  parser.setYear(L"95", record);
  EXPECT_EQ(record->tm_year + 1900, 1995);
  parser.setYear(L"89", record);
  EXPECT_EQ(record->tm_year + 1900, 2089);
  parser.setYear(L"90", record);
  EXPECT_EQ(record->tm_year + 1900, 1990);
  parser.setYear(L"5", record);
  EXPECT_EQ(record->tm_year + 1900, 2005);
}

TEST_F(DateFields, FullYearsStand) {
  TMPtr record = at(2024, 3, 5);
  parser.setYear(L"2023", record);
  EXPECT_EQ(tmText(*record), "2023-03-05T00:00:00");
  parser.setYear(L"100", record);
  EXPECT_EQ(record->tm_year + 1900, 100);
}

TEST_F(DateFields, NineDigitsGiveTheFixedYear) {
  TMPtr record = at(2024, 3, 5);
  parser.setYear(L"123456789", record);
  EXPECT_EQ(record->tm_year + 1900, 2021);
}

TEST_F(DateFields, YearNormalisesFebruaryTwentyNinth) {
  TMPtr record = at(2024, 2, 29);
  parser.setYear(L"2023", record);
  EXPECT_EQ(tmText(*record), "2023-03-01T00:00:00");
}

TEST_F(DateFields, MonthSetKeepsDay) {
  TMPtr record = at(2024, 3, 5);
  parser.setMonth(L"7", record);
  EXPECT_EQ(tmText(*record), "2024-07-05T00:00:00");
  parser.setMonth(L"十二", record);
  EXPECT_EQ(tmText(*record), "2024-12-05T00:00:00");
}

TEST_F(DateFields, MonthWithoutThatDayFallsBackToFirst) {
  TMPtr record = at(2024, 1, 31);
  parser.setMonth(L"4", record);
  EXPECT_EQ(tmText(*record), "2024-04-01T00:00:00");
  TMPtr leap = at(2024, 1, 30);
  parser.setMonth(L"2", leap);
  EXPECT_EQ(tmText(*leap), "2024-02-01T00:00:00");
}

TEST_F(DateFields, MonthWords) {
  TMPtr record = at(2024, 3, 5);
  parser.setMonth(L"元", record);
  EXPECT_EQ(record->tm_mon, 0);
  parser.setMonth(L"腊", record);
  EXPECT_EQ(record->tm_mon, 11);
}

TEST_F(DateFields, NextMonthWords) {
  TMPtr record = at(2024, 3, 5);
  parser.setMonth(L"下", record);
  EXPECT_EQ(record->tm_mon, 3);
  parser.setMonth(L"下个", record);
  EXPECT_EQ(record->tm_mon, 4);
  TMPtr december = at(2024, 12, 5);
  parser.setMonth(L"下", december);
  EXPECT_EQ(tmText(*december), "2025-01-05T00:00:00");
}

TEST_F(DateFields, EmptyMonthMovesPassedDayOn) {
  TMPtr passed = at(2024, 3, 5);
  parser.setMonth(L"", passed);
  EXPECT_EQ(tmText(*passed), "2024-04-05T00:00:00");
  TMPtr later = at(2024, 3, 20);
  parser.setMonth(L"", later);
  EXPECT_EQ(tmText(*later), "2024-03-20T00:00:00");
  TMPtr today = at(2024, 3, 8);
  parser.setMonth(L"", today);
  EXPECT_EQ(tmText(*today), "2024-03-08T00:00:00");
}

TEST_F(DateFields, EmptyMonthOnLastDayOfYear) {
  NLPNativeTitleParser lastDay = parserAt("2024-12-31T10:00:00");
  TMPtr record = at(2024, 12, 5);
  lastDay.setMonth(L"", record);
  EXPECT_EQ(tmText(*record), "2025-01-05T00:00:00");
}

TEST_F(DateFields, DayOfMonth) {
  TMPtr record = at(2024, 3, 5);
  parser.setDayOfMonth(L"", record);
  EXPECT_EQ(tmText(*record), "2024-03-01T00:00:00");
  parser.setDayOfMonth(L"21", record);
  EXPECT_EQ(tmText(*record), "2024-03-21T00:00:00");
  parser.setDayOfMonth(L"中旬", record);
  EXPECT_EQ(record->tm_mday, 11);
  parser.setDayOfMonth(L"下旬", record);
  EXPECT_EQ(record->tm_mday, 21);
  parser.setDayOfMonth(L"上旬", record);
  EXPECT_EQ(record->tm_mday, 1);
  parser.setDayOfMonth(L"三十一", record);
  EXPECT_EQ(tmText(*record), "2024-03-31T00:00:00");
}

TEST_F(DateFields, DayPastMonthEndNormalises) {
  TMPtr record = at(2024, 2, 5);
  parser.setDayOfMonth(L"30", record);
  EXPECT_EQ(tmText(*record), "2024-03-01T00:00:00");
}

TEST_F(DateFields, MonthThenMissingDayNormalisesIntoNextMonth) {
  // Month first, then a day the month does not have: the day setter normalises it onward.
  TMPtr record = at(2024, 3, 8);
  parser.setMonth(L"2", record);
  parser.setDayOfMonth(L"30", record);
  EXPECT_EQ(tmText(*record), "2024-03-01T00:00:00");
}

// The words for next month only count the month on; the record is left for the day setter to normalise.
TEST_F(DateFields, NextMonthWordsLeaveTheRecordRaw) {
  TMPtr record = at(2024, 1, 31);
  parser.setMonth(L"下", record);
  EXPECT_EQ(record->tm_mon, 1);
  EXPECT_EQ(record->tm_mday, 31);
}

// Any value from -99 below 90 takes 2000: -5 is 1995.
TEST_F(DateFields, NegativeShortYearAddsTwoThousand) {
  TMPtr record = at(2024, 3, 5);
  parser.setYear(L"-5", record);
  EXPECT_EQ(record->tm_year + 1900, 1995);
}
