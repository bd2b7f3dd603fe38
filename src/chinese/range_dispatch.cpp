// The Chinese range stage: nothing without a range word; then the named-day,
// weekday, word-language date, holiday, written-date and date-time ranges, in
// that order, the first that finds a range winning.
#include <algorithm>

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/range_word.h"

namespace nlpdate {

namespace {

// A range here needs a Chinese character or a digit: "to" inside "tomorrow"
// reaches this stage too.
bool mayHoldChineseRange(const std::wstring& title) {
  return std::any_of(title.begin(), title.end(), [](wchar_t c) {
    return (c >= L'0' && c <= L'9') || (c >= 0x3400 && c <= 0x9fff) || (c >= 0xf900 && c <= 0xfaff);
  });
}

}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationRecognition(std::wstring title,
                                                                                     OptTime defaultDate,
                                                                                     Vocabulary vocabulary,
                                                                                     OptTM leadDate) {
  const Pattern& rangeWord = keptFor(vocabulary, [&vocabulary] { return compilePattern(getDurationFlag(vocabulary)); });
  if (!rangeWord.search(title)) return std::nullopt;
  if (!mayHoldChineseRange(title)) return std::nullopt;
  rangeVocabulary = vocabulary;
  if (auto range = chineseSpecialDayDurationRecognition(title)) return range;
  if (auto range = chineseWeekDayDurationRecognition(title)) return range;
  if (auto range = matchEnDateDuration(title, vocabulary)) return range;
  if (auto range = chineseHolidayDurationRecognition(title)) return range;
  if (auto range = chineseDateDurationDateRecognition(title)) return range;
  return chineseDateDurationDateTimeRecognition(title, defaultDate, leadDate);
}

}  // namespace nlpdate
