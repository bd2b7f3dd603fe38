// "every monday start 3 march end on 20 march", "every 15th end in 3 months":
// a weekday or day of the month, then an optional start and an optional end.
#include <utility>
#include <vector>

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/repeat_until_patterns.h"
#include "words/repeat_until_steps.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {

bool allEmpty(const PatternMatch& match, int first, int second, int third) {
  return match[first].str().empty() && match[second].str().empty() && match[third].str().empty();
}

// "every 15th": monthly on that day, from its next coming.
void readDayOfMonth(NLPNativeTitleParser& parser, const PatternMatch& match, std::tm* record, StringRRule& rule) {
  if (match[6].str().empty()) return;
  int day = parser.translateNum(match[6].str());
  rule.setFreq(NLPFrequency::MONTHLY);
  rule.setByMonthDay({day});
  record->tm_mday = day;
  while (parser.isBeforeToday(record)) record->tm_mon += 1;
}

// The start part: a named day walks the record, a written date replaces it.
void readStart(NLPNativeTitleParser& parser, const PatternMatch& match, TMPtr& record, const Vocabulary& vocabulary) {
  if (allEmpty(match, 13, 11, 15)) {
    walkToNamedDay(parser, record.get(), toLowerCase(match[18].str()), toLowerCase(match[19].str()), vocabulary);
    return;
  }
  record = parser.getEnMonthCalendar(match[13].str(), vocabulary);
  std::wstring day = match[11].str().empty() ? match[15].str() : match[11].str();
  record->tm_mday = parser.translateNum(day);
  while (parser.isBeforeToday(record.get())) {
    if (match[13].str().empty()) {
      record->tm_mon += 1;
    } else {
      record->tm_year += 1;
    }
  }
}

std::vector<std::pair<const std::wstring*, int>> ordinalsInTestOrder() {
  return {{&FIRST, 1}, {&SECOND, 2}, {&THIRD, 3}, {&FOURTH, 4}, {&FIFTH, 5}, {&LAST, -1}};
}

// "every second monday" is monthly on that weekday; "every monday" weekly.
void readWeekday(NLPNativeTitleParser& parser, const PatternMatch& match, std::tm* record, StringRRule& rule,
                 const Vocabulary& vocabulary) {
  if (match[4].str().empty()) return;
  int ordinal = 0;
  for (const auto& [key, value] : ordinalsInTestOrder()) {
    if (!containStr(match[2].str(), vocabulary[*key])) continue;
    ordinal = value;
    rule.setFreq(NLPFrequency::MONTHLY);
    break;
  }
  if (ordinal == 0) {
    rule.setFreq(NLPFrequency::WEEKLY);
    rule.setWkSt(Monday);
  }
  WeekDay target = translateDayOfWeek(match[4].str(), record->tm_wday, vocabulary);
  if (allEmpty(match, 13, 11, 15)) parser.getNextDayOfWeek(record, target);
  rule.setByDay({NLPWeekdayNum(ordinal, target)});
}

// "end in 3 months": the day before the same date so many units on.
void readEndLength(NLPNativeTitleParser& parser, const PatternMatch& match, const TMPtr& record, StringRRule& rule,
                   const Vocabulary& vocabulary) {
  int length = parser.translateNum(match[36].str());
  if (length == 0 || match[36].str().empty()) length = 1;
  std::wstring unit = toLowerCase(match[37].str());
  if (containStr(unit, vocabulary[WEEK])) {
    record->tm_mday += 7 * length - 1;
  } else if (containStr(unit, vocabulary[MONTH])) {
    record->tm_mon += length;
    record->tm_mday -= 1;
  } else if (containStr(unit, vocabulary[YEAR])) {
    record->tm_year += length;
    record->tm_mday -= 1;
  }
  mkTM(record.get());
  record->tm_hour = 0;
  rule.setUntilDate(record);
}

// A named end walks the start record and leaves the end on the default day;
// that is how this form has always read it.
void readNamedEnd(NLPNativeTitleParser& parser, const PatternMatch& match, const TMPtr& record, StringRRule& rule,
                  const Vocabulary& vocabulary) {
  TMPtr end = parser.getDefaultTM();
  walkToNamedDay(parser, record.get(), toLowerCase(match[32].str()), toLowerCase(match[33].str()), vocabulary);
  parser.clearValueAfterDay(end.get());
  rule.setUntilDate(end);
}

void readEnd(NLPNativeTitleParser& parser, const PatternMatch& match, const TMPtr& record, StringRRule& rule,
             const Vocabulary& vocabulary) {
  if (match[20].str().empty()) return;
  if (!match[34].str().empty()) {
    readEndLength(parser, match, record, rule, vocabulary);
  } else if (allEmpty(match, 27, 25, 29)) {
    readNamedEnd(parser, match, record, rule, vocabulary);
  } else {
    rule.setUntilDate(
        readLastDate(parser, record.get(), match[27].str(), match[25].str(), match[29].str(), vocabulary, false));
  }
}

}  // namespace

bool repeatStartEndForm(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  Pattern pattern =
      keptPattern(vocabulary, PatternCase::Insensitive, [&] { return repeatStartEndPattern(vocabulary); });
  PatternMatch match;
  if (!pattern.search(title, match)) return false;
  StringRRule rule;
  rule.setInterval(1);
  rule.setFreq(NLPFrequency::SECONDLY);  // stays so when neither a weekday nor a day of the month is named
  TMPtr record = parser.getDefaultTM();
  readDayOfMonth(parser, match, record.get(), rule);
  readStart(parser, match, record, vocabulary);
  readWeekday(parser, match, record.get(), rule, vocabulary);
  parser.clearValueAfterDay(record.get());
  mkTM(record.get());
  parser.parserDueDate.startDate = timePointFromTM(*record);
  readEnd(parser, match, record, rule, vocabulary);
  return storeUntilRepeat(parser, rule, match[0].str());
}

}  // namespace nlpdate
