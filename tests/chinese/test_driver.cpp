// The Chinese driver: which stage leads the contest of positions, which result
// is the lead date, and how a past value rolls by the rule or by the time word.
#include <gtest/gtest.h>

#include "chinese/chinese_driver_steps.h"
#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

std::optional<NLPRecognizeDate> at(long position) {
  return NLPRecognizeDate(L"x", position, OptTM(newTM()));
}

class DriverRolls : public ::testing::Test {
 protected:
  ScopedTZ zone{"Asia/Shanghai"};
  NLPNativeTitleParser parser = parserAt("2024-03-13T16:00:00");  // a Wednesday

  TMPtr record(const std::string& text) { return tmFromTimePoint(timePointFromSeconds(localSeconds(text))); }
};

}  // namespace

TEST(ChineseContest, WeekdayBeatsADateAtTheSamePosition) {
  ChineseStages stages;
  stages.weekday = at(3);
  stages.date = at(3);
  contestChineseStages(stages);
  EXPECT_EQ(stages.leading, kWeekdayStage);
}

TEST(ChineseContest, ADateThatLeadsSkipsAnEarlierHoliday) {
  ChineseStages stages;
  stages.weekday = at(5);
  stages.date = at(3);
  stages.holiday = at(0);
  contestChineseStages(stages);
  EXPECT_EQ(stages.leading, kDateStage);
  EXPECT_EQ(stages.best, 3);
}

TEST(ChineseContest, HolidayCompetesWhenNoDateLeads) {
  ChineseStages stages;
  stages.weekday = at(5);
  stages.holiday = at(0);
  contestChineseStages(stages);
  EXPECT_EQ(stages.leading, kHolidayStage);
}

TEST(ChineseContest, LunarWinsEveryTie) {
  ChineseStages stages;
  stages.named = at(2);
  stages.lunar = at(2);
  contestChineseStages(stages);
  EXPECT_EQ(stages.leading, kLunarStage);
}

TEST(ChineseContest, EarlierRowWinsATie) {
  ChineseStages stages;
  stages.named = at(4);
  stages.time = at(4);
  stages.offset = at(4);
  contestChineseStages(stages);
  EXPECT_EQ(stages.leading, kNamedDayStage);
}

TEST(ChineseContest, NothingFoundLeavesNoStage) {
  ChineseStages stages;
  contestChineseStages(stages);
  EXPECT_EQ(stages.leading, kNoStage);
  EXPECT_EQ(stages.best, kNoPosition);
}

TEST(ChineseLead, TheEarlierOfDateAndLunarLeads) {
  ChineseStages stages;
  stages.date = at(4);
  stages.lunar = at(4);
  chooseChineseLead(stages);
  EXPECT_EQ(stages.lead->getRecognizeStringStartPosition(), 4);
  stages.date = at(1);
  chooseChineseLead(stages);
  EXPECT_EQ(stages.lead->getRecognizeStringStartPosition(), 1);
}

TEST(ChineseLead, WithoutADateTheFirstFoundInOrderLeads) {
  ChineseStages stages;
  stages.holiday = at(1);
  stages.named = at(9);
  stages.offset = at(0);
  chooseChineseLead(stages);
  EXPECT_EQ(stages.lead->getRecognizeStringStartPosition(), 9);
  ChineseStages none;
  chooseChineseLead(none);
  EXPECT_FALSE(none.lead);
}

TEST_F(DriverRolls, DailyRuleRollsOneDay) {
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=DAILY;INTERVAL=1";
  TMPtr cal = record("2024-03-13T08:00:00");
  parser.rollByRule(cal.get());
  EXPECT_EQ(tmText(*cal), "2024-03-14T08:00:00");
}

TEST_F(DriverRolls, MonthlyAndYearlyRulesRollTheirUnit) {
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=MONTHLY;INTERVAL=1";
  TMPtr cal = record("2024-03-13T08:00:00");
  parser.rollByRule(cal.get());
  EXPECT_EQ(tmText(*cal), "2024-04-13T08:00:00");
  parser.parserDueDate.repeatFlag = L"LUNAR:FREQ=YEARLY;INTERVAL=1";
  parser.rollByRule(cal.get());
  EXPECT_EQ(tmText(*cal), "2025-04-13T08:00:00");
}

TEST_F(DriverRolls, WeeklyRuleWithoutDaysRollsSeven) {
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=WEEKLY;INTERVAL=1";
  TMPtr cal = record("2024-03-13T08:00:00");
  parser.rollByRule(cal.get());
  EXPECT_EQ(tmText(*cal), "2024-03-20T08:00:00");
}

TEST_F(DriverRolls, WeeklyRuleWithDaysGoesToTheNextListedDay) {
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=WEEKLY;INTERVAL=1;BYDAY=MO,WE";
  StringRRule rule;
  rule.setByDay({NLPWeekdayNum(0, Monday), NLPWeekdayNum(0, Wednesday)});
  parser.parserDueDate.repeatRule = rule;
  TMPtr cal = record("2024-03-13T08:00:00");
  parser.rollByRule(cal.get());
  EXPECT_EQ(tmText(*cal), "2024-03-18T08:00:00");
}

TEST_F(DriverRolls, AnyOtherRuleLeavesTheValue) {
  parser.parserDueDate.repeatFlag = L"";
  TMPtr cal = record("2024-03-13T08:00:00");
  parser.rollByRule(cal.get());
  EXPECT_EQ(tmText(*cal), "2024-03-13T08:00:00");
}

TEST_F(DriverRolls, LunarMarkReplacesEveryYearlyRuleText) {
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=YEARLY;INTERVAL=1";
  parser.markLunarYearlyRule();
  EXPECT_EQ(parser.parserDueDate.repeatFlag, L"LUNAR:FREQ=YEARLY;INTERVAL=1");
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=DAILY;INTERVAL=1";
  parser.markLunarYearlyRule();
  EXPECT_EQ(parser.parserDueDate.repeatFlag, L"RRULE:FREQ=DAILY;INTERVAL=1");
}

TEST_F(DriverRolls, TimeWordWithANamedDayStillAheadStops) {
  ChineseStages stages;
  stages.time = NLPRecognizeDate(L"下午", 0, OptTM(newTM()));
  stages.named = NLPRecognizeDate(L"明天", 0, OptTM(record("2024-03-14T00:00:00")));
  TMPtr cal = record("2024-03-13T13:00:00");
  parser.rollByTimeWord(cal.get(), stages);
  EXPECT_EQ(tmText(*cal), "2024-03-14T13:00:00");
}

TEST_F(DriverRolls, AfternoonWordClimbsUntilItsLimitThenTakesTomorrow) {
  ChineseStages stages;
  stages.time = NLPRecognizeDate(L"下午", 0, OptTM(newTM()));
  TMPtr cal = record("2024-03-13T13:00:00");
  parser.rollByTimeWord(cal.get(), stages);
  EXPECT_EQ(tmText(*cal), "2024-03-13T17:00:00");
  NLPNativeTitleParser late = parserAt("2024-03-13T18:00:00");
  TMPtr past = record("2024-03-13T13:00:00");
  late.rollByTimeWord(past.get(), stages);
  EXPECT_EQ(tmText(*past), "2024-03-14T13:00:00");
}

TEST_F(DriverRolls, NoFlagAndNoNamedDayMovesOneDay) {
  ChineseStages stages;
  stages.time = NLPRecognizeDate(L"中午", 0, OptTM(newTM()));
  TMPtr cal = record("2024-03-13T12:00:00");
  parser.rollByTimeWord(cal.get(), stages);
  EXPECT_EQ(tmText(*cal), "2024-03-14T12:00:00");
}
