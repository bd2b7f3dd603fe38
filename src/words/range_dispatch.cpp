// Entry of the word-language ranges: a title without a range word holds no
// range; otherwise the five range recognisers are tried in a fixed order.
#include "core/title_parser.h"
#include "words/range_patterns.h"

namespace nlpdate {

std::optional<NLPRecognizeDate> NLPNativeTitleParser::englishDateDurationRecognition(std::wstring title,
                                                                                     Vocabulary vocabulary) {
  PatternMatch match;
  const Pattern& rangeWord = keptPattern(vocabulary, PatternCase::Sensitive, [&] { return rangeFlag(vocabulary); });
  if (!rangeWord.search(title, match)) return std::nullopt;
  // A range word inside a longer word ("to" in "tomorrow") still lets the recognisers run.
  if (auto found = matchEnDateDuration(title, vocabulary)) return found;
  if (auto found = matchEnMonthDuration(title, vocabulary)) return found;
  if (auto found = matchEnWeekDayDuration(title, vocabulary)) return found;
  if (auto found = matchEnAfterDuration(title, vocabulary)) return found;
  return matchEnTimeDuration(title, vocabulary);
}

}  // namespace nlpdate
