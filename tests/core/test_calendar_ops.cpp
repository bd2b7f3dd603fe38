// Calendar operations on records: normalising, weekday walks and the
// comparisons with the parser's fixed "now".
#include <gtest/gtest.h>

#include <ctime>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;

// A local record as localtime_r gives it (tm_isdst decided), for "YYYY-MM-DDTHH:MM:SS".
TMPtr localTM(const std::string& text) { return tmFromTimePoint(timePointFromSeconds(localSeconds(text))); }

// The record's own fields, printed without normalising.
std::string fields(const std::tm& r) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02dT%02d:%02d:%02d", r.tm_year + 1900, r.tm_mon + 1, r.tm_mday,
                r.tm_hour, r.tm_min, r.tm_sec);
  return buffer;
}

const char* const kNow = "2024-03-08T10:00:00";  // a Friday

TEST(MkTMTest, NormalisesOutOfRangeFieldsInPlace) {
  ScopedTZ zone("UTC");
  TMPtr record = localTM("2024-02-01T10:00:00");
  record->tm_mday = 30;
  std::tm* same = mkTM(record.get());
  EXPECT_EQ(same, record.get());
  EXPECT_EQ(fields(*record), "2024-03-01T10:00:00");
  EXPECT_EQ(record->tm_wday, Friday);
  EXPECT_EQ(record->tm_yday, 60);
}

TEST(MkTMTest, HourTwentyFourIsMidnightOfTheNextDay) {
  ScopedTZ zone("UTC");
  TMPtr record = localTM("2024-12-31T10:00:00");
  record->tm_hour = 24;
  mkTM(record);
  EXPECT_EQ(fields(*record), "2025-01-01T00:00:00");
}

TEST(CopyTMTest, CopiesEveryField) {
  ScopedTZ zone("Europe/Paris");
  TMPtr source = localTM("2024-07-14T08:09:10");
  std::tm target{};
  copyTM(source.get(), &target);
  EXPECT_EQ(fields(target), "2024-07-14T08:09:10");
  EXPECT_EQ(target.tm_wday, source->tm_wday);
  EXPECT_EQ(target.tm_yday, source->tm_yday);
  EXPECT_EQ(target.tm_isdst, 1);
  EXPECT_EQ(target.tm_gmtoff, 7200);
  EXPECT_STREQ(target.tm_zone, source->tm_zone);
}

TEST(GetWeekDayTest, NormalisesFirst) {
  ScopedTZ zone("UTC");
  TMPtr record = localTM("2024-02-01T10:00:00");
  record->tm_mday = 31;  // March 2nd, a Saturday
  EXPECT_EQ(getWeekDay(record.get()), Saturday);
  EXPECT_EQ(fields(*record), "2024-03-02T10:00:00");
  EXPECT_EQ(getWeekDay(localTM("2024-03-10T10:00:00").get()), Sunday);
  EXPECT_EQ(getWeekDay(localTM("2024-03-04T10:00:00").get()), Monday);
}

TEST(NextDayOfWeekTest, TodayCounts) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr monday = localTM("2024-03-04T09:30:00");
  EXPECT_EQ(parser.getNextDayOfWeek(monday.get(), Monday), monday.get());
  EXPECT_EQ(fields(*monday), "2024-03-04T09:30:00");
}

TEST(NextDayOfWeekTest, WalksForwardKeepingTheTime) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-03-04T09:30:00");
  parser.getNextDayOfWeek(record.get(), Sunday);
  EXPECT_EQ(fields(*record), "2024-03-10T09:30:00");
  TMPtr endOfMonth = localTM("2024-02-28T09:30:00");  // Wednesday
  parser.getNextDayOfWeek(endOfMonth.get(), Tuesday);
  EXPECT_EQ(fields(*endOfMonth), "2024-03-05T09:30:00");
}

TEST(LastDayOfWeekTest, WalksBackAndTodayCounts) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-03-04T09:30:00");
  parser.getLastDayOfWeek(record.get(), Friday);
  EXPECT_EQ(fields(*record), "2024-03-01T09:30:00");
  parser.getLastDayOfWeek(record.get(), Friday);
  EXPECT_EQ(fields(*record), "2024-03-01T09:30:00");
}

TEST(DayOfWeekOptionalTest, EmptyStaysEmptyAndValueIsWalked) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_FALSE(parser.getNextDayOfWeek(OptTM(), Monday).has_value());
  EXPECT_FALSE(parser.getLastDayOfWeek(OptTM(), Monday).has_value());
  TMPtr record = localTM("2024-03-08T09:30:00");
  OptTM next = parser.getNextDayOfWeek(OptTM(record), Monday);
  ASSERT_TRUE(next.has_value());
  EXPECT_EQ(fields(**next), "2024-03-11T09:30:00");
  OptTM last = parser.getLastDayOfWeek(OptTM(localTM("2024-03-08T09:30:00")), Monday);
  ASSERT_TRUE(last.has_value());
  EXPECT_EQ(fields(**last), "2024-03-04T09:30:00");
}

TEST(SetDayOfWeekTest, SundayToMondayDependsOnWeekStart) {
  ScopedTZ zone("UTC");
  TMPtr mondayStart = localTM("2024-03-10T09:15:00");  // a Sunday
  setDayOfWeek(mondayStart.get(), Monday, Monday);
  EXPECT_EQ(fields(*mondayStart), "2024-03-04T09:15:00");
  TMPtr sundayStart = localTM("2024-03-10T09:15:00");
  setDayOfWeek(sundayStart.get(), Monday, Sunday);
  EXPECT_EQ(fields(*sundayStart), "2024-03-11T09:15:00");
}

TEST(SetDayOfWeekTest, StaysInItsWeekAndReturnsTheRecord) {
  ScopedTZ zone("UTC");
  TMPtr record = localTM("2024-03-06T23:59:30");  // a Wednesday
  EXPECT_EQ(setDayOfWeek(record.get(), Saturday, Sunday), record.get());
  EXPECT_EQ(fields(*record), "2024-03-09T23:59:30");
  setDayOfWeek(record.get(), Sunday, Sunday);
  EXPECT_EQ(fields(*record), "2024-03-03T23:59:30");
  setDayOfWeek(record.get(), Friday, Saturday);  // week of Sat 3/2 .. Fri 3/8
  EXPECT_EQ(fields(*record), "2024-03-08T23:59:30");
}

TEST(SetDayOfWeekTest, UndecidedDaylightFlagKeepsTheHourAcrossSpringForward) {
  ScopedTZ zone("America/New_York");
  TMPtr record = localTM("2024-03-08T09:00:00");  // Friday, standard time
  record->tm_isdst = -1;
  setDayOfWeek(record.get(), Sunday, Monday);  // Sunday 3/10, the day clocks go forward
  EXPECT_EQ(tmText(*record), "2024-03-10T09:00:00");
  EXPECT_EQ(record->tm_isdst, 1);
}

TEST(SetDayOfWeekTest, RestoredStandardFlagShiftsTheHourIntoSummerTime) {
  ScopedTZ zone("America/New_York");
  TMPtr record = localTM("2024-03-08T09:00:00");  // tm_isdst 0 from the clock
  ASSERT_EQ(record->tm_isdst, 0);
  setDayOfWeek(record.get(), Sunday, Monday);
  // The old flag is put back before the last normalising: 09:00 standard is 10:00 daylight.
  EXPECT_EQ(fields(*record), "2024-03-10T10:00:00");
  EXPECT_EQ(record->tm_isdst, 1);
}

TEST(SetDayOfWeekTest, RestoredSummerFlagShiftsTheHourBackIntoStandardTime) {
  ScopedTZ zone("America/New_York");
  TMPtr record = localTM("2024-03-10T09:00:00");  // Sunday, already daylight time
  ASSERT_EQ(record->tm_isdst, 1);
  setDayOfWeek(record.get(), Monday, Monday);
  EXPECT_EQ(fields(*record), "2024-03-04T08:00:00");
  EXPECT_EQ(record->tm_isdst, 0);
}

TEST(SetDayOfWeekTest, WalkThroughTheSkippedHourKeepsTheDate) {
  ScopedTZ zone("America/New_York");
  TMPtr record = localTM("2024-03-12T02:30:00");  // Tuesday
  record->tm_isdst = -1;
  setDayOfWeek(record.get(), Sunday, Sunday);  // 02:30 does not exist on 3/10
  EXPECT_EQ(record->tm_mday, 10);
  EXPECT_EQ(record->tm_mon, 2);
  EXPECT_EQ(record->tm_wday, Sunday);
}

TEST(ClearValueAfterDayTest, ZeroesTheTimeOnly) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-05-17T13:45:12");
  parser.clearValueAfterDay(record.get());
  EXPECT_EQ(fields(*record), "2024-05-17T00:00:00");
}

TEST(SetTMToDefaultTimeTest, WithoutBaseDateKeepsTheRecordsDate) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-05-17T13:45:12");
  parser.setTMToDefaultTime(record.get());
  EXPECT_EQ(fields(*record), "2024-05-17T00:00:00");
}

TEST(SetTMToDefaultTimeTest, WithBaseDateTakesItsDate) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.baseDate = timePointFromSeconds(localSeconds("2024-02-29T18:30:00"));
  TMPtr record = localTM("2024-05-17T13:45:12");
  parser.setTMToDefaultTime(record.get());
  EXPECT_EQ(fields(*record), "2024-02-29T00:00:00");
}

TEST(CopyDefaultTimeToCalTest, KindZeroChangesNothing) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-05-17T13:45:12");
  parser.copyDefaultTimeToCal(timePointFromSeconds(localSeconds("2024-02-29T18:30:00")), OptTM(record), 0);
  EXPECT_EQ(fields(*record), "2024-05-17T13:45:12");
}

TEST(CopyDefaultTimeToCalTest, KindMinusOneTakesTheBaseDateKeepsTheTime) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-05-17T13:45:12");
  parser.copyDefaultTimeToCal(timePointFromSeconds(localSeconds("2024-02-29T18:30:00")), OptTM(record), -1);
  EXPECT_EQ(fields(*record), "2024-02-29T13:45:12");
}

TEST(CopyDefaultTimeToCalTest, MissingBaseOrRecordChangesNothing) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-05-17T13:45:12");
  parser.copyDefaultTimeToCal(std::nullopt, OptTM(record), -1);
  EXPECT_EQ(fields(*record), "2024-05-17T13:45:12");
  parser.copyDefaultTimeToCal(timePointFromSeconds(localSeconds("2024-02-29T18:30:00")), OptTM(), -1);
  parser.copyDefaultTimeToCal(timePointFromSeconds(localSeconds("2024-02-29T18:30:00")), OptTM(record), 3);
  EXPECT_EQ(fields(*record), "2024-05-17T13:45:12");
}

TEST(CopyDefaultTimeToCalTest, BaseDateIsReadInLocalTime) {
  ScopedTZ zone("Asia/Tokyo");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-05-17T13:45:12");
  // 2024-02-29T18:00:00Z is already March 1st in Tokyo.
  parser.copyDefaultTimeToCal(timePointFromSeconds(1709229600), OptTM(record), -1);
  EXPECT_EQ(fields(*record), "2024-03-01T13:45:12");
}

TEST(MidnightOfOwnDayTest, MovesATimePointToLocalMidnight) {
  ScopedTZ zone("Asia/Tokyo");
  NLPNativeTitleParser parser = parserAt(kNow);
  TimePoint point = timePointFromSeconds(localSeconds("2024-03-08T10:30:15")) + std::chrono::microseconds(500000);
  parser.setCalendarToDefaultTimeWithoutDefaultDate(point);
  EXPECT_EQ(secondsOf(point), localSeconds("2024-03-08T00:00:00"));
}

TEST(IsBeforeNowTest, NowItselfCountsAsBefore) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_TRUE(parser.isBeforeNow(localTM(kNow).get()));
  EXPECT_TRUE(parser.isBeforeNow(localTM("2024-03-08T09:59:59").get()));
  EXPECT_FALSE(parser.isBeforeNow(localTM("2024-03-08T10:00:01").get()));
  EXPECT_FALSE(parser.isBeforeNow(localTM("2025-01-01T00:00:00").get()));
}

TEST(IsBeforeNowTest, OutOfRangeRecordIsReadNormalised) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-03-08T00:00:00");
  record->tm_hour = 34;  // 10:00 on the 9th
  EXPECT_FALSE(parser.isBeforeNow(record.get()));
}

TEST(IsBeforeTodayTest, EarlierTodayIsNotBeforeToday) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_FALSE(parser.isBeforeToday(localTM("2024-03-08T00:00:00").get()));
  EXPECT_FALSE(parser.isBeforeToday(localTM("2024-03-08T09:00:00").get()));
  EXPECT_TRUE(parser.isBeforeToday(localTM("2024-03-07T23:59:59").get()));
  EXPECT_FALSE(parser.isBeforeToday(localTM("2024-03-09T00:00:00").get()));
}

TEST(IsBeforeTodayTest, YearDecidesBeforeDayOfYear) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_TRUE(parser.isBeforeToday(localTM("2023-12-31T12:00:00").get()));
  EXPECT_FALSE(parser.isBeforeToday(localTM("2025-01-01T12:00:00").get()));
}

TEST(IsBeforeTodayTest, NormalisesTheRecordInPlace) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  TMPtr record = localTM("2024-03-01T12:00:00");
  record->tm_mday = 0;  // February 29th
  EXPECT_TRUE(parser.isBeforeToday(record.get()));
  EXPECT_EQ(fields(*record), "2024-02-29T12:00:00");
}

TEST(IsBeforeTodayTest, OptionalForm) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_FALSE(parser.isBeforeToday(OptTM()));
  EXPECT_TRUE(parser.isBeforeToday(OptTM(localTM("2024-03-01T12:00:00"))));
  EXPECT_FALSE(parser.isBeforeToday(OptTM(localTM("2024-03-08T12:00:00"))));
}

TEST(IsTodayTest, ComparesDateFieldsWithoutNormalising) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_TRUE(parser.isToday(localTM("2024-03-08T23:00:00").get()));
  EXPECT_FALSE(parser.isToday(localTM("2024-03-09T00:00:00").get()));
  TMPtr record = localTM("2024-02-01T10:00:00");
  record->tm_mday = 37;  // March 8th once normalised, but isToday reads the fields as they are
  EXPECT_FALSE(parser.isToday(record.get()));
  EXPECT_EQ(record->tm_mday, 37);
}

}  // namespace
}  // namespace nlpdate
