// What happens to a clock time that has already passed today, and the
// reading of an am/pm word.
#include <set>

#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

int NLPNativeTitleParser::ampmToNumber(std::wstring text, Vocabulary vocabulary) {
  if (text.empty()) return 1;
  text = toLowerCase(text);
  trim(text);
  if (text.empty()) return 1;
  if (containStr(text, vocabulary[PM])) return 1;
  if (containStr(text, vocabulary[AM])) return 0;
  return 1;
}

void NLPNativeTitleParser::addOverdueTime(std::tm* record, std::wstring hourText, std::wstring minuteText) {
  // Two two-character texts are a clock form such as 09:30: meant as written.
  const bool clockForm = hourText.size() == 2 && minuteText.size() == 2;
  const int h = translateNum(hourText);
  const int m = translateNum(minuteText);
  if ((m == 0 && h == 12) || (m == 0 && h == 0) || h > 11 || clockForm) {
    record->tm_mday += 1;
    if (isBeforeNow(record)) record->tm_mday -= 1;
    return;
  }
  record->tm_hour += 12;
  if (isBeforeNow(record)) record->tm_hour += 12;
  if (isBeforeNow(record)) record->tm_hour -= 24;
}

bool NLPNativeTitleParser::rollPassedTimeOnWeeklyRule(std::tm* record, int hour) {
  const std::optional<StringRRule>& rule = parserDueDate.repeatRule;
  if (!rule || rule->getFreq() != NLPFrequency::WEEKLY || rule->getByDay().empty()) return false;
  std::set<WeekDay> listed;
  for (const NLPWeekdayNum& day : rule->getByDay()) listed.insert(day.getWday());
  if (hour < 12) {
    record->tm_hour += 12;
    if (!isBeforeNow(record)) return true;
    record->tm_hour -= 12;
  }
  // The time has passed today, so the next listed day is at least tomorrow.
  do {
    record->tm_mday += 1;
  } while (listed.count(getWeekDay(record)) == 0);
  return true;
}

}  // namespace nlpdate
