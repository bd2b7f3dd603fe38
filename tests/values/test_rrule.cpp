// Rule texts: the fixed order of the parts and the weekday words.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "values/rrule.h"

namespace nlpdate {
namespace {

using testing::narrow;

StringRRule rule(NLPFrequency freq, int interval) {
  StringRRule result;
  result.setFreq(freq);
  result.setInterval(interval);
  return result;
}

TEST(StringRRuleTest, DailyWithNothingElse) {
  EXPECT_EQ(narrow(rule(NLPFrequency::DAILY, 1).toIcal()), "RRULE:FREQ=DAILY;INTERVAL=1");
}

TEST(StringRRuleTest, EveryFrequencyWritesItsOwnName) {
  const std::pair<NLPFrequency, const char*> words[] = {
      {NLPFrequency::SECONDLY, "SECONDLY"}, {NLPFrequency::MINUTELY, "MINUTELY"}, {NLPFrequency::HOURLY, "HOURLY"},
      {NLPFrequency::DAILY, "DAILY"},       {NLPFrequency::WEEKLY, "WEEKLY"},     {NLPFrequency::MONTHLY, "MONTHLY"},
      {NLPFrequency::YEARLY, "YEARLY"}};
  for (const auto& [freq, word] : words) {
    EXPECT_EQ(narrow(rule(freq, 3).toIcal()), std::string("RRULE:FREQ=") + word + ";INTERVAL=3");
  }
}

TEST(StringRRuleTest, FrequencyNumbersAreFixed) {
  EXPECT_EQ(static_cast<int>(NLPFrequency::SECONDLY), 0);
  EXPECT_EQ(static_cast<int>(NLPFrequency::DAILY), 3);
  EXPECT_EQ(static_cast<int>(NLPFrequency::YEARLY), 6);
}

TEST(StringRRuleTest, ByDayWithoutAndWithOrdinal) {
  StringRRule every = rule(NLPFrequency::WEEKLY, 1);
  every.setByDay({NLPWeekdayNum(0, Monday)});
  EXPECT_EQ(narrow(every.toIcal()), "RRULE:FREQ=WEEKLY;INTERVAL=1;BYDAY=MO");

  StringRRule second = rule(NLPFrequency::MONTHLY, 1);
  second.setByDay({NLPWeekdayNum(2, Monday)});
  EXPECT_EQ(narrow(second.toIcal()), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=2MO");
}

TEST(StringRRuleTest, NegativeOrdinalKeepsItsSign) {
  EXPECT_EQ(narrow(NLPWeekdayNum(-1, Friday).toIcal()), "-1FR");
  EXPECT_EQ(narrow(NLPWeekdayNum(2, Friday).toIcal()), "2FR");
  EXPECT_EQ(NLPWeekdayNum(2, Friday).getWday(), Friday);
}

TEST(StringRRuleTest, ByMonthDayComesBeforeByDay) {
  StringRRule both = rule(NLPFrequency::MONTHLY, 1);
  both.setByDay({NLPWeekdayNum(0, Tuesday)});
  both.setByMonthDay({1, 15});
  EXPECT_EQ(narrow(both.toIcal()), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=1,15;BYDAY=TU");
}

TEST(StringRRuleTest, FullOrderWithWeekStartAndUntil) {
  StringRRule full = rule(NLPFrequency::WEEKLY, 2);
  full.setWkSt(Sunday);
  full.setByDay({NLPWeekdayNum(0, Monday), NLPWeekdayNum(0, Tuesday)});
  std::tm until{};
  until.tm_year = 2024 - 1900;
  until.tm_mon = 11;
  until.tm_mday = 31;
  full.setUntilDate(newTM(until));
  EXPECT_EQ(narrow(full.toIcal()), "RRULE:FREQ=WEEKLY;WKST=SU;INTERVAL=2;BYDAY=MO,TU;UNTIL=20241231");
}

TEST(StringRRuleTest, UntilIsPaddedAndHasNoTime) {
  StringRRule daily = rule(NLPFrequency::DAILY, 1);
  std::tm until{};
  until.tm_year = 2024 - 1900;
  until.tm_mon = 2;
  until.tm_mday = 5;
  until.tm_hour = 18;
  daily.setUntilDate(newTM(until));
  EXPECT_EQ(narrow(daily.toIcal()), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240305");
}

TEST(StringRRuleTest, UntilRecordIsReadWithoutNormalising) {
  StringRRule daily = rule(NLPFrequency::DAILY, 1);
  std::tm until{};
  until.tm_year = 2024 - 1900;
  until.tm_mon = 1;
  until.tm_mday = 32;  // would be March 3rd once normalised
  daily.setUntilDate(newTM(until));
  EXPECT_EQ(narrow(daily.toIcal()), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240232");
}

TEST(StringRRuleTest, CopySharesTheUntilRecord) {
  StringRRule original = rule(NLPFrequency::DAILY, 1);
  TMPtr until = newTM();
  until->tm_year = 124;
  until->tm_mon = 0;
  until->tm_mday = 1;
  original.setUntilDate(until);
  original.setByMonthDay({4});
  StringRRule copy(original);
  until->tm_mday = 9;
  EXPECT_EQ(narrow(copy.toIcal()), "RRULE:FREQ=DAILY;INTERVAL=1;BYMONTHDAY=4;UNTIL=20240109");
  EXPECT_EQ(copy.getByMonthDay(), std::list<int>({4}));
}

TEST(StringRRuleTest, WeekStartWordsAndUnknownValue) {
  const char* words[] = {"SU", "MO", "TU", "WE", "TH", "FR", "SA"};
  for (int day = 0; day < 7; ++day) EXPECT_EQ(narrow(weekDayToString(day)), words[day]);
  EXPECT_EQ(narrow(weekDayToString(7)), "MO");
  EXPECT_EQ(narrow(weekDayToString(-1)), "MO");
}

TEST(StringRRuleTest, AccessorsGiveBackWhatWasSet) {
  StringRRule value = rule(NLPFrequency::YEARLY, 4);
  value.setWkSt(Monday);
  EXPECT_EQ(value.getFreq(), NLPFrequency::YEARLY);
  EXPECT_EQ(value.getInterval(), 4);
  ASSERT_TRUE(value.getWkSt().has_value());
  EXPECT_EQ(*value.getWkSt(), Monday);
  EXPECT_TRUE(value.getByDay().empty());
  EXPECT_FALSE(value.getUntilDate().has_value());
}

}  // namespace
}  // namespace nlpdate
