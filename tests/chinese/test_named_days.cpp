// Chinese named days and weekdays: offsets of the day words, the fixed hours of
// 今晚/明晚/明早, weekend words, and weekdays with their week prefixes.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class NamedDays : public ::testing::Test {
 protected:
  ScopedTZ zone{"Asia/Shanghai"};

  static std::string named(const std::string& now, const std::string& title, WeekDay start = Sunday) {
    NLPNativeTitleParser parser = parserAt(now);
    parser.setStartDay(start);
    const auto found = parser.matchTodayAndSoOn(wide(title));
    if (!found) return "none";
    return narrow(found->getRecogString().front()) + "@" + tmText(**found->getStartCal()) +
           (found->getReminder().empty() ? "" : " " + narrow(found->getReminder()));
  }

  static std::string weekday(const std::string& now, const std::string& title, WeekDay start = Sunday) {
    NLPNativeTitleParser parser = parserAt(now);
    parser.setStartDay(start);
    const auto found = parser.matchWeekDay(wide(title));
    if (!found) return "none";
    return narrow(found->getRecogString().front()) + "@" + tmText(**found->getStartCal());
  }
};

// 2024-03-13 is a Wednesday.
constexpr const char* kWednesday = "2024-03-13T10:00:00";

}  // namespace

TEST_F(NamedDays, DayWordsMoveByTheirOffset) {
  EXPECT_EQ(named(kWednesday, "大前天"), "大前天@2024-03-10T00:00:00");
  EXPECT_EQ(named(kWednesday, "前天"), "前天@2024-03-11T00:00:00");
  EXPECT_EQ(named(kWednesday, "昨天"), "昨天@2024-03-12T00:00:00");
  EXPECT_EQ(named(kWednesday, "今天"), "今天@2024-03-13T00:00:00");
  EXPECT_EQ(named(kWednesday, "今日"), "今日@2024-03-13T00:00:00");
  EXPECT_EQ(named(kWednesday, "明日"), "明日@2024-03-14T00:00:00");
  EXPECT_EQ(named(kWednesday, "后天"), "后天@2024-03-15T00:00:00");
}

TEST_F(NamedDays, LongerWordWinsOnlyWhereItStandsFirst) {
  EXPECT_EQ(named(kWednesday, "大后天见"), "大后天@2024-03-16T00:00:00");
  EXPECT_EQ(named(kWednesday, "大前天的事"), "大前天@2024-03-10T00:00:00");
}

TEST_F(NamedDays, TonightIsTheNightHourEvenWhenPast) {
  EXPECT_EQ(named("2024-03-13T23:30:00", "今晚"), "今晚@2024-03-13T20:00:00 TRIGGER:-PT0S");
  EXPECT_EQ(named(kWednesday, "明晚"), "明晚@2024-03-14T20:00:00 TRIGGER:-PT0S");
}

TEST_F(NamedDays, TomorrowMorningIsAFixedSevenOClock) {
  NLPNativeTitleParser parser = parserAt(kWednesday);
  parser.setCustomizeHour(9, 30, 13, 0, 17, 0, 21, 15);
  const auto found = parser.matchTodayAndSoOn(L"明早");
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found->getStartCal()), "2024-03-14T07:00:00");
  const auto night = parser.matchTodayAndSoOn(L"今晚");
  EXPECT_EQ(tmText(**night->getStartCal()), "2024-03-13T21:00:00");
}

TEST_F(NamedDays, WeekendOnASundayIsThatSunday) {
  EXPECT_EQ(named("2024-03-17T10:00:00", "周末"), "周末@2024-03-17T00:00:00");
  EXPECT_EQ(named(kWednesday, "周末"), "周末@2024-03-16T00:00:00");
}

TEST_F(NamedDays, NextWeekendOnASaturdayIsTheFollowingSaturday) {
  EXPECT_EQ(named("2024-03-16T10:00:00", "下周末"), "下周末@2024-03-23T00:00:00");
  EXPECT_EQ(named(kWednesday, "下个周末"), "下个周末@2024-03-23T00:00:00");
}

TEST_F(NamedDays, NextWeekIsTheMondayOfNextWeek) {
  EXPECT_EQ(named(kWednesday, "下周", Sunday), "下周@2024-03-18T00:00:00");
  EXPECT_EQ(named(kWednesday, "下周", Monday), "下周@2024-03-18T00:00:00");
  // On a Sunday a week that starts on Monday puts this week's Monday six days back.
  EXPECT_EQ(named("2024-03-17T10:00:00", "下周", Monday), "下周@2024-03-18T00:00:00");
  EXPECT_EQ(named("2024-03-17T10:00:00", "下周", Sunday), "下周@2024-03-25T00:00:00");
}

TEST_F(NamedDays, NoDayWordGivesNothing) { EXPECT_EQ(named(kWednesday, "开会"), "none"); }

TEST_F(NamedDays, ThisWeekPrefixKeepsAPastMonday) {
  EXPECT_EQ(weekday(kWednesday, "这周一", Monday), "这周一@2024-03-11T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "本周一"), "本周一@2024-03-11T00:00:00");
}

TEST_F(NamedDays, BareWeekdayNeverLiesInThePast) {
  EXPECT_EQ(weekday(kWednesday, "周一"), "周一@2024-03-18T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "周三"), "周三@2024-03-13T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "星期五"), "星期五@2024-03-15T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "礼拜天"), "礼拜天@2024-03-17T00:00:00");
}

TEST_F(NamedDays, WeekPrefixesAddWeeks) {
  EXPECT_EQ(weekday(kWednesday, "下周二"), "下周二@2024-03-19T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "下个星期二"), "下个星期二@2024-03-19T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "下下周二"), "下下周二@2024-03-26T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "本下下周二"), "本下下周二@2024-03-12T00:00:00");
}

TEST_F(NamedDays, SevenAndDigitsNameTheDay) {
  EXPECT_EQ(weekday(kWednesday, "周7"), "周7@2024-03-17T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "周5"), "周5@2024-03-15T00:00:00");
}

TEST_F(NamedDays, SundayInAWeekStartingOnMonday) {
  EXPECT_EQ(weekday(kWednesday, "这周日", Monday), "这周日@2024-03-17T00:00:00");
  EXPECT_EQ(weekday(kWednesday, "这周日", Sunday), "这周日@2024-03-10T00:00:00");
}

TEST_F(NamedDays, SpecialDatePatternsDifferOnlyByNextWeek) {
  NLPNativeTitleParser parser = parserAt(kWednesday);
  EXPECT_EQ(parser.getSpecialDateRecognition() .substr(0, 4), L"(大前天");
  EXPECT_EQ(parser.getSpecialDateRecognitionWithNextWeek(),
            parser.getSpecialDateRecognition().substr(0, parser.getSpecialDateRecognition().size() - 1) + L"|下周)");
  EXPECT_EQ(parser.getSpecialDateMaps().size(), 12u);
  EXPECT_EQ(parser.getSpecialDateMaps().at(L"大前天"), -3);
}
