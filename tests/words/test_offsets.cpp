// Offsets from now: "in 2 hours 30 minutes", "in 3 days", "a minute later".
#include <gtest/gtest.h>

#include <functional>
#include <list>

#include "core/results.h"
#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/translation.h"

namespace nlpdate::testing {
namespace {

using Texts = std::vector<std::string>;

struct OffsetOutcome {
  bool found = false;
  std::string text;
  long position = -1;
  std::string trigger;  // the offset's text
  int minutes = 0;
  std::string startCal;   // the result's start record
  std::string startDate;  // the parser's startDate
  Texts reminders;
};

class Offsets : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};

  OffsetOutcome run(const std::string& title, const std::string& language = "en",
                    const std::function<void(Vocabulary&)>& edit = {}) {
    NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
    Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(wide(language));
    if (edit) edit(vocabulary);
    std::optional<NLPRecognizeDate> result = parser.matchEnAfterTime(wide(title), vocabulary);
    OffsetOutcome outcome;
    if (parser.parserDueDate.startDate) outcome.startDate = narrow(formatDateText(*parser.parserDueDate.startDate));
    for (const std::wstring& text : parser.parserDueDate.reminder) outcome.reminders.push_back(narrow(text));
    if (!result) return outcome;
    outcome.found = true;
    std::list<std::wstring> texts = result->getRecogString();
    EXPECT_EQ(texts.size(), 1u);
    if (!texts.empty()) outcome.text = narrow(texts.front());
    outcome.position = result->getRecognizeStringStartPosition();
    if (result->getDuration()) {
      outcome.trigger = narrow(result->getDuration()->getResult());
      outcome.minutes = result->getDuration()->getMinutes();
      EXPECT_TRUE(result->getDuration()->isIsPositive());
    }
    if (result->getStartCal()) outcome.startCal = tmText(**result->getStartCal());
    return outcome;
  }
};

TEST_F(Offsets, HoursAndMinutesAddUpInMinutes) {
  OffsetOutcome outcome = run("call mom in 2 hours 30 minutes");
  ASSERT_TRUE(outcome.found);
  EXPECT_EQ(outcome.text, "in 2 hours 30 minutes");
  EXPECT_EQ(outcome.position, 9);
  EXPECT_EQ(outcome.minutes, 150);
  EXPECT_EQ(outcome.trigger, "TRIGGER:PT150M");
  EXPECT_EQ(outcome.startDate, "2024-03-08T12:30:00");
  EXPECT_EQ(outcome.startCal, "2024-03-08T12:30:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
}

TEST_F(Offsets, AndBetweenHoursAndMinutesLeavesTheHourAlone) {
  OffsetOutcome outcome = run("call mom in an hour and 5 minutes");
  ASSERT_TRUE(outcome.found);
  EXPECT_EQ(outcome.text, "in an hour");
  EXPECT_EQ(outcome.trigger, "TRIGGER:PT1H");
  EXPECT_EQ(outcome.startDate, "2024-03-08T11:00:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
}

TEST_F(Offsets, HalfAnHour) {
  OffsetOutcome outcome = run("in half an hour");
  ASSERT_TRUE(outcome.found);
  EXPECT_EQ(outcome.text, "in half an hour");
  EXPECT_EQ(outcome.trigger, "TRIGGER:PT30M");
  EXPECT_EQ(outcome.startDate, "2024-03-08T10:30:00");
  EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
}

TEST_F(Offsets, DaysLeaveTheStartAllDayAndUnmoved) {
  OffsetOutcome outcome = run("in 3 days");
  ASSERT_TRUE(outcome.found);
  EXPECT_EQ(outcome.trigger, "TRIGGER:P3D");
  // The days are added later from the pending offset.
  EXPECT_EQ(outcome.startDate, "2024-03-08T00:00:00");
  EXPECT_EQ(outcome.startCal, "2024-03-08T00:00:00");
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(Offsets, OneMinuteEitherWay) {
  for (const char* title : {"in 1 minute", "a minute later"}) {
    SCOPED_TRACE(title);
    OffsetOutcome outcome = run(title);
    ASSERT_TRUE(outcome.found);
    EXPECT_EQ(outcome.text, title);
    EXPECT_EQ(outcome.trigger, "TRIGGER:PT1M");
    EXPECT_EQ(outcome.startDate, "2024-03-08T10:01:00");
    EXPECT_EQ(outcome.reminders, Texts{"TRIGGER:-PT0S"});
  }
}

TEST_F(Offsets, ThreeDigitCounts) {
  OffsetOutcome outcome = run("in 120 minutes");
  EXPECT_EQ(outcome.trigger, "TRIGGER:PT120M");
  EXPECT_EQ(outcome.startDate, "2024-03-08T12:00:00");
  EXPECT_EQ(run("in 100 days").trigger, "TRIGGER:P100D");
}

TEST_F(Offsets, NumberWordsOnlyInTheLaterPatterns) {
  OffsetOutcome words = run("two hours ten minutes later");
  ASSERT_TRUE(words.found);
  EXPECT_EQ(words.trigger, "TRIGGER:PT130M");
  EXPECT_EQ(words.startDate, "2024-03-08T12:10:00");
  OffsetOutcome days = run("twenty one days later");
  EXPECT_EQ(days.text, "twenty one days later");
  EXPECT_EQ(days.trigger, "TRIGGER:P21D");
  EXPECT_FALSE(run("in two hours").found);
}

TEST_F(Offsets, HoursAndMinutesLater) {
  OffsetOutcome outcome = run("2 hours 15 minutes later");
  EXPECT_EQ(outcome.trigger, "TRIGGER:PT135M");
  EXPECT_EQ(outcome.startDate, "2024-03-08T12:15:00");
}

TEST_F(Offsets, WeeksMonthsAndYearsWaitForTheParseFlow) {
  EXPECT_EQ(run("in 2 weeks").trigger, "TRIGGER:P2W");
  EXPECT_EQ(run("in 3 months").trigger, "TRIGGER:P3M");
  OffsetOutcome outcome = run("1 year later");
  EXPECT_EQ(outcome.trigger, "TRIGGER:P1Y");
  EXPECT_EQ(outcome.startDate, "2024-03-08T00:00:00");
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(Offsets, FirstMatchingPatternDecidesEvenWithoutAnOffset) {
  // "in 0 days" matches the third pattern and gives nothing; the fourth is
  // never searched.
  OffsetOutcome outcome = run("in 0 days, 2 days later");
  EXPECT_FALSE(outcome.found);
  EXPECT_EQ(outcome.startDate, "");
}

TEST_F(Offsets, UnitThatNoTestAcceptsGivesNothing) {
  // A unit alternative written as a pattern matches in the title but is no
  // unit word as plain text.
  OffsetOutcome outcome = run("in 3 zzz", "en", [](Vocabulary& v) { v.set(YEAR, L"zz+"); });
  EXPECT_FALSE(outcome.found);
  EXPECT_EQ(outcome.startDate, "");
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(Offsets, NothingFound) {
  OffsetOutcome outcome = run("call mom");
  EXPECT_FALSE(outcome.found);
  EXPECT_EQ(outcome.startDate, "");
  EXPECT_TRUE(outcome.reminders.empty());
}

TEST_F(Offsets, OtherLanguages) {
  // The French after value holds "plus tard"; its later value holds the
  // slip "plus trad", so the trailing form is not found.
  OffsetOutcome french = run("plus tard 2 heures", "fr");
  ASSERT_TRUE(french.found);
  EXPECT_EQ(french.trigger, "TRIGGER:PT2H");
  EXPECT_FALSE(run("2 heures plus tard", "fr").found);
  EXPECT_EQ(run("2 heures plus trad", "fr").trigger, "TRIGGER:PT2H");
  OffsetOutcome russian = run("через 3 дня", "ru");
  ASSERT_TRUE(russian.found);
  EXPECT_EQ(russian.text, "через 3 дня");
  EXPECT_EQ(russian.trigger, "TRIGGER:P3D");
}

}  // namespace
}  // namespace nlpdate::testing
