// Advance reminders: "remind me 10 minutes early", and the five-minute
// default when no usable amount is named.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate::testing {
namespace {

using Texts = std::vector<std::string>;

struct AdvanceOutcome {
  std::string returned;
  std::string pending;  // the pending offset's trigger text, "" when none
  Texts texts;
};

class Advance : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};

  AdvanceOutcome run(const std::string& title, const std::string& language = "en") {
    NLPNativeTitleParser parser = parserAt("2024-03-08T10:00:00");
    AdvanceOutcome outcome;
    outcome.returned =
        narrow(parser.matchEnAdvanceTime(wide(title), NLPTranslation::getTransKeyToValue(wide(language))));
    if (parser.parserDueDate.pendingOffset) outcome.pending = narrow(parser.parserDueDate.pendingOffset->getResult());
    for (const std::wstring& text : parser.parserDueDate.recognizeStrings) outcome.texts.push_back(narrow(text));
    EXPECT_TRUE(parser.parserDueDate.reminder.empty());
    EXPECT_FALSE(parser.parserDueDate.startDate.has_value());
    return outcome;
  }
};

TEST_F(Advance, MinutesEarly) {
  AdvanceOutcome outcome = run("call mom remind me 10 minutes early");
  EXPECT_EQ(outcome.returned, "remind me 10 minutes early");
  EXPECT_EQ(outcome.pending, "TRIGGER:-PT10M");
  EXPECT_EQ(outcome.texts, Texts{"remind me 10 minutes early"});
}

TEST_F(Advance, OtherAmountsAndEarlyWords) {
  EXPECT_EQ(run("remind me half an hour before").pending, "TRIGGER:-PT30M");
  EXPECT_EQ(run("remind me an hour in advance").pending, "TRIGGER:-PT1H");
  EXPECT_EQ(run("remind me 2 days earlier").pending, "TRIGGER:-P2D");
  EXPECT_EQ(run("remind 1 week before").pending, "TRIGGER:-P1W");
}

TEST_F(Advance, AmountWithoutOffsetIsStillRecognised) {
  AdvanceOutcome outcome = run("remind me 0 minutes early");
  EXPECT_EQ(outcome.returned, "remind me 0 minutes early");
  EXPECT_EQ(outcome.pending, "");
  EXPECT_EQ(outcome.texts, Texts{"remind me 0 minutes early"});
}

TEST_F(Advance, NoAmountGivesFiveMinutes) {
  AdvanceOutcome outcome = run("remind me bit early");
  EXPECT_EQ(outcome.returned, "remind me bit early");
  EXPECT_EQ(outcome.pending, "TRIGGER:-PT5M");
  EXPECT_EQ(outcome.texts, Texts{"remind me bit early"});
  EXPECT_EQ(run("remind me early").pending, "TRIGGER:-PT5M");
  // At least one word must stand between the two.
  EXPECT_EQ(run("remind early").returned, "");
}

TEST_F(Advance, AtMostTwoWordsBeforeTheEarlyWord) {
  // "me a bit" is three words: neither pattern matches.
  AdvanceOutcome outcome = run("remind me a bit early");
  EXPECT_EQ(outcome.returned, "");
  EXPECT_EQ(outcome.pending, "");
  EXPECT_TRUE(outcome.texts.empty());
}

TEST_F(Advance, AtMostTwoDigits) {
  AdvanceOutcome threeDigits = run("remind me 100 minutes early");
  EXPECT_EQ(threeDigits.returned, "");
  EXPECT_EQ(threeDigits.pending, "");
  // Without "me" the three-digit count and its unit are the two free words.
  AdvanceOutcome twoWords = run("remind 100 minutes early");
  EXPECT_EQ(twoWords.returned, "remind 100 minutes early");
  EXPECT_EQ(twoWords.pending, "TRIGGER:-PT5M");
  EXPECT_EQ(run("remind me 99 minutes early").pending, "TRIGGER:-PT99M");
}

TEST_F(Advance, MonthsAreNoAdvanceUnit) {
  AdvanceOutcome outcome = run("remind me 3 months early");
  EXPECT_EQ(outcome.returned, "");
  EXPECT_EQ(outcome.pending, "");
}

TEST_F(Advance, NothingFound) {
  AdvanceOutcome outcome = run("call mom");
  EXPECT_EQ(outcome.returned, "");
  EXPECT_EQ(outcome.pending, "");
  EXPECT_TRUE(outcome.texts.empty());
}

TEST_F(Advance, OtherLanguages) {
  AdvanceOutcome russian = run("напомни за 10 минут раньше", "ru");
  EXPECT_EQ(russian.returned, "напомни за 10 минут раньше");
  EXPECT_EQ(russian.pending, "TRIGGER:-PT10M");
  AdvanceOutcome french = run("rappelle moi 15 minutes plus tôt", "fr");
  EXPECT_EQ(french.pending, "TRIGGER:-PT15M");
}

}  // namespace
}  // namespace nlpdate::testing
