// Numeric dates, month-name dates and repeats with an end, end to end through
// the command-line tool's batch mode: one JSON line in, one JSON line out, with
// the language, zone, clock and settings given on each line.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::runCli;

struct BatchCase {
  const char* input;
  const char* expected;
};

// Expected lines are worked out by hand from the recognisers' rules.
const BatchCase kCases[] = {
    // Numeric dates: the field order comes from monthFirst, a passed date without a year rolls on.
    {R"({"title":"pay rent 31/12/2024","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","monthFirst":false})",
     R"({"repeatFlag":"","recognizeStrings":[" 31/12/2024"],"startDate":"2024-12-31T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // Month 31 is carried over by the calendar: 2024 + 30 months.
    {R"({"title":"pay rent 31/12/2024","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","monthFirst":true})",
     R"({"repeatFlag":"","recognizeStrings":[" 31/12/2024"],"startDate":"2026-07-12T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"dentist 8/30/24","lang":"en","tz":"America/New_York","now":"2024-07-01T09:00:00","monthFirst":true})",
     R"({"repeatFlag":"","recognizeStrings":[" 8/30/24"],"startDate":"2024-08-30T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"réunion 3/4","lang":"fr","tz":"UTC","now":"2024-03-08T10:00:00","monthFirst":false})",
     R"({"repeatFlag":"","recognizeStrings":[" 3/4"],"startDate":"2024-04-03T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"réunion 3/4","lang":"fr","tz":"UTC","now":"2024-03-08T10:00:00","monthFirst":true})",
     R"({"repeatFlag":"","recognizeStrings":[" 3/4"],"startDate":"2025-03-04T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"оплатить 31/12/2024","lang":"ru","tz":"UTC","now":"2024-03-08T10:00:00","monthFirst":false})",
     R"({"repeatFlag":"","recognizeStrings":["31/12/2024"],"startDate":"2024-12-31T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"2025/1/5 taxes","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":["2025/1/5 "],"startDate":"2025-01-05T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // The phrases for next year and the end of the month; the base date gives the day to start from.
    {R"({"title":"next year","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","base":"2024-06-20T08:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":["next year"],"startDate":"2025-01-01T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"relatório fim do mês","lang":"pt","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":["fim do mês"],"startDate":"2024-03-31T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"rapport fin du mois","lang":"fr","tz":"Europe/Paris","now":"2024-02-10T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":["fin du mois"],"startDate":"2024-02-29T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // The word for next has several values and stands unbracketed in its pattern, so one of
    // them alone is a match: the day itself.
    {R"({"title":"relatório próximo mês","lang":"pt","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":["próximo"],"startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // Month-name dates.
    {R"({"title":"réunion 12 avril","lang":"fr","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":[" 12 avril"],"startDate":"2024-04-12T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"встреча 12 марта","lang":"ru","tz":"Asia/Tokyo","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":[" 12 марта"],"startDate":"2024-03-12T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // The main pattern reads "1" and "2월"; the month-first second look settles it on December 5.
    {R"({"title":"회의 12월 5일","lang":"ko","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":["의 12월 5일"],"startDate":"2024-12-05T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"meeting 12 june","lang":"ja","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":[" 12 june"],"startDate":"2024-06-12T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"consulta 20 de maio","lang":"pt","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":[" 20 de maio"],"startDate":"2024-05-20T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"trip mid march","lang":"en","tz":"Europe/Paris","now":"2024-03-20T10:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":[" mid march"],"startDate":"2025-03-15T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // A passed 9:30 tries 21:30 the same day first.
    {R"({"title":"call 12 mar 9:30","lang":"en","tz":"UTC","now":"2024-03-12T10:00:00","is24Hour":false})",
     R"({"repeatFlag":"","recognizeStrings":["12 mar 9:30"],"startDate":"2024-03-12T21:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
    // "8pm" leaves the month text and the time stage reads it.
    {R"({"title":"12 march 8pm","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","is24Hour":true})",
     R"({"repeatFlag":"","recognizeStrings":["8pm","12 march "],"startDate":"2024-03-12T20:00:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
    // The bare ordinal reads the clock, not the base date.
    {R"({"title":"pay on the 5th","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","base":"2024-06-20T08:00:00"})",
     R"({"repeatFlag":"","recognizeStrings":[" 5th"],"startDate":"2024-04-05T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // Repeats with an end.
    {R"({"title":"every morning for 1 week","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","morning":"07:30"})",
     R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240315","recognizeStrings":["every morning for 1 week"],"startDate":"2024-03-09T07:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
    {R"({"title":"every afternoon for 2 weeks","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","afternoon":"14:30"})",
     R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240321","recognizeStrings":["every afternoon for 2 weeks"],"startDate":"2024-03-08T14:30:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
    {R"({"title":"every night for 3 months","lang":"en","tz":"Asia/Tokyo","now":"2024-03-08T10:00:00","night":"21:15"})",
     R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240607","recognizeStrings":["every night for 3 months"],"startDate":"2024-03-08T21:15:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
    {R"({"title":"every evening from 11 march to 15 march","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","evening":"18:45"})",
     R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240315","recognizeStrings":["every evening from 11 march to 15 march"],"startDate":"2024-03-11T18:45:00","dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})"},
    {R"({"title":"every day from today until tomorrow","lang":"en","tz":"Europe/Paris","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240309","recognizeStrings":["every day from today until tomorrow"],"startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"chaque lundi commencer 11 mars fin on 25 mars","lang":"fr","tz":"UTC","now":"2024-03-08T10:00:00","firstWeekday":2})",
     R"({"repeatFlag":"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240325","recognizeStrings":["chaque lundi commencer 11 mars fin on 25 mars"],"startDate":"2024-03-11T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    {R"({"title":"every 15th end in 3 months","lang":"en","tz":"America/New_York","now":"2024-07-08T10:00:00"})",
     R"({"repeatFlag":"RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=15;UNTIL=20241014","recognizeStrings":["every 15th end in 3 months"],"startDate":"2024-07-15T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // A named end gives the default day as the end, whatever the weekday.
    {R"({"title":"every monday end on friday","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00","firstWeekday":2})",
     R"({"repeatFlag":"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO;UNTIL=20240308","recognizeStrings":["every monday end on friday"],"startDate":"2024-03-11T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
    // "before" holds the word for "for": that form is tried, does not fit, and the plain repeat follows.
    {R"({"title":"every day before lunch","lang":"en","tz":"UTC","now":"2024-03-08T10:00:00"})",
     R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every day "],"startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})"},
};

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t at = 0;
  while (at < text.size()) {
    size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

TEST(BatchDatesTest, EachLineGivesItsExactAnswer) {
  std::string input;
  for (const BatchCase& item : kCases) input += std::string(item.input) + "\n";
  auto result = runCli({"--batch"}, input);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  const std::vector<std::string> lines = splitLines(result.out);
  ASSERT_EQ(lines.size(), sizeof(kCases) / sizeof(kCases[0])) << result.out;
  for (size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i], kCases[i].expected) << kCases[i].input;
}

// The same title in several zones at the same local clock reads the same local date.
TEST(BatchDatesTest, LocalDateDoesNotDependOnTheZone) {
  std::string input;
  for (const char* zone : {"UTC", "Asia/Tokyo", "America/New_York", "Europe/Paris"}) {
    input += std::string(R"({"title":"taxes 15/8/2024","lang":"en","monthFirst":false,"now":"2024-07-01T12:00:00","tz":")") +
             zone + "\"}\n";
  }
  auto result = runCli({"--batch"}, input);
  EXPECT_EQ(result.status, 0);
  const std::string expected =
      R"({"repeatFlag":"","recognizeStrings":[" 15/8/2024"],"startDate":"2024-08-15T00:00:00","dueDate":"","reminder":[],"isAllDay":true})";
  EXPECT_EQ(result.out, expected + "\n" + expected + "\n" + expected + "\n" + expected + "\n");
}

}  // namespace
}  // namespace nlpdate
