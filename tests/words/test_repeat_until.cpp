// Repeats that name their own start and end: the choice of the form by its
// marker word, the three forms, and the end they write into the rule.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/translation.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class RepeatUntil : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser;
  bool found = false;

  void read(const std::string& now, const std::string& title, const std::string& language = "en") {
    parser = parserAt(now);
    found = parser.repeatUntilRecognize(wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  }
  std::string rule() const { return narrow(parser.parserDueDate.repeatFlag); }
  std::string start() const { return narrow(formatDateText(parser.parserDueDate.startDate.value())); }
  std::string text() const { return narrow(parser.parserDueDate.recognizeStrings.front()); }
  size_t onTimeCount() const {
    size_t count = 0;
    for (const auto& item : parser.parserDueDate.reminder) count += item == ON_TIME;
    return count;
  }
  void expectUntouched() const {
    EXPECT_FALSE(found);
    EXPECT_TRUE(parser.parserDueDate.repeatFlag.empty());
    EXPECT_FALSE(parser.parserDueDate.repeatRule);
    EXPECT_FALSE(parser.parserDueDate.startDate);
    EXPECT_TRUE(parser.parserDueDate.recognizeStrings.empty());
    EXPECT_TRUE(parser.parserDueDate.reminder.empty());
  }
};

const char* const kNow = "2024-03-08T10:00:00";  // a Friday

}  // namespace

TEST_F(RepeatUntil, EmptyTitle) {
  read(kNow, "");
  expectUntouched();
}

TEST_F(RepeatUntil, NoMarkerWord) {
  read(kNow, "every day");
  expectUntouched();
}

TEST_F(RepeatUntil, FromFirstAndLastDate) {
  read(kNow, "water plants every day from 10 march to 20 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240320");
  EXPECT_EQ(start(), "2024-03-10T00:00:00");
  EXPECT_EQ(text(), "every day from 10 march to 20 march");
  ASSERT_TRUE(parser.parserDueDate.repeatRule);
  EXPECT_EQ(narrow(parser.parserDueDate.repeatRule->toIcal()), rule());
  EXPECT_EQ(onTimeCount(), 0u);
}

TEST_F(RepeatUntil, FromLastDayBeforeFirstInSameMonthRollsAMonth) {
  read(kNow, "every day from 20 to 5");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-20T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240405");
}

TEST_F(RepeatUntil, FromLastDateBeforeFirstWithMonthRollsAYear) {
  read(kNow, "every day from 20 march to 15 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-20T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20250315");
}

TEST_F(RepeatUntil, FromPassedFirstDateWithMonthRollsAYear) {
  read(kNow, "every day from 5 march to 9 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2025-03-05T00:00:00");
  // The last date lies before the first one, so it moves on a year too.
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20250309");
}

TEST_F(RepeatUntil, FromPassedDayWithoutMonthRollsAMonth) {
  read(kNow, "every day from 2 to 28");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-04-02T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240428");
}

TEST_F(RepeatUntil, FromMorningTomorrowToWeekday) {
  read(kNow, "every morning from tomorrow to friday");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-09T09:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240315");
  EXPECT_EQ(onTimeCount(), 1u);
}

TEST_F(RepeatUntil, FromPartOfDayIgnoresThePresentMoment) {
  read("2024-03-08T18:00:00", "every evening from today until friday");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T17:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240308");
}

TEST_F(RepeatUntil, FromAfternoonIsNotNoon) {
  parser = parserAt(kNow);
  parser.setCustomizeHour(8, 30, 14, 15, 18, 0, 21, 0);
  found = parser.repeatUntilRecognize(L"every afternoon from 11 march to 12 march",
                                      NLPTranslation::getTransKeyToValue(L"en"));
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T14:15:00");
}

TEST_F(RepeatUntil, FromNoon) {
  read(kNow, "every noon from 11 march to 12 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T12:00:00");
  EXPECT_EQ(onTimeCount(), 1u);
}

TEST_F(RepeatUntil, FromWeekUnitWithWeekdayStart) {
  read(kNow, "every week from monday to 20 april");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;INTERVAL=1;UNTIL=20240420");
}

TEST_F(RepeatUntil, FromYearUnit) {
  read(kNow, "every year from 5 june to 4 june");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-06-05T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=YEARLY;INTERVAL=1;UNTIL=20250604");
}

TEST_F(RepeatUntil, FromMonthsAloneTakeTheirFirst) {
  read(kNow, "every month from march to june");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2025-03-01T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=MONTHLY;INTERVAL=1;UNTIL=20250601");
}

TEST_F(RepeatUntil, FromTodayToTomorrow) {
  read(kNow, "every day from today to tomorrow");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240309");
}

TEST_F(RepeatUntil, FromNamedLastDayIsReadAsTyped) {
  // The pattern ignores case, but the named last day is tested as typed.
  read(kNow, "Every day from today to Tomorrow");
  ASSERT_TRUE(found);
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1");
}

TEST_F(RepeatUntil, FromWithoutLastDateHasNoEnd) {
  read(kNow, "every day from 10 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-10T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1");
}

TEST_F(RepeatUntil, FromLastDayOfYearClock) {
  read("2024-12-31T10:00:00", "every day from 30 to 2");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2025-01-30T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20250202");
}

TEST_F(RepeatUntil, FromMarkerThatDoesNotFitTriesNoOtherForm) {
  read(kNow, "every day for 2 weeks from home");
  expectUntouched();
  read(kNow, "every monday end on friday from home");
  expectUntouched();
}

TEST_F(RepeatUntil, ForWeeks) {
  read(kNow, "stretch every day for 2 weeks");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240321");
  EXPECT_EQ(text(), "every day for 2 weeks");
  EXPECT_EQ(onTimeCount(), 0u);
}

TEST_F(RepeatUntil, ForLengthZeroEndsTheDayBeforeTheStart) {
  read(kNow, "every day for 0 weeks");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240307");
}

TEST_F(RepeatUntil, ForPassedMorningStartsTomorrow) {
  read(kNow, "every morning for 1 week");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-09T09:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240315");
  EXPECT_EQ(onTimeCount(), 1u);
}

TEST_F(RepeatUntil, ForComingMorningStartsToday) {
  read("2024-03-08T08:00:00", "every morning for 1 week");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T09:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240314");
}

TEST_F(RepeatUntil, ForMonths) {
  read(kNow, "every night for 3 months");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T20:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240607");
}

TEST_F(RepeatUntil, ForMonthFromLastDayOfMonth) {
  read("2024-01-31T10:00:00", "every day for 1 month");
  ASSERT_TRUE(found);
  // February 31 less a day is normalised into March.
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240301");
}

TEST_F(RepeatUntil, ForWeekUnit) {
  read(kNow, "every week for 2 months");
  ASSERT_TRUE(found);
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;INTERVAL=1;UNTIL=20240507");
}

TEST_F(RepeatUntil, ForMarkerThatDoesNotFitFallsThrough) {
  read(kNow, "every day for lunch");
  expectUntouched();
}

TEST_F(RepeatUntil, StartAndEndWithDates) {
  read(kNow, "every monday start 11 march end on 25 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240325");
  EXPECT_EQ(text(), "every monday start 11 march end on 25 march");
}

TEST_F(RepeatUntil, DayOfMonthWithLength) {
  read(kNow, "every 15th end in 3 months");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-15T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=15;UNTIL=20240614");
}

TEST_F(RepeatUntil, PassedDayOfMonthMovesToNextMonth) {
  read("2024-03-20T10:00:00", "every 15th end in 1 month");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-04-15T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=15;UNTIL=20240514");
}

TEST_F(RepeatUntil, OrdinalWeekdayIsMonthly) {
  read(kNow, "every second tuesday end in 2 months");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-12T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=2TU;UNTIL=20240511");
}

TEST_F(RepeatUntil, LastWeekdayWithYearLength) {
  read(kNow, "every last friday end in 1 year");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=-1FR;UNTIL=20250307");
}

TEST_F(RepeatUntil, LengthWithoutNumberCountsOne) {
  read(kNow, "every monday end in  week");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240317");
}

TEST_F(RepeatUntil, NamedStartWalksToTheWeekday) {
  read(kNow, "every friday start tomorrow end on 29 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-15T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=FR;UNTIL=20240329");
}

TEST_F(RepeatUntil, NamedEndGivesTheDefaultDay) {
  read(kNow, "every monday end on friday");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240308");
}

TEST_F(RepeatUntil, WrittenStartDayIsKeptOffTheWeekday) {
  read(kNow, "every monday start 20 end on 5");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-20T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240405");
}

TEST_F(RepeatUntil, EndMonthBeforeStartRollsAYear) {
  read(kNow, "every monday start 11 march end on 1 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20250301");
}

TEST_F(RepeatUntil, NoWeekdayNorDayKeepsZeroFrequency) {
  read(kNow, "every  start today end in 1 week");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=SECONDLY;INTERVAL=1;UNTIL=20240314");
}

TEST_F(RepeatUntil, StartWithoutEnd) {
  read(kNow, "every wednesday start 20 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-20T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=WE");
}

TEST_F(RepeatUntil, EndMarkerInsideWordWithoutFit) {
  read(kNow, "every weekend");
  expectUntouched();
}

// The marker words of the From and For forms stand in their patterns without
// brackets of their own, so a value with several words splits the whole pattern.
TEST_F(RepeatUntil, FrenchForMarkerSplitsThePattern) {
  read(kNow, "chaque jour pendant 2 semaines", "fr");
  ASSERT_TRUE(found);
  EXPECT_EQ(text(), "chaque jour pendant");
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240308");
}

TEST_F(RepeatUntil, FrenchTitleWithEnglishFor) {
  read(kNow, "chaque jour for 2 semaines", "fr");
  ASSERT_TRUE(found);
  EXPECT_EQ(text(), "for 2 semaines");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240321");
}

TEST_F(RepeatUntil, FrenchStartAndEnd) {
  read(kNow, "chaque lundi commencer 11 mars fin on 25 mars", "fr");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-11T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240325");
}

TEST_F(RepeatUntil, RussianFromMarkerSplitsThePattern) {
  read(kNow, "каждый день от 10 марта до 20 марта", "ru");
  ASSERT_TRUE(found);
  EXPECT_EQ(text(), "каждый день от");
  // No first date is captured: the 1st of this month, passed, so the 1st of next month.
  EXPECT_EQ(start(), "2024-04-01T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1");
}

TEST_F(RepeatUntil, PortugueseForWeeks) {
  read(kNow, "cada dia por 2 semanas", "pt");
  ASSERT_TRUE(found);
  EXPECT_EQ(text(), "cada dia por");
}

// "before" holds "for": the For form is chosen, does not fit, and no other form is tried.
TEST_F(RepeatUntil, ForMarkerInsideAWordFallsThrough) {
  read(kNow, "every day before lunch");
  expectUntouched();
}

TEST_F(RepeatUntil, FromTodayUntilTomorrow) {
  read(kNow, "every day from today until tomorrow");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-08T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240309");
}

TEST_F(RepeatUntil, FromLastMonthAloneIsItsFirst) {
  read(kNow, "every day from 10 march to april");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-10T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240401");
}

TEST_F(RepeatUntil, DayOfMonthWithNamedStartAndWrittenEnd) {
  read(kNow, "every 20th start today end on 25 march");
  ASSERT_TRUE(found);
  EXPECT_EQ(start(), "2024-03-20T00:00:00");
  EXPECT_EQ(rule(), "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=20;UNTIL=20240325");
  EXPECT_EQ(text(), "every 20th start today end on 25 march");
}
