// "every day for 2 weeks": a unit word and a length in weeks or months.

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/repeat_until_patterns.h"
#include "words/repeat_until_steps.h"

namespace nlpdate {

bool repeatForForm(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  Pattern pattern = keptPattern(vocabulary, PatternCase::Insensitive, [&] { return repeatForPattern(vocabulary); });
  PatternMatch match;
  if (!pattern.search(title, match)) return false;
  StringRRule rule;
  rule.setInterval(1);
  rule.setFreq(NLPFrequency::DAILY);
  TMPtr record = parser.getDefaultTM();
  parser.clearValueAfterDay(record.get());
  // A part of the day already past today starts tomorrow.
  if (applyRepeatUnit(parser, match[2].str(), record.get(), rule, vocabulary, false) &&
      parser.isBeforeNow(record.get())) {
    record->tm_mday += 1;
  }
  mkTM(record.get());
  parser.parserDueDate.startDate = timePointFromTM(*record);
  // The end is the day before the same date so many units on.
  int length = parser.translateNum(match[3].str());
  if (containStr(toLowerCase(match[5].str()), vocabulary[WEEK])) {
    record->tm_mday += 7 * length - 1;
  } else if (containStr(toLowerCase(match[6].str()), vocabulary[MONTH])) {
    record->tm_mon += length;
    record->tm_mday -= 1;
  }
  mkTM(record.get());
  rule.setUntilDate(record);
  return storeUntilRepeat(parser, rule, match[0].str());
}

}  // namespace nlpdate
