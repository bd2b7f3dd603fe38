// The last correction of an assembled time: a bare morning hour said later in
// the day, with no am/pm word and no 24-hour marker, is read as pm.

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

OptTM NLPNativeTitleParser::handleSpecialAm(OptTM cal, std::wstring title, Vocabulary vocabulary) {
  const Pattern ampm = keptPattern(vocabulary, PatternCase::Insensitive, [&] { return getAmPmPattern(vocabulary); });
  if (!cal || !*cal) return cal;
  std::tm* record = cal->get();
  const bool has24HourFlag = containStr(title, vocabulary[TWENTY_FOUR_HOUR_FLAG]);
  const bool hasAmPm = ampm.search(title);
  const long seconds = static_cast<long>(std::mktime(record));
  if (seconds <= tomorrow()) {
    if (seconds > today() && !hasAmPm && isBeforeNow(record) && record->tm_hour <= 11) {
      record->tm_hour += 12;
      mkTM(record);
    }
  } else if (!has24HourFlag && !hasAmPm && record->tm_hour <= 11 && isBeforeNow(record)) {
    record->tm_hour += 12;
    mkTM(record);
  }
  return cal;
}

}  // namespace nlpdate
