// Title clean-up: web addresses, phone-like and serial-like numbers, and the
// Chinese words that hold date characters.
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::parseAt;
using testing::parserAt;
using testing::ScopedTZ;

const char* const kNow = "2024-03-08T10:00:00";

class Cleanup : public ::testing::Test {
 protected:
  std::wstring number(std::wstring title) {
    parser.deleteNumber(title);
    return title;
  }
  std::wstring serial(std::wstring title) {
    parser.deleteSerialNumber(title);
    return title;
  }
  std::wstring confusion(std::wstring title) {
    parser.deleteConfusionString(title);
    return title;
  }
  std::wstring url(std::wstring title) {
    parser.deleteWebUrl(title);
    return title;
  }

  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser = parserAt(kNow);
};

// ---- deleteStringByRegex ------------------------------------------------------------

TEST_F(Cleanup, DeleteStringByRegexCutsEveryMatchInPlace) {
  std::wstring text = L"abc123abc";
  std::wstring copy = parser.deleteStringByRegex(text, L"abc");
  EXPECT_EQ(text, L"123");
  EXPECT_EQ(copy, L"123");
}

TEST_F(Cleanup, DeleteStringByRegexIsCaseSensitive) {
  std::wstring text = L"ABC abc";
  parser.deleteStringByRegex(text, L"abc");
  EXPECT_EQ(text, L"ABC ");
}

TEST_F(Cleanup, DeleteStringByRegexWithoutMatchKeepsText) {
  std::wstring text = L"明天开会";
  EXPECT_EQ(parser.deleteStringByRegex(text, L"\\d+"), L"明天开会");
  EXPECT_EQ(text, L"明天开会");
}

// ---- deleteWebUrl ---------------------------------------------------------------------

TEST_F(Cleanup, WebAddressGoesRestStays) {
  EXPECT_EQ(url(L"明天 https://example.com/a?b=2024-03-09 开会"), L"明天  开会");
}

TEST_F(Cleanup, WebAddressSchemes) {
  EXPECT_EQ(url(L"see http://x.cn/12/25"), L"see ");
  EXPECT_EQ(url(L"get ftp://files.org/v1.2.zip now"), L"get  now");
  EXPECT_EQ(url(L"open file:///tmp/a"), L"open ");
}

TEST_F(Cleanup, WebAddressLosesNoTrailingDot) {
  EXPECT_EQ(url(L"read https://a.b/c."), L"read .");
}

TEST_F(Cleanup, WebAddressPatternIsCaseSensitive) {
  EXPECT_EQ(url(L"HTTP://X.COM tomorrow"), L"HTTP://X.COM tomorrow");
}

TEST_F(Cleanup, WebAddressReturnsCopy) {
  std::wstring title = L"https://a.io x";
  EXPECT_EQ(parser.deleteWebUrl(title), L" x");
  EXPECT_EQ(title, L" x");
}

// ---- deleteNumber: hyphenated blocks ---------------------------------------------------------

TEST_F(Cleanup, TelephoneNumberGoesWithBlankInFront) { EXPECT_EQ(number(L"call 010-12345678"), L"call"); }

TEST_F(Cleanup, TitleOfOnlyATelephoneNumberBecomesEmpty) { EXPECT_EQ(number(L"010-12345678"), L""); }

TEST_F(Cleanup, YearAfterHyphenStays) {
  EXPECT_EQ(number(L"1-2024"), L"1-2024");
  EXPECT_EQ(number(L"3-2024"), L"3-2024");
}

TEST_F(Cleanup, OnlyFirstHyphenMatchDecides) {
  // The first block reads as a year, so the second number is spared too.
  EXPECT_EQ(number(L"1-2030 and 555-123"), L"1-2030 and 555-123");
  // The first is no year: every match goes.
  EXPECT_EQ(number(L"555-1234 and 1-2030"), L" and");
}

TEST_F(Cleanup, LongOrderNumberWithSeveralBlocks) { EXPECT_EQ(number(L"order 12-345-6789 ok"), L"order ok"); }

// ---- deleteNumber: short date with year ----------------------------------------------------

TEST_F(Cleanup, ShortDateWithYearStays) { EXPECT_EQ(number(L"12-25-2024"), L"12-25-2024"); }

TEST_F(Cleanup, ShortDateWithOtherYearGoes) {
  EXPECT_EQ(number(L"12-25-1999"), L"");
  EXPECT_EQ(number(L"born 1-2-1999 x"), L"born  x");
}

// ---- deleteNumber: stages 3 to 5 -------------------------------------------------------------

TEST_F(Cleanup, TwoDigitsAndBlanksBeforeBlocks) { EXPECT_EQ(number(L"tel 86 -123-4567 ok"), L"tel ok"); }

TEST_F(Cleanup, PageLikePairs) {
  EXPECT_EQ(number(L"see p12-34 now"), L"see  now");
  EXPECT_EQ(number(L"see P1-2"), L"see ");
  // The bar in the class is kept, so it takes a bar too.
  EXPECT_EQ(number(L"a|1-2b"), L"ab");
}

TEST_F(Cleanup, NumberAboveThirtyOneBeforeDayMark) {
  EXPECT_EQ(number(L"32号"), L"");
  EXPECT_EQ(number(L"31号"), L"31号");
  EXPECT_EQ(number(L"45号见"), L"见");
  EXPECT_EQ(number(L"100号"), L"");
  EXPECT_EQ(number(L"03号"), L"03号");
  EXPECT_EQ(number(L"29号"), L"29号");
}

TEST_F(Cleanup, RoomWordsAreLeftToTheChineseDriver) { EXPECT_EQ(number(L"3号楼"), L"3号楼"); }

// ---- deleteNumber: long numbers --------------------------------------------------------------

TEST_F(Cleanup, YearNumberStays) {
  EXPECT_EQ(number(L"room 2024"), L"room 2024");
  EXPECT_EQ(number(L"2100"), L"2100");
  EXPECT_EQ(number(L"2000"), L"2000");
}

TEST_F(Cleanup, LongNumberGoes) {
  EXPECT_EQ(number(L"order 12345678"), L"order ");
  EXPECT_EQ(number(L"1999"), L"");
  EXPECT_EQ(number(L"2101"), L"");
}

TEST_F(Cleanup, NumberAfterAtOrAtMarkStays) {
  EXPECT_EQ(number(L"at 1200"), L"at 1200");
  EXPECT_EQ(number(L"@1200"), L"@1200");
  EXPECT_EQ(number(L"@  1200"), L"@  1200");
  EXPECT_EQ(number(L"meet AT 1200"), L"meet AT 1200");
  EXPECT_EQ(number(L"meet aT1200"), L"meet aT1200");
}

TEST_F(Cleanup, AnyWordEndingInAtCounts) { EXPECT_EQ(number(L"cat 1200"), L"cat 1200"); }

TEST_F(Cleanup, OtherCharacterBeforeNumber) {
  EXPECT_EQ(number(L"t 1200"), L"t ");
  EXPECT_EQ(number(L"a 1200"), L"a ");
}

TEST_F(Cleanup, OnlyBlanksBeforeNumberGoOn) { EXPECT_EQ(number(L"   1200"), L"   "); }

TEST_F(Cleanup, TimeMarkerAfterNumberSavesIt) {
  EXPECT_EQ(number(L"1200 pm"), L"1200 pm");
  EXPECT_EQ(number(L"1200am"), L"1200am");
  EXPECT_EQ(number(L"1200    p"), L"1200    p");
  EXPECT_EQ(number(L"1200A"), L"1200A") << "the look-ahead ignores case";
  EXPECT_EQ(number(L"1200 tomorrow"), L"1200 tomorrow");
}

TEST_F(Cleanup, LongerRunGivesBackDigitsAndMatches) {
  EXPECT_EQ(number(L"12345 pm"), L"5 pm");
  EXPECT_EQ(number(L"12345a"), L"5a");
}

TEST_F(Cleanup, FirstLongNumberDecidesForAll) {
  EXPECT_EQ(number(L"2030x and 55555"), L"2030x and 55555");
  EXPECT_EQ(number(L"55555x and 2030x"), L"x and x");
}

TEST_F(Cleanup, ShortNumbersAreUntouched) { EXPECT_EQ(number(L"buy 3 apples 12 25"), L"buy 3 apples 12 25"); }

TEST_F(Cleanup, DeleteNumberReturnsCopy) {
  std::wstring title = L"order 12345678";
  EXPECT_EQ(parser.deleteNumber(title), L"order ");
  EXPECT_EQ(title, L"order ");
}

// ---- deleteSerialNumber ------------------------------------------------------------------

TEST_F(Cleanup, FiveBlockSerial) {
  EXPECT_EQ(serial(L"key ABCD-1234-EFGH-5678-IJKL"), L"key ");
  EXPECT_EQ(serial(L"1-2-3-4-5"), L"");
}

TEST_F(Cleanup, TwoLongBlocks) {
  EXPECT_EQ(serial(L"1234-5678"), L"");
  EXPECT_EQ(serial(L"sn AB12-CD34 x"), L"sn  x");
}

TEST_F(Cleanup, DigitNumberTwoDigits) {
  EXPECT_EQ(serial(L"1-45-21"), L"");
  EXPECT_EQ(serial(L"1-12-21"), L"1-12-21");
  EXPECT_EQ(serial(L"1-13-21 x"), L" x");
  EXPECT_EQ(serial(L"1-45-211"), L"1-45-211");
  EXPECT_EQ(serial(L"1-45-21-"), L"1-45-21-");
}

TEST_F(Cleanup, LowerCaseLetterProtectsSerial) {
  EXPECT_EQ(serial(L"abcd-1234-efgh-5678-ijkl"), L"abcd-1234-efgh-5678-ijkl");
  EXPECT_EQ(serial(L"ab12-cd34"), L"ab12-cd34");
}

TEST_F(Cleanup, ShortBlocksStay) { EXPECT_EQ(serial(L"12-25"), L"12-25"); }

// ---- deleteConfusionString ----------------------------------------------------------------

TEST_F(Cleanup, FoodOrderWord) {
  EXPECT_EQ(confusion(L"点外卖"), L"");
  EXPECT_EQ(confusion(L"明天点外卖"), L"明天");
}

TEST_F(Cleanup, RoomBatteryAndMeetingRoomNumbers) {
  EXPECT_EQ(confusion(L"3号楼"), L"");
  EXPECT_EQ(confusion(L"3号楼开会"), L"开会");
  EXPECT_EQ(confusion(L"二十号会议室"), L"");
  EXPECT_EQ(confusion(L"买5号电池"), L"买");
  EXPECT_EQ(confusion(L"12号楼"), L"");
}

TEST_F(Cleanup, RoomNumberTakesAtMostTwoDigitsOrNumeralsUpTo24) {
  EXPECT_EQ(confusion(L"123号楼"), L"1");
  EXPECT_EQ(confusion(L"二十五号电池"), L"二");
}

TEST_F(Cleanup, PlainDayMarkIsNoRoom) { EXPECT_EQ(confusion(L"3号开会"), L"3号开会"); }

TEST_F(Cleanup, EarlyWord) { EXPECT_EQ(confusion(L"明天早点起"), L"明天起"); }

TEST_F(Cleanup, BandName) { EXPECT_EQ(confusion(L"五月天演唱会"), L"演唱会"); }

TEST_F(Cleanup, ExamNames) {
  EXPECT_EQ(confusion(L"六级考试"), L"考试");
  EXPECT_EQ(confusion(L"4级"), L"");
  EXPECT_EQ(confusion(L"四级和6级"), L"和");
}

TEST_F(Cleanup, AllStagesInOneTitle) { EXPECT_EQ(confusion(L"早点点外卖到3号楼"), L"到"); }

TEST_F(Cleanup, TitleWithoutTheWordsIsUnchanged) { EXPECT_EQ(confusion(L"明天下午三点开会"), L"明天下午三点开会"); }

// ---- through the whole parse ---------------------------------------------------------------

TEST(CleanupFlow, WebAddressDoesNotReachTheRecognisers) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "明天 https://example.com/2024/12/25 开会", "zh_CN"), parseAt(kNow, "明天  开会", "zh_CN"));
}

TEST(CleanupFlow, TelephoneNumberDoesNotReachTheRecognisers) {
  ScopedTZ zone("UTC");
  const std::string cleaned = parseAt(kNow, "call");
  EXPECT_FALSE(cleaned.empty());
  EXPECT_EQ(parseAt(kNow, "call 010-12345678"), cleaned);
}

TEST(CleanupFlow, TitleOfOnlyATelephoneNumberIsAnEmptyTitle) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "010-12345678"), parseAt(kNow, ""));
}

TEST(CleanupFlow, OrderAndSerialNumbersDoNotReachTheRecognisers) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "order 12345678"), parseAt(kNow, "order "));
  EXPECT_EQ(parseAt(kNow, "code 1-45-21"), parseAt(kNow, "code "));
}

}  // namespace
}  // namespace nlpdate
