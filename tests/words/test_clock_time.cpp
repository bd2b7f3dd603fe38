// Clock times in word-language titles: the at-time, compact and list
// families, am/pm reading and the handling of a time that has passed.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::narrow;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

const char* const kTen = "2024-03-08T10:00:00";  // a Friday

struct TimeRun {
  bool present = false;
  std::string time;
  std::vector<std::string> recognized;
  size_t reminders = 0;
};

TimeRun collect(NLPNativeTitleParser& parser, const OptTM& found) {
  TimeRun run;
  for (const std::wstring& text : parser.parserDueDate.recognizeStrings) run.recognized.push_back(narrow(text));
  run.reminders = parser.parserDueDate.reminder.size();
  if (!found) return run;
  run.present = true;
  run.time = tmText(**found);
  return run;
}

// matchEnTime on the default day, as the driver calls it for a title with no date.
TimeRun timeAt(const std::string& now, const std::string& title, const std::string& language = "en",
               bool isFrench = false) {
  NLPNativeTitleParser parser = parserAt(now);
  TMPtr calendar = parser.getDefaultTM();
  OptTM found = parser.matchEnTime(wide(title), calendar.get(), NLPTranslation::getTransKeyToValue(wide(language)),
                                   false, isFrench);
  return collect(parser, found);
}

// matchEnTime on a given date.
TimeRun timeOnDate(const std::string& now, const std::string& date, const std::string& title) {
  NLPNativeTitleParser parser = parserAt(now);
  TMPtr calendar = tmFromTimePoint(timePointFromSeconds(localSeconds(date)));
  OptTM found = parser.matchEnTime(wide(title), calendar.get(), NLPTranslation::getTransKeyToValue(L"en"), true,
                                   false);
  EXPECT_EQ(tmText(*calendar), date) << "the calendar handed in stays as it was";
  return collect(parser, found);
}

TimeRun timeWithWeeklyRule(const std::string& now, const std::string& title, std::list<WeekDay> days) {
  NLPNativeTitleParser parser = parserAt(now);
  StringRRule rule;
  rule.setFreq(NLPFrequency::WEEKLY);
  std::list<NLPWeekdayNum> byDay;
  for (WeekDay day : days) byDay.emplace_back(0, day);
  rule.setByDay(byDay);
  parser.parserDueDate.repeatRule = rule;
  TMPtr calendar = parser.getDefaultTM();
  OptTM found =
      parser.matchEnTime(wide(title), calendar.get(), NLPTranslation::getTransKeyToValue(L"en"), false, false);
  return collect(parser, found);
}

TEST(AtTimeTest, PmWordSetsTheHourWithNoRoll) {
  ScopedTZ zone("UTC");
  TimeRun run = timeAt("2024-03-08T18:00:00", "at 5pm");
  ASSERT_TRUE(run.present);
  EXPECT_EQ(run.time, "2024-03-08T17:00:00");
  EXPECT_EQ(run.recognized, std::vector<std::string>{"at 5pm"});
  EXPECT_EQ(run.reminders, 2u);  // ON_TIME once on the match and once at the end
}

TEST(AtTimeTest, TwelveAmAndTwelvePm) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "at 12am").time, "2024-03-08T00:00:00");
  EXPECT_EQ(timeAt(kTen, "at 12pm").time, "2024-03-08T12:00:00");
  EXPECT_EQ(timeAt(kTen, "@ 7:45 p.m.").time, "2024-03-08T19:45:00");
}

TEST(AtTimeTest, BareHourThatHasPassedGoesToPmOrTomorrow) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "at 9").time, "2024-03-08T21:00:00");
  EXPECT_EQ(timeAt("2024-03-08T22:00:00", "at 9").time, "2024-03-09T09:00:00");
  EXPECT_EQ(timeAt(kTen, "at 11").time, "2024-03-08T11:00:00");  // still ahead: as written
}

TEST(AtTimeTest, TwoDigitClockFormThatHasPassedIsTomorrow) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "at 09:30").time, "2024-03-09T09:30:00");
  EXPECT_EQ(timeAt(kTen, "at 9:30").time, "2024-03-08T21:30:00");
}

TEST(AtTimeTest, TwelveAndZeroThatHavePassedAreTomorrow) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt("2024-03-08T13:00:00", "at 12").time, "2024-03-09T12:00:00");
  EXPECT_EQ(timeAt(kTen, "at 0").time, "2024-03-09T00:00:00");
  EXPECT_EQ(timeAt("2024-03-08T15:00:00", "at 14").time, "2024-03-09T14:00:00");
}

TEST(AtTimeTest, OnADate) {
  ScopedTZ zone("UTC");
  TimeRun run = timeOnDate(kTen, "2024-03-20T00:00:00", "dentist on 4pm");
  EXPECT_EQ(run.time, "2024-03-20T16:00:00");
  EXPECT_EQ(run.recognized, std::vector<std::string>{"on 4pm"});
}

TEST(AtTimeTest, FrenchKeepsTheHourAsWritten) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "à 9 pm", "fr", true).time, "2024-03-08T09:00:00");
  EXPECT_EQ(timeAt(kTen, "à 9 pm", "fr", true).recognized, std::vector<std::string>{"à 9 pm"});
}

TEST(AtTimeTest, OtherLanguages) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "встреча в 15", "ru").time, "2024-03-08T15:00:00");
  EXPECT_EQ(timeAt(kTen, "reunião às 16", "pt").time, "2024-03-08T16:00:00");
}

TEST(AtTimeTest, WeeklyRuleMovesAPassedTimeToAListedDayOrToPm) {
  ScopedTZ zone("UTC");
  // Friday 22:00: 9 and 21 have both passed, so the next Monday or Wednesday.
  EXPECT_EQ(timeWithWeeklyRule("2024-03-08T22:00:00", "at 9", {Monday, Wednesday}).time, "2024-03-11T09:00:00");
  // Friday 10:00: 21:00 today is still ahead.
  EXPECT_EQ(timeWithWeeklyRule(kTen, "at 9", {Monday, Wednesday}).time, "2024-03-08T21:00:00");
  // An afternoon hour goes to the next listed day, at least one day on.
  EXPECT_EQ(timeWithWeeklyRule("2024-03-08T14:00:00", "at 13", {Monday, Wednesday}).time, "2024-03-11T13:00:00");
  EXPECT_EQ(timeWithWeeklyRule("2024-03-08T14:00:00", "at 13", {Friday}).time, "2024-03-15T13:00:00");
  EXPECT_EQ(timeWithWeeklyRule("2024-03-08T22:00:00", "at 9", {Friday, Saturday}).time, "2024-03-09T09:00:00");
}

TEST(AtTimeTest, WeeklyRulePmTodayIsTakenEvenOnAnUnlistedDay) {
  ScopedTZ zone("UTC");
  // Saturday 10:00 with a rule on work days: 21:00 still lies ahead, so the
  // pm reading wins before the listed days are looked at.
  const std::list<WeekDay> workDays = {Monday, Tuesday, Wednesday, Thursday, Friday};
  EXPECT_EQ(timeWithWeeklyRule("2024-03-09T10:00:00", "at 9", workDays).time, "2024-03-09T21:00:00");
  // Saturday 22:00: both readings have passed, so the next work day.
  EXPECT_EQ(timeWithWeeklyRule("2024-03-09T22:00:00", "at 9", workDays).time, "2024-03-11T09:00:00");
  // A rule that is not weekly leaves the passed time to the overdue rules.
  NLPNativeTitleParser parser = parserAt("2024-03-09T22:00:00");
  StringRRule daily;
  daily.setFreq(NLPFrequency::DAILY);
  parser.parserDueDate.repeatRule = daily;
  TMPtr calendar = parser.getDefaultTM();
  OptTM found = parser.matchEnTime(L"at 9", calendar.get(), NLPTranslation::getTransKeyToValue(L"en"), false, false);
  EXPECT_EQ(tmText(*found.value()), "2024-03-10T09:00:00");
}

TEST(CompactTimeTest, FourDigitsWithAnAmWord) {
  ScopedTZ zone("UTC");
  TimeRun run = timeAt(kTen, "930am");
  EXPECT_EQ(run.time, "2024-03-08T09:30:00");
  EXPECT_EQ(run.recognized, std::vector<std::string>{"930am"});
  EXPECT_EQ(timeAt(kTen, "1230am").time, "2024-03-08T00:30:00");
  EXPECT_EQ(timeAt(kTen, "1230pm").time, "2024-03-08T12:30:00");
  EXPECT_EQ(timeAt(kTen, "call 7.15 pm").time, "2024-03-08T19:15:00");
}

TEST(ListTimeTest, DigitsWithAmOrPm) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "2 pm").time, "2024-03-08T14:00:00");
  EXPECT_EQ(timeAt(kTen, "12 am").time, "2024-03-08T00:00:00");
  EXPECT_EQ(timeAt(kTen, "12 pm").time, "2024-03-08T12:00:00");
  EXPECT_EQ(timeAt(kTen, "7:05am").time, "2024-03-08T07:05:00");
}

TEST(ListTimeTest, ClockFormKeepsABareHour) {
  ScopedTZ zone("UTC");
  TimeRun run = timeAt(kTen, "09:30");
  EXPECT_EQ(run.time, "2024-03-08T09:30:00");  // left for the driver to settle
  EXPECT_EQ(run.recognized, std::vector<std::string>{"09:30"});
  EXPECT_EQ(timeAt(kTen, "18:45").time, "2024-03-08T18:45:00");
}

TEST(ListTimeTest, TonightWithNoClockWordMatchesNothing) {
  ScopedTZ zone("UTC");
  TimeRun run = timeAt(kTen, "meet 7 tonight");
  EXPECT_FALSE(run.present);
  EXPECT_TRUE(run.recognized.empty());
  EXPECT_EQ(run.reminders, 0u);
}

TEST(ListTimeTest, HourWordsWithTheClockWord) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "seven o'clock").time, "2024-03-08T07:00:00");
  EXPECT_EQ(timeAt(kTen, "seven o'clock 5").time, "2024-03-08T07:05:00");
  EXPECT_EQ(timeAt(kTen, "seventeen o'clock").time, "2024-03-08T17:00:00");
  EXPECT_EQ(timeAt(kTen, "two pm").time, "2024-03-08T14:00:00");
  EXPECT_EQ(timeAt(kTen, "5 o'clock").time, "2024-03-08T05:00:00");
}

TEST(ListTimeTest, DayPartWordAnywhereInTheTitle) {
  ScopedTZ zone("UTC");
  TimeRun pm = timeAt(kTen, "5 o'clock afternoon");
  EXPECT_EQ(pm.time, "2024-03-08T17:00:00");
  EXPECT_EQ(pm.recognized, (std::vector<std::string>{"afternoon", "5 o'clock "}));
  // Both kinds of word: the pm reading wins.
  TimeRun both = timeAt(kTen, "5 o'clock morning night");
  EXPECT_EQ(both.time, "2024-03-08T17:00:00");
  EXPECT_EQ(both.recognized, (std::vector<std::string>{"morning", "night", "5 o'clock "}));
  EXPECT_EQ(timeAt(kTen, "morning 11 o'clock").time, "2024-03-08T11:00:00");
}

TEST(ListTimeTest, FrenchStoresTheHourWithNoAmPmLogic) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "9 pm", "fr", true).time, "2024-03-08T09:00:00");
  EXPECT_EQ(timeAt(kTen, "demain 9h", "fr", true).time, "2024-03-08T09:00:00");
}

TEST(ListTimeTest, JapaneseClockWordAndAfternoonWord) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(timeAt(kTen, "9時", "ja").time, "2024-03-08T09:00:00");
  TimeRun run = timeAt(kTen, "午後3時", "ja");
  EXPECT_EQ(run.time, "2024-03-08T15:00:00");
  EXPECT_EQ(run.recognized, (std::vector<std::string>{"午後", "3時"}));
}

TEST(ListTimeTest, PassedTimeOnAnEarlierBaseDayMovesADay) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  parser.baseDate = timePointFromSeconds(localSeconds("2024-03-01T00:00:00"));
  TMPtr calendar = parser.getDefaultTM();
  Vocabulary en = NLPTranslation::getTransKeyToValue(L"en");
  EXPECT_EQ(tmText(*parser.matchEnTime(L"5 pm", calendar.get(), en, false, false).value()), "2024-03-02T17:00:00");
  // Hour 0 does not move.
  EXPECT_EQ(tmText(*parser.matchEnTime(L"12 am", calendar.get(), en, false, false).value()), "2024-03-01T00:00:00");
  // A bare hour below 12 is left to the driver.
  EXPECT_EQ(tmText(*parser.matchEnTime(L"9:15", calendar.get(), en, false, false).value()), "2024-03-01T09:15:00");
}

TEST(ListTimeTest, DateOfTheRepeatStageWins) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  parser.parserDueDate.startDate = timePointFromSeconds(localSeconds("2024-03-20T08:00:00"));
  TMPtr calendar = parser.getDefaultTM();
  OptTM found = parser.matchEnTime(L"5 pm", calendar.get(), NLPTranslation::getTransKeyToValue(L"en"), true, false);
  EXPECT_EQ(tmText(*found.value()), "2024-03-20T17:00:00");
}

TEST(ClockTimeTest, NothingFoundLeavesTheRecordAlone) {
  ScopedTZ zone("UTC");
  TimeRun run = timeAt(kTen, "call mom");
  EXPECT_FALSE(run.present);
  EXPECT_TRUE(run.recognized.empty());
  EXPECT_EQ(run.reminders, 0u);
}

TEST(AmPmToNumberTest, PmUnlessAnAmWord) {
  NLPNativeTitleParser parser;
  Vocabulary en = NLPTranslation::getTransKeyToValue(L"en");
  EXPECT_EQ(parser.ampmToNumber(L"", en), 1);
  EXPECT_EQ(parser.ampmToNumber(L"   ", en), 1);
  EXPECT_EQ(parser.ampmToNumber(L"PM", en), 1);
  EXPECT_EQ(parser.ampmToNumber(L" am ", en), 0);
  EXPECT_EQ(parser.ampmToNumber(L"a.m.", en), 0);
  EXPECT_EQ(parser.ampmToNumber(L"xyz", en), 1);
  EXPECT_EQ(parser.ampmToNumber(L"до полудня", NLPTranslation::getTransKeyToValue(L"ru")), 0);
}

TEST(AddOverdueTimeTest, LaterTodayBranch) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kTen);
  TMPtr record = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-08T09:00:00")));
  parser.addOverdueTime(record.get(), L"9", L"");
  EXPECT_EQ(tmText(*record), "2024-03-08T21:00:00");

  NLPNativeTitleParser late = parserAt("2024-03-08T22:00:00");
  record = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-08T09:00:00")));
  late.addOverdueTime(record.get(), L"9", L"");
  EXPECT_EQ(tmText(*record), "2024-03-09T09:00:00");

  // Both additions still in the past: the 24 hours come off again.
  record = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-01T09:00:00")));
  parser.addOverdueTime(record.get(), L"9", L"");
  EXPECT_EQ(tmText(*record), "2024-03-01T09:00:00");
}

TEST(AddOverdueTimeTest, NextDayBranch) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-08T13:00:00");
  TMPtr record = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-08T12:00:00")));
  parser.addOverdueTime(record.get(), L"12", L"");
  EXPECT_EQ(tmText(*record), "2024-03-09T12:00:00");
  record = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-08T08:30:00")));
  parser.addOverdueTime(record.get(), L"08", L"30");
  EXPECT_EQ(tmText(*record), "2024-03-09T08:30:00");
  // Still in the past a day later: the day comes off again.
  record = tmFromTimePoint(timePointFromSeconds(localSeconds("2024-03-01T12:00:00")));
  parser.addOverdueTime(record.get(), L"12", L"");
  EXPECT_EQ(tmText(*record), "2024-03-01T12:00:00");
}

TEST(TimePatternTest, EnglishTexts) {
  NLPNativeTitleParser parser;
  Vocabulary en = NLPTranslation::getTransKeyToValue(L"en");
  EXPECT_EQ(narrow(parser.getAtTimePattern(en)),
            "(@|\\bon|\\bat)\\s*(2[0-4]|[0-1]?[0-9])[:|：|\\.]?([0-5]?[0-9]|60)?\\s*"
            "(a\\.m\\.|am\\.|am\\b|a\\.|p\\.m\\.|pm\\.|pm\\b|p\\.)?(\\s|$)");
  EXPECT_EQ(narrow(parser.getAmPmPattern(en)),
            "(\\bmorning|\\bmidnight|\\bafternoon|\\bevening|\\bnight|\\btonight|\\bmidday|\\bnoon|[ap]\\.?m\\.?|"
            "早上|上午|中午|下午|傍晚|晚上|凌晨|午夜|半夜|明晚|早|晚\\bmorning|\\bmidnight|\\bafternoon|\\bevening|"
            "\\bnight|\\btonight|\\bnoon|midday|a\\.m\\.|am\\.|am\\b|a\\.|p\\.m\\.|pm\\.|pm\\b|p\\.)");
  std::vector<std::wstring> list = parser.getEnTimePattern(en);
  ASSERT_EQ(list.size(), 5u);
  EXPECT_EQ(narrow(list[1]), "(\\bon|\\bat)?\\s*((2[0-4]|[0-1]?[0-9])[:|：]([0-5][0-9]))(\\b)()\\s*");
  EXPECT_EQ(narrow(list[4]),
            "(\\bon|\\bat)?\\s*()(one|two|three|four|five|six|seven|eight|nine|ten|eleven|twelve|thirteen|"
            "fourteen|fifteen|sixteen|seventeen|eighteen|nineteen|twenty|twenty one|twenty two|twenty three|"
            "twenty four)\\s?(?:clock|o'clock)\\s*(\\d)?(?:minutes|minute|mins|min)?()()\\s*");
}

TEST(TimePatternTest, HourWordsKeepOneBarPerWordEvenWhenAWordIsMissing) {
  // Every one of the 24 hour words stands in the alternation, an empty one
  // as an empty alternative; a missing first word must not drop its bar.
  NLPNativeTitleParser parser;
  Vocabulary en = NLPTranslation::getTransKeyToValue(L"en");
  en.erase(ONE);
  std::vector<std::wstring> list = parser.getEnTimePattern(en);
  EXPECT_NE(narrow(list[3]).find("(\\b)(|two|three|"), std::string::npos) << narrow(list[3]);
  EXPECT_NE(narrow(list[4]).find("()(|two|three|"), std::string::npos) << narrow(list[4]);
  // With the empty alternative, an am/pm word alone reads as hour word "" (hour 0) through list pattern 4.
  ScopedTZ zone("UTC");
  NLPNativeTitleParser now = parserAt(kTen);
  TMPtr calendar = now.getDefaultTM();
  OptTM found = now.matchEnTime(L"call pm", calendar.get(), en, false, false);
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found), "2024-03-08T12:00:00");
  Vocabulary full = NLPTranslation::getTransKeyToValue(L"en");
  NLPNativeTitleParser other = parserAt(kTen);
  EXPECT_FALSE(other.matchEnTime(L"call pm", calendar.get(), full, false, false));
}

}  // namespace
}  // namespace nlpdate
