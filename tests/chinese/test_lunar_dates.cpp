// Lunar dates and festivals as the recognisers read them: the ends of the
// lunar tables, the leap month, the new-year words and the rule extension.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class LunarDates : public ::testing::Test {
 protected:
  ScopedTZ zone{"Asia/Shanghai"};

  static std::string lunar(const std::string& now, const std::string& title, const std::wstring& rule = L"") {
    NLPNativeTitleParser parser = parserAt(now);
    parser.parserDueDate.repeatFlag = rule;
    const auto found = parser.matchLunar(wide(title));
    if (!found) return "none";
    std::string text = narrow(found->getRecogString().front()) + "@" + tmText(**found->getStartCal());
    if (!rule.empty()) text += " " + narrow(parser.parserDueDate.repeatFlag);
    return text;
  }
};

}  // namespace

TEST_F(LunarDates, FirstYearOfTheTables) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "1888年农历正月初一"), "1888年农历正月初一@1888-02-12T00:00:00");
}

TEST_F(LunarDates, LastYearOfTheTables) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "2111年农历正月初一"), "2111年农历正月初一@2111-02-08T00:00:00");
}

TEST_F(LunarDates, LeapMonthYearReadsTheRegularMonth) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "2023年农历二月十五"), "2023年农历二月十五@2023-03-06T00:00:00");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "2023年农历三月初一"), "2023年农历三月初一@2023-04-20T00:00:00");
}

TEST_F(LunarDates, MidAutumnAfterThisYearsGoesToNextYear) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "农历八月十五"), "农历八月十五@2024-09-17T00:00:00");
  EXPECT_EQ(lunar("2024-10-01T10:00:00", "农历八月十五"), "农历八月十五@2025-10-06T00:00:00");
}

TEST_F(LunarDates, NewYearEveInJanuaryIsTheOneAhead) {
  EXPECT_EQ(lunar("2024-01-20T10:00:00", "大年三十"), "大年三十@2024-02-09T00:00:00");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "大年三十"), "大年三十@2025-01-29T00:00:00");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "2026年大年初一"), "2026年大年初一@2026-02-17T00:00:00");
}

TEST_F(LunarDates, MonthWithoutADayTakesTodaysLunarDayOnlyInThatMonth) {
  EXPECT_EQ(lunar("2024-04-15T10:00:00", "农历三月"), "农历三月@2024-04-15T00:00:00");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "农历五月"), "农历五月@2024-06-06T00:00:00");
}

TEST_F(LunarDates, ThreeDigitYearGivesNothing) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "999年农历三月初一"), "none");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "999年大年初一"), "none");
}

TEST_F(LunarDates, MonthWordsAndLunarDayFormsWithoutTheLunarWord) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "腊月二十三"), "腊月二十三@2025-01-22T00:00:00");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "三月廿五"), "三月廿五@2024-05-03T00:00:00");
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "三月五日"), "none");
}

TEST_F(LunarDates, ARuleAlreadySetGainsTheLunarMonthAndDay) {
  EXPECT_EQ(lunar("2024-03-13T10:00:00", "农历三月初三", L"RRULE:FREQ=YEARLY;INTERVAL=1"),
            "农历三月初三@2024-04-11T00:00:00 RRULE:FREQ=YEARLY;INTERVAL=1;BYMONTH=3;BYMONTHDAY=3");
}

TEST_F(LunarDates, HolidayNamesUseTheSeasonTable) {
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");
  parser.initHolidaySeasonMap(L"");
  auto found = parser.matchHoliday(L"2025年中秋节");
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found->getStartCal()), "2024-09-17T00:00:00");
  found = parser.matchHoliday(L"2030年元旦");
  EXPECT_EQ(tmText(**found->getStartCal()), "2030-01-01T00:00:00");
  EXPECT_FALSE(parser.matchHoliday(L"999年元旦"));
  EXPECT_FALSE(parser.matchHoliday(L"开会"));
}

TEST_F(LunarDates, HolidayMissingFromTheTableKeepsTheDefaultDate) {
  NLPNativeTitleParser parser = parserAt("2024-03-13T10:00:00");  // the table is not filled on this road
  const auto found = parser.matchHoliday(L"国庆节");
  ASSERT_TRUE(found);
  EXPECT_EQ(tmText(**found->getStartCal()), "2024-03-13T00:00:00");
}
