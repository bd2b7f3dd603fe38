// Reminder trigger texts of offsets.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "values/duration.h"

namespace nlpdate {
namespace {

using testing::narrow;

std::string text(int y, int mo, int w, int d, int h, int mi, int s, bool positive) {
  return narrow(NLPMorvaneDuration(y, mo, w, d, h, mi, s, positive).getResult());
}

TEST(DurationTest, OnTimeConstant) { EXPECT_EQ(narrow(ON_TIME), "TRIGGER:-PT0S"); }

TEST(DurationTest, ZeroIsOnTimeWhateverTheSign) {
  EXPECT_EQ(text(0, 0, 0, 0, 0, 0, 0, true), "TRIGGER:-PT0S");
  EXPECT_EQ(text(0, 0, 0, 0, 0, 0, 0, false), "TRIGGER:-PT0S");
}

TEST(DurationTest, AddMinutesToZero) {
  NLPMorvaneDuration before(0, 0, 0, 0, 0, 0, 0, false);
  before.addMinutes(5);
  EXPECT_EQ(narrow(before.getResult()), "TRIGGER:-PT5M");
  NLPMorvaneDuration after(0, 0, 0, 0, 0, 0, 0, true);
  after.addMinutes(5);
  EXPECT_EQ(narrow(after.getResult()), "TRIGGER:PT5M");
  EXPECT_EQ(after.getMinutes(), 5);
}

TEST(DurationTest, AddMinutesDoesNotCarry) {
  NLPMorvaneDuration value(0, 0, 0, 0, 0, 60, 0, false);
  value.addMinutes(30);
  EXPECT_EQ(narrow(value.getResult()), "TRIGGER:-PT90M");
  EXPECT_EQ(value.getHours(), 0);
}

TEST(DurationTest, AddMinutesBackToZeroLeavesMinutesOut) {
  NLPMorvaneDuration value(0, 0, 0, 0, 1, 15, 0, false);
  value.addMinutes(-15);
  EXPECT_EQ(narrow(value.getResult()), "TRIGGER:-PT1H");
  NLPMorvaneDuration none(0, 0, 0, 0, 0, 15, 0, true);
  none.addMinutes(-15);
  EXPECT_EQ(narrow(none.getResult()), "TRIGGER:-PT0S");
}

TEST(DurationTest, DaysAloneHaveNoTimePart) { EXPECT_EQ(text(0, 0, 0, 1, 0, 0, 0, false), "TRIGGER:-P1D"); }

TEST(DurationTest, HoursAndSecondsWithoutMinutes) {
  EXPECT_EQ(text(0, 0, 0, 0, 1, 0, 5, false), "TRIGGER:-PT1H5S");
}

TEST(DurationTest, ThirtyMinutesBefore) { EXPECT_EQ(text(0, 0, 0, 0, 0, 30, 0, false), "TRIGGER:-PT30M"); }

TEST(DurationTest, WeekAndDaysAfter) { EXPECT_EQ(text(0, 0, 1, 2, 0, 0, 0, true), "TRIGGER:P1W2D"); }

TEST(DurationTest, EveryUnitInOrder) {
  EXPECT_EQ(text(1, 2, 3, 4, 5, 6, 7, true), "TRIGGER:P1Y2M3W4DT5H6M7S");
  EXPECT_EQ(text(1, 0, 0, 1, 9, 0, 0, false), "TRIGGER:-P1Y1DT9H");
}

TEST(DurationTest, NegativeFieldIsWrittenAsItIs) { EXPECT_EQ(text(0, 0, 0, -2, 0, 0, 0, false), "TRIGGER:-P-2D"); }

TEST(DurationTest, AccessorsAndRecomputedText) {
  NLPMorvaneDuration value(1, 2, 3, 4, 5, 6, 7, false);
  EXPECT_FALSE(value.isIsPositive());
  EXPECT_EQ(value.getYears(), 1);
  EXPECT_EQ(value.getMonths(), 2);
  EXPECT_EQ(value.getWeeks(), 3);
  EXPECT_EQ(value.getDays(), 4);
  EXPECT_EQ(value.getHours(), 5);
  EXPECT_EQ(value.getMinutes(), 6);
  EXPECT_EQ(value.getSeconds(), 7);
  EXPECT_EQ(value.getResults(), value.getResult());
  EXPECT_EQ(value.toString(), value.getResult());
}

TEST(DurationTest, HasValueLooksOnlyAtItsArgument) {
  EXPECT_TRUE(NLPMorvaneDuration::hasValue(3));
  EXPECT_TRUE(NLPMorvaneDuration::hasValue(-1));
  EXPECT_FALSE(NLPMorvaneDuration::hasValue(0));
}

TEST(DurationTest, CopiesAreIndependent) {
  NLPMorvaneDuration original(0, 0, 0, 0, 0, 10, 0, false);
  NLPMorvaneDuration copy = original;
  copy.addMinutes(5);
  EXPECT_EQ(narrow(original.getResult()), "TRIGGER:-PT10M");
  EXPECT_EQ(narrow(copy.getResult()), "TRIGGER:-PT15M");
}

}  // namespace
}  // namespace nlpdate
