// Repeats that list their days ("every monday and friday", "every 1 and 15")
// and the last day of each month ("every last day").
#include <list>
#include <set>

#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "words/repeat_patterns.h"
#include "words/repeat_steps.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {

// The named weekdays, once each, Monday first and Sunday last.
std::list<NLPWeekdayNum> weekdaysInWeekOrder(const std::set<WeekDay>& named) {
  static const WeekDay order[] = {Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday};
  std::list<NLPWeekdayNum> days;
  for (WeekDay day : order) {
    if (named.count(day)) days.emplace_back(0, day);
  }
  return days;
}

void readWeekdayList(const PatternMatch& match, StringRRule& rule, std::tm* record, const Vocabulary& vocabulary) {
  rule.setFreq(NLPFrequency::WEEKLY);
  rule.setWkSt(Monday);
  const int today = record->tm_wday;
  const WeekDay first = translateDayOfWeek(match[3].str(), today, vocabulary);
  const WeekDay second = translateDayOfWeek(match[5].str(), today, vocabulary);
  const WeekDay third = match[7].str().empty() ? first : translateDayOfWeek(match[7].str(), today, vocabulary);
  rule.setByDay(weekdaysInWeekOrder({first, second, third}));
  // The start is the first weekday named, today included.
  while (record->tm_wday != first) {
    record->tm_mday += 1;
    mkTM(record);
  }
}

void readMonthDayList(NLPNativeTitleParser& parser, const PatternMatch& match, StringRRule& rule, std::tm* record) {
  rule.setFreq(NLPFrequency::MONTHLY);
  std::list<int> days = {parser.translateNum(match[12].str())};
  if (!match[15].str().empty()) {
    days.push_back(parser.translateNum(match[15].str()));
    if (!match[18].str().empty()) days.push_back(parser.translateNum(match[18].str()));
  }
  record->tm_mday = days.front();
  rule.setByMonthDay(days);
  if (parser.isBeforeToday(record)) record->tm_mon += 1;
}

}  // namespace

bool matchRepeatList(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  PatternMatch match;
  if (!keptPattern(vocabulary, PatternCase::Insensitive, [&] {
         return repeatListPattern(vocabulary);
       }).search(title, match)) {
    return false;
  }
  StringRRule rule;
  rule.setInterval(1);
  TMPtr record = parser.getDefaultTM();
  if (!match[1].str().empty()) {
    readWeekdayList(match, rule, record.get(), vocabulary);
  } else if (!match[8].str().empty()) {
    readMonthDayList(parser, match, rule, record.get());
  }
  clearClock(record.get());
  mkTM(record.get());
  storeRepeat(parser, rule, match[0].str(), record.get());
  return true;
}

bool matchRepeatLastDay(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  PatternMatch match;
  if (!keptPattern(vocabulary, PatternCase::Insensitive, [&] {
         return repeatLastDayPattern(vocabulary);
       }).search(title, match)) {
    return false;
  }
  StringRRule rule;
  rule.setFreq(NLPFrequency::MONTHLY);
  rule.setInterval(1);
  rule.setByMonthDay({-1});
  // Day 0 of next month is the last day of this one, today included.
  TMPtr record = parser.getDefaultTM();
  clearClock(record.get());
  record->tm_mday = 0;
  record->tm_mon += 1;
  mkTM(record.get());
  storeRepeat(parser, rule, match[0].str(), record.get());
  return true;
}

}  // namespace nlpdate
