// The repeat stage step by step: the order of the tries, lists, daily parts
// of the day, weekday names, the weekday/workday/weekend words of the whole
// title, the one-word rules, the official working days and the interval.
#include "test_repeat_support.h"
#include "vocabulary/keys.h"

namespace nlpdate::testing {
namespace {

using Texts = std::vector<std::string>;
constexpr const char* WED = "2024-03-06T10:00:00";
constexpr const char* SAT = "2024-03-09T08:00:00";

TEST_F(RepeatTest, NothingToRepeatChangesNothing) {
  RepeatOutcome outcome = runRepeat(WED, "call mom");
  EXPECT_FALSE(outcome.matched);
  EXPECT_EQ(outcome.flag, "");
  EXPECT_EQ(outcome.rule, "");
  EXPECT_EQ(outcome.start, "");
  EXPECT_TRUE(outcome.texts.empty());
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(RepeatTest, ListOfThreeWeekdaysInWeekOrder) {
  RepeatOutcome outcome = runRepeat(WED, "every monday, wednesday and friday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,WE,FR");
  EXPECT_EQ(outcome.start, "2024-03-11T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every monday, wednesday and friday"});
}

TEST_F(RepeatTest, ListPutsSundayLast) {
  RepeatOutcome outcome = runRepeat(WED, "every sunday and saturday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SA,SU");
  EXPECT_EQ(outcome.start, "2024-03-10T00:00:00");
}

TEST_F(RepeatTest, ListBeatsTheWeekdayNameRow) {
  // The names row alone would read "every monday" only.
  RepeatOutcome outcome = runRepeat(WED, "every monday and tuesday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU");
}

TEST_F(RepeatTest, ListOfThreeMonthDaysInTitleOrder) {
  RepeatOutcome outcome = runRepeat(WED, "every 20, 10 and 1");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=20,10,1");
  EXPECT_EQ(outcome.start, "2024-03-20T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every 20, 10 and 1"});
}

TEST_F(RepeatTest, ListOfMonthDaysWithMonthWordAndEndings) {
  RepeatOutcome outcome = runRepeat(WED, "every month on 5th and 20th");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=5,20");
  EXPECT_EQ(outcome.start, "2024-04-05T00:00:00");
}

TEST_F(RepeatTest, LastOfWithoutDayStillReadsAsLastDay) {
  // The word for last is not bracketed in the pattern, so its "last of"
  // alternative stands alone.
  RepeatOutcome outcome = runRepeat(WED, "every last of the month");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=-1");
  EXPECT_EQ(outcome.start, "2024-03-31T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every last of"});
}

TEST_F(RepeatTest, MorningLaterTodayStartsToday) {
  RepeatOutcome outcome = runRepeat("2024-03-06T08:00:00", "every morning");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(outcome.start, "2024-03-06T09:00:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
  EXPECT_EQ(outcome.texts, Texts{"every morning"});
}

TEST_F(RepeatTest, MorningAlreadyPassedStartsTomorrow) {
  RepeatOutcome outcome = runRepeat(WED, "every morning");
  EXPECT_EQ(outcome.start, "2024-03-07T09:00:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
}

TEST_F(RepeatTest, MorningAtThisVeryMinuteCountsAsPassed) {
  EXPECT_EQ(runRepeat("2024-03-06T09:00:00", "every morning").start, "2024-03-07T09:00:00");
}

TEST_F(RepeatTest, MorningFollowsTheUsersHour) {
  RepeatOutcome outcome = runRepeat("2024-03-06T07:00:00", "every morning", "en", [](NLPNativeTitleParser& p) {
    p.setCustomizeHour(7, 30, 14, 15, 18, 45, 21, 5);
  });
  EXPECT_EQ(outcome.start, "2024-03-06T07:30:00");
}

TEST_F(RepeatTest, AfternoonIsNotReadAsNoon) {
  RepeatOutcome outcome = runRepeat(WED, "every afternoon");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(outcome.start, "2024-03-06T13:00:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
}

TEST_F(RepeatTest, NoonEveningAndNightHours) {
  EXPECT_EQ(runRepeat(WED, "every noon").start, "2024-03-06T12:00:00");
  EXPECT_EQ(runRepeat(WED, "every evening").start, "2024-03-06T17:00:00");
  EXPECT_EQ(runRepeat(WED, "every night").start, "2024-03-06T20:00:00");
  auto custom = [](NLPNativeTitleParser& p) { p.setCustomizeHour(7, 30, 14, 15, 18, 45, 21, 5); };
  EXPECT_EQ(runRepeat(WED, "every evening", "en", custom).start, "2024-03-06T18:45:00");
  EXPECT_EQ(runRepeat(WED, "every night", "en", custom).start, "2024-03-06T21:05:00");
  EXPECT_EQ(runRepeat(WED, "every afternoon", "en", custom).start, "2024-03-06T14:15:00");
}

TEST_F(RepeatTest, PlainDailyRuleHasNoHourAndNoReminder) {
  RepeatOutcome outcome = runRepeat(WED, "every day at 9");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(outcome.start, "2024-03-06T00:00:00");
  EXPECT_TRUE(outcome.reminders.empty());
  // A pattern that ends in an optional blank keeps one trailing blank.
  EXPECT_EQ(outcome.texts, Texts{"every day "});
}

TEST_F(RepeatTest, WeekdayNameRowStartsOnThatDay) {
  RepeatOutcome outcome = runRepeat(WED, "every monday at 9");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO");
  EXPECT_EQ(outcome.start, "2024-03-11T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every monday "});
}

TEST_F(RepeatTest, WeekdayNameOfTodayStartsToday) {
  RepeatOutcome outcome = runRepeat(WED, "every wednesday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=WE");
  EXPECT_EQ(outcome.start, "2024-03-06T00:00:00");
}

TEST_F(RepeatTest, ShortWeekdayNames) {
  EXPECT_EQ(runRepeat(WED, "every tues").flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=TU");
  RepeatOutcome sunday = runRepeat(WED, "every sun");
  EXPECT_EQ(sunday.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SU");
  EXPECT_EQ(sunday.start, "2024-03-10T00:00:00");
}

TEST_F(RepeatTest, WorkingDayAndWorkdayGiveTheWorkWeek) {
  const char* workWeek = "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR";
  RepeatOutcome working = runRepeat(SAT, "every working day");
  EXPECT_EQ(working.flag, workWeek);
  EXPECT_EQ(working.start, "2024-03-11T00:00:00");
  EXPECT_EQ(working.texts, Texts{"every working day"});
  RepeatOutcome workday = runRepeat(SAT, "every workday");
  EXPECT_EQ(workday.flag, workWeek);
  EXPECT_EQ(workday.start, "2024-03-11T00:00:00");
}

TEST_F(RepeatTest, DayKindWordsReadTheWholeTitleForEveryFrequency) {
  // A daily rule that also names work days.
  RepeatOutcome daily = runRepeat(SAT, "every day on workdays");
  EXPECT_EQ(daily.flag, "RRULE:FREQ=DAILY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR");
  EXPECT_EQ(daily.start, "2024-03-11T00:00:00");
  EXPECT_EQ(daily.texts, Texts{"every day "});
  // A month-day rule with "workdays" anywhere in the title.
  RepeatOutcome monthly = runRepeat(WED, "15th day of every month on workdays");
  EXPECT_EQ(monthly.flag, "RRULE:FREQ=MONTHLY;WKST=MO;INTERVAL=1;BYMONTHDAY=15;BYDAY=MO,TU,WE,TH,FR");
  EXPECT_EQ(monthly.start, "2024-03-15T00:00:00");
}

TEST_F(RepeatTest, MorningOnWeekdaysSkipsTheWeekendFirst) {
  RepeatOutcome outcome = runRepeat(SAT, "every morning on weekdays");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR");
  EXPECT_EQ(outcome.start, "2024-03-11T09:00:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
}

TEST_F(RepeatTest, WeekendWordBeatsAPartOfTheDayLaterInTheTitle) {
  // "weekend" is seven letters, longer than the daily rows allow between
  // the word for every and "morning".
  RepeatOutcome outcome = runRepeat(SAT, "every weekend morning");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SU,SA");
  EXPECT_EQ(outcome.start, "2024-03-09T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every weekend "});
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(RepeatTest, EveryPatternsComeBeforeOneWordRules) {
  RepeatOutcome outcome = runRepeat(WED, "daily every monday");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO");
  EXPECT_EQ(outcome.texts, Texts{"every monday"});
}

TEST_F(RepeatTest, OneWordRules) {
  struct Case {
    const char* title;
    const char* flag;
    const char* text;
  };
  for (const Case& c : {Case{"daily standup", "RRULE:FREQ=DAILY;INTERVAL=1", "daily "},
                        Case{"everyday", "RRULE:FREQ=DAILY;INTERVAL=1", "everyday"},
                        Case{"weekly report", "RRULE:FREQ=WEEKLY;INTERVAL=1", "weekly "},
                        Case{"pay rent monthly", "RRULE:FREQ=MONTHLY;INTERVAL=1", "monthly"},
                        Case{"yearly checkup", "RRULE:FREQ=YEARLY;INTERVAL=1", "yearly "}}) {
    SCOPED_TRACE(c.title);
    RepeatOutcome outcome = runRepeat(WED, c.title);
    EXPECT_TRUE(outcome.matched);
    EXPECT_EQ(outcome.flag, c.flag);
    EXPECT_EQ(outcome.rule, c.flag);
    EXPECT_EQ(outcome.start, "2024-03-06T00:00:00");
    EXPECT_EQ(outcome.texts, Texts{c.text});
  }
}

TEST_F(RepeatTest, OneWordRulesAreTriedInTheirTextOrder) {
  // Bordered texts sort before "daily...", and "\bmonthly" before "\bweekly".
  EXPECT_EQ(runRepeat(WED, "weekly and monthly report").flag, "RRULE:FREQ=MONTHLY;INTERVAL=1");
  EXPECT_EQ(runRepeat(WED, "daily and weekly").flag, "RRULE:FREQ=WEEKLY;INTERVAL=1");
}

TEST_F(RepeatTest, DailyHasNoBorderInFront) {
  RepeatOutcome outcome = runRepeat(WED, "bidaily");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(outcome.texts, Texts{"daily"});
  EXPECT_FALSE(runRepeat(WED, "biweekly").matched);
}

TEST_F(RepeatTest, OfficialWorkingDays) {
  RepeatOutcome outcome = runRepeat(SAT, "official working days");
  EXPECT_TRUE(outcome.matched);
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND");
  EXPECT_EQ(outcome.rule, "");  // no rule record is kept
  EXPECT_EQ(outcome.start, "2024-03-11T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"official working days"});
  EXPECT_EQ(runRepeat(WED, "official working days").start, "2024-03-06T00:00:00");
}

TEST_F(RepeatTest, OfficialWorkingDaysInChineseAndAfterEvery) {
  RepeatOutcome chinese = runRepeat(WED, "法定工作日");
  EXPECT_EQ(chinese.flag, "RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND");
  EXPECT_EQ(chinese.texts, Texts{"法定工作日"});
  RepeatOutcome every = runRepeat(WED, "every official working day");
  EXPECT_EQ(every.flag, "RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND");
  EXPECT_EQ(every.texts, Texts{"official working day"});
}

TEST_F(RepeatTest, OfficialWorkingDaysIsCaseSensitive) {
  EXPECT_FALSE(runRepeat(WED, "Official Working Days").matched);
}

TEST_F(RepeatTest, ThePatternsSearchTheTitleCaseInsensitively) {
  RepeatOutcome outcome = runRepeat(WED, "Every Monday");
  EXPECT_EQ(outcome.texts, Texts{"Every Monday"});
  // The day-kind and weekday tests lower-case the title first.
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO");
  EXPECT_EQ(runRepeat(WED, "EVERY WEEKDAY").flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR");
}

class FindInterval : public RepeatTest {
 protected:
  int interval(const std::string& title) {
    NLPNativeTitleParser parser = parserAt(WED);
    return parser.findInterval(wide(title), NLPTranslation::getTransKeyToValue(L"en"));
  }
};

TEST_F(FindInterval, NumberBehindEvery) {
  EXPECT_EQ(interval("every 3 days"), 3);
  EXPECT_EQ(interval("each 4 weeks"), 4);
  EXPECT_EQ(interval("every twenty days"), 20);
  EXPECT_EQ(interval("every second week"), 2);
}

TEST_F(FindInterval, OtherAnywhereInTheWordIsTwo) {
  EXPECT_EQ(interval("every other week"), 2);
  EXPECT_EQ(interval("every brother"), 2);
}

TEST_F(FindInterval, NothingUsableIsOne) {
  EXPECT_EQ(interval("every day"), 1);
  EXPECT_EQ(interval("every 0 days"), 1);
  EXPECT_EQ(interval("every"), 1);
  EXPECT_EQ(interval("call mom"), 1);
}

TEST_F(FindInterval, OnlyTheFirstEveryCounts) {
  EXPECT_EQ(interval("every day and every 3 weeks"), 1);
  EXPECT_EQ(interval("every 3 days and every 2 weeks"), 3);
}

}  // namespace
}  // namespace nlpdate::testing
