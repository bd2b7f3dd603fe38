// The word-language driver: which date recogniser wins, the offset path,
// the merge of date and time, and the rolls of a time that has passed.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"
#include "words/date_pick.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::narrow;
using testing::parseAt;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

const char* const kTen = "2024-03-08T10:00:00";  // a Friday

std::string json(const std::string& strings, const std::string& start, const std::string& reminders,
                 bool allDay, const std::string& flag = "") {
  return "{\"repeatFlag\":\"" + flag + "\",\"recognizeStrings\":[" + strings + "],\"startDate\":\"" + start +
         "\",\"dueDate\":\"\",\"reminder\":[" + reminders + "],\"isAllDay\":" + (allDay ? "true" : "false") + "}";
}

const char* const kOnTime = "\"TRIGGER:-PT0S\"";

std::string parseWith(NLPNativeTitleParser& parser, const std::string& title, const std::string& language = "en",
                      const std::string& base = "") {
  return narrow(parser.parse(wide(title), wide(base), wide(language)));
}

NLPRecognizeDate dateAt(long position, const std::string& day) {
  return NLPRecognizeDate(L"x", position, OptTM(tmFromTimePoint(timePointFromSeconds(localSeconds(day)))));
}

TEST(DriverTest, NothingFoundReturnsTheRepeatStagesFalse) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  EXPECT_FALSE(parser.englishDateRecognition(L"call mom", std::nullopt, NLPTranslation::getTransKeyToValue(L"en"),
                                             false, L"en"));
  EXPECT_TRUE(parser.parserDueDate.recognizeStrings.empty());
  EXPECT_TRUE(parser.parserDueDate.reminder.empty());
  EXPECT_FALSE(parser.parserDueDate.startDate);
  EXPECT_EQ(parseAt(kTen, "call mom"), json("", "", "", true));
}

TEST(DriverTest, RequiredExample) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "lunch with ann tomorrow at 1pm"),
            json("\"at 1pm\",\"tomorrow \"", "2024-03-09T13:00:00", kOnTime, false));
}

TEST(DriverTest, OnlyTheEarlierOfTwoDatesCounts) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "friday or tomorrow"), json("\"friday \"", "2024-03-08T00:00:00", "", true));
  EXPECT_EQ(parseAt(kTen, "tomorrow or friday"), json("\"tomorrow \"", "2024-03-09T00:00:00", "", true));
  EXPECT_EQ(parseAt(kTen, "march 15 or tomorrow"), json("\"march 15\"", "2024-03-15T00:00:00", "", true));
}

TEST(DatePickTest, WeekdayWinsATieWithANamedDay) {
  ScopedTZ zone("UTC");
  std::optional<NLPRecognizeDate> weekday = dateAt(4, "2024-03-11T00:00:00");
  std::optional<NLPRecognizeDate> special = dateAt(4, "2024-03-09T00:00:00");
  NLPDatePick pick = pickEarliestDate(weekday, special, std::nullopt, std::nullopt, std::nullopt);
  EXPECT_EQ(pick.kind, 0);
  EXPECT_EQ(pick.position, 4);
  EXPECT_EQ(tmText(**pick.cal), "2024-03-11T00:00:00");
  EXPECT_EQ(pick.winner, &*weekday);
}

TEST(DatePickTest, EarliestWinsAndTiesFollowTheOrder) {
  ScopedTZ zone("UTC");
  std::optional<NLPRecognizeDate> special = dateAt(9, "2024-03-09T00:00:00");
  std::optional<NLPRecognizeDate> month = dateAt(3, "2024-04-01T00:00:00");
  std::optional<NLPRecognizeDate> numeric = dateAt(3, "2024-05-01T00:00:00");
  NLPDatePick pick = pickEarliestDate(std::nullopt, special, month, numeric, std::nullopt);
  EXPECT_EQ(pick.kind, 2);
  EXPECT_EQ(tmText(**pick.cal), "2024-04-01T00:00:00");
  EXPECT_EQ(pickEarliestDate(std::nullopt, std::nullopt, std::nullopt, std::nullopt, std::nullopt).kind, -1);
}

TEST(DatePickTest, NumericWinnerIsNeverComparedWithAJapaneseHoliday) {
  ScopedTZ zone("UTC");
  std::optional<NLPRecognizeDate> weekday = dateAt(10, "2024-03-15T00:00:00");
  std::optional<NLPRecognizeDate> numeric = dateAt(5, "2024-04-01T00:00:00");
  std::optional<NLPRecognizeDate> japan = dateAt(0, "2025-01-01T00:00:00");
  NLPDatePick pick = pickEarliestDate(weekday, std::nullopt, std::nullopt, numeric, japan);
  EXPECT_EQ(pick.kind, 3);
  EXPECT_EQ(pick.position, 5);
  // A numeric date that loses its own test leaves the holiday its chance.
  std::optional<NLPRecognizeDate> laterNumeric = dateAt(12, "2024-04-01T00:00:00");
  pick = pickEarliestDate(weekday, std::nullopt, std::nullopt, laterNumeric, japan);
  EXPECT_EQ(pick.kind, 6);
  EXPECT_EQ(pick.position, 0);
  // The holiday does not take the date record: it keeps the weekday's.
  EXPECT_EQ(tmText(**pick.cal), "2024-03-15T00:00:00");
  EXPECT_EQ(pick.winner, &*japan);
}

TEST(DriverTest, JapaneseHolidayAgainstOtherDates) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  parser.setJapanHolidayDay(L"{\"元日\":20250101}");
  // No time: the holiday's own start.
  EXPECT_EQ(parseWith(parser, "元日 friday", "ja"), json("\"元日\"", "2025-01-01T00:00:00", "", true));
  // With a time: year, month and day of the holiday go into the time.
  EXPECT_EQ(parseWith(parser, "元日 9時", "ja"), json("\" 9時\",\"元日\"", "2025-01-01T09:00:00", kOnTime, false));
  // A numeric date that beats the weekday is not compared with the earlier holiday.
  EXPECT_EQ(parseWith(parser, "元日 3/15 friday", "ja"), json("\"3/15 \"", "2024-03-15T00:00:00", "", true));
}

TEST(DriverTest, OffsetLaterThanADateIsIgnored) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "friday in 3 days"), json("\"friday \"", "2024-03-08T00:00:00", "", true));
  NLPNativeTitleParser parser = parserAt(kTen);
  parser.englishDateRecognition(L"friday in 3 days", std::nullopt, NLPTranslation::getTransKeyToValue(L"en"), false,
                                L"en");
  EXPECT_FALSE(parser.parserDueDate.pendingOffset);
}

TEST(DriverTest, OffsetEarlierThanADateTakesTheOffsetPath) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  EXPECT_TRUE(parser.englishDateRecognition(L"in 3 days friday", std::nullopt,
                                            NLPTranslation::getTransKeyToValue(L"en"), false, L"en"));
  ASSERT_TRUE(parser.parserDueDate.pendingOffset);
  EXPECT_EQ(narrow(parser.parserDueDate.pendingOffset->getResult()), "TRIGGER:P3D");
  EXPECT_EQ(parseAt(kTen, "in 3 days friday"), json("\"in 3 days\"", "2024-03-11T00:00:00", "", true));
  // A time on the offset's day; the days are added after recognition.
  EXPECT_EQ(parseAt(kTen, "in 3 days at 9am"), json("\"at 9am\",\"in 3 days\"", "2024-03-11T09:00:00", kOnTime, false));
}

TEST(DriverTest, OffsetPathKeepsTheRepeatDateAndTakesTheTimeOfDay) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  parser.parserDueDate.startDate = timePointFromSeconds(localSeconds("2024-03-20T00:00:00"));
  EXPECT_TRUE(parser.englishDateRecognition(L"in 2 days at 7pm", std::nullopt,
                                            NLPTranslation::getTransKeyToValue(L"en"), false, L"en"));
  // The offset stage itself writes a start; the time of day then goes onto it.
  EXPECT_EQ(narrow(formatDateText(*parser.parserDueDate.startDate)), "2024-03-08T19:00:00");
}

TEST(DriverTest, OffsetPathTakesOnlyTheTimeOfDayOfARolledNamedHour) {
  ScopedTZ zone("UTC");
  // At 13:00 noon has passed and the named-hour roll moves it a day, but the
  // offset path copies only hour, minute and second onto the offset's start.
  EXPECT_EQ(parseAt("2024-03-08T13:00:00", "in 2 days at noon"),
            json("\"at noon\",\"in 2 days\"", "2024-03-10T12:00:00", kOnTime, false));
  // Morning is over at 13:00, so the day part means tomorrow 9:00; again only the time counts.
  EXPECT_EQ(parseAt("2024-03-08T13:00:00", "in 2 days morning"),
            json("\" morning\",\"in 2 days\"", "2024-03-10T09:00:00", kOnTime, false));
}

TEST(DriverTest, BareHourWithNoDateIsPmTodayOrTomorrow) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "9 o'clock"), json("\"9 o'clock\"", "2024-03-08T21:00:00", kOnTime, false));
  EXPECT_EQ(parseAt("2024-03-08T22:00:00", "9 o'clock"), json("\"9 o'clock\"", "2024-03-09T09:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "seven o'clock"), json("\"seven o'clock\"", "2024-03-08T19:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "at 9"), json("\"at 9\"", "2024-03-08T21:00:00", kOnTime, false));
}

TEST(DriverTest, FrenchBareHourIsTomorrowAtOnce) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "9 o'clock", "fr"), json("\"9 o'clock\"", "2024-03-09T09:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "rdv 9h", "fr"), json("\" 9h\"", "2024-03-09T09:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "demain à 9h", "fr"), json("\"à 9h\",\"demain \"", "2024-03-09T09:00:00", kOnTime, false));
}

TEST(DriverTest, AmOrPmSaidOutrightGoesToTomorrow) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "930am"), json("\"930am\"", "2024-03-09T09:30:00", kOnTime, false));
  EXPECT_EQ(parseAt("2024-03-08T18:00:00", "at 5pm"), json("\"at 5pm\"", "2024-03-09T17:00:00", kOnTime, false));
}

TEST(DriverTest, MidnightOrNoonWithTheFlagWordIsTomorrowWithTheSameHour) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T13:00:00", "12:00"), json("\"12:00\"", "2024-03-09T12:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "0:00"), json("\"0:00\"", "2024-03-09T00:00:00", kOnTime, false));
}

TEST(DriverTest, TwentyFourHourSettingDecidesATwoDigitClockTime) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser twentyFour = parserAt(kTen);
  twentyFour.setIs24DateFormat(true);
  EXPECT_EQ(parseWith(twentyFour, "09:30"), json("\"09:30\"", "2024-03-09T09:30:00", kOnTime, false));
  NLPNativeTitleParser twelve = parserAt(kTen);
  twelve.setIs24DateFormat(false);
  EXPECT_EQ(parseWith(twelve, "09:30"), json("\"09:30\"", "2024-03-08T21:30:00", kOnTime, false));
  // One digit before the colon is no clock form, whatever the setting.
  NLPNativeTitleParser again = parserAt(kTen);
  EXPECT_EQ(parseWith(again, "9:30"), json("\"9:30\"", "2024-03-08T21:30:00", kOnTime, false));
  // An hour written above 11 is tomorrow under both settings.
  NLPNativeTitleParser late = parserAt("2024-03-08T14:00:00");
  late.setIs24DateFormat(false);
  EXPECT_EQ(parseWith(late, "13:00"), json("\"13:00\"", "2024-03-09T13:00:00", kOnTime, false));
}

TEST(DriverTest, FlagWordWithoutAClockTimeReadsTheWrittenHour) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "meet at the office 9 o'clock"),
            json("\" 9 o'clock\"", "2024-03-08T21:00:00", kOnTime, false));
}

TEST(DriverTest, BaseDateGivesABareTimeItsDay) {
  ScopedTZ zone("UTC");
  // The roll's added day is lost under the base date's day.
  EXPECT_EQ(parseAt(kTen, "9 pm", "en", "2024-03-01T00:00:00"),
            json("\"9 pm\"", "2024-03-01T21:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "at 9", "en", "2024-03-20T00:00:00"),
            json("\"at 9\"", "2024-03-20T09:00:00", kOnTime, false));
  // Two additions of 12 leave hour 33 in the record; the base day is copied
  // under it, so the record still lands on the following morning.
  EXPECT_EQ(parseAt(kTen, "9 o'clock", "en", "2024-03-01T00:00:00"),
            json("\"9 o'clock\"", "2024-03-02T09:00:00", kOnTime, false));
  // A date in the title is not moved to the base date.
  EXPECT_EQ(parseAt(kTen, "friday at 9", "en", "2024-03-20T00:00:00"),
            json("\"at 9\",\"friday \"", "2024-03-22T09:00:00", kOnTime, false));
}

TEST(DriverTest, AdvanceReminderAloneStartsNow) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  EXPECT_TRUE(parser.englishDateRecognition(L"remind me 30 minutes early", std::nullopt,
                                            NLPTranslation::getTransKeyToValue(L"en"), false, L"en"));
  EXPECT_EQ(narrow(formatDateText(*parser.parserDueDate.startDate)), "2024-03-08T10:00:00");
}

TEST(DriverTest, WeekdayMergeKeepsTheTimeAndTakesTheDay) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "next monday at 9:15am"),
            json("\"at 9:15am\",\"next monday \"", "2024-03-11T09:15:00", kOnTime, false));
  // Across the end of the month: the time's record already carries the weekday's month.
  EXPECT_EQ(parseAt("2024-03-29T10:00:00", "next tuesday at 8pm"),
            json("\"at 8pm\",\"next tuesday \"", "2024-04-02T20:00:00", kOnTime, false));
}

TEST(DriverTest, MonthDateIsCutBeforeTheTime) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "march 15 at 3pm"),
            json("\"at 3pm\",\"march 15\"", "2024-03-15T15:00:00", kOnTime, false));
  // The day of the month is gone before the time stage, so it is not read as an hour.
  EXPECT_EQ(parseAt(kTen, "march 12 pm"), json("\"march 12\"", "2024-03-12T00:00:00", "", true));
}

TEST(DriverTest, NamedHourRollWaitsForANamedDayOrARepeat) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-08T13:00:00");
  Vocabulary en = NLPTranslation::getTransKeyToValue(L"en");
  TMPtr noon = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-08T12:00:00")));
  parser.rollNamedHour(noon.get(), L"lunch at noon", en);
  EXPECT_EQ(tmText(*noon), "2024-03-09T12:00:00");
  noon = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-08T12:00:00")));
  parser.rollNamedHour(noon.get(), L"lunch today at noon", en);
  EXPECT_EQ(tmText(*noon), "2024-03-08T12:00:00");
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=DAILY;INTERVAL=1";
  parser.rollNamedHour(noon.get(), L"lunch at noon", en);
  EXPECT_EQ(tmText(*noon), "2024-03-08T12:00:00");
}

TEST(DriverTest, BareTimeRollUnit) {
  ScopedTZ zone("UTC");
  Vocabulary en = NLPTranslation::getTransKeyToValue(L"en");
  auto roll = [&](const std::string& now, const std::string& time, const std::string& title, bool isFrench) {
    NLPNativeTitleParser parser = parserAt(now);
    TMPtr record = tmFromTimePoint(timePointFromSeconds(localSeconds(time)));
    parser.rollBareTime(record.get(), wide(title), en, isFrench);
    return tmText(*record);
  };
  EXPECT_EQ(roll(kTen, "2024-03-08T09:00:00", "9 o'clock", false), "2024-03-08T21:00:00");
  EXPECT_EQ(roll("2024-03-08T22:00:00", "2024-03-08T09:00:00", "9 o'clock", false), "2024-03-09T09:00:00");
  EXPECT_EQ(roll(kTen, "2024-03-08T09:00:00", "9 o'clock", true), "2024-03-09T09:00:00");
  EXPECT_EQ(roll(kTen, "2024-03-08T00:00:00", "0 o'clock", false), "2024-03-09T00:00:00");
  EXPECT_EQ(roll(kTen, "2024-03-08T09:00:00", "9 o'clock pm", false), "2024-03-09T09:00:00");
  // Flag word present: hour as written decides.
  EXPECT_EQ(roll(kTen, "2024-03-08T09:00:00", "meet at 9 o'clock", false), "2024-03-08T21:00:00");
  EXPECT_EQ(roll("2024-03-08T13:00:00", "2024-03-08T12:00:00", "meet at 12 o'clock", false), "2024-03-09T12:00:00");
  EXPECT_EQ(roll(kTen, "2024-03-08T09:00:00", "meet at 9 o'clock", true), "2024-03-09T09:00:00");
}

TEST(DriverTest, OtherLanguagesEndToEnd) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "завтра в 9", "ru"), json("\"в 9\",\"завтра \"", "2024-03-09T09:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "amanhã às 15", "pt"),
            json("\"às 15\",\"amanhã \"", "2024-03-09T15:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "내일 아침", "ko"), json("\" 아침\",\"내일 \"", "2024-03-09T09:00:00", kOnTime, false));
  EXPECT_EQ(parseAt(kTen, "明日 9時", "ja"), json("\" 9時\",\"明日 \"", "2024-03-09T09:00:00", kOnTime, false));
}

TEST(DriverTest, RepeatTextStandsAheadOfTimeAndDate) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kTen, "every monday at 9"),
            json("\"every monday \",\"at 9\"", "2024-03-11T09:00:00", kOnTime, false,
                 "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO"));
}

}  // namespace
}  // namespace nlpdate
