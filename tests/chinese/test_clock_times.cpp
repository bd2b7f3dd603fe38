// Chinese clock times as the recogniser reads them, before the driver's
// late corrections: the pattern lists, the last-chance pattern and the
// bare day-part words.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/pattern_kit.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class ClockTimes : public ::testing::Test {
 protected:
  ScopedTZ zone{"Asia/Shanghai"};
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");

  std::string time(const std::string& title) {
    std::optional<NLPRecognizeDate> lead;
    const auto found = parser.matchTime(lead, wide(title), std::nullopt, std::nullopt);
    if (!found) return "none";
    std::string text;
    for (const std::wstring& part : found->getRecogString()) text += narrow(part) + "|";
    return text + "@" + tmText(**found->getStartCal());
  }
};

}  // namespace

TEST_F(ClockTimes, EveryListHasFourPatternsOfEightGroups) {
  for (const auto& list : {parser.getMatchTimePattern(), parser.getMatchTimePatternOutClock(),
                           parser.getMatchTimePatternWithoutClockWord()}) {
    ASSERT_EQ(list.size(), 4u);
    for (const std::wstring& pattern : list) EXPECT_EQ(compilePattern(pattern).groupCount(), 8u);
  }
}

TEST_F(ClockTimes, OutClockPatternsReadBareNumbers) {
  PatternMatch match;
  const std::wstring title = L"5";
  ASSERT_TRUE(compilePattern(parser.getMatchTimePatternOutClock()[0]).search(title, match));
  EXPECT_EQ(match.str(3), L"5");
}

TEST_F(ClockTimes, DayPartWordsStandForTheirHours) {
  parser.setCustomizeHour(8, 30, 14, 0, 18, 0, 21, 0);
  const auto hours = parser.getSpecialHourMap();
  EXPECT_EQ(hours.at(L"上午"), std::make_pair(8, 30));
  EXPECT_EQ(hours.at(L"下午"), std::make_pair(14, 0));
  EXPECT_EQ(hours.at(L"傍晚"), std::make_pair(18, 0));
  EXPECT_EQ(hours.at(L"晚上"), std::make_pair(21, 0));
  EXPECT_EQ(hours.at(L"半夜"), std::make_pair(26, 0));
  EXPECT_EQ(hours.at(L"明晚"), std::make_pair(45, 0));
  EXPECT_EQ(hours.size(), 13u);
}

TEST_F(ClockTimes, BareHourPastIsReadInTheAfternoon) { EXPECT_EQ(time("3点"), "3点|@2024-03-13T15:00:00"); }

TEST_F(ClockTimes, NoonWordLiftsEarlyHours) { EXPECT_EQ(time("中午1点"), "中午1点|中午|@2024-03-13T13:00:00"); }

TEST_F(ClockTimes, TwelveAtNightIsNextMidnight) {
  EXPECT_EQ(time("晚上12点"), "晚上12点|晚上|@2024-03-14T00:00:00");
}

TEST_F(ClockTimes, ColonWithoutMinutesIsNoTime) { EXPECT_EQ(time("5:"), "none"); }

TEST_F(ClockTimes, LastChanceReadsAmAndPm) {
  EXPECT_EQ(time("3pm"), "3pm|@2024-03-13T15:00:00");
  EXPECT_EQ(time("15pm"), "15pm|@2024-03-13T15:00:00");
  EXPECT_EQ(time("15am"), "15am|@2024-03-13T03:00:00");
}

TEST_F(ClockTimes, LeadDateGivesTheDayAndIsNeverRolled) {
  std::optional<NLPRecognizeDate> lead = parser.matchTodayAndSoOn(L"明天8点");
  const auto found = parser.matchTime(lead, L"明天8点", std::nullopt, std::nullopt);
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found->getStartCal()), "2024-03-14T08:00:00");
}

TEST_F(ClockTimes, RepeatDateGivesTheDayAndKeepsTheTime) {
  std::optional<NLPRecognizeDate> lead;
  TMPtr repeat = parser.getDefaultTM();
  repeat->tm_mday += 2;
  const auto found = parser.matchTime(lead, L"早上8点", std::nullopt, OptTM(repeat));
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found->getStartCal()), "2024-03-15T08:00:00");
}

TEST_F(ClockTimes, SpecialTimeWordsTakeTheirHours) {
  const auto midnight = parser.matchSpecialTime(L"半夜起来");
  ASSERT_TRUE(midnight);
  EXPECT_EQ(tmText(**midnight->getStartCal()), "2024-03-14T02:00:00");
  EXPECT_EQ(narrow(midnight->getReminder()), "TRIGGER:-PT0S");
  EXPECT_FALSE(parser.matchSpecialTime(L"早饭"));
}
