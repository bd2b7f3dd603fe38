// Word-language ranges written with month names.
#include <gtest/gtest.h>

#include "test_range_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::RangeCall;
using testing::RangeFound;
using testing::rangeOf;
using testing::ScopedTZ;

const RangeCall kMonths = [](NLPNativeTitleParser& p, const std::wstring& t, const Vocabulary& v) {
  return p.matchEnMonthDuration(t, v);
};

RangeFound monthsAt(const std::string& now, const std::string& title, const std::string& language = "en") {
  NLPNativeTitleParser parser = parserAt(now);
  return rangeOf(parser, kMonths, title, language);
}

TEST(RangeMonthsTest, AMonthDateToABareDayRollsBothAndKeepsTheTimeOfNow) {
  ScopedTZ zone("UTC");
  RangeFound found = monthsAt("2024-03-25T08:10:20", "march 20 to 25 trip");
  EXPECT_EQ(found.text, "march 20 to 25");
  EXPECT_EQ(found.start, "2025-03-20T08:10:20");
  EXPECT_EQ(found.end, "2025-03-25T08:10:20");
}

TEST(RangeMonthsTest, TheYearAtTheTailBelongsToBothDates) {
  ScopedTZ zone("UTC");
  RangeFound found = monthsAt("2024-03-13T10:00:00", "march 20 to 25 2026");
  EXPECT_EQ(found.start, "2026-03-20T10:00:00");
  EXPECT_EQ(found.end, "2026-03-25T10:00:00");
}

TEST(RangeMonthsTest, WithTimesASecondDateWithoutMonthSharesTheFirst) {
  ScopedTZ zone("UTC");
  RangeFound found = monthsAt("2024-03-13T10:00:00", "holiday march 20 9am to 5pm");
  EXPECT_EQ(found.start, "2024-03-20T09:00:00");
  EXPECT_EQ(found.end, "2024-03-20T17:00:00");
  EXPECT_EQ(found.reminder, "TRIGGER:-PT0S");
  RangeFound two = monthsAt("2024-03-13T10:00:00", "holiday march 20 9am to march 22 5pm");
  EXPECT_EQ(two.end, "2024-03-22T17:00:00");
}

TEST(RangeMonthsTest, ANumericDateTailIsNoMonthRange) {
  ScopedTZ zone("UTC");
  EXPECT_FALSE(monthsAt("2024-03-13T10:00:00", "3/20 march 9am to 5pm").present);
}

TEST(RangeMonthsTest, WithoutTimesTheDayBeforeTheMonthWins) {
  ScopedTZ zone("UTC");
  RangeFound found = monthsAt("2024-03-13T10:00:00", "20 march to 22 april");
  EXPECT_EQ(found.start, "2024-03-20T10:00:00");
  EXPECT_EQ(found.end, "2024-04-22T10:00:00");
  EXPECT_EQ(found.reminder, "");
}

TEST(RangeMonthsTest, MonthDatesCrossTheMonthAndTheYearEnd) {
  ScopedTZ zone("UTC");
  RangeFound month = monthsAt("2024-03-13T10:00:00", "voyage 20 mars - 2 avril", "fr");
  EXPECT_EQ(month.start, "2024-03-20T10:00:00");
  EXPECT_EQ(month.end, "2024-04-02T10:00:00");
  RangeFound year = monthsAt("2024-12-01T10:00:00", "december 30 2024 to january 2 2025");
  EXPECT_EQ(year.start, "2024-12-30T10:00:00");
  EXPECT_EQ(year.end, "2025-01-02T10:00:00");
  // Without years the past end rolls both a year and the end stays before the start.
  RangeFound bare = monthsAt("2024-12-01T10:00:00", "december 30 to january 2");
  EXPECT_EQ(bare.start, "2025-12-30T10:00:00");
  EXPECT_EQ(bare.end, "2025-01-02T10:00:00");
}

TEST(RangeMonthsTest, WithDaysOnBothSidesTimesReadTheDayBehindAndBareDatesTheDayBefore) {
  ScopedTZ zone("UTC");
  RangeFound timed = monthsAt("2024-03-13T10:00:00", "20 march 21 9am to 5pm");
  EXPECT_EQ(timed.start, "2024-03-21T09:00:00");
  EXPECT_EQ(timed.end, "2024-03-21T17:00:00");
  RangeFound bare = monthsAt("2024-03-13T10:00:00", "20 march 21 to 25 april");
  EXPECT_EQ(bare.start, "2024-03-20T10:00:00");
  EXPECT_EQ(bare.end, "2024-04-25T10:00:00");
}

TEST(RangeMonthsTest, BareDaysWithTimesStayInTheCurrentMonth) {
  ScopedTZ zone("UTC");
  RangeFound found = monthsAt("2024-03-13T10:00:00", "20 9am to 22 5pm");
  EXPECT_EQ(found.start, "2024-03-20T09:00:00");
  EXPECT_EQ(found.end, "2024-03-22T17:00:00");
}

TEST(RangeMonthsTest, OtherLanguagesReadTheirMonthNames) {
  ScopedTZ zone("UTC");
  RangeFound found = monthsAt("2024-03-13T10:00:00", "viagem 20 março até 25 março", "pt");
  EXPECT_EQ(found.start, "2024-03-20T10:00:00");
  EXPECT_EQ(found.end, "2024-03-25T10:00:00");
}

}  // namespace
}  // namespace nlpdate
