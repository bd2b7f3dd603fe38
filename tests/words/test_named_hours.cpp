// Named hours in word-language titles: fixed hours and the four day parts
// that step forward by whole hours while they lie in the past.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

using testing::narrow;
using testing::parseAt;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

struct HourRun {
  bool present = false;
  std::string time;
  std::vector<std::string> recognized;
  size_t reminders = 0;
};

HourRun namedHourIn(NLPNativeTitleParser& parser, const std::string& title, const std::string& language = "en") {
  TMPtr calendar = parser.getDefaultTM();
  OptTM found =
      parser.matchSpecialEnTime(wide(title), calendar.get(), NLPTranslation::getTransKeyToValue(wide(language)));
  HourRun run;
  for (const std::wstring& text : parser.parserDueDate.recognizeStrings) run.recognized.push_back(narrow(text));
  run.reminders = parser.parserDueDate.reminder.size();
  if (found) {
    run.present = true;
    run.time = tmText(**found);
  }
  return run;
}

HourRun namedHourAt(const std::string& now, const std::string& title, const std::string& language = "en") {
  NLPNativeTitleParser parser = parserAt(now);
  return namedHourIn(parser, title, language);
}

TEST(DayPartTest, MorningStepsAnHourAtATime) {
  ScopedTZ zone("UTC");
  HourRun early = namedHourAt("2024-03-08T07:00:00", "gym in the morning");
  EXPECT_EQ(early.time, "2024-03-08T09:00:00");
  EXPECT_EQ(early.recognized, std::vector<std::string>{" morning"});  // the blanks before it come along
  EXPECT_EQ(early.reminders, 1u);
  EXPECT_EQ(namedHourAt("2024-03-08T10:30:00", "morning").time, "2024-03-08T11:00:00");
  EXPECT_EQ(namedHourAt("2024-03-08T12:30:00", "morning").time, "2024-03-09T09:00:00");
}

TEST(DayPartTest, EveningStopsAtItsLimit) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(namedHourAt("2024-03-08T18:20:00", "evening").time, "2024-03-08T19:00:00");
  EXPECT_EQ(namedHourAt("2024-03-08T19:30:00", "evening").time, "2024-03-09T17:00:00");
}

TEST(DayPartTest, NightCanReachHourTwentyFour) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(namedHourAt("2024-03-08T23:10:00", "night").time, "2024-03-09T00:00:00");
  NLPNativeTitleParser parser = parserAt("2024-03-08T23:20:00");
  parser.setCustomizeHour(9, 0, 13, 0, 17, 0, 20, 15);
  EXPECT_EQ(namedHourIn(parser, "night").time, "2024-03-09T00:15:00");
  NLPNativeTitleParser earlier = parserAt("2024-03-08T23:10:00");
  earlier.setCustomizeHour(9, 0, 13, 0, 17, 0, 20, 15);
  EXPECT_EQ(namedHourIn(earlier, "night").time, "2024-03-08T23:15:00");
}

TEST(DayPartTest, StepKeepsTheDefaultMinute) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:40:00");
  parser.setCustomizeHour(9, 30, 13, 0, 17, 0, 20, 0);
  EXPECT_EQ(namedHourIn(parser, "morning").time, "2024-03-08T11:30:00");
}

TEST(DayPartTest, DefaultAtOrAboveTheLimitGoesStraightToTomorrow) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-08T18:00:00");
  parser.setCustomizeHour(9, 0, 13, 0, 17, 30, 20, 0);
  // evening at 17:30 steps to 18:30 and 19:30 would pass the limit: 18:30 is ahead.
  EXPECT_EQ(namedHourIn(parser, "evening").time, "2024-03-08T18:30:00");
  NLPNativeTitleParser late = parserAt("2024-03-08T19:00:00");
  late.setCustomizeHour(9, 0, 18, 0, 17, 0, 20, 0);
  EXPECT_EQ(namedHourIn(late, "afternoon").time, "2024-03-09T18:00:00");
}

TEST(DayPartTest, AfternoonAndAtWord) {
  ScopedTZ zone("UTC");
  HourRun run = namedHourAt("2024-03-08T10:00:00", "call at afternoon");
  EXPECT_EQ(run.time, "2024-03-08T13:00:00");
  EXPECT_EQ(run.recognized, std::vector<std::string>{"at afternoon"});
}

TEST(FixedHourTest, NoonDoesNotRollHere) {
  ScopedTZ zone("UTC");
  HourRun run = namedHourAt("2024-03-08T13:00:00", "lunch at noon");
  EXPECT_EQ(run.time, "2024-03-08T12:00:00");
  EXPECT_EQ(run.recognized, std::vector<std::string>{"at noon"});
  EXPECT_EQ(namedHourAt("2024-03-08T13:00:00", "midday").time, "2024-03-08T12:00:00");
  EXPECT_EQ(namedHourAt("2024-03-08T10:00:00", "supper").time, "2024-03-08T18:00:00");
  EXPECT_EQ(namedHourAt("2024-03-08T10:00:00", "brunch").time, "2024-03-08T10:00:00");
}

TEST(FixedHourTest, TonightFollowsTheNightSettingAndMidnightIsTheRecordsDay) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(namedHourAt("2024-03-08T10:00:00", "tonight").time, "2024-03-08T20:00:00");
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
  parser.setCustomizeHour(9, 0, 13, 0, 17, 0, 22, 30);
  EXPECT_EQ(namedHourIn(parser, "tonight").time, "2024-03-08T22:30:00");
  EXPECT_EQ(namedHourAt("2024-03-08T10:00:00", "midnight").time, "2024-03-08T00:00:00");
}

TEST(FixedHourTest, BaseDateGivesTheDay) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
  parser.baseDate = timePointFromSeconds(testing::localSeconds("2024-04-02T00:00:00"));
  EXPECT_EQ(namedHourIn(parser, "supper").time, "2024-04-02T18:00:00");
}

TEST(NamedHourTest, NothingFound) {
  ScopedTZ zone("UTC");
  HourRun run = namedHourAt("2024-03-08T10:00:00", "call mom");
  EXPECT_FALSE(run.present);
  EXPECT_TRUE(run.recognized.empty());
  EXPECT_EQ(run.reminders, 0u);
}

TEST(NamedHourTest, OtherLanguages) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(namedHourAt("2024-03-08T07:00:00", "朝ごはん", "ja").time, "2024-03-08T09:00:00");
  HourRun pt = namedHourAt("2024-03-08T07:00:00", "correr de manhã", "pt");
  EXPECT_EQ(pt.time, "2024-03-08T09:00:00");
  EXPECT_EQ(pt.recognized, std::vector<std::string>{"de manhã"});
  EXPECT_EQ(namedHourAt("2024-03-08T07:00:00", "пробежка утром", "ru").time, "2024-03-08T09:00:00");
  EXPECT_EQ(namedHourAt("2024-03-08T07:00:00", "déjeuner à midi", "fr").time, "2024-03-08T12:00:00");
  EXPECT_EQ(namedHourAt("2024-03-08T07:00:00", "아침 운동", "ko").time, "2024-03-08T09:00:00");
}

TEST(SpecialHourMapTest, SortedByPatternText) {
  NLPNativeTitleParser parser;
  parser.setCustomizeHour(9, 0, 13, 0, 17, 0, 21, 45);
  auto map = parser.getEnSpecialHourMap(NLPTranslation::getTransKeyToValue(L"en"));
  std::vector<std::string> keys;
  for (const auto& entry : map) keys.push_back(narrow(entry.first));
  EXPECT_EQ(keys, (std::vector<std::string>{"(at)?\\s*\\bbrunch\\b", "(at)?\\s*\\bmidnight\\b",
                                            "(at)?\\s*\\bnoon\\b|\\bmidday\\b", "(at)?\\s*\\bsupper\\b",
                                            "(at)?\\s*\\btonight\\b"}));
  EXPECT_EQ(map[L"(at)?\\s*\\btonight\\b"], std::make_pair(21, 45));
  EXPECT_EQ(map[L"(at)?\\s*\\bbrunch\\b"], std::make_pair(10, 0));
}

TEST(NamedHourEndToEndTest, NoonThatHasPassedIsTomorrowUnlessADayIsNamed) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T13:00:00", "lunch at noon"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at noon\"],\"startDate\":\"2024-03-09T12:00:00\","
            "\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}");
  EXPECT_EQ(parseAt("2024-03-08T13:00:00", "lunch today at noon"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at noon\",\"today \"],"
            "\"startDate\":\"2024-03-08T12:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
}

}  // namespace
}  // namespace nlpdate
