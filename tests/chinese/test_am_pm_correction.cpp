// The late am/pm correction: a bare morning hour of today that has passed,
// with no am/pm word in the title, is read as pm.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

const char* const kAfternoon = "2024-03-08T15:00:00";

std::string corrected(const std::string& now, const std::string& time, const std::string& title,
                      const std::string& language = "en") {
  NLPNativeTitleParser parser = parserAt(now);
  OptTM cal = tmFromTimePoint(timePointFromSeconds(localSeconds(time)));
  OptTM result = parser.handleSpecialAm(cal, wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  EXPECT_TRUE(result && *result);
  EXPECT_EQ(result->get(), cal->get()) << "the record is corrected in place";
  return tmText(**result);
}

TEST(SpecialAmTest, EmptyStaysEmpty) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kAfternoon);
  EXPECT_FALSE(parser.handleSpecialAm(std::nullopt, L"3", NLPTranslation::getTransKeyToValue(L"en")));
}

TEST(SpecialAmTest, PassedMorningHourOfTodayBecomesPm) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T09:00:00", "call 9"), "2024-03-08T21:00:00");
  EXPECT_EQ(corrected("2024-03-08T15:30:00", "2024-03-08T03:00:00", "3点", "zh_CN"), "2024-03-08T15:00:00");
  // The 24-hour word does not hold this branch back.
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T11:30:00", "at 11:30"), "2024-03-08T23:30:00");
}

TEST(SpecialAmTest, AmPmWordKeepsTheHour) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T09:00:00", "9am"), "2024-03-08T09:00:00");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T09:00:00", "9 morning"), "2024-03-08T09:00:00");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T03:00:00", "下午3点", "zh_CN"), "2024-03-08T03:00:00");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T09:00:00", "9 morning", "ja"), "2024-03-08T09:00:00");
}

TEST(SpecialAmTest, FirstMorningWordOfTheVocabularyRunsIntoTheFixedWords) {
  // The am/pm pattern has no bar between its last fixed word and the first
  // morning word of the vocabulary, so Japanese "朝" alone is no am word.
  ScopedTZ zone("UTC");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T09:00:00", "朝9時", "ja"), "2024-03-08T21:00:00");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T09:00:00", "早9時", "ja"), "2024-03-08T09:00:00");
}

TEST(SpecialAmTest, OtherTimesStayAsTheyAre) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T00:00:00", "0"), "2024-03-08T00:00:00");    // midnight is not after today
  EXPECT_EQ(corrected(kAfternoon, "2024-03-08T13:00:00", "13"), "2024-03-08T13:00:00");   // past 11
  EXPECT_EQ(corrected("2024-03-08T08:00:00", "2024-03-08T09:00:00", "9"), "2024-03-08T09:00:00");  // ahead
  EXPECT_EQ(corrected(kAfternoon, "2024-03-09T00:00:00", "0"), "2024-03-09T00:00:00");    // exactly tomorrow
  EXPECT_EQ(corrected(kAfternoon, "2024-03-09T09:00:00", "9"), "2024-03-09T09:00:00");    // beyond tomorrow
  EXPECT_EQ(corrected(kAfternoon, "2024-03-07T09:00:00", "9"), "2024-03-07T09:00:00");    // yesterday
}

TEST(SpecialAmTest, HourAlreadyRolledToTomorrowMorningStays) {
  ScopedTZ zone("UTC");
  // A bare 3 said at 15:30 has been moved to tomorrow 03:00 before this step;
  // it lies beyond tomorrow's midnight and ahead of now, so it stays.
  EXPECT_EQ(corrected("2024-03-08T15:30:00", "2024-03-09T03:00:00", "3点", "zh_CN"), "2024-03-09T03:00:00");
  // The same hour still today and passed, with the 24-hour word: pm all the same.
  EXPECT_EQ(corrected("2024-03-08T15:30:00", "2024-03-08T03:00:00", "at 3"), "2024-03-08T15:00:00");
  // A pm word anywhere in the title keeps the hour.
  EXPECT_EQ(corrected("2024-03-08T15:30:00", "2024-03-08T03:00:00", "3 tonight"), "2024-03-08T03:00:00");
}

}  // namespace
}  // namespace nlpdate
