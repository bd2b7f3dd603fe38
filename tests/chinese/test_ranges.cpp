// Chinese ranges: the dispatcher's early exits, the written-date range as the
// patterns read it, and the side helpers of the range recognisers.
#include <gtest/gtest.h>

#include "chinese/range_sides.h"
#include "support/test_support.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/translation.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class ChineseRanges : public ::testing::Test {
 protected:
  ScopedTZ zone{"Asia/Shanghai"};

  static std::string range(const std::string& now, const std::string& title, WeekDay start = Sunday) {
    NLPNativeTitleParser parser = parserAt(now);
    parser.setStartDay(start);
    const auto found = parser.chineseDateDurationRecognition(wide(title), std::nullopt,
                                                             NLPTranslation::getTransKeyToValue(L"zh_CN"), std::nullopt);
    if (!found) return "none";
    std::string text = narrow(found->getRecogString().front()) + "@" + tmText(**found->getStartCal()) + "/" +
                       tmText(**found->getEndCal());
    return found->getReminder().empty() ? text : text + " " + narrow(found->getReminder());
  }

  static std::string written(const std::string& now, const std::string& title) {
    NLPNativeTitleParser parser = parserAt(now);
    parser.rangeVocabulary = NLPTranslation::getTransKeyToValue(L"zh_CN");
    const auto found = parser.chineseDateDurationDateRecognition(wide(title));
    if (!found) return "none";
    return tmText(**found->getStartCal()) + "/" + tmText(**found->getEndCal());
  }
};

constexpr const char* kWednesday = "2024-03-13T10:00:00";

}  // namespace

TEST_F(ChineseRanges, NoRangeWordFindsNothingWhateverTheDates) {
  EXPECT_EQ(range(kWednesday, "3月5日和3月8日"), "none");
  EXPECT_EQ(range(kWednesday, "周一周三"), "none");
}

TEST_F(ChineseRanges, NoChineseCharacterAndNoDigitFindsNothing) {
  EXPECT_EQ(range(kWednesday, "tomorrow"), "none");
  EXPECT_EQ(range(kWednesday, "mon to wed"), "none");
}

TEST_F(ChineseRanges, EnglishRangeWordsJoinChineseSides) {
  EXPECT_EQ(range(kWednesday, "周一 to 周三"), "周一 to 周三@2024-03-11T00:00:00/2024-03-13T00:00:00");
  EXPECT_EQ(range(kWednesday, "明天until后天"), "明天until后天@2024-03-14T00:00:00/2024-03-15T00:00:00");
}

TEST_F(ChineseRanges, DayPairEndsInTheNextMonthAndMovesWhenBothPast) {
  EXPECT_EQ(written("2024-03-28T10:00:00", "25号到3号"), "2024-03-25T00:00:00/2024-04-03T00:00:00");
  EXPECT_EQ(written("2024-04-05T10:00:00", "1号到3号"), "2024-05-01T00:00:00/2024-05-03T00:00:00");
}

TEST_F(ChineseRanges, PastMonthDaysMoveToNextYearByTheEnd) {
  EXPECT_EQ(written(kWednesday, "3月5日到3月8日"), "2025-03-05T00:00:00/2025-03-08T00:00:00");
  EXPECT_EQ(written(kWednesday, "3月5日到3月18日"), "2024-03-05T00:00:00/2024-03-18T00:00:00");
}

TEST_F(ChineseRanges, WrittenYearHoldsForTheEnd) {
  EXPECT_EQ(written(kWednesday, "2024年3月5日到3月8日"), "2024-03-05T00:00:00/2024-03-08T00:00:00");
  EXPECT_EQ(written(kWednesday, "2024年12月30日到1月2日"), "2024-12-30T00:00:00/2024-01-02T00:00:00");
}

TEST_F(ChineseRanges, MonthOverTheLimitDropsOnlyThatPattern) {
  EXPECT_EQ(written(kWednesday, "13月5日到8日"), "2024-04-05T00:00:00/2024-04-08T00:00:00");
}

TEST_F(ChineseRanges, WeekdaysHonourTheFirstWeekday) {
  EXPECT_EQ(range("2024-03-17T10:00:00", "周一到周三", Sunday), "周一到周三@2024-03-18T00:00:00/2024-03-20T00:00:00");
  EXPECT_EQ(range("2024-03-17T10:00:00", "周一到周三", Monday), "周一到周三@2024-03-18T00:00:00/2024-03-20T00:00:00");
  // Sunday ends a week from Monday: the range is under way, so it stays.
  EXPECT_EQ(range("2024-03-17T10:00:00", "周六到周日", Monday), "周六到周日@2024-03-16T00:00:00/2024-03-17T00:00:00");
  EXPECT_EQ(range("2024-03-17T10:00:00", "这周六到这周日", Monday),
            "这周六到这周日@2024-03-16T00:00:00/2024-03-17T00:00:00");
}

TEST_F(ChineseRanges, WeekdayWithATimeOnlyEnd) {
  EXPECT_EQ(range(kWednesday, "周五下午3点到5点"), "周五下午3点到5点@2024-03-15T15:00:00/2024-03-15T17:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range(kWednesday, "这周一9点到10点"), "这周一9点到10点@2024-03-11T09:00:00/2024-03-11T10:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range(kWednesday, "下周三晚上7点到9点"),
            "下周三晚上7点到9点@2024-03-20T19:00:00/2024-03-20T21:00:00 TRIGGER:-PT0S");
}

TEST_F(ChineseRanges, HolidaysTakeTheirTableDates) {
  EXPECT_EQ(range(kWednesday, "春节到元宵节"), "春节到元宵节@2025-01-29T00:00:00/2025-02-12T00:00:00");
  EXPECT_EQ(range(kWednesday, "中秋节晚上8点到10点"),
            "中秋节晚上8点到10点@2024-09-17T20:00:00/2024-09-17T22:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range(kWednesday, "端午节到端午节"), "端午节到端午节@2024-06-10T00:00:00/2024-06-10T00:00:00");
}

TEST_F(ChineseRanges, NamedDaysAndTheirHours) {
  EXPECT_EQ(range(kWednesday, "今晚到明早"), "今晚到明早@2024-03-13T20:00:00/2024-03-14T07:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range(kWednesday, "昨天到明天"), "昨天到明天@2024-03-12T00:00:00/2024-03-14T00:00:00");
  EXPECT_EQ(range(kWednesday, "明天到3月20日"), "明天到3月20日@2024-03-14T00:00:00/2024-03-20T00:00:00");
}

TEST_F(ChineseRanges, DateTimesTakeTheStartsDayAndTheAfternoon) {
  EXPECT_EQ(range(kWednesday, "明天3点到5点"), "明天3点到5点@2024-03-14T03:00:00/2024-03-14T05:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range(kWednesday, "下午3点到5点"), "下午3点到5点@2024-03-13T15:00:00/2024-03-13T17:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range("2024-03-13T08:00:00", "10点到2点"), "10点到2点@2024-03-13T10:00:00/2024-03-13T14:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range(kWednesday, "晚上10点到凌晨2点"),
            "晚上10点到凌晨2点@2024-03-13T22:00:00/2024-03-14T02:00:00 TRIGGER:-PT0S");
}

TEST_F(ChineseRanges, EndedTimeRangeRollsADay) {
  EXPECT_EQ(range("2024-03-13T18:00:00", "下午3点到5点"),
            "下午3点到5点@2024-03-14T15:00:00/2024-03-14T17:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(range("2024-03-13T16:00:00", "下午3点到5点"),
            "下午3点到5点@2024-03-13T15:00:00/2024-03-13T17:00:00 TRIGGER:-PT0S");
}

TEST_F(ChineseRanges, OneSideOnlyIsNoRange) {
  EXPECT_EQ(range(kWednesday, "到明天为止"), "none");
  EXPECT_EQ(range(kWednesday, "周五到"), "none");
}

TEST(RangePieces, NonCapturingKeepsClassesAndEscapes) {
  EXPECT_EQ(nonCapturing(L"(a|(b))[(]\\((?:c)"), L"(?:a|(?:b))[(]\\((?:c)");
  EXPECT_EQ(compilePattern(anyOf({L"(x)(y)", L"(z)"})).groupCount(), 0u);
}
