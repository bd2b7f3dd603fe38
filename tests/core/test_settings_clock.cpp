// The parser object's defaults, setters and clock.
#include <gtest/gtest.h>

#include <ctime>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;

TEST(ParserDefaultsTest, NewObjectHoldsTheDefaults) {
  NLPNativeTitleParser parser;
  EXPECT_TRUE(parser.isUsOrUkDateFormat);
  EXPECT_EQ(parser.morningHour, 9);
  EXPECT_EQ(parser.morningMinute, 0);
  EXPECT_EQ(parser.afternoonHour, 13);
  EXPECT_EQ(parser.afternoonMinute, 0);
  EXPECT_EQ(parser.eveningHour, 17);
  EXPECT_EQ(parser.eveningMinute, 0);
  EXPECT_EQ(parser.nightHour, 20);
  EXPECT_EQ(parser.nightMinute, 0);
  EXPECT_TRUE(parser.is24DateFormat);
  EXPECT_EQ(parser.startDay, Sunday);
  EXPECT_EQ(parser.defaultTimeSecond, -1);
  EXPECT_TRUE(parser.holidayDayMap.empty());
  EXPECT_TRUE(parser.holidaySeasonMap.empty());
  EXPECT_TRUE(parser.japanHolidayDayMap.empty());
  EXPECT_FALSE(parser.baseDate.has_value());
  EXPECT_TRUE(parser.holidayInfos.empty());
  EXPECT_TRUE(parser.japanHolidayInfos.empty());
  EXPECT_TRUE(parser.parserDueDate.isAllDay);
  EXPECT_TRUE(parser.parserDueDate.repeatFlag.empty());
}

TEST(ParserSettersTest, CustomizeHourStoresEightValuesInOrder) {
  NLPNativeTitleParser parser;
  parser.setCustomizeHour(7, 15, 14, 30, 18, 45, 22, 5);
  EXPECT_EQ(parser.morningHour, 7);
  EXPECT_EQ(parser.morningMinute, 15);
  EXPECT_EQ(parser.afternoonHour, 14);
  EXPECT_EQ(parser.afternoonMinute, 30);
  EXPECT_EQ(parser.eveningHour, 18);
  EXPECT_EQ(parser.eveningMinute, 45);
  EXPECT_EQ(parser.nightHour, 22);
  EXPECT_EQ(parser.nightMinute, 5);
}

TEST(ParserSettersTest, StartDayFromHostNumber) {
  NLPNativeTitleParser parser;
  for (int outside : {1, 0, 8, -3}) {
    parser.setStartDay(Saturday);
    parser.setStartDay(outside);
    EXPECT_EQ(parser.startDay, Sunday) << outside;
  }
  parser.setStartDay(2);
  EXPECT_EQ(parser.startDay, Monday);
  parser.setStartDay(5);
  EXPECT_EQ(parser.startDay, Thursday);
  parser.setStartDay(7);
  EXPECT_EQ(parser.startDay, Saturday);
}

TEST(ParserSettersTest, StartDayFromWeekDayIsStoredAsItIs) {
  NLPNativeTitleParser parser;
  parser.setStartDay(Wednesday);
  EXPECT_EQ(parser.startDay, Wednesday);
  parser.setStartDay(Sunday);
  EXPECT_EQ(parser.startDay, Sunday);
}

TEST(ParserSettersTest, PlainStores) {
  NLPNativeTitleParser parser;
  parser.setIs24DateFormat(false);
  EXPECT_FALSE(parser.is24DateFormat);
  parser.setIsUsOrUkDateFormat(false);
  EXPECT_FALSE(parser.isIsUsOrUkDateFormat());
  parser.setIsUsOrUkDateFormat(true);
  EXPECT_TRUE(parser.isIsUsOrUkDateFormat());
  parser.setDefaultTimeSecond(1234);
  EXPECT_EQ(parser.defaultTimeSecond, 1234);
}

TEST(ParserClockTest, FixedSecondsFixTheClock) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser;
  parser.setDefaultTimeSecond(1709892000);  // 2024-03-08T10:00:00Z
  EXPECT_EQ(secondsOf(parser.getDefaultTime()), 1709892000);
  EXPECT_EQ(tmText(*parser.getDefaultTM()), "2024-03-08T10:00:00");
}

TEST(ParserClockTest, OneIsTheSmallestFixedValue) {
  NLPNativeTitleParser parser;
  parser.setDefaultTimeSecond(1);
  EXPECT_EQ(secondsOf(parser.getDefaultTime()), 1);
}

TEST(ParserClockTest, ZeroAndNegativeMeanTheSystemClock) {
  for (long unset : {0L, -1L, -500L}) {
    NLPNativeTitleParser parser;
    parser.setDefaultTimeSecond(unset);
    const long long before = static_cast<long long>(std::time(nullptr));
    const long long now = secondsOf(parser.getDefaultTime());
    const long long after = static_cast<long long>(std::time(nullptr));
    EXPECT_GE(now, before) << unset;
    EXPECT_LE(now, after) << unset;
  }
}

TEST(ParserClockTest, SystemClockIsWholeSeconds) {
  NLPNativeTitleParser parser;
  const TimePoint now = parser.getDefaultTime();
  EXPECT_EQ(now.time_since_epoch().count() % 1000000, 0);
}

TEST(ParserClockTest, DefaultTMIsLocalTime) {
  ScopedTZ zone("Asia/Tokyo");
  NLPNativeTitleParser parser;
  parser.setDefaultTimeSecond(1709892000);
  TMPtr now = parser.getDefaultTM();
  EXPECT_EQ(now->tm_hour, 19);
  EXPECT_EQ(now->tm_mday, 8);
  EXPECT_EQ(now->tm_wday, Friday);
}

TEST(ParserClockTest, GetTMGivesLocalRecordOfThatMoment) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser;
  TMPtr record = parser.getTM(0);
  ASSERT_TRUE(record);
  EXPECT_EQ(record->tm_year, 70);
  EXPECT_EQ(record->tm_mon, 0);
  EXPECT_EQ(record->tm_mday, 1);
  EXPECT_EQ(record->tm_wday, Thursday);
}

TEST(ParserClockTest, TodayAndTomorrowAreLocalMidnights) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
  EXPECT_EQ(parser.today(), localSeconds("2024-03-08T00:00:00"));
  EXPECT_EQ(parser.tomorrow(), localSeconds("2024-03-09T00:00:00"));
}

TEST(ParserClockTest, TomorrowAtTheEndOfTheYear) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-12-31T23:59:59");
  EXPECT_EQ(parser.today(), localSeconds("2024-12-31T00:00:00"));
  EXPECT_EQ(parser.tomorrow(), localSeconds("2025-01-01T00:00:00"));
}

TEST(ParserClockTest, TomorrowAcrossSpringForward) {
  ScopedTZ zone("America/New_York");
  NLPNativeTitleParser parser = parserAt("2024-03-09T22:00:00");
  // The day of the change is 23 hours long, but midnight to midnight is one calendar day.
  EXPECT_EQ(parser.tomorrow() - parser.today(), 24 * 3600);
  EXPECT_EQ(parser.tomorrow(), localSeconds("2024-03-10T00:00:00"));
}

}  // namespace
}  // namespace nlpdate
