// Written Chinese dates: the three patterns and the year-last form, the
// shift of mixed separators, the month limit and the completion of year and
// month so that the date lies ahead.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class WrittenDates : public ::testing::Test {
 protected:
  ScopedTZ zone{"Asia/Shanghai"};

  // "text@date" of matchDate at the given now, or "none".
  static std::string read(const std::string& now, const std::string& title) {
    NLPNativeTitleParser parser = parserAt(now);
    const auto found = parser.matchDate(wide(title));
    if (!found) return "none";
    return narrow(found->getRecogString().front()) + "@" + tmText(**found->getStartCal());
  }
};

}  // namespace

TEST_F(WrittenDates, FullDateWithYearMonthAndDay) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "2025年3月5日开会"), "2025年3月5日@2025-03-05T00:00:00");
}

TEST_F(WrittenDates, MonthOverTheLimitIsRefusedByThatPatternAndTheDayPatternReadsOn) {
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  const std::wstring title = L"13月5日";
  EXPECT_FALSE(parser.getMatchDateResult(compilePattern(parser.getChineseDatePattern()[1]), title, 1, 3, 5, 2, 4));
  EXPECT_EQ(read("2024-03-13T10:00:00", "13月5日"), "5日@2024-04-05T00:00:00");
}

// The month setter clamps today's day, but the day set after it runs over into March.
TEST_F(WrittenDates, DayMissingFromTheMonthRunsIntoTheNext) {
  EXPECT_EQ(read("2024-01-10T10:00:00", "2月30日"), "2月30日@2024-03-01T00:00:00");
  EXPECT_EQ(read("2024-01-30T10:00:00", "2月30日"), "2月30日@2024-03-01T00:00:00");
}

TEST_F(WrittenDates, DayAlonePastThisMonthLiesInTheNext) {
  EXPECT_EQ(read("2024-03-10T10:00:00", "5号交作业"), "5号@2024-04-05T00:00:00");
  EXPECT_EQ(read("2024-12-31T10:00:00", "5号交作业"), "5号@2025-01-05T00:00:00");
  EXPECT_EQ(read("2024-03-10T10:00:00", "10号"), "10号@2024-03-10T00:00:00");
}

TEST_F(WrittenDates, NextYearWordAddsAYear) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "明年3月5日"), "明年3月5日@2025-03-05T00:00:00");
}

TEST_F(WrittenDates, ShortYearsReadInTheirCentury) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "24-3-5"), "24-3-5@2024-03-05T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "95/3/5"), "95/3/5@1995-03-05T00:00:00");
}

TEST_F(WrittenDates, MonthAndDayInFiguresRollToNextYearWhenPast) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "3/5"), "3/5@2025-03-05T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "3/25"), "3/25@2024-03-25T00:00:00");
}

TEST_F(WrittenDates, MixedSeparatorsShiftIntoAMonthOverTheLimit) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "2024/3-5"), "none");
}

TEST_F(WrittenDates, NextMonthWordBeforeTheSeparatorMatchesBothForms) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "下月3号"), "下月3号@2024-04-03T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "下个月3号"), "下个月3号@2024-04-03T00:00:00");
}

TEST_F(WrittenDates, MonthAloneKeepsTodaysDayClampedAndRolled) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "3月"), "3月@2024-03-13T00:00:00");
  EXPECT_EQ(read("2024-01-31T10:00:00", "2月"), "2月@2024-02-01T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "1月"), "1月@2025-01-13T00:00:00");
}

TEST_F(WrittenDates, ChineseNumeralsAndTenDayWords) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "三月五日"), "三月五日@2025-03-05T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "十二月二十五号"), "十二月二十五号@2024-12-25T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "4月下旬"), "4月下旬@2024-04-21T00:00:00");
  EXPECT_EQ(read("2024-03-13T10:00:00", "元月中旬"), "元月中旬@2025-01-11T00:00:00");
}

TEST_F(WrittenDates, MonthFirstWithTheYearAtTheEnd) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "3-5-2026"), "3-5-2026@2026-03-05T00:00:00");
}

TEST_F(WrittenDates, DotsAndBlanksSeparateToo) {
  EXPECT_EQ(read("2024-03-13T10:00:00", "2024.5.1"), "2024.5.1@2024-05-01T00:00:00");
}

TEST_F(WrittenDates, FiguresWithoutADayAreNoDate) { EXPECT_EQ(read("2024-03-13T10:00:00", "3/"), "none"); }

TEST_F(WrittenDates, MonthLimitLooksAtDigitsOnly) {
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  EXPECT_FALSE(parser.isOverMonthLimit(L""));
  EXPECT_FALSE(parser.isOverMonthLimit(L"12"));
  EXPECT_TRUE(parser.isOverMonthLimit(L"13"));
  EXPECT_TRUE(parser.isOverMonthLimit(L"2024"));
  EXPECT_FALSE(parser.isOverMonthLimit(L"十三"));
  EXPECT_FALSE(parser.isOverMonthLimit(L"下"));
  EXPECT_FALSE(parser.isOverMonthLimit(L"下个"));
}

TEST_F(WrittenDates, BaseDateGivesTheStartingDay) {
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  parser.baseDate = timePointFromSeconds(localSeconds("2024-06-20T08:00:00"));
  const auto found = parser.matchDate(L"25号");
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found->getStartCal()), "2024-06-25T00:00:00");
}
