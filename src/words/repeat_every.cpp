// Repeats led by the word for every: "every day", "every 2 weeks", "every
// monday", "every morning", "every year on march 15", and the weekday,
// work-day and weekend words anywhere in the title.

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/repeat_patterns.h"
#include "words/repeat_steps.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {

bool isWeekend(WeekDay day) { return day == Saturday || day == Sunday; }

// Weekday, work-day and weekend words count wherever they stand in the title,
// whatever the pattern that matched.
void applyDayKindWords(const std::wstring& lowerTitle, StringRRule& rule, std::tm* record, const Vocabulary& v) {
  if (containStr(lowerTitle, v[WEEKDAY]) || containStr(lowerTitle, v[WORKDAY]) ||
      (containStr(lowerTitle, v[WORKING]) && containStr(lowerTitle, v[DAY]))) {
    rule.setWkSt(Monday);
    rule.setByDay({{0, Monday}, {0, Tuesday}, {0, Wednesday}, {0, Thursday}, {0, Friday}});
    while (isWeekend(getWeekDay(record))) record->tm_mday += 1;
  } else if (containStr(lowerTitle, v[WEEKEND])) {
    rule.setWkSt(Monday);
    rule.setByDay({{0, Sunday}, {0, Saturday}});
    while (!isWeekend(getWeekDay(record))) record->tm_mday += 1;
  }
}

// A part of the day named in the title fixes the hour of a daily rule.
void applyDaily(NLPNativeTitleParser& parser, const std::wstring& lowerTitle, std::tm* record, const Vocabulary& v) {
  struct PartOfDay {
    const std::wstring& key;
    int hour;
    int minute;
  };
  const PartOfDay parts[] = {
      {MORNING, parser.morningHour, parser.morningMinute},
      {AFTERNOON, parser.afternoonHour, parser.afternoonMinute},  // before NOON, which it contains
      {NOON, 12, 0},
      {EVENING, parser.eveningHour, parser.eveningMinute},
      {NIGHT, parser.nightHour, parser.nightMinute},
  };
  for (const PartOfDay& part : parts) {
    if (!containStr(lowerTitle, v[part.key])) continue;
    record->tm_hour = part.hour;
    record->tm_min = part.minute;
    parser.parserDueDate.reminder.push_back(ON_TIME);
    if (parser.isBeforeNow(record)) record->tm_mday += 1;
    break;
  }
  mkTM(record);
}

std::list<NLPWeekdayNum> namedWeekday(const std::wstring& word, const Vocabulary& v) {
  const std::wstring lower = toLowerCase(word);
  const std::pair<const std::wstring*, WeekDay> days[] = {
      {&MONDAY, Monday}, {&TUESDAY, Tuesday},   {&WEDNESDAY, Wednesday}, {&THURSDAY, Thursday},
      {&FRIDAY, Friday}, {&SATURDAY, Saturday}, {&SUNDAY, Sunday}};
  for (const auto& day : days) {
    if (containStr(lower, v[*day.first])) return {NLPWeekdayNum(0, day.second)};
  }
  return {};
}

// Only the weekday-name row has a third group and a filled second one; the
// other weekly rows keep what the day-kind words set.
void applyWeekly(const PatternMatch& match, StringRRule& rule, std::tm* record, int today, const Vocabulary& v) {
  if (match.size() - 1 < 3 || match[2].str().empty()) return;
  rule.setWkSt(Monday);
  const std::wstring word = match[2].str();
  rule.setByDay(namedWeekday(word, v));
  const WeekDay target = translateDayOfWeek(word, today, v);
  while (getWeekDay(record) != target) record->tm_mday += 1;
}

void applyYearly(NLPNativeTitleParser& parser, const PatternMatch& match, TMPtr& record, const Vocabulary& v) {
  if (match[3].str().empty()) return;
  record = parser.getEnMonthCalendar(match[4].str(), v);
  record->tm_mday = parser.translateNum(match[6].str());
  clearClock(record.get());
  if (parser.isBeforeToday(record.get())) record->tm_year += 1;
  mkTM(record.get());
}

}  // namespace

bool matchRepeatEvery(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary) {
  const auto& rows = keptFor(vocabulary, [&] { return compileRepeatRows(repeatEveryPatterns(vocabulary)); });
  // Every row holds the every-word as a group it cannot do without; a title
  // without one is spared the rows, which go back and forth over long blank runs.
  const WordGuard& everyWord = keptFor(vocabulary, [&] { return WordGuard(vocabulary[EVERY]); });
  const bool mayHoldEvery =
      everyWord.usable() ? everyWord.mayMatch(title) : keptPattern(vocabulary, PatternCase::Insensitive, [&] {
                                                         return L"(" + vocabulary[EVERY] + L")";
                                                       }).search(title);
  if (!mayHoldEvery) return false;
  for (const auto& [pattern, frequency] : rows) {
    PatternMatch match;
    if (!pattern.search(title, match)) continue;

    TMPtr record = parser.getDefaultTM();
    const int today = record->tm_wday;
    clearClock(record.get());
    StringRRule rule;
    rule.setFreq(frequency);
    rule.setInterval(parser.findInterval(title, vocabulary));

    const std::wstring lowerTitle = toLowerCase(title);
    applyDayKindWords(lowerTitle, rule, record.get(), vocabulary);
    switch (frequency) {
      case NLPFrequency::DAILY:
        applyDaily(parser, lowerTitle, record.get(), vocabulary);
        break;
      case NLPFrequency::WEEKLY:
        applyWeekly(match, rule, record.get(), today, vocabulary);
        break;
      case NLPFrequency::MONTHLY:
        applyMonthlyRepeat(parser, match, rule, record.get(), vocabulary);
        break;
      case NLPFrequency::YEARLY:
        applyYearly(parser, match, record, vocabulary);
        break;
      default:
        break;
    }
    storeRepeat(parser, rule, match[0].str(), record.get());
    return true;
  }
  return false;
}

}  // namespace nlpdate
