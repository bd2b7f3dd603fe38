// Official working days: the host's calendar, then Monday to Friday.
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::ScopedTZ;

TMPtr dayOf(int year, int month, int day) {
  std::tm value{};
  value.tm_year = year - 1900;
  value.tm_mon = month - 1;
  value.tm_mday = day;
  value.tm_hour = 12;
  value.tm_isdst = -1;
  return newTM(value);
}

class WorkDay : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
};

TEST_F(WorkDay, QuotedKeyFoundByTheQuotedLookUp) {
  parser.setHolidayDay(L"{\"20240101\":2}");
  EXPECT_FALSE(parser.isOfficialWorkDay(dayOf(2024, 1, 1).get()));  // a Monday off
}

TEST_F(WorkDay, BareKeyMakesASundayAWorkingDay) {
  parser.setHolidayDay(L"{20240204:1}");
  EXPECT_TRUE(parser.isOfficialWorkDay(dayOf(2024, 2, 4).get()));
}

TEST_F(WorkDay, QuotedWorkingDayOnASaturday) {
  parser.setHolidayDay(L"{\"20240203\":1}");
  EXPECT_TRUE(parser.isOfficialWorkDay(dayOf(2024, 2, 3).get()));
}

TEST_F(WorkDay, AnyValueOtherThanOneIsADayOff) {
  parser.setHolidayDay(L"{20240102:0,20240103:3,20240104:-1}");
  EXPECT_FALSE(parser.isOfficialWorkDay(dayOf(2024, 1, 2).get()));
  EXPECT_FALSE(parser.isOfficialWorkDay(dayOf(2024, 1, 3).get()));
  EXPECT_FALSE(parser.isOfficialWorkDay(dayOf(2024, 1, 4).get()));
}

TEST_F(WorkDay, BareKeyIsLookedUpFirst) {
  parser.setHolidayDay(L"{20240106:1,\"20240106\":2}");
  EXPECT_TRUE(parser.isOfficialWorkDay(dayOf(2024, 1, 6).get()));
}

TEST_F(WorkDay, KeyWithBlanksIsNotFound) {
  parser.setHolidayDay(L"{ \"20240101\" :2}");
  EXPECT_TRUE(parser.isOfficialWorkDay(dayOf(2024, 1, 1).get()));
}

TEST_F(WorkDay, DateNotInTheMapIsMondayToFriday) {
  parser.setHolidayDay(L"{20240101:2}");
  const bool expected[] = {true, true, true, true, true, false, false};  // 2024-03-04 is a Monday
  for (int i = 0; i < 7; ++i) EXPECT_EQ(parser.isOfficialWorkDay(dayOf(2024, 3, 4 + i).get()), expected[i]) << i;
}

TEST_F(WorkDay, NoHolidayTextMeansMondayToFriday) {
  EXPECT_TRUE(parser.isOfficialWorkDay(dayOf(2024, 1, 1).get()));
  EXPECT_FALSE(parser.isOfficialWorkDay(dayOf(2024, 2, 4).get()));
}

TEST_F(WorkDay, RecordIsNormalisedFirst) {
  parser.setHolidayDay(L"{20240201:2}");
  TMPtr record = dayOf(2024, 1, 32);
  EXPECT_FALSE(parser.isOfficialWorkDay(record.get()));
  EXPECT_EQ(record->tm_mon, 1);
  EXPECT_EQ(record->tm_mday, 1);
  EXPECT_EQ(record->tm_wday, 4);
}

TEST_F(WorkDay, KeyPadsMonthAndDay) {
  parser.setHolidayDay(L"{20241005:1,2024105:2}");
  EXPECT_TRUE(parser.isOfficialWorkDay(dayOf(2024, 10, 5).get()));  // a Saturday
}

}  // namespace
}  // namespace nlpdate
