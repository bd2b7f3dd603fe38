// Repeats that name their own start and end. One marker word picks the one
// form that is tried: a title with the word for "from" never falls back to
// the other forms.
#include <utility>
#include <vector>

#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/repeat_until_steps.h"
#include "words/weekdays.h"

namespace nlpdate {

bool NLPNativeTitleParser::repeatUntilRecognize(std::wstring title, Vocabulary vocabulary) {
  if (title.empty()) return false;
  if (containStr(title, vocabulary[FROM])) return repeatFromForm(*this, title, vocabulary);
  if (containStr(title, vocabulary[FOR])) return repeatForForm(*this, title, vocabulary);
  if (containStr(title, vocabulary[END]) || containStr(title, vocabulary[START])) {
    return repeatStartEndForm(*this, title, vocabulary);
  }
  return false;
}

namespace {

struct DayPart {
  const std::wstring* key;
  int hour;
  int minute;
};

// Afternoon comes before noon, since its word holds the word for noon.
std::vector<DayPart> dayPartsInTestOrder(const NLPNativeTitleParser& parser) {
  return {{&MORNING, parser.morningHour, parser.morningMinute},
          {&AFTERNOON, parser.afternoonHour, parser.afternoonMinute},
          {&EVENING, parser.eveningHour, parser.eveningMinute},
          {&NIGHT, parser.nightHour, parser.nightMinute},
          {&NOON, 12, 0}};
}

}  // namespace

bool applyRepeatUnit(NLPNativeTitleParser& parser, const std::wstring& unitWord, std::tm* record, StringRRule& rule,
                     const Vocabulary& vocabulary, bool withYear) {
  std::wstring unit = toLowerCase(unitWord);
  for (const DayPart& part : dayPartsInTestOrder(parser)) {
    if (!containStr(unit, vocabulary[*part.key])) continue;
    record->tm_hour = part.hour;
    record->tm_min = part.minute;
    parser.parserDueDate.reminder.push_back(ON_TIME);
    return true;
  }
  if (containStr(unit, vocabulary[WEEK])) {
    rule.setFreq(NLPFrequency::WEEKLY);
  } else if (containStr(unit, vocabulary[MONTH])) {
    rule.setFreq(NLPFrequency::MONTHLY);
  } else if (withYear && containStr(unit, vocabulary[YEAR])) {
    rule.setFreq(NLPFrequency::YEARLY);
  }
  return false;
}

bool walkToNamedDay(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& nameWord,
                    const std::wstring& weekdayWord, const Vocabulary& vocabulary) {
  if (containStr(nameWord, vocabulary[TODAY])) {
    while (parser.isBeforeToday(record)) record->tm_mday += 1;
    return true;
  }
  if (containStr(nameWord, vocabulary[TOMORROW])) {
    record->tm_mday += 1;
    while (parser.isBeforeToday(record)) record->tm_mday += 1;
    return true;
  }
  if (weekdayWord.empty()) return false;
  parser.getNextDayOfWeek(record, translateDayOfWeek(weekdayWord, record->tm_wday, vocabulary));
  while (parser.isBeforeToday(record)) record->tm_mday += 7;
  return true;
}

TMPtr readLastDate(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& monthWord,
                   const std::wstring& dayBefore, const std::wstring& dayBehind, const Vocabulary& vocabulary,
                   bool wholeClock) {
  TMPtr end = monthWord.empty() ? newTM(*record) : parser.getEnMonthCalendar(monthWord, vocabulary);
  if (!dayBefore.empty()) {
    end->tm_mday = parser.translateNum(dayBefore);
  } else if (!dayBehind.empty()) {
    end->tm_mday = parser.translateNum(dayBehind);
  } else {
    end->tm_mday = 1;
  }
  // A last date before the first one moves on once: a year if a month was named, else a month.
  if (parser.isBeforeToday(end.get()) || timePointFromTM(*end) < timePointFromTM(*record)) {
    if (monthWord.empty()) {
      end->tm_mon += 1;
    } else {
      end->tm_year += 1;
    }
  }
  if (wholeClock) {
    parser.clearValueAfterDay(end.get());
  } else {
    end->tm_hour = 0;
  }
  mkTM(end.get());
  return end;
}

bool storeUntilRepeat(NLPNativeTitleParser& parser, const StringRRule& rule, const std::wstring& text) {
  parser.parserDueDate.recognizeStrings.push_back(text);
  parser.parserDueDate.repeatFlag = rule.toIcal();
  parser.parserDueDate.repeatRule = rule;
  return true;
}

}  // namespace nlpdate
