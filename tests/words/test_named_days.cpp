// Named days in word-language titles: yesterday, today, tomorrow, the day
// after tomorrow and tonight.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"
#include "words/named_days.h"

namespace nlpdate {
namespace {

using testing::narrow;
using testing::parseAt;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

const char* const kNow = "2024-03-08T10:00:00";

struct Found {
  bool present = false;
  std::string text;
  long position = -1;
  std::string start;
  size_t reminders = 0;
};

Found namedDayAt(const std::string& title, const std::string& language = "en") {
  NLPNativeTitleParser parser = parserAt(kNow);
  auto result = parser.matchEnSpecialDate(wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  if (!result) return {};
  return {true, narrow(result->getRecogString().front()), result->getRecognizeStringStartPosition(),
          tmText(*result->getStartCal().value()), parser.parserDueDate.reminder.size()};
}

TEST(NamedDayTest, TodayIsMidnightWithNoTime) {
  ScopedTZ zone("UTC");
  Found today = namedDayAt("today");
  ASSERT_TRUE(today.present);
  EXPECT_EQ(today.start, "2024-03-08T00:00:00");
  EXPECT_EQ(today.reminders, 0u);
  EXPECT_EQ(parseAt(kNow, "pay rent today"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"today\"],\"startDate\":\"2024-03-08T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

TEST(NamedDayTest, TonightIsNinePmWithTheOnTimeReminder) {
  ScopedTZ zone("UTC");
  Found tonight = namedDayAt("tonight");
  EXPECT_EQ(tonight.start, "2024-03-08T21:00:00");
  EXPECT_EQ(tonight.reminders, 1u);
}

TEST(NamedDayTest, RelativeDays) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(namedDayAt("yesterday").start, "2024-03-07T00:00:00");
  EXPECT_EQ(namedDayAt("tomorrow").start, "2024-03-09T00:00:00");
  EXPECT_EQ(namedDayAt("tmr").start, "2024-03-09T00:00:00");
  EXPECT_EQ(namedDayAt("tod").start, "2024-03-08T00:00:00");
}

TEST(NamedDayTest, DayAfterTomorrowIsTestedBeforeTomorrow) {
  ScopedTZ zone("UTC");
  Found found = namedDayAt("see you the day after tomorrow");
  EXPECT_EQ(found.text, "the day after tomorrow");
  EXPECT_EQ(found.position, 8);
  EXPECT_EQ(found.start, "2024-03-10T00:00:00");
}

TEST(NamedDayTest, TrailingBlanksBelongToTheText) {
  ScopedTZ zone("UTC");
  Found found = namedDayAt("lunch tomorrow  at noon");
  EXPECT_EQ(found.text, "tomorrow  ");
  EXPECT_EQ(found.position, 6);
}

TEST(NamedDayTest, NothingFound) {
  ScopedTZ zone("UTC");
  EXPECT_FALSE(namedDayAt("call mom").present);
}

TEST(NamedDayTest, OtherLanguages) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(namedDayAt("明日の会議", "ja").start, "2024-03-09T00:00:00");
  EXPECT_EQ(namedDayAt("昨日", "ja").start, "2024-03-07T00:00:00");
  EXPECT_EQ(namedDayAt("позвонить завтра", "ru").start, "2024-03-09T00:00:00");
  EXPECT_EQ(namedDayAt("сегодня", "ru").start, "2024-03-08T00:00:00");
  EXPECT_EQ(namedDayAt("appeler demain", "fr").start, "2024-03-09T00:00:00");
  EXPECT_EQ(namedDayAt("amanhã", "pt").start, "2024-03-09T00:00:00");
  EXPECT_EQ(namedDayAt("내일", "ko").start, "2024-03-09T00:00:00");
}

TEST(NamedDayTest, BaseDateDoesNotMoveANamedDay) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "tomorrow", "en", "2024-05-01T00:00:00"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"tomorrow\"],\"startDate\":\"2024-03-09T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

TEST(NamedDayPatternTest, EnglishAndRussianTomorrow) {
  const std::wstring en = getSpecialDayRecognition(NLPTranslation::getTransKeyToValue(L"en"));
  EXPECT_EQ(en.rfind(L"(\\byesterday(?:\\)|\\.|\\b)|\\btoday(?:\\)|\\.|\\b)|", 0), 0u);
  EXPECT_NE(en.find(L"|\\btomorrow(?:\\)|\\.|\\b)|"), std::wstring::npos);
  EXPECT_EQ(en.substr(en.size() - 6), L")(\\s)*");
  const std::wstring ru = getSpecialDayRecognition(NLPTranslation::getTransKeyToValue(L"ru"));
  EXPECT_NE(ru.find(L"|завтра|Завтра|\\btomorrow\\b|\\btmrw\\b|\\btmr\\b|"), std::wstring::npos);
}

}  // namespace
}  // namespace nlpdate
