// Runs the repeat stage alone on a parser with a fixed clock and collects
// what it wrote into the result.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/results.h"
#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate::testing {

struct RepeatOutcome {
  bool matched = false;
  std::string flag;                    // repeatFlag
  std::string rule;                    // repeatRule as text, "" when none was stored
  std::string start;                   // startDate, "" when unset
  std::vector<std::string> texts;      // recognizeStrings
  std::vector<std::string> reminders;  // reminder
};

inline RepeatOutcome runRepeat(const std::string& now, const std::string& title, const std::string& language = "en",
                               const std::function<void(NLPNativeTitleParser&)>& setup = {}) {
  NLPNativeTitleParser parser = parserAt(now);
  if (setup) setup(parser);
  RepeatOutcome outcome;
  outcome.matched = parser.repeatHelper(wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  const NLPParserDueDate& due = parser.parserDueDate;
  outcome.flag = narrow(due.repeatFlag);
  if (due.repeatRule) outcome.rule = narrow(due.repeatRule->toIcal());
  if (due.startDate) outcome.start = narrow(formatDateText(*due.startDate));
  for (const std::wstring& text : due.recognizeStrings) outcome.texts.push_back(narrow(text));
  for (const std::wstring& text : due.reminder) outcome.reminders.push_back(narrow(text));
  return outcome;
}

// Every repeat test runs in UTC.
class RepeatTest : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
};

}  // namespace nlpdate::testing
