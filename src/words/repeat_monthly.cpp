// The monthly branch of the every patterns. Pattern M2 ("every 15th",
// "every march 15") names a day and maybe a month; pattern M1 ("15th day of
// every month", "every month on the last friday") names the day around the
// word for month.

#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/repeat_steps.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {

// The month word's calendar, on the given day at midnight.
TMPtr monthDayRecord(NLPNativeTitleParser& parser, const std::wstring& month, const std::wstring& day,
                     const Vocabulary& v) {
  TMPtr other = parser.getEnMonthCalendar(month, v);
  clearClock(other.get());
  other->tm_mday = parser.translateNum(day);
  mkTM(other.get());
  return other;
}

// A date with a month word moves to next year once past; without one, to the
// next month that has not passed.
void rollMonthDay(NLPNativeTitleParser& parser, const std::wstring& month, std::tm* record) {
  if (!month.empty()) {
    if (parser.isBeforeToday(record)) record->tm_year += 1;
    return;
  }
  for (int i = 0; i < 13 && parser.isBeforeToday(record); ++i) record->tm_mon += 1;
}

void applyM2(NLPNativeTitleParser& parser, const PatternMatch& match, StringRRule& rule, std::tm* record,
             const Vocabulary& v) {
  rule.setInterval(1);
  const std::wstring month = match[5].str().empty() ? match[11].str() : match[5].str();
  if (!month.empty()) rule.setFreq(NLPFrequency::YEARLY);
  copyTM(monthDayRecord(parser, month, match[7].str(), v).get(), record);
  rollMonthDay(parser, month, record);
  // The rule carries no day: the day lives only in the start date.
}

// Walks at most seven days by `step` until the record falls on `target`.
void walkToWeekday(std::tm* record, WeekDay target, int step) {
  for (int i = 0; i < 7; ++i) {
    if (getWeekDay(record) == target) return;
    record->tm_mday += step;
  }
}

// Day 0 of the month `monthsAhead` on is the last day of the month before
// it; from there walk back to the last `target`.
void lastWeekdayOfMonth(std::tm* record, WeekDay target, int monthsAhead) {
  record->tm_mday = 0;
  record->tm_mon += monthsAhead;
  mkTM(record);
  walkToWeekday(record, target, -1);
}

// The `ordinal`-th `target` of the record's month.
void nthWeekdayOfMonth(std::tm* record, WeekDay target, int ordinal) {
  record->tm_mday = 1;
  walkToWeekday(record, target, 1);
  if (ordinal >= 2) record->tm_mday += 7 * ordinal - 7;
}

void applyM1Weekday(NLPNativeTitleParser& parser, const PatternMatch& match, StringRRule& rule, std::tm* record,
                    int today, const Vocabulary& v) {
  const WeekDay target = translateDayOfWeek(match[17].str(), today, v);
  int ordinal;
  if (containStr(match[16].str(), v[LAST])) {
    ordinal = -1;
    // The last such weekday of next month, not of this one: kept on purpose.
    lastWeekdayOfMonth(record, target, 2);
    if (parser.isBeforeToday(record)) lastWeekdayOfMonth(record, target, 1);
  } else {
    ordinal = parser.matchEnglishNum(match[16].str(), v);
    nthWeekdayOfMonth(record, target, ordinal);
    if (parser.isBeforeToday(record)) {
      record->tm_mon += 1;
      nthWeekdayOfMonth(record, target, ordinal);
      mkTM(record);
    }
  }
  rule.setByDay({NLPWeekdayNum(ordinal, target)});
}

void applyM1(NLPNativeTitleParser& parser, const PatternMatch& match, StringRRule& rule, std::tm* record, int today,
             const Vocabulary& v) {
  if (!match[3].str().empty()) {
    rule.setByMonthDay({-1});
    record->tm_mday = 0;
    record->tm_mon += 1;
    mkTM(record);
  } else if (!match[1].str().empty()) {
    const int day = parser.translateNum(match[1].str());
    rule.setByMonthDay({day});
    record->tm_mday = day;
    if (parser.isBeforeToday(record)) record->tm_mon += 1;
    mkTM(record);
  } else if (!match[5].str().empty()) {
    rule.setByMonthDay({1});
    record->tm_mday = 1;
    while (parser.isBeforeToday(record)) record->tm_mon += 1;
    mkTM(record);
  } else if (!match[8].str().empty()) {
    // A month word here leaves the rule monthly, and the day stays out of it.
    copyTM(monthDayRecord(parser, match[10].str(), match[12].str(), v).get(), record);
    rollMonthDay(parser, match[10].str(), record);
  } else if (!match[14].str().empty()) {
    applyM1Weekday(parser, match, rule, record, today, v);
  }
}

}  // namespace

void applyMonthlyRepeat(NLPNativeTitleParser& parser, const PatternMatch& match, StringRRule& rule, std::tm* record,
                        const Vocabulary& vocabulary) {
  const int today = parser.getDefaultTM()->tm_wday;
  // Group 1 holds the word for every only in M2; in M1 it is a day number.
  const std::wstring first = match[1].str();
  if (!first.empty() && containStr(toLowerCase(first), vocabulary[EVERY])) {
    applyM2(parser, match, rule, record, vocabulary);
  } else {
    applyM1(parser, match, rule, record, today, vocabulary);
  }
}

}  // namespace nlpdate
