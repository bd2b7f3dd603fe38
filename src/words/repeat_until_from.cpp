// "every day from 3 march to 20 march": a unit word, a first date and a last date.

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/repeat_until_patterns.h"
#include "words/repeat_until_steps.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {

// A first date with no day is a today or tomorrow word, a weekday, or the 1st.
void readFirstDay(NLPNativeTitleParser& parser, const PatternMatch& match, std::tm* record,
                  const Vocabulary& vocabulary) {
  if (!match[6].str().empty()) {
    record->tm_mday = parser.translateNum(match[6].str());
    return;
  }
  if (!match[10].str().empty()) {
    record->tm_mday = parser.translateNum(match[10].str());
    return;
  }
  std::wstring name = toLowerCase(match[13].str());
  std::wstring weekday = toLowerCase(match[14].str());
  if (containStr(name, vocabulary[TODAY])) return;
  if (containStr(name, vocabulary[TOMORROW])) {
    record->tm_mday += 1;
  } else if (!weekday.empty()) {
    parser.getNextDayOfWeek(record, translateDayOfWeek(weekday, record->tm_wday, vocabulary));
    while (parser.isBeforeToday(record)) record->tm_mday += 7;
  } else {
    record->tm_mday = 1;
  }
}

// A named last day walks the record that gave the start, which is stored already.
OptTM readFromEnd(NLPNativeTitleParser& parser, const PatternMatch& match, const TMPtr& record,
                  const Vocabulary& vocabulary) {
  if (match[19].str().empty() && match[17].str().empty() && match[21].str().empty()) {
    if (!walkToNamedDay(parser, record.get(), match[24].str(), match[25].str(), vocabulary)) return std::nullopt;
    parser.clearValueAfterDay(record.get());
    mkTM(record.get());
    return record;
  }
  return readLastDate(parser, record.get(), match[19].str(), match[17].str(), match[21].str(), vocabulary, true);
}

}  // namespace

bool repeatFromForm(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  Pattern pattern = keptPattern(vocabulary, PatternCase::Insensitive, [&] { return repeatFromPattern(vocabulary); });
  PatternMatch match;
  if (!pattern.search(title, match)) return false;
  TMPtr record = parser.getEnMonthCalendar(match[8].str(), vocabulary);
  readFirstDay(parser, match, record.get(), vocabulary);
  if (parser.isBeforeToday(record.get())) {
    if (match[8].str().empty()) {
      record->tm_mon += 1;
    } else {
      record->tm_year += 1;
    }
  }
  parser.clearValueAfterDay(record.get());
  StringRRule rule;
  rule.setInterval(1);
  rule.setFreq(NLPFrequency::DAILY);
  // A part of the day sets the hour as it is, whether or not that moment has passed.
  applyRepeatUnit(parser, match[4].str(), record.get(), rule, vocabulary, true);
  mkTM(record.get());
  parser.parserDueDate.startDate = timePointFromTM(*record);
  OptTM end = readFromEnd(parser, match, record, vocabulary);
  if (end) rule.setUntilDate(end);
  return storeUntilRepeat(parser, rule, match[0].str());
}

}  // namespace nlpdate
