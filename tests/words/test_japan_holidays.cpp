// Japanese public holidays by name, dated from the host's holiday table.
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::narrow;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

const char* const kNow = "2024-03-08T10:00:00";

TEST(JapanHolidayTest, NameFromTheTable) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.japanHolidayDayMap[L"春分の日"] = 20240320;
  auto found = parser.matchJapanHoliday(wide("春分の日に墓参り"), L"ja");
  ASSERT_TRUE(found);
  EXPECT_EQ(narrow(found->getRecogString().front()), "春分の日");
  EXPECT_EQ(found->getRecognizeStringStartPosition(), 0);
  EXPECT_EQ(tmText(*found->getStartCal().value()), "2024-03-20T00:00:00");
}

TEST(JapanHolidayTest, QuotedNameInTheTable) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.japanHolidayDayMap[L"\"成人の日\""] = 20250113;
  auto found = parser.matchJapanHoliday(wide("買い物 成人の日"), L"ja_JP");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->getRecognizeStringStartPosition(), 4);
  EXPECT_EQ(tmText(*found->getStartCal().value()), "2025-01-13T00:00:00");
}

TEST(JapanHolidayTest, NameMissingFromTheTableGivesNothing) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.japanHolidayDayMap[L"春分の日"] = 20240320;
  EXPECT_FALSE(parser.matchJapanHoliday(wide("元日"), L"ja"));
}

TEST(JapanHolidayTest, OnlyTriedInJapanese) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.japanHolidayDayMap[L"元日"] = 20250101;
  EXPECT_FALSE(parser.matchJapanHoliday(wide("元日"), L"en"));
  EXPECT_FALSE(parser.matchJapanHoliday(wide("元日"), L"zh_CN"));
  EXPECT_TRUE(parser.matchJapanHoliday(wide("元日"), L"ja"));
}

TEST(JapanHolidayTest, HostTextThroughTheWholeParse) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.setJapanHolidayDay(wide("{\"元日\":20250101,\"こどもの日\":20240505}"));
  EXPECT_EQ(narrow(parser.parse(wide("こどもの日"), L"", L"ja")),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"こどもの日\"],\"startDate\":\"2024-05-05T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

}  // namespace
}  // namespace nlpdate
