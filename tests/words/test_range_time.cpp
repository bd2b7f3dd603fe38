// Word-language ranges: the dispatcher's range-word gate and order, ranges of
// two clock times, and clock times behind an offset.
#include <gtest/gtest.h>

#include "test_range_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::RangeCall;
using testing::RangeFound;
using testing::rangeOf;
using testing::ScopedTZ;

const RangeCall kDispatch = [](NLPNativeTitleParser& p, const std::wstring& t, const Vocabulary& v) {
  return p.englishDateDurationRecognition(t, v);
};
const RangeCall kTime = [](NLPNativeTitleParser& p, const std::wstring& t, const Vocabulary& v) {
  return p.matchEnTimeDuration(t, v);
};
const RangeCall kAfter = [](NLPNativeTitleParser& p, const std::wstring& t, const Vocabulary& v) {
  return p.matchEnAfterDuration(t, v);
};

RangeFound timeAt(const std::string& now, const std::string& title, bool is24 = true) {
  NLPNativeTitleParser parser = parserAt(now);
  parser.setIs24DateFormat(is24);
  return rangeOf(parser, kTime, title);
}

TEST(RangeDispatchTest, ATitleWithoutARangeWordGivesNothingWhateverItHolds) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  EXPECT_FALSE(rangeOf(parser, kDispatch, "monday 9am wednesday 5pm 2024/03/05").present);
}

TEST(RangeDispatchTest, ARangeWordInsideALongerWordLetsTheRecognisersRunAndNoneMatches) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  EXPECT_FALSE(rangeOf(parser, kDispatch, "tomorrow meeting").present);
  EXPECT_FALSE(rangeOf(parser, kDispatch, "untilted doc 3pm").present);
}

TEST(RangeDispatchTest, DatesComeBeforeClockTimes) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-02-01T10:00:00");
  RangeFound found = rangeOf(parser, kDispatch, "hackathon 2024-03-05 09:00 - 2024-03-06 17:00");
  ASSERT_TRUE(found.present);
  EXPECT_EQ(found.text, "2024-03-05 09:00 - 2024-03-06 17:00");
  EXPECT_EQ(found.position, 10);
  EXPECT_EQ(found.start, "2024-03-05T09:00:00");
  EXPECT_EQ(found.end, "2024-03-06T17:00:00");
}

TEST(RangeTimeTest, AStartPastWithAmMovesToTomorrowAndTheEndFollows) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-03-13T10:00:00", "meet 9am-11am");
  ASSERT_TRUE(found.present);
  EXPECT_EQ(found.text, " 9am-11am");
  EXPECT_EQ(found.start, "2024-03-14T09:00:00");
  EXPECT_EQ(found.end, "2024-03-14T11:00:00");
  EXPECT_EQ(found.reminder, "TRIGGER:-PT0S");
}

TEST(RangeTimeTest, AClockBeforeTheRangeKeepsToday) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-03-13T08:00:00", "meet 9am-11am");
  EXPECT_EQ(found.start, "2024-03-13T09:00:00");
  EXPECT_EQ(found.end, "2024-03-13T11:00:00");
}

TEST(RangeTimeTest, AClockAfterTheRangeMovesBothToTomorrow) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-03-13T12:00:00", "meet 9am-11am");
  EXPECT_EQ(found.start, "2024-03-14T09:00:00");
  EXPECT_EQ(found.end, "2024-03-14T11:00:00");
}

TEST(RangeTimeTest, TwelveAmIsTheMidnightClosingTheDay) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-03-13T10:00:00", "party 1pm-12am");
  EXPECT_EQ(found.start, "2024-03-13T13:00:00");
  EXPECT_EQ(found.end, "2024-03-14T00:00:00");
}

TEST(RangeTimeTest, ABareNineIsNoClockTimeSoNoTimeRangeIsRead) {
  ScopedTZ zone("UTC");
  EXPECT_FALSE(timeAt("2024-03-13T10:00:00", "call 9-11", false).present);
}

TEST(RangeTimeTest, TwoDigitClocksOnA24HourClockMoveBothToTheNextDay) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-03-13T16:00:00", "review 14:30-15:30", true);
  EXPECT_EQ(found.start, "2024-03-14T14:30:00");
  EXPECT_EQ(found.end, "2024-03-14T15:30:00");
}

TEST(RangeTimeTest, OnA12HourClockAPastBareClockTakesTwelveHoursMore) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-03-13T16:00:00", "review 14:30-15:30", false);
  EXPECT_EQ(found.start, "2024-03-14T02:30:00");
  EXPECT_EQ(found.end, "2024-03-14T03:30:00");
  RangeFound afternoon = timeAt("2024-03-13T10:00:00", "review 2:30-3:30", false);
  EXPECT_EQ(afternoon.start, "2024-03-13T14:30:00");
  EXPECT_EQ(afternoon.end, "2024-03-13T15:30:00");
}

TEST(RangeTimeTest, AnEndBeforeTheStartMovesADayEvenAcrossTheYear) {
  ScopedTZ zone("UTC");
  RangeFound found = timeAt("2024-12-31T12:00:00", "shift 11pm-1am");
  EXPECT_EQ(found.start, "2024-12-31T23:00:00");
  EXPECT_EQ(found.end, "2025-01-01T01:00:00");
}

TEST(RangeTimeTest, OtherLanguagesJoinWithTheirOwnRangeWord) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T08:00:00");
  for (const auto& [title, language] : std::vector<std::pair<std::string, std::string>>{
           {"reunião 9am até 11am", "pt"}, {"встреча 9am до 11am", "ru"}, {"会議 9am から 11am", "ja"}}) {
    RangeFound found = rangeOf(parser, kTime, title, language);
    ASSERT_TRUE(found.present) << title;
    EXPECT_EQ(found.start, "2024-03-13T09:00:00") << title;
    EXPECT_EQ(found.end, "2024-03-13T11:00:00") << title;
  }
}

TEST(RangeAfterTest, InThreeDaysGivesThatDayAtTheClockTimes) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  RangeFound found = rangeOf(parser, kAfter, "gym in 3 days 9am-10am");
  ASSERT_TRUE(found.present);
  EXPECT_EQ(found.text, "in 3 days 9am-10am");
  EXPECT_EQ(found.start, "2024-03-16T09:00:00");
  EXPECT_EQ(found.end, "2024-03-16T10:00:00");
  EXPECT_TRUE(parser.parserDueDate.reminder.empty());
}

TEST(RangeAfterTest, ANumberWordWorksWithLaterAndNotWithIn) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  RangeFound later = rangeOf(parser, kAfter, "two hours later 3pm-4pm");
  ASSERT_TRUE(later.present);
  EXPECT_EQ(later.start, "2024-03-13T15:00:00");
  EXPECT_EQ(later.end, "2024-03-13T16:00:00");
  // An offset of hours asks for a reminder at once.
  EXPECT_EQ(parser.parserDueDate.reminder.size(), 1u);
  EXPECT_FALSE(rangeOf(parser, kAfter, "in two hours 3pm-4pm").present);
}

TEST(RangeAfterTest, BareHoursDoNotReadAsClockTimes) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  EXPECT_FALSE(rangeOf(parser, kAfter, "two hours later 3-4").present);
}

TEST(RangeAfterTest, TwelvePmReadsTwentyFourAndRollsIntoTheNextDay) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  RangeFound found = rangeOf(parser, kAfter, "gym in 1 day 12pm-1pm");
  EXPECT_EQ(found.start, "2024-03-15T00:00:00");
  EXPECT_EQ(found.end, "2024-03-15T13:00:00");
}

}  // namespace
}  // namespace nlpdate
