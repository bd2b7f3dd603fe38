// Word-language ranges between weekdays, with and without clock times.
#include <gtest/gtest.h>

#include "test_range_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::RangeCall;
using testing::RangeFound;
using testing::rangeOf;
using testing::ScopedTZ;

const RangeCall kWeekDays = [](NLPNativeTitleParser& p, const std::wstring& t, const Vocabulary& v) {
  return p.matchEnWeekDayDuration(t, v);
};

// 2024-03-13 is a Wednesday.
RangeFound weekAt(const std::string& title, WeekDay firstDay = Sunday, const std::string& language = "en",
                  const std::string& now = "2024-03-13T10:00:00") {
  NLPNativeTitleParser parser = parserAt(now);
  parser.setStartDay(firstDay);
  return rangeOf(parser, kWeekDays, title, language);
}

TEST(RangeWeekDaysTest, WithoutASecondDayTheRangeLiesInsideMonday) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("monday 9am to 5pm", Sunday, "en", "2024-03-11T08:00:00");
  EXPECT_EQ(found.start, "2024-03-11T09:00:00");
  EXPECT_EQ(found.end, "2024-03-11T17:00:00");
  EXPECT_EQ(found.reminder, "TRIGGER:-PT0S");
}

TEST(RangeWeekDaysTest, FridayToMondayEndsInTheFollowingWeek) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("friday to monday", Sunday, "en", "2024-03-11T08:00:00");
  EXPECT_EQ(found.start, "2024-03-15T08:00:00");
  EXPECT_EQ(found.end, "2024-03-18T08:00:00");
  EXPECT_EQ(found.reminder, "");
}

TEST(RangeWeekDaysTest, NextOnTheFirstDayMovesTheStartAndTheRollKeepsTheEndAfterIt) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("next monday to wednesday");
  EXPECT_EQ(found.start, "2024-03-18T10:00:00");
  EXPECT_EQ(found.end, "2024-03-20T10:00:00");
}

TEST(RangeWeekDaysTest, NextOnTheSecondDayMovesOnlyTheEnd) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("monday to next wednesday");
  EXPECT_EQ(found.start, "2024-03-11T10:00:00");
  EXPECT_EQ(found.end, "2024-03-20T10:00:00");
}

TEST(RangeWeekDaysTest, LastIsNotRolledForward) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("last monday to wednesday");
  EXPECT_EQ(found.start, "2024-03-04T10:00:00");
  EXPECT_EQ(found.end, "2024-03-13T10:00:00");
}

TEST(RangeWeekDaysTest, ARangeOverThisWeekWithoutWordsMovesAWeekAhead) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("mon to tue");
  EXPECT_EQ(found.start, "2024-03-18T10:00:00");
  EXPECT_EQ(found.end, "2024-03-19T10:00:00");
}

TEST(RangeWeekDaysTest, AWordAfterTheFirstDayStopsTheWeekWordsWithoutAddingAWeek) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("monday next to wednesday");
  EXPECT_EQ(found.start, "2024-03-11T10:00:00");
  EXPECT_EQ(found.end, "2024-03-13T10:00:00");
}

TEST(RangeWeekDaysTest, WithTimesTheWordAfterTheDayCounts) {
  ScopedTZ zone("UTC");
  RangeFound found = weekAt("monday next 9am to 5pm");
  EXPECT_EQ(found.start, "2024-03-18T09:00:00");
  // The end, a copy of Monday, is then before the start and moves a week as well.
  EXPECT_EQ(found.end, "2024-03-18T17:00:00");
}

TEST(RangeWeekDaysTest, TheFirstWeekdayPlacesTheDays) {
  ScopedTZ zone("UTC");
  RangeFound sunday = weekAt("last sun - mon", Sunday);
  EXPECT_EQ(sunday.start, "2024-03-03T10:00:00");
  EXPECT_EQ(sunday.end, "2024-03-11T10:00:00");
  RangeFound monday = weekAt("last sun - mon", Monday);
  EXPECT_EQ(monday.start, "2024-03-10T10:00:00");
  EXPECT_EQ(monday.end, "2024-03-11T10:00:00");
  RangeFound saturday = weekAt("last sun - mon", Saturday);
  EXPECT_EQ(saturday.start, "2024-03-03T10:00:00");
  EXPECT_EQ(saturday.end, "2024-03-11T10:00:00");
}

TEST(RangeWeekDaysTest, OtherLanguagesUseTheirDayNamesAndRangeWords) {
  ScopedTZ zone("UTC");
  for (const auto& [title, language] : std::vector<std::pair<std::string, std::string>>{
           {"réunion lundi - mercredi", "fr"},
           {"viagem segunda até quarta", "pt"},
           {"встреча понедельник до среда", "ru"},
           {"会議 月曜日 から 水曜日", "ja"}}) {
    RangeFound found = weekAt(title, Sunday, language);
    ASSERT_TRUE(found.present) << title;
    EXPECT_EQ(found.start, "2024-03-11T10:00:00") << title;
    EXPECT_EQ(found.end, "2024-03-13T10:00:00") << title;
  }
}

}  // namespace
}  // namespace nlpdate
