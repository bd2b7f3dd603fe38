// The command-line tool's batch mode on titles that the word-language driver
// settles: weekdays, named days, Japanese holidays, clock times, named hours,
// and how the user's settings and time zone move them.
#include <gtest/gtest.h>

#include <sstream>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::runCli;

struct BatchCase {
  std::string input;     // one JSON line for --batch
  std::string expected;  // the exact answer line
};

std::string answer(const std::string& strings, const std::string& start, bool onTime) {
  return R"({"repeatFlag":"","recognizeStrings":[)" + strings + R"(],"startDate":")" + start +
         R"(","dueDate":"","reminder":[)" + (onTime ? R"("TRIGGER:-PT0S")" : "") +
         R"(],"isAllDay":)" + (onTime ? "false" : "true") + "}";
}

// Friday 10:00 in UTC unless a line says otherwise.
const std::string kAt = R"("tz":"UTC","now":"2024-03-08T10:00:00")";

std::string line(const std::string& fields) { return "{" + fields + "}"; }

void expectBatch(const std::vector<BatchCase>& cases) {
  std::string input;
  for (const BatchCase& one : cases) input += one.input + "\n";
  auto result = runCli({"--batch"}, input);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  std::istringstream out(result.out);
  std::string got;
  size_t index = 0;
  while (std::getline(out, got)) {
    ASSERT_LT(index, cases.size()) << "extra line: " << got;
    EXPECT_EQ(got, cases[index].expected) << cases[index].input;
    ++index;
  }
  EXPECT_EQ(index, cases.size());
}

TEST(BatchDriverTest, NothingFoundAndNamedDays) {
  expectBatch({
      {line(R"("title":"call mom",)" + kAt), answer("", "", false)},
      {line(R"("title":"lunch with ann tomorrow at 1pm",)" + kAt),
       answer(R"("at 1pm","tomorrow ")", "2024-03-09T13:00:00", true)},
      // Named day and named hour both read "tonight"; the night setting gives the hour.
      {line(R"("title":"call tonight","night":"22:30",)" + kAt),
       answer(R"(" tonight","tonight")", "2024-03-08T22:30:00", true)},
      // At 13:00 noon has passed and no day is named: tomorrow.
      {line(R"("title":"lunch at noon","tz":"UTC","now":"2024-03-08T13:00:00")"),
       answer(R"("at noon")", "2024-03-09T12:00:00", true)},
  });
}

TEST(BatchDriverTest, BareClockTimesAndTheClockSetting) {
  expectBatch({
      // Two additions of 12 carry a passed 9 into tomorrow morning.
      {line(R"("title":"9 o'clock","tz":"UTC","now":"2024-03-08T22:00:00")"),
       answer(R"("9 o'clock")", "2024-03-09T09:00:00", true)},
      // French: a passed bare hour is tomorrow at once.
      {line(R"("title":"rdv 9h","lang":"fr",)" + kAt), answer(R"(" 9h")", "2024-03-09T09:00:00", true)},
      // A two-digit clock time: pm today on a 12-hour clock, tomorrow on a 24-hour clock.
      {line(R"("title":"09:30","is24Hour":false,)" + kAt), answer(R"("09:30")", "2024-03-08T21:30:00", true)},
      {line(R"("title":"09:30","is24Hour":true,)" + kAt), answer(R"("09:30")", "2024-03-09T09:30:00", true)},
      // The flag word without a clock time: the written hour 9 goes to pm.
      {line(R"("title":"meet at the office 9 o'clock",)" + kAt),
       answer(R"(" 9 o'clock")", "2024-03-08T21:00:00", true)},
      // A base date gives a bare time its day; the roll's extra day is lost.
      {line(R"("title":"9 pm","base":"2024-03-01T00:00:00",)" + kAt),
       answer(R"("9 pm")", "2024-03-01T21:00:00", true)},
  });
}

TEST(BatchDriverTest, WeekdaysAndTheFirstWeekday) {
  expectBatch({
      // Sunday the 10th: a week from Monday ends on the 16th, a week from Sunday on the 23rd.
      {line(R"("title":"next saturday","firstWeekday":2,"tz":"UTC","now":"2024-03-10T10:00:00")"),
       answer(R"("next saturday")", "2024-03-16T00:00:00", false)},
      {line(R"("title":"next saturday","firstWeekday":1,"tz":"UTC","now":"2024-03-10T10:00:00")"),
       answer(R"("next saturday")", "2024-03-23T00:00:00", false)},
      {line(R"("title":"next friday at 9am","firstWeekday":2,"tz":"UTC","now":"2024-03-10T10:00:00")"),
       answer(R"("at 9am","next friday ")", "2024-03-15T09:00:00", true)},
      {line(R"("title":"réunion lundi prochain","lang":"fr",)" + kAt),
       answer(R"(" lundi prochain")", "2024-03-11T00:00:00", false)},
      {line(R"("title":"月曜日に会議","lang":"ja",)" + kAt), answer(R"("月曜日")", "2024-03-11T00:00:00", false)},
  });
}

TEST(BatchDriverTest, DayPartsFollowTheSettings) {
  expectBatch({
      // Morning at 07:30 has passed at 08:10: one step to 08:30.
      {line(R"("title":"gym in the morning","morning":"07:30","tz":"UTC","now":"2024-03-08T08:10:00")"),
       answer(R"(" morning")", "2024-03-08T08:30:00", true)},
      // Evening at 18:00 has passed at 18:20: one step to 19:00, the limit.
      {line(R"("title":"evening run","evening":"18:00","tz":"UTC","now":"2024-03-08T18:20:00")"),
       answer(R"("evening")", "2024-03-08T19:00:00", true)},
      {line(R"("title":"correr de manhã","lang":"pt","tz":"UTC","now":"2024-03-08T07:00:00")"),
       answer(R"("de manhã")", "2024-03-08T09:00:00", true)},
      {line(R"("title":"내일 아침","lang":"ko",)" + kAt), answer(R"(" 아침","내일 ")", "2024-03-09T09:00:00", true)},
  });
}

TEST(BatchDriverTest, OtherLanguagesHolidaysAndDates) {
  const std::string japan = R"("japanHolidays":"{\"元日\":20250101}",)";
  expectBatch({
      {line(R"("title":"завтра в 9","lang":"ru",)" + kAt),
       answer(R"("в 9","завтра ")", "2024-03-09T09:00:00", true)},
      // The holiday's year, month and day go under the time.
      {line(R"("title":"元日 9時","lang":"ja",)" + japan + kAt),
       answer(R"(" 9時","元日")", "2025-01-01T09:00:00", true)},
      // Outside Japanese the holiday names are not looked for.
      {line(R"("title":"元日 9時","lang":"en",)" + japan + kAt), answer("", "", false)},
      // Day-first numeric date with a time merged onto it.
      {line(R"("title":"04/05/2024 at 3pm","monthFirst":false,)" + kAt),
       answer(R"("at 3pm","04/05/2024 ")", "2024-05-04T15:00:00", true)},
  });
}

TEST(BatchDriverTest, TimeZones) {
  expectBatch({
      // 17:00 has passed at 18:00 and "pm" was said outright: tomorrow.
      {line(R"("title":"at 5pm","tz":"America/New_York","now":"2024-03-08T18:00:00")"),
       answer(R"("at 5pm")", "2024-03-09T17:00:00", true)},
      {line(R"("title":"tomorrow at 7","tz":"Asia/Tokyo","now":"2024-03-08T10:00:00")"),
       answer(R"("at 7","tomorrow ")", "2024-03-09T07:00:00", true)},
      // The time record copies the weekday's winter daylight flag onto the
      // first day of summer time, so 9:00 standard time shows as 10:00.
      {line(R"("title":"sunday at 9am","tz":"America/New_York","now":"2024-03-08T10:00:00")"),
       answer(R"("at 9am","sunday ")", "2024-03-10T10:00:00", true)},
  });
}

}  // namespace
}  // namespace nlpdate
