// Monthly and yearly repeats: day numbers around "every month" (M1), a day
// and maybe a month behind "every" (M2), and "every year on ..." (Y).
#include "test_repeat_support.h"

namespace nlpdate::testing {
namespace {

using Texts = std::vector<std::string>;
constexpr const char* WED = "2024-03-06T10:00:00";
constexpr const char* LATE = "2024-03-20T10:00:00";
constexpr const char* MONTHLY_1 = "RRULE:FREQ=MONTHLY;INTERVAL=1";
constexpr const char* YEARLY_1 = "RRULE:FREQ=YEARLY;INTERVAL=1";

TEST_F(RepeatTest, DayNumberBeforeEveryMonth) {
  RepeatOutcome outcome = runRepeat(WED, "15th day of every month");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=15");
  EXPECT_EQ(outcome.start, "2024-03-15T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"15th day of every month"});
  EXPECT_EQ(runRepeat(LATE, "15th day of every month").start, "2024-04-15T00:00:00");
}

TEST_F(RepeatTest, LastBeforeEveryMonth) {
  const char* flag = "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=-1";
  EXPECT_EQ(runRepeat(WED, "last day of every month").flag, flag);
  RepeatOutcome outcome = runRepeat(WED, "last of every month");
  EXPECT_EQ(outcome.flag, flag);
  EXPECT_EQ(outcome.start, "2024-03-31T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"last of every month"});
}

TEST_F(RepeatTest, BeginningOfEveryMonth) {
  const char* flag = "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=1";
  RepeatOutcome outcome = runRepeat(WED, "first of every month");
  EXPECT_EQ(outcome.flag, flag);
  EXPECT_EQ(outcome.start, "2024-04-01T00:00:00");
  EXPECT_EQ(runRepeat("2024-03-01T10:00:00", "at the beginning of every month").start, "2024-03-01T00:00:00");
  EXPECT_EQ(runRepeat(WED, "at the beginning of every month").flag, flag);
}

TEST_F(RepeatTest, EveryMonthOnAMonthAndDayStaysMonthlyWithoutDay) {
  RepeatOutcome outcome = runRepeat(WED, "every month on march 15");
  EXPECT_EQ(outcome.flag, MONTHLY_1);
  EXPECT_EQ(outcome.start, "2024-03-15T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every month on march 15"});
  // Past this year: next year's date, as a month word was named.
  EXPECT_EQ(runRepeat(LATE, "every month on march 15").start, "2025-03-15T00:00:00");
}

TEST_F(RepeatTest, EveryMonthOnADayRollsByMonths) {
  RepeatOutcome outcome = runRepeat(LATE, "every month on 15th");
  EXPECT_EQ(outcome.flag, MONTHLY_1);
  EXPECT_EQ(outcome.start, "2024-04-15T00:00:00");
  EXPECT_EQ(runRepeat(WED, "every month on 15th").start, "2024-03-15T00:00:00");
}

TEST_F(RepeatTest, EveryMonthOnTheLastWeekdayLooksAtNextMonth) {
  // The last Friday of next month, not of this one.
  RepeatOutcome outcome = runRepeat(WED, "every month on the last friday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=-1FR");
  EXPECT_EQ(outcome.start, "2024-04-26T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every month on the last friday"});
  EXPECT_EQ(runRepeat("2024-12-20T10:00:00", "every month on the last sunday").start, "2025-01-26T00:00:00");
}

TEST_F(RepeatTest, EveryMonthOnTheNthWeekday) {
  RepeatOutcome second = runRepeat(WED, "every month on the second tuesday");
  EXPECT_EQ(second.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=2TU");
  EXPECT_EQ(second.start, "2024-03-12T00:00:00");
  // Past this month: the same weekday of next month.
  EXPECT_EQ(runRepeat(LATE, "every month on the second tuesday").start, "2024-04-09T00:00:00");
  RepeatOutcome first = runRepeat(WED, "every month on the first monday");
  EXPECT_EQ(first.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=1MO");
  EXPECT_EQ(first.start, "2024-04-01T00:00:00");
  EXPECT_EQ(runRepeat(WED, "every month on the fifth friday").start, "2024-03-29T00:00:00");
}

TEST_F(RepeatTest, EveryMonthOnAWeekdayWithoutOrdinal) {
  RepeatOutcome outcome = runRepeat(WED, "every month on monday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=MO");
  EXPECT_EQ(outcome.start, "2024-04-01T00:00:00");
  EXPECT_EQ(runRepeat(WED, "every month on thursday").start, "2024-03-07T00:00:00");
}

TEST_F(RepeatTest, DayBehindEveryWithoutMonthIsMonthly) {
  RepeatOutcome outcome = runRepeat(LATE, "every 5th");
  EXPECT_EQ(outcome.flag, MONTHLY_1);
  EXPECT_EQ(outcome.start, "2024-04-05T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every 5th"});
  EXPECT_EQ(runRepeat(WED, "every 25").start, "2024-03-25T00:00:00");
}

TEST_F(RepeatTest, DayBehindEveryIgnoresTheIntervalWord) {
  // "2nd" would read as interval 2; this path always has interval 1.
  RepeatOutcome outcome = runRepeat(WED, "every 2nd");
  EXPECT_EQ(outcome.flag, MONTHLY_1);
  EXPECT_EQ(outcome.start, "2024-04-02T00:00:00");
}

TEST_F(RepeatTest, MonthWordAroundTheDayMakesItYearly) {
  RepeatOutcome before = runRepeat(WED, "every march 15");
  EXPECT_EQ(before.flag, YEARLY_1);
  EXPECT_EQ(before.start, "2024-03-15T00:00:00");
  EXPECT_EQ(before.texts, Texts{"every march 15"});
  RepeatOutcome after = runRepeat(WED, "every 15 on march");
  EXPECT_EQ(after.flag, YEARLY_1);
  EXPECT_EQ(after.start, "2024-03-15T00:00:00");
  EXPECT_EQ(after.texts, Texts{"every 15 on march"});
  EXPECT_EQ(runRepeat(LATE, "every march 15").start, "2025-03-15T00:00:00");
  EXPECT_EQ(runRepeat(WED, "every june 1st").start, "2024-06-01T00:00:00");
}

TEST_F(RepeatTest, EveryYearOnADate) {
  RepeatOutcome outcome = runRepeat(WED, "every year on march 15");
  EXPECT_EQ(outcome.flag, YEARLY_1);
  EXPECT_EQ(outcome.start, "2024-03-15T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every year on march 15"});
  EXPECT_EQ(runRepeat(LATE, "every year on march 15").start, "2025-03-15T00:00:00");
}

TEST_F(RepeatTest, EveryFewYears) {
  RepeatOutcome outcome = runRepeat(WED, "every 2 years");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=YEARLY;INTERVAL=2");
  EXPECT_EQ(outcome.start, "2024-03-06T00:00:00");
}

TEST_F(RepeatTest, YearPatternCarriesTheDateOnlyBehindTheLastWordForOn) {
  // French "le|on": only "on" has the date behind it, so "le" alone is the
  // date part, with no month and day 0: the day before this month's first,
  // a year on.
  RepeatOutcome outcome = runRepeat(WED, "chaque an le 15 mars", "fr");
  EXPECT_EQ(outcome.flag, YEARLY_1);
  EXPECT_EQ(outcome.texts, Texts{"chaque an le "});
  EXPECT_EQ(outcome.start, "2025-03-01T00:00:00");
}

TEST_F(RepeatTest, MonthRollsCrossTheYearEnd) {
  constexpr const char* DEC = "2024-12-20T10:00:00";
  EXPECT_EQ(runRepeat(DEC, "every 5th").start, "2025-01-05T00:00:00");
  EXPECT_EQ(runRepeat(DEC, "5th day of every month").start, "2025-01-05T00:00:00");
  EXPECT_EQ(runRepeat(DEC, "at the beginning of every month").start, "2025-01-01T00:00:00");
  RepeatOutcome monday = runRepeat(DEC, "every month on the first monday");
  EXPECT_EQ(monday.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=1MO");
  EXPECT_EQ(monday.start, "2025-01-06T00:00:00");
}

TEST_F(RepeatTest, DayBeyondTheMonthSpillsIntoTheNext) {
  // April has 30 days: the 31st is normalised to 1 May, which is not past.
  constexpr const char* APR = "2024-04-05T10:00:00";
  RepeatOutcome outcome = runRepeat(APR, "every 31st");
  EXPECT_EQ(outcome.flag, MONTHLY_1);
  EXPECT_EQ(outcome.start, "2024-05-01T00:00:00");
  EXPECT_EQ(runRepeat(APR, "every 1 and 31").start, "2024-05-01T00:00:00");
}

}  // namespace
}  // namespace nlpdate::testing
