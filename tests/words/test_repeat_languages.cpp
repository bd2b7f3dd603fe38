// Repeats in Portuguese, French, Russian, Japanese and Korean titles. The
// patterns come from each language's vocabulary; Portuguese alone tries the
// every patterns in reverse order.
#include "test_repeat_support.h"
#include "words/repeat_patterns.h"

namespace nlpdate::testing {
namespace {

using Texts = std::vector<std::string>;
constexpr const char* WED = "2024-03-06T10:00:00";

TEST_F(RepeatTest, PortugueseTriesTheLastPatternsFirst) {
  Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");
  Vocabulary portuguese = NLPTranslation::getTransKeyToValue(L"pt");
  auto englishOrder = repeatEveryPatterns(english);
  auto portugueseOrder = repeatEveryPatterns(portuguese);
  ASSERT_EQ(englishOrder.size(), 15u);
  ASSERT_EQ(portugueseOrder.size(), 15u);
  // English: ascending text order, month pattern M1 ("\b(\d...") first and
  // M2 ("\b(every)\s*...") last.
  EXPECT_EQ(narrow(englishOrder.front().first).rfind("\\b(\\d{1,2})?", 0), 0u);
  EXPECT_EQ(narrow(englishOrder.back().first).rfind("\\b(every|each|ev)\\s*", 0), 0u);
  for (size_t i = 1; i < englishOrder.size(); ++i) EXPECT_LT(englishOrder[i - 1].first, englishOrder[i].first);
  // Portuguese: descending.
  for (size_t i = 1; i < portugueseOrder.size(); ++i) {
    EXPECT_GT(portugueseOrder[i - 1].first, portugueseOrder[i].first);
  }
  EXPECT_EQ(portugueseOrder.front().second, NLPFrequency::MONTHLY);
}

TEST_F(RepeatTest, PortugueseReadsEveryTwoWeeksAsADayOfTheMonth) {
  // M2 comes first in Portuguese and takes "every 2" as the 2nd of the month.
  RepeatOutcome outcome = runRepeat(WED, "every 2 weeks", "pt");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1");
  EXPECT_EQ(outcome.start, "2024-04-02T00:00:00");
  EXPECT_EQ(outcome.texts, Texts{"every 2 "});
  EXPECT_EQ(runRepeat(WED, "every 2 weeks", "en").flag, "RRULE:FREQ=WEEKLY;INTERVAL=2");
}

TEST_F(RepeatTest, PortugueseWeekWordIsAlsoItsWeekendWord) {
  // "semana" stands in the Portuguese weekend value too, so the whole-title
  // test gives the weekend days.
  RepeatOutcome weekly = runRepeat(WED, "toda semana", "pt");
  EXPECT_EQ(weekly.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=SU,SA");
  EXPECT_EQ(weekly.start, "2024-03-09T00:00:00");
  RepeatOutcome monthly = runRepeat(WED, "cada 2 semanas", "pt");
  EXPECT_EQ(monthly.flag, "RRULE:FREQ=MONTHLY;WKST=MO;INTERVAL=1;BYDAY=SU,SA");
  EXPECT_EQ(monthly.start, "2024-04-02T00:00:00");
  EXPECT_EQ(monthly.texts, Texts{"cada 2 "});
}

TEST_F(RepeatTest, PortugueseListsAndDays) {
  RepeatOutcome list = runRepeat(WED, "cada segunda e sexta", "pt");
  EXPECT_EQ(list.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,FR");
  EXPECT_EQ(list.start, "2024-03-11T00:00:00");
  EXPECT_EQ(list.texts, Texts{"cada segunda e sexta"});
  RepeatOutcome day = runRepeat(WED, "todo dia 15", "pt");
  EXPECT_EQ(day.flag, "RRULE:FREQ=MONTHLY;INTERVAL=1");
  EXPECT_EQ(day.start, "2024-03-15T00:00:00");
  EXPECT_EQ(day.texts, Texts{"todo dia 15"});
  EXPECT_EQ(runRepeat(WED, "todos os dias", "pt").flag, "RRULE:FREQ=DAILY;INTERVAL=1");
}

TEST_F(RepeatTest, PortugueseSecondDayWordDoublesTheInterval) {
  // "segunda" (Monday) is also the Portuguese word for second.
  RepeatOutcome outcome = runRepeat(WED, "toda segunda", "pt");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=2;BYDAY=MO");
  EXPECT_EQ(outcome.start, "2024-03-11T00:00:00");
}

TEST_F(RepeatTest, FrenchRepeats) {
  RepeatOutcome list = runRepeat(WED, "chaque lundi et mardi", "fr");
  EXPECT_EQ(list.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU");
  EXPECT_EQ(list.start, "2024-03-11T00:00:00");
  RepeatOutcome monday = runRepeat(WED, "chaque lundi", "fr");
  EXPECT_EQ(monday.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO");
  EXPECT_EQ(monday.texts, Texts{"chaque lundi"});
  EXPECT_EQ(runRepeat(WED, "chaque jour", "fr").flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(runRepeat(WED, "chaque 2 semaines", "fr").flag, "RRULE:FREQ=WEEKLY;INTERVAL=2");
  RepeatOutcome daily = runRepeat(WED, "quotidien", "fr");
  EXPECT_EQ(daily.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(daily.texts, Texts{"quotidien"});
}

TEST_F(RepeatTest, FrenchMorningValueIsCapitalisedSoNoHourIsSet) {
  // The part-of-day tests are plain, case-sensitive substring tests, and the
  // French value starts with "Matin".
  RepeatOutcome outcome = runRepeat(WED, "chaque matin", "fr");
  EXPECT_EQ(outcome.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(outcome.start, "2024-03-06T00:00:00");
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(RepeatTest, RussianRepeats) {
  RepeatOutcome list = runRepeat(WED, "каждый четверг и вторник", "ru");
  EXPECT_EQ(list.flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=TU,TH");
  EXPECT_EQ(list.start, "2024-03-07T00:00:00");
  EXPECT_EQ(list.texts, Texts{"каждый четверг и вторник"});
  RepeatOutcome daily = runRepeat(WED, "каждый день", "ru");
  EXPECT_EQ(daily.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(daily.texts, Texts{"каждый день"});
  EXPECT_EQ(runRepeat(WED, "каждую неделю", "ru").flag, "RRULE:FREQ=WEEKLY;INTERVAL=1");
}

TEST_F(RepeatTest, RussianEveryPatternsNeedAWordBorderThatCyrillicNeverGives) {
  EXPECT_FALSE(runRepeat(WED, "каждый вторник", "ru").matched);
  EXPECT_EQ(runRepeat(WED, "every monday", "ru").flag, "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO");
}

TEST_F(RepeatTest, JapaneseAndKoreanOneWordRules) {
  RepeatOutcome japanese = runRepeat(WED, "毎日", "ja");
  EXPECT_EQ(japanese.flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(japanese.texts, Texts{"毎日"});
  // The weekly value is bordered in front, and no border stands before kana.
  EXPECT_FALSE(runRepeat(WED, "毎週", "ja").matched);
  EXPECT_EQ(runRepeat(WED, "매일", "ko").flag, "RRULE:FREQ=DAILY;INTERVAL=1");
  EXPECT_EQ(runRepeat(WED, "every weekday", "ko").flag,
            "RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO,TU,WE,TH,FR");
}

}  // namespace
}  // namespace nlpdate::testing
