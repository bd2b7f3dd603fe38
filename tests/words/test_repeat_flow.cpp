// Repeat titles through the whole parse flow and the command-line tool.
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace nlpdate::testing {
namespace {

constexpr const char* WED = "2024-03-06T10:00:00";

class RepeatFlow : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
};

TEST_F(RepeatFlow, StandupEveryWeekdayThroughTheTool) {
  CliResult result = runCli({"--now", WED, "--tz", "UTC", "Standup every weekday at 9:30"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "{\"repeatFlag\":\"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR\","
            "\"recognizeStrings\":[\"every weekday \",\"at 9:30\"],\"startDate\":\"2024-03-06T21:30:00\","
            "\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}\n");
}

TEST_F(RepeatFlow, LastDayOfTheMonthIsAllDay) {
  EXPECT_EQ(parseAt(WED, "pay rent every last day"),
            "{\"repeatFlag\":\"RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=-1\","
            "\"recognizeStrings\":[\"every last day\"],\"startDate\":\"2024-03-31T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

TEST_F(RepeatFlow, EveryMorningHasItsHourAndReminder) {
  EXPECT_EQ(parseAt(WED, "gym every morning"),
            "{\"repeatFlag\":\"RRULE:FREQ=DAILY;INTERVAL=1\",\"recognizeStrings\":[\"every morning\"],"
            "\"startDate\":\"2024-03-07T09:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
}

TEST_F(RepeatFlow, WeekdayListWithATime) {
  EXPECT_EQ(parseAt(WED, "every monday and friday at 18:00"),
            "{\"repeatFlag\":\"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,FR\","
            "\"recognizeStrings\":[\"every monday and friday \",\"at 18:00\"],"
            "\"startDate\":\"2024-03-11T18:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
}

TEST_F(RepeatFlow, IntervalAndMonthDays) {
  EXPECT_EQ(parseAt(WED, "team sync every 2 weeks"),
            "{\"repeatFlag\":\"RRULE:FREQ=WEEKLY;INTERVAL=2\",\"recognizeStrings\":[\"every 2 weeks\"],"
            "\"startDate\":\"2024-03-06T00:00:00\",\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
  EXPECT_EQ(parseAt(WED, "bills every 1 and 15"),
            "{\"repeatFlag\":\"RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=1,15\","
            "\"recognizeStrings\":[\"every 1 and 15\"],\"startDate\":\"2024-04-01T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

TEST_F(RepeatFlow, PortugueseAndFrenchTitles) {
  EXPECT_EQ(parseAt(WED, "toda segunda", "pt"),
            "{\"repeatFlag\":\"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=2;BYDAY=MO\","
            "\"recognizeStrings\":[\"toda segunda\"],\"startDate\":\"2024-03-11T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
  EXPECT_EQ(parseAt(WED, "chaque lundi et mardi", "fr"),
            "{\"repeatFlag\":\"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU\","
            "\"recognizeStrings\":[\"chaque lundi et mardi\"],\"startDate\":\"2024-03-11T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

}  // namespace
}  // namespace nlpdate::testing
