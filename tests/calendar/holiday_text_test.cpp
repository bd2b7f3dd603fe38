// The host's holiday texts: the flat reader, the kept quotes, the same-text
// short cut and the error for an entry without a number.
#include <gtest/gtest.h>

#include <memory>

#include "calendar/holiday_text.h"
#include "nlpdate/errors.h"
#include "nlpdate/nlpdate.h"
#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::parserAt;
using testing::ScopedTZ;
using Table = std::map<std::wstring, int>;

class HolidayText : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
};

std::string errorOf(const std::wstring& text) {
  try {
    readHolidayText(text);
  } catch (const HolidayTextError& error) {
    return error.what();
  }
  return "no error";
}

TEST_F(HolidayText, QuotedKeyKeepsItsQuotes) {
  parser.setHolidayDay(L"{\"20240101\":2}");
  EXPECT_EQ(parser.holidayDayMap, (Table{{L"\"20240101\"", 2}}));
  EXPECT_EQ(parser.holidayInfos, L"{\"20240101\":2}");
}

TEST_F(HolidayText, BareKeyStaysBare) {
  parser.setHolidayDay(L"{20240204:1}");
  EXPECT_EQ(parser.holidayDayMap, (Table{{L"20240204", 1}}));
}

TEST_F(HolidayText, TextWithoutBracesReadsTheSame) {
  EXPECT_EQ(readHolidayText(L"\"20240101\":2,\"20240204\":1"), readHolidayText(L"{\"20240101\":2,\"20240204\":1}"));
  EXPECT_EQ(readHolidayText(L"\"20240101\":2,\"20240204\":1"), (Table{{L"\"20240101\"", 2}, {L"\"20240204\"", 1}}));
}

TEST_F(HolidayText, OnlyTheOutermostBracesAreDropped) {
  EXPECT_EQ(readHolidayText(L"x{a:1}y"), (Table{{L"a", 1}}));
  EXPECT_EQ(readHolidayText(L"{{a:1}}"), (Table{{L"{a", 1}}));
}

TEST_F(HolidayText, BlanksAroundKeysStay) {
  EXPECT_EQ(readHolidayText(L"{ \"20240101\" : 2 }"), (Table{{L" \"20240101\" ", 2}}));
}

TEST_F(HolidayText, NumberReadLikeTheStandardConversion) {
  EXPECT_EQ(readHolidayText(L"{a:  7,b:12abc,c:-3,d:+4}"), (Table{{L"a", 7}, {L"b", 12}, {L"c", -3}, {L"d", 4}}));
}

TEST_F(HolidayText, OnlyTheFirstColonSplits) {
  EXPECT_EQ(readHolidayText(L"{a:5:6}"), (Table{{L"a", 5}}));
}

TEST_F(HolidayText, LaterEqualKeyOverwrites) {
  EXPECT_EQ(readHolidayText(L"{a:1,b:2,a:3}"), (Table{{L"a", 3}, {L"b", 2}}));
}

TEST_F(HolidayText, EmptyRestAfterLastCommaIsNoEntry) {
  EXPECT_EQ(readHolidayText(L"{a:1,}"), (Table{{L"a", 1}}));
  EXPECT_TRUE(readHolidayText(L"{}").empty());
  EXPECT_TRUE(readHolidayText(L"").empty());
}

TEST_F(HolidayText, EntryWithoutNumberNamesTheEntry) {
  EXPECT_EQ(errorOf(L"{\"20240101\":}"), "holiday text: entry '\"20240101\":' has no number");
  EXPECT_EQ(errorOf(L"{\"20240101\"}"), "holiday text: entry '\"20240101\"' has no number");
  EXPECT_EQ(errorOf(L"{a:1,b:x}"), "holiday text: entry 'b:x' has no number");
  EXPECT_EQ(errorOf(L"{a:1,,b:2}"), "holiday text: entry '' has no number");
  EXPECT_EQ(errorOf(L"{ }"), "holiday text: entry ' ' has no number");
  EXPECT_EQ(errorOf(L"{\"元日\":}"), "holiday text: entry '\"元日\":' has no number");
}

TEST_F(HolidayText, NumberOutOfRangeIsAnError) {
  EXPECT_EQ(errorOf(L"{a:99999999999}"), "holiday text: entry 'a:99999999999' has a number out of range");
  EXPECT_THROW(readHolidayText(L"{a:-99999999999}"), HolidayTextError);
}

TEST_F(HolidayText, BadTextLeavesTablesAsTheyWere) {
  parser.setHolidayDay(L"{20240204:1}");
  EXPECT_THROW(parser.setHolidayDay(L"{20240101:2,20240102:}"), HolidayTextError);
  EXPECT_EQ(parser.holidayInfos, L"{20240204:1}");
  EXPECT_EQ(parser.holidayDayMap, (Table{{L"20240204", 1}}));

  parser.setJapanHolidayDay(L"{\"元日\":20240101}");
  EXPECT_THROW(parser.setJapanHolidayDay(L"{\"成人の日\"}"), HolidayTextError);
  EXPECT_EQ(parser.japanHolidayInfos, L"{\"元日\":20240101}");
  EXPECT_EQ(parser.japanHolidayDayMap, (Table{{L"\"元日\"", 20240101}}));
}

TEST_F(HolidayText, SameTextIsNotReadAgain) {
  parser.setHolidayDay(L"{20240204:1}");
  parser.holidayDayMap[L"marker"] = 7;
  parser.setHolidayDay(L"{20240204:1}");
  EXPECT_EQ(parser.holidayDayMap, (Table{{L"20240204", 1}, {L"marker", 7}}));
  parser.setHolidayDay(L"{20240205:1}");
  EXPECT_EQ(parser.holidayDayMap, (Table{{L"20240205", 1}}));
}

TEST_F(HolidayText, EmptyTextEqualsTheEmptyStoredText) {
  parser.holidayDayMap[L"marker"] = 7;
  parser.setHolidayDay(L"");
  EXPECT_EQ(parser.holidayDayMap, (Table{{L"marker", 7}}));
  parser.japanHolidayDayMap[L"marker"] = 8;
  parser.setJapanHolidayDay(L"");
  EXPECT_EQ(parser.japanHolidayDayMap, (Table{{L"marker", 8}}));
}

TEST_F(HolidayText, NewTextReplacesTheWholeMap) {
  parser.setHolidayDay(L"{20240204:1,20240210:2}");
  parser.setHolidayDay(L"{}");
  EXPECT_TRUE(parser.holidayDayMap.empty());
  EXPECT_EQ(parser.holidayInfos, L"{}");
}

TEST_F(HolidayText, JapaneseTextKeepsQuotedNames) {
  parser.setJapanHolidayDay(L"{\"元日\":20240101,\"成人の日\":20240108}");
  EXPECT_EQ(parser.japanHolidayDayMap, (Table{{L"\"元日\"", 20240101}, {L"\"成人の日\"", 20240108}}));
  EXPECT_EQ(parser.japanHolidayInfos, L"{\"元日\":20240101,\"成人の日\":20240108}");
  EXPECT_TRUE(parser.holidayDayMap.empty());
  EXPECT_TRUE(parser.holidayInfos.empty());
}

TEST_F(HolidayText, JapaneseSameTextIsNotReadAgain) {
  parser.setJapanHolidayDay(L"{\"元日\":20240101}");
  parser.japanHolidayDayMap[L"marker"] = 1;
  parser.setJapanHolidayDay(L"{\"元日\":20240101}");
  EXPECT_EQ(parser.japanHolidayDayMap.count(L"marker"), 1u);
}

// The facade applies the texts outside the parse, so the error reaches its caller.
class BadHolidaySettings : public NLPNativeParserDataSource {
 public:
  std::optional<std::string> holidayInfosJSONString() const override { return std::string("{\"20240101\":}"); }
};

TEST_F(HolidayText, FacadePassesTheErrorOn) {
  auto settings = std::make_shared<BadHolidaySettings>();
  NLPNativeParser facade;
  facade.setDataSource(settings);
  facade.setFixedNow(testing::localSeconds("2024-03-08T10:00:00"));
  try {
    facade.parse("meeting tomorrow");
    FAIL() << "no error";
  } catch (const HolidayTextError& error) {
    EXPECT_STREQ(error.what(), "holiday text: entry '\"20240101\":' has no number");
  }
}

}  // namespace
}  // namespace nlpdate
