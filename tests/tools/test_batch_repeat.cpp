// Repeat rules, offsets from now and advance reminders end to end through the
// tool's batch mode: one JSON line in, one JSON line out, each line with its
// own language, zone, clock and settings.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::runCli;

struct BatchCase {
  std::string input;
  std::string expected;
};

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// Feeds all cases as one batch and compares the answers line by line.
void expectAnswers(const std::vector<BatchCase>& cases) {
  std::string input;
  for (const BatchCase& c : cases) input += c.input + "\n";
  const auto result = runCli({"--batch"}, input);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  const std::vector<std::string> answers = splitLines(result.out);
  ASSERT_EQ(answers.size(), cases.size()) << result.out;
  for (size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE(cases[i].input);
    EXPECT_EQ(answers[i], cases[i].expected);
  }
}

TEST(BatchRepeatTest, PartsOfTheDayFollowTheUsersHours) {
  expectAnswers({
      // 07:30 has passed at 10:00: tomorrow.
      {R"({"title":"Gym every morning","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","morning":"07:30"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every morning"],)"
       R"("startDate":"2024-03-09T07:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      {R"({"title":"walk every evening","lang":"en","tz":"Asia/Tokyo","now":"2024-03-08T10:00:00",)"
       R"("evening":"18:45"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every evening"],)"
       R"("startDate":"2024-03-08T18:45:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      {R"({"title":"lock up every night","lang":"en","tz":"America/New_York","now":"2024-03-08T23:00:00",)"
       R"("night":"22:15"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every night"],)"
       R"("startDate":"2024-03-09T22:15:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      {R"({"title":"every afternoon","lang":"en","tz":"UTC","now":"2024-03-08T16:00:00","afternoon":"15:00"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every afternoon"],)"
       R"("startDate":"2024-03-09T15:00:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      {R"({"title":"estudar cada tarde","lang":"pt","tz":"America/Sao_Paulo","now":"2024-03-08T10:00:00",)"
       R"("afternoon":"14:30"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["cada tarde"],)"
       R"("startDate":"2024-03-08T14:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      {R"({"title":"chaque soir","lang":"fr","tz":"Europe/Paris","now":"2024-03-08T10:00:00","evening":"19:00"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["chaque soir"],)"
       R"("startDate":"2024-03-08T19:00:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
  });
}

TEST(BatchRepeatTest, WeekdayListsMonthDaysAndTheLastDay) {
  expectAnswers({
      {R"({"title":"réunion chaque lundi et mercredi","lang":"fr","tz":"Europe/Paris",)"
       R"("now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,WE",)"
       R"("recognizeStrings":["chaque lundi et mercredi"],"startDate":"2024-03-11T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
      // A Saturday: the first weekday named, Friday, is six days on.
      {R"({"title":"every friday and monday","tz":"Asia/Tokyo","now":"2024-03-09T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,FR",)"
       R"("recognizeStrings":["every friday and monday"],"startDate":"2024-03-15T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
      {R"({"title":"pay rent every 1 and 15","lang":"en","tz":"Asia/Tokyo","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=1,15","recognizeStrings":["every 1 and 15"],)"
       R"("startDate":"2024-04-01T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
      {R"({"title":"backup every last day","lang":"en","tz":"Australia/Sydney","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=-1","recognizeStrings":["every last day"],)"
       R"("startDate":"2024-03-31T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
      // The last Friday of next month, not of this one.
      {R"({"title":"every month on the last friday","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=-1FR",)"
       R"("recognizeStrings":["every month on the last friday"],"startDate":"2024-04-26T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
  });
}

TEST(BatchRepeatTest, WeeklyRulesIntervalsAndOneWordRules) {
  expectAnswers({
      // The week's first day setting does not move a repeat's start.
      {R"({"title":"church every sunday","lang":"en","tz":"Europe/London","now":"2024-03-08T10:00:00",)"
       R"("firstWeekday":2})",
       R"({"repeatFlag":"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SU","recognizeStrings":["every sunday"],)"
       R"("startDate":"2024-03-10T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
      {R"({"title":"team sync every other week","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=WEEKLY;INTERVAL=2","recognizeStrings":["every other week"],)"
       R"("startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
      // On a Sunday the weekend has begun: today.
      {R"({"title":"yoga every weekend","lang":"en","tz":"UTC","now":"2024-03-10T08:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SU,SA","recognizeStrings":["every weekend"],)"
       R"("startDate":"2024-03-10T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
      // Portuguese tries the month-day pattern first, which reads "every 2" as
      // the 2nd; the weekday stage then takes " weeks" as this week's today.
      {R"({"title":"reunião every 2 weeks","lang":"pt","tz":"UTC","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=MONTHLY;INTERVAL=1","recognizeStrings":["every 2 "," weeks"],)"
       R"("startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
      {R"({"title":"운동 매일","lang":"ko","tz":"Asia/Seoul","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["매일"],)"
       R"("startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
  });
}

TEST(BatchRepeatTest, DailyRuleWithAClockTimeFollowsTheClockSettingAndTheBase) {
  expectAnswers({
      // 09:30 has passed: a 24-hour user with a two-digit hour means tomorrow...
      {R"({"title":"standup every day 09:30","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00",)"
       R"("is24Hour":true})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every day "," 09:30"],)"
       R"("startDate":"2024-03-09T09:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      // ...a 12-hour user means 9:30 pm today...
      {R"({"title":"standup every day 09:30","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00",)"
       R"("is24Hour":false})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every day "," 09:30"],)"
       R"("startDate":"2024-03-08T21:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      // ...and a base date puts the time on its own day.
      {R"({"title":"standup every day 09:30","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00",)"
       R"("base":"2024-03-20T08:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every day "," 09:30"],)"
       R"("startDate":"2024-03-20T09:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
  });
}

TEST(BatchRepeatTest, OffsetsFromNow) {
  expectAnswers({
      {R"({"title":"call mom in 2 hours 30 minutes","lang":"en","tz":"Asia/Kolkata","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"","recognizeStrings":["in 2 hours 30 minutes"],"startDate":"2024-03-08T12:30:00",)"
       R"("dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
      // Days count from now, not from the base date.
      {R"({"title":"call mom in 3 days","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00",)"
       R"("base":"2024-03-01T08:00:00"})",
       R"({"repeatFlag":"","recognizeStrings":["in 3 days"],"startDate":"2024-03-11T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
      // A date earlier in the title wins and the offset is dropped entirely;
      // the date itself follows the month-first setting.
      {R"({"title":"call 04/05 in 3 days","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","monthFirst":true})",
       R"({"repeatFlag":"","recognizeStrings":[" 04/05 "],"startDate":"2024-04-05T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
      {R"({"title":"call 04/05 in 3 days","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00",)"
       R"("monthFirst":false})",
       R"({"repeatFlag":"","recognizeStrings":[" 04/05 "],"startDate":"2024-05-04T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
  });
}

TEST(BatchRepeatTest, AdvanceReminders) {
  expectAnswers({
      {R"({"title":"отчёт напомни за 10 минут раньше","lang":"ru","tz":"Europe/Moscow",)"
       R"("now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"","recognizeStrings":["напомни за 10 минут раньше"],"startDate":"2024-03-08T10:00:00",)"
       R"("dueDate":"","reminder":["TRIGGER:-PT10M"],"isAllDay":false})"},
      // No amount: five minutes; "remind me" also asks for a reminder on time.
      {R"({"title":"water plants remind me early","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00"})",
       R"({"repeatFlag":"","recognizeStrings":["remind me early","remind me"],)"
       R"("startDate":"2024-03-08T10:00:00","dueDate":"","reminder":["TRIGGER:-PT0S","TRIGGER:-PT5M"],)"
       R"("isAllDay":false})"},
  });
}

TEST(BatchRepeatTest, OfficialWorkingDaysReadTheHolidayTable) {
  expectAnswers({
      // Saturday: Monday is the first work day...
      {R"({"title":"official working days","lang":"en","tz":"UTC","now":"2024-03-09T10:00:00"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND",)"
       R"("recognizeStrings":["official working days"],"startDate":"2024-03-11T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
      // ...unless it is a day off...
      {R"({"title":"official working days","tz":"UTC","now":"2024-03-09T10:00:00",)"
       R"("holidays":"{\"20240311\":2}"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND",)"
       R"("recognizeStrings":["official working days"],"startDate":"2024-03-12T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
      // ...or the Saturday itself is a work day.
      {R"({"title":"official working days","tz":"UTC","now":"2024-03-09T10:00:00",)"
       R"("holidays":"{\"20240309\":1}"})",
       R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND",)"
       R"("recognizeStrings":["official working days"],"startDate":"2024-03-09T00:00:00","dueDate":"",)"
       R"("reminder":[],"isAllDay":true})"},
  });
}

}  // namespace
}  // namespace nlpdate
