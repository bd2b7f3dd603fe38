// The rule texts and start dates of the common repeat phrases, each on
// several fixed clocks.
#include "test_repeat_support.h"

namespace nlpdate::testing {
namespace {

struct TableRow {
  const char* now;
  const char* title;
  const char* flag;
  const char* start;
  const char* text;
};

void PrintTo(const TableRow& row, std::ostream* out) { *out << row.title << " @ " << row.now; }

class RepeatTable : public RepeatTest, public ::testing::WithParamInterface<TableRow> {};

TEST_P(RepeatTable, RuleStartAndRecognisedText) {
  const TableRow& row = GetParam();
  RepeatOutcome outcome = runRepeat(row.now, row.title);
  EXPECT_TRUE(outcome.matched);
  EXPECT_EQ(outcome.flag, row.flag);
  EXPECT_EQ(outcome.rule, row.flag);
  EXPECT_EQ(outcome.start, row.start);
  EXPECT_EQ(outcome.texts, std::vector<std::string>{row.text});
  EXPECT_TRUE(outcome.reminders.empty());
}

// Wednesday 6 March, Saturday 9 March, Sunday 31 March (last of the month),
// Monday 4 March, Friday 1 March, Wednesday 20 March, Friday 20 December.
constexpr const char* WED = "2024-03-06T10:00:00";
constexpr const char* SAT = "2024-03-09T08:00:00";
constexpr const char* SUN_LAST = "2024-03-31T22:00:00";
constexpr const char* MON = "2024-03-04T10:00:00";
constexpr const char* FRI_FIRST = "2024-03-01T10:00:00";
constexpr const char* WED_LATE = "2024-03-20T10:00:00";
constexpr const char* DEC = "2024-12-20T10:00:00";

constexpr const char* MO_FR = "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,FR";
constexpr const char* DAYS_1_15 = "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=1,15";
constexpr const char* LAST_DAY = "RRULE:FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=-1";
constexpr const char* WORK_WEEK = "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR";
constexpr const char* WEEKENDS = "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SU,SA";
constexpr const char* MONTHLY_1 = "RRULE:FREQ=MONTHLY;INTERVAL=1";

INSTANTIATE_TEST_SUITE_P(
    Rows, RepeatTable,
    ::testing::Values(
        // Weekday list: the first weekday named, today included.
        TableRow{WED, "every monday and friday", MO_FR, "2024-03-11T00:00:00", "every monday and friday"},
        TableRow{SAT, "every monday and friday", MO_FR, "2024-03-11T00:00:00", "every monday and friday"},
        TableRow{MON, "every monday and friday", MO_FR, "2024-03-04T00:00:00", "every monday and friday"},
        TableRow{SUN_LAST, "every monday and friday", MO_FR, "2024-04-01T00:00:00", "every monday and friday"},
        TableRow{WED, "every friday and monday", MO_FR, "2024-03-08T00:00:00", "every friday and monday"},
        TableRow{SAT, "every friday and monday", MO_FR, "2024-03-15T00:00:00", "every friday and monday"},
        TableRow{FRI_FIRST, "every friday and monday", MO_FR, "2024-03-01T00:00:00", "every friday and monday"},
        // Month-day list: the first day, next month once past.
        TableRow{WED, "every 1 and 15", DAYS_1_15, "2024-04-01T00:00:00", "every 1 and 15"},
        TableRow{FRI_FIRST, "every 1 and 15", DAYS_1_15, "2024-03-01T00:00:00", "every 1 and 15"},
        TableRow{DEC, "every 1 and 15", DAYS_1_15, "2025-01-01T00:00:00", "every 1 and 15"},
        // Last day of this month, even when that is today.
        TableRow{WED, "every last day", LAST_DAY, "2024-03-31T00:00:00", "every last day"},
        TableRow{SUN_LAST, "every last day", LAST_DAY, "2024-03-31T00:00:00", "every last day"},
        TableRow{"2024-02-10T10:00:00", "every last day", LAST_DAY, "2024-02-29T00:00:00", "every last day"},
        TableRow{DEC, "every last day", LAST_DAY, "2024-12-31T00:00:00", "every last day"},
        TableRow{WED, "every other day", "RRULE:FREQ=DAILY;INTERVAL=2", "2024-03-06T00:00:00", "every other day"},
        TableRow{SAT, "every other day", "RRULE:FREQ=DAILY;INTERVAL=2", "2024-03-09T00:00:00", "every other day"},
        TableRow{WED, "every 2 weeks", "RRULE:FREQ=WEEKLY;INTERVAL=2", "2024-03-06T00:00:00", "every 2 weeks"},
        TableRow{SUN_LAST, "every 2 weeks", "RRULE:FREQ=WEEKLY;INTERVAL=2", "2024-03-31T00:00:00", "every 2 weeks"},
        // Work week: the first Monday-to-Friday day, today included.
        TableRow{WED, "every weekday", WORK_WEEK, "2024-03-06T00:00:00", "every weekday"},
        TableRow{SAT, "every weekday", WORK_WEEK, "2024-03-11T00:00:00", "every weekday"},
        TableRow{SUN_LAST, "every weekday", WORK_WEEK, "2024-04-01T00:00:00", "every weekday"},
        // Weekend: the first Saturday or Sunday, today included.
        TableRow{WED, "every weekend", WEEKENDS, "2024-03-09T00:00:00", "every weekend"},
        TableRow{SAT, "every weekend", WEEKENDS, "2024-03-09T00:00:00", "every weekend"},
        TableRow{SUN_LAST, "every weekend", WEEKENDS, "2024-03-31T00:00:00", "every weekend"},
        TableRow{MON, "every weekend", WEEKENDS, "2024-03-09T00:00:00", "every weekend"},
        TableRow{WED, "every 3 months", "RRULE:FREQ=MONTHLY;INTERVAL=3", "2024-03-06T00:00:00", "every 3 months"},
        TableRow{DEC, "every 3 months", "RRULE:FREQ=MONTHLY;INTERVAL=3", "2024-12-20T00:00:00", "every 3 months"},
        // Month pattern M1 admits only "day of" or "first of" between the
        // number and the word for every, so "15th of" stays unread: the match
        // is " every month" alone, starting at the blank before it.
        TableRow{WED, "15th of every month", MONTHLY_1, "2024-03-06T00:00:00", " every month"},
        TableRow{WED_LATE, "15th of every month", MONTHLY_1, "2024-03-20T00:00:00", " every month"},
        // Month pattern M2 takes a month word only behind the word for on, so
        // "of march" is no month: a monthly rule on the next 15th.
        TableRow{WED, "every 15th of march", MONTHLY_1, "2024-03-15T00:00:00", "every 15th "},
        TableRow{WED_LATE, "every 15th of march", MONTHLY_1, "2024-04-15T00:00:00", "every 15th "},
        TableRow{DEC, "every 15th of march", MONTHLY_1, "2025-01-15T00:00:00", "every 15th "},
        TableRow{WED, "every year", "RRULE:FREQ=YEARLY;INTERVAL=1", "2024-03-06T00:00:00", "every year"},
        TableRow{DEC, "every year", "RRULE:FREQ=YEARLY;INTERVAL=1", "2024-12-20T00:00:00", "every year"}));

}  // namespace
}  // namespace nlpdate::testing
