// The parser's own holiday dates: fixed dates of this year, the next date of
// each movable holiday, and the list of lunar holidays.
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::ScopedTZ;

std::map<std::wstring, int> seasonsAt(const std::string& now) {
  NLPNativeTitleParser parser = parserAt(now);
  parser.initHolidaySeasonMap(L"");
  return parser.holidaySeasonMap;
}

TEST(HolidaySeason, SpringFestivalOnItsDay) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(seasonsAt("2024-02-10T10:00:00").at(L"春节"), 20240210);
  EXPECT_EQ(seasonsAt("2024-02-10T23:59:59").at(L"春节"), 20240210);
}

TEST(HolidaySeason, SpringFestivalTheDayAfter) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(seasonsAt("2024-02-11T00:00:00").at(L"春节"), 20250129);
  EXPECT_EQ(seasonsAt("2024-02-11T10:00:00").at(L"春节"), 20250129);
}

TEST(HolidaySeason, DaySwitchFollowsTheLocalZone) {
  // 2024-02-10T16:30:00Z: still the festival day in UTC, the next day in Shanghai.
  const long moment = 1707582600;
  std::map<std::wstring, int> utc;
  std::map<std::wstring, int> shanghai;
  {
    ScopedTZ zone("UTC");
    NLPNativeTitleParser parser;
    parser.setDefaultTimeSecond(moment);
    parser.initHolidaySeasonMap(L"");
    utc = parser.holidaySeasonMap;
  }
  {
    ScopedTZ zone("Asia/Shanghai");
    NLPNativeTitleParser parser;
    parser.setDefaultTimeSecond(moment);
    parser.initHolidaySeasonMap(L"");
    shanghai = parser.holidaySeasonMap;
  }
  EXPECT_EQ(utc.at(L"春节"), 20240210);
  EXPECT_EQ(shanghai.at(L"春节"), 20250129);
}

TEST(HolidaySeason, TableRunOutGivesTheDefault) {
  ScopedTZ zone("UTC");
  const auto seasons = seasonsAt("2040-01-01T10:00:00");
  EXPECT_EQ(seasons.at(L"春节"), 20240210);
  EXPECT_EQ(seasons.at(L"母亲节"), 20240512);
  EXPECT_EQ(seasons.at(L"小年"), 20240203);
  EXPECT_EQ(seasons.at(L"元旦"), 20400101);
  EXPECT_EQ(seasons.at(L"圣诞节"), 20401225);
}

TEST(HolidaySeason, TablesOfDifferentReach) {
  ScopedTZ zone("UTC");
  // 2034 lies beyond the lunar tables but inside the weekday-rule ones.
  const auto seasons = seasonsAt("2034-01-01T10:00:00");
  EXPECT_EQ(seasons.at(L"春节"), 20240210);
  EXPECT_EQ(seasons.at(L"清明节"), 20240404);
  EXPECT_EQ(seasons.at(L"腊八节"), 20340127);
  EXPECT_EQ(seasons.at(L"母亲节"), 20340514);
  EXPECT_EQ(seasons.at(L"感恩节"), 20341123);
}

TEST(HolidaySeason, OldestEntryFirst) {
  ScopedTZ zone("UTC");
  const auto seasons = seasonsAt("2023-01-01T10:00:00");
  EXPECT_EQ(seasons.at(L"春节"), 20230122);
  EXPECT_EQ(seasons.at(L"除夕"), 20230121);
  EXPECT_EQ(seasons.at(L"清明节"), 20230405);
  // A table that starts in 2024 gives its oldest entry.
  EXPECT_EQ(seasons.at(L"母亲节"), 20240512);
}

TEST(HolidaySeason, FixedDatesOfThisYear) {
  ScopedTZ zone("UTC");
  const std::map<std::wstring, int> expected = {
      {L"元旦", 20250101},   {L"情人节", 20250214}, {L"妇女节", 20250308}, {L"愚人节", 20250401},
      {L"劳动节", 20250501}, {L"儿童节", 20250601}, {L"建党节", 20250701}, {L"建军节", 20250801},
      {L"教师节", 20250910}, {L"国庆节", 20251001}, {L"万圣夜", 20251031}, {L"平安夜", 20251224},
      {L"圣诞节", 20251225}};
  // Fixed dates stay in this year even when already past.
  const auto seasons = seasonsAt("2025-12-31T10:00:00");
  for (const auto& [name, date] : expected) EXPECT_EQ(seasons.at(name), date) << testing::narrow(name);
}

TEST(HolidaySeason, EveryMovableDateAtOneMoment) {
  ScopedTZ zone("UTC");
  const std::map<std::wstring, int> expected = {
      {L"母亲节", 20240512},   {L"父亲节", 20240616},   {L"感恩节", 20241128}, {L"清明节", 20250404},
      {L"除夕", 20250128},     {L"春节", 20250129},     {L"元宵节", 20250212}, {L"端午节", 20240610},
      {L"七夕", 20240810},     {L"中元节", 20240818},   {L"中秋节", 20240917}, {L"重阳节", 20241011},
      {L"腊八节", 20250107},   {L"北方小年", 20250122}, {L"南方小年", 20250123}, {L"小年", 20250123}};
  const auto seasons = seasonsAt("2024-04-05T10:00:00");
  for (const auto& [name, date] : expected) EXPECT_EQ(seasons.at(name), date) << testing::narrow(name);
  EXPECT_EQ(seasons.size(), 29u);
}

TEST(HolidaySeason, FilledOncePerParser) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-02-10T10:00:00");
  parser.initHolidaySeasonMap(L"anything");
  parser.setDefaultTimeSecond(testing::localSeconds("2024-02-11T10:00:00"));
  parser.initHolidaySeasonMap(L"");
  EXPECT_EQ(parser.holidaySeasonMap.at(L"春节"), 20240210);
}

TEST(HolidaySeason, NotFilledWhenAlreadyHoldingSomething) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-02-10T10:00:00");
  parser.holidaySeasonMap[L"x"] = 1;
  parser.initHolidaySeasonMap(L"");
  EXPECT_EQ(parser.holidaySeasonMap, (std::map<std::wstring, int>{{L"x", 1}}));
}

TEST(LunarHolidayByKey, WalksFromOldestAndIncludesToday) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-06-15T10:00:00");
  const int table[] = {20260101, 20250614, 20240615, 20240614};
  std::map<std::wstring, int> map;
  parser.setLunarHolidayByKey(map, L"k", table, 4, 1);
  EXPECT_EQ(map.at(L"k"), 20240615);
  const int laterMonth[] = {20240701, 20240501};
  parser.setLunarHolidayByKey(map, L"later-month", laterMonth, 2, 1);
  EXPECT_EQ(map.at(L"later-month"), 20240701);
  const int laterDay[] = {20240616, 20240614};
  parser.setLunarHolidayByKey(map, L"same-month-later-day", laterDay, 2, 1);
  EXPECT_EQ(map.at(L"same-month-later-day"), 20240616);
}

TEST(LunarHolidayByKey, NoWinnerKeepsTheDefault) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-06-15T10:00:00");
  const int table[] = {20240614, 20230101};
  std::map<std::wstring, int> map{{L"k", 5}};
  parser.setLunarHolidayByKey(map, L"k", table, 2, 42);
  EXPECT_EQ(map.at(L"k"), 42);
}

TEST(LunarHolidayByKey, EmptyCountStoresOnlyTheDefault) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-06-15T10:00:00");
  const int table[] = {20300101};
  std::map<std::wstring, int> map;
  parser.setLunarHolidayByKey(map, L"k", table, 0, 7);
  EXPECT_EQ(map.at(L"k"), 7);
  parser.setLunarHolidayByKey(map, L"n", nullptr, -1, 8);
  EXPECT_EQ(map.at(L"n"), 8);
}

TEST(LunarHolidayByKey, OnlyCountEntriesAreRead) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-06-15T10:00:00");
  // Walked from index count - 1 down: the entry past count is never seen.
  const int table[] = {20300101, 20200101, 20250101};
  std::map<std::wstring, int> map;
  parser.setLunarHolidayByKey(map, L"k", table, 2, 1);
  EXPECT_EQ(map.at(L"k"), 20300101);
}

TEST(LunarHolidays, SixteenNamesInOrder) {
  NLPNativeTitleParser parser;
  const std::list<std::wstring> expected = {L"清明节", L"除夕",   L"春节",     L"元宵节",   L"端午节", L"七夕",
                                            L"中元节", L"中秋节", L"重阳节",   L"腊八节",   L"北方小年",
                                            L"南方小年", L"小年", L"母亲节",   L"父亲节",   L"感恩节"};
  EXPECT_EQ(parser.getLunarHolidays(), expected);
  std::list<std::wstring> copy = parser.getLunarHolidays();
  copy.clear();
  EXPECT_EQ(parser.getLunarHolidays().size(), 16u);
}

}  // namespace
}  // namespace nlpdate
