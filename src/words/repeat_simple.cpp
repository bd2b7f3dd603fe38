// Repeats told by one word ("daily", "weekly", ...) and the official
// working-day rule, which skips holidays and weekends.

#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "words/repeat_patterns.h"
#include "words/repeat_steps.h"

namespace nlpdate {

bool matchRepeatOneWord(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  const auto& rows = keptFor(vocabulary, [&] { return compileRepeatRows(repeatOneWordPatterns(vocabulary)); });
  for (const auto& [pattern, frequency] : rows) {
    PatternMatch match;
    if (!pattern.search(title, match)) continue;
    StringRRule rule;
    rule.setFreq(frequency);
    rule.setInterval(1);
    TMPtr record = parser.getDefaultTM();
    clearClock(record.get());
    storeRepeat(parser, rule, match[0].str(), record.get());
    return true;
  }
  return false;
}

bool matchOfficialWorkDays(NLPNativeTitleParser& parser, const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([] {
         return compilePattern(officialWorkDayPattern(), PatternCase::Sensitive);
       }).search(title, match)) {
    return false;
  }
  // The first official working day from today on; the rule text is fixed and
  // no rule record is kept.
  TMPtr record = parser.getDefaultTM();
  while (!parser.isOfficialWorkDay(record.get())) {
    record->tm_mday += 1;
    mkTM(record.get());
  }
  clearClock(record.get());
  parser.parserDueDate.startDate = timePointFromTM(*record);
  parser.parserDueDate.recognizeStrings.push_back(match[0].str());
  parser.parserDueDate.repeatFlag = L"RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND";
  return true;
}

}  // namespace nlpdate
