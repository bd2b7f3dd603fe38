// Count and unit word to offset: the integer overload and the two text
// overloads, with their different unit orders and half rules.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate::testing {
namespace {

class Durations : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
  Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");

  // The offset's fields as "years/months/weeks/days/hours/minutes/seconds sign", or "none".
  static std::string fields(const std::optional<NLPMorvaneDuration>& offset) {
    if (!offset) return "none";
    return std::to_string(offset->getYears()) + "/" + std::to_string(offset->getMonths()) + "/" +
           std::to_string(offset->getWeeks()) + "/" + std::to_string(offset->getDays()) + "/" +
           std::to_string(offset->getHours()) + "/" + std::to_string(offset->getMinutes()) + "/" +
           std::to_string(offset->getSeconds()) + (offset->isIsPositive() ? " +" : " -");
  }
  std::string ofInt(int count, const std::string& unit, bool positive = true) {
    return fields(parser.getDuration(count, wide(unit), positive, english));
  }
  std::string ofText(const std::string& count, const std::string& unit, bool positive = true,
                     const std::string& language = "en") {
    return fields(parser.getDuration(wide(count), wide(unit), positive,
                                     NLPTranslation::getTransKeyToValue(wide(language))));
  }
};

TEST_F(Durations, IntegerCountEachUnit) {
  EXPECT_EQ(ofInt(150, "minutes"), "0/0/0/0/0/150/0 +");
  EXPECT_EQ(ofInt(2, "hours", false), "0/0/0/0/2/0/0 -");
  EXPECT_EQ(ofInt(3, "days"), "0/0/0/3/0/0/0 +");
  EXPECT_EQ(ofInt(1, "wk"), "0/0/1/0/0/0/0 +");
  EXPECT_EQ(ofInt(7, "years"), "7/0/0/0/0/0/0 +");
  EXPECT_EQ(ofInt(5, "分钟"), "0/0/0/0/0/5/0 +");
}

TEST_F(Durations, IntegerCountTestsHoursBeforeMonths) {
  // The hour value holds "h", which "months" contains, and hours come first here.
  EXPECT_EQ(ofInt(4, "months"), "0/0/0/0/4/0/0 +");
  EXPECT_EQ(ofInt(4, "月"), "0/4/0/0/0/0/0 +");
}

TEST_F(Durations, IntegerCountUnknownUnitGivesNothing) { EXPECT_EQ(ofInt(3, "xyz"), "none"); }

TEST_F(Durations, TextCountEachUnit) {
  EXPECT_EQ(ofText("10", "minutes"), "0/0/0/0/0/10/0 +");
  EXPECT_EQ(ofText("2", "hours"), "0/0/0/0/2/0/0 +");
  EXPECT_EQ(ofText("3", "days"), "0/0/0/3/0/0/0 +");
  EXPECT_EQ(ofText("2", "weeks"), "0/0/2/0/0/0/0 +");
  EXPECT_EQ(ofText("3", "months"), "0/3/0/0/0/0/0 +");
  EXPECT_EQ(ofText("4", "yrs"), "4/0/0/0/0/0/0 +");
  EXPECT_EQ(ofText("twenty one", "days"), "0/0/0/21/0/0/0 +");
  EXPECT_EQ(ofText("a", "hour"), "0/0/0/0/1/0/0 +");
  EXPECT_EQ(ofText("an", "hour"), "0/0/0/0/1/0/0 +");
}

TEST_F(Durations, ThreeArgumentFormIsBeforeTheReference) {
  std::optional<NLPMorvaneDuration> offset = parser.getDuration(L"10", L"minutes", english);
  EXPECT_EQ(fields(offset), "0/0/0/0/0/10/0 -");
  EXPECT_EQ(narrow(offset->getResult()), "TRIGGER:-PT10M");
}

TEST_F(Durations, HalfRules) {
  EXPECT_EQ(ofText("half a", "minute"), "0/0/0/0/0/0/30 +");
  EXPECT_EQ(ofText("half an", "hour"), "0/0/0/0/0/30/0 +");
  EXPECT_EQ(ofText("half a", "week"), "0/0/0/3/0/0/0 +");
  EXPECT_EQ(ofText("half a", "day"), "0/0/0/0/12/0/0 +");
  EXPECT_EQ(ofText("半", "小时"), "0/0/0/0/0/30/0 +");
}

TEST_F(Durations, HalfIsLookedForInTheUnitTextToo) {
  EXPECT_EQ(ofText("2", "half an hour"), "0/0/0/0/0/30/0 +");
}

TEST_F(Durations, HalfWithMonthsOrYearsKeepsTheCount) {
  // "half a" holds the word for a, so its count is 1.
  EXPECT_EQ(ofText("half a", "month"), "0/1/0/0/0/0/0 +");
  EXPECT_EQ(ofText("half a", "year"), "1/0/0/0/0/0/0 +");
  // "半" is read by the number reader, which gives 30 for it.
  EXPECT_EQ(ofText("半", "months"), "0/30/0/0/0/0/0 +");
}

TEST_F(Durations, ZeroCountGivesNothingExceptForMonthsAndYears) {
  EXPECT_EQ(ofText("0", "minutes"), "none");
  EXPECT_EQ(ofText("0", "weeks"), "none");
  EXPECT_EQ(ofText("0", "hours"), "none");
  EXPECT_EQ(ofText("0", "days"), "none");
  EXPECT_EQ(ofText("", "days"), "none");
  EXPECT_EQ(ofText("0", "months"), "0/0/0/0/0/0/0 +");
  EXPECT_EQ(ofText("0", "years"), "0/0/0/0/0/0/0 +");
  EXPECT_EQ(narrow(parser.getDuration(L"0", L"months", english)->getResult()), "TRIGGER:-PT0S");
}

TEST_F(Durations, TextCountUnknownUnitGivesNothing) {
  EXPECT_EQ(ofText("3", "xyz"), "none");
  EXPECT_EQ(ofText("half a", "xyz"), "none");
}

TEST_F(Durations, OtherLanguagesReachTheUnitsThroughTheirVocabulary) {
  EXPECT_EQ(ofText("2", "heures", true, "fr"), "0/0/0/0/2/0/0 +");
  EXPECT_EQ(ofText("3", "jours", true, "fr"), "0/0/0/3/0/0/0 +");
  EXPECT_EQ(ofText("1", "semaine", true, "fr"), "0/0/1/0/0/0/0 +");
  EXPECT_EQ(ofText("2", "часа", true, "ru"), "0/0/0/0/2/0/0 +");
  EXPECT_EQ(ofText("5", "분", true, "ko"), "0/0/0/0/0/5/0 +");
}

}  // namespace
}  // namespace nlpdate::testing
