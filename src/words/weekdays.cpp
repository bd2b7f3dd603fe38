// Weekdays in a word-language title: "monday", "next friday", "on sunday",
// "weekend", "week". The day is placed in the current week, as the user's
// first weekday bounds it, and then moved by the word in front of it.
#include "words/weekdays.h"

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

bool has(const std::wstring& text, const wchar_t* part) { return text.find(part) != std::wstring::npos; }

// tm_wday as a WeekDay: 7 is Sunday, anything outside 0..7 Monday.
WeekDay weekDayOfValue(int value) {
  if (value < 0 || value > 7) return Monday;
  return value == 7 ? Sunday : static_cast<WeekDay>(value);
}

bool startsWithAlternative(const std::wstring& text, const std::wstring& alternatives) {
  size_t begin = 0;
  while (true) {
    size_t bar = alternatives.find(L'|', begin);
    std::wstring alternative = alternatives.substr(begin, bar == std::wstring::npos ? std::wstring::npos : bar - begin);
    if (text.compare(0, alternative.size(), alternative) == 0) return true;
    if (bar == std::wstring::npos) return false;
    begin = bar + 1;
  }
}

}  // namespace

const std::wstring& getDayOfWeekWords(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    const bool isEnglish = has(vocabulary[LOCAL], L"en");
    return L"(" + addWordBorderInEndWithEnd(vocabulary[SUNDAY]) + L"|" +
           addWordBorderInStartAndEnd(vocabulary[MONDAY], isEnglish) + L"|" +
           addWordBorderInEndWithEnd(vocabulary[TUESDAY]) + L"|" + addWordBorderInEndWithEnd(vocabulary[WEDNESDAY]) +
           L"|" + addWordBorderInEndWithEnd(vocabulary[THURSDAY]) + L"|" +
           addWordBorderInEndWithEnd(vocabulary[FRIDAY]) + L"|" + addWordBorderInEndWithEnd(vocabulary[SATURDAY]) +
           L"|" + vocabulary[WEEKEND] + L"\\b|" + addWordBorderInEndWithEnd(vocabulary[WEEK]) + L")";
  });
}

const WordGuard& weekdayWordGuard(const Vocabulary& vocabulary) {
  return keptWordGuard(vocabulary, [&] { return getDayOfWeekWords(vocabulary); });
}

const std::wstring& getDayOfWeekRecog(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return L"(^|" + vocabulary[NEXT] + L"|\\b" + vocabulary[LAST] + L"|\\b" + vocabulary[THIS] + L"|" +
           addWordBorderInStart(vocabulary[ON_BY]) + L"|\\b)?\\s*" + getDayOfWeekWords(vocabulary) + L"\\s*(" +
           addWordBorderInStart(vocabulary[NEXT]) + L"|\\b" + vocabulary[LAST] + L"|\\b" + vocabulary[THIS] +
           L"|\\b)?\\s*";
  });
}

WeekDay translateDayOfWeek(std::wstring word, int today, Vocabulary vocabulary) {
  if (word.empty()) return Sunday;
  const std::wstring w = toLowerCase(word);
  auto names = [&](const wchar_t* latin, const std::wstring& key, const wchar_t* han, const wchar_t* digit) {
    return has(w, latin) || containStr(w, vocabulary[key]) || has(w, han) || has(w, digit);
  };
  if (names(L"mon", MONDAY, L"一", L"1")) return Monday;
  if (names(L"tue", TUESDAY, L"二", L"2")) return Tuesday;
  if (names(L"wed", WEDNESDAY, L"三", L"3")) return Wednesday;
  if (names(L"thu", THURSDAY, L"四", L"4")) return Thursday;
  if (names(L"fri", FRIDAY, L"五", L"5")) return Friday;
  if (names(L"sat", SATURDAY, L"六", L"6")) return Saturday;
  if (names(L"sun", SUNDAY, L"日", L"7") || has(w, L"天") || has(w, L"七")) return Sunday;
  const WeekDay todayDay = weekDayOfValue(today);
  if (has(w, L"weekend") || containStr(w, vocabulary[WEEKEND])) return todayDay == Sunday ? Sunday : Saturday;
  if (has(w, L"week")) return todayDay;
  if (containStr(w, vocabulary[WEEK])) return todayDay;
  return Sunday;
}

void NLPNativeTitleParser::applyWeekDayLead(std::tm* record, std::wstring lead, Vocabulary vocabulary) {
  if (lead.empty()) {
    if (isBeforeToday(record)) record->tm_mday += 7;
    return;
  }
  lead = toLowerCase(lead);
  if (containStr(lead, vocabulary[NEXT])) {
    record->tm_mday += 7;
  } else if (containStr(lead, vocabulary[LAST])) {
    record->tm_mday -= 7;
  } else if (startsWithAlternative(lead, vocabulary[ON_BY]) && isBeforeToday(record)) {
    record->tm_mday += 7;
  }
  // A word of THIS leaves a past weekday of this week in the past.
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnWeekDay(std::wstring title, Vocabulary vocabulary) {
  PatternMatch match;
  // The weekday words must be in any match: where they are not, the whole
  // pattern, which runs slowly over long runs of blanks, is not searched.
  const GuardedPattern& weekday = keptFor(vocabulary, [&] {
    return GuardedPattern::of(getDayOfWeekWords(vocabulary), getDayOfWeekRecog(vocabulary), PatternCase::Insensitive);
  });
  if (!weekday.search(title, match)) {
    return std::nullopt;
  }
  TMPtr record = getDefaultTM();
  setTMToDefaultTime(record.get());
  const WeekDay day = translateDayOfWeek(match[2].str(), record->tm_wday, vocabulary);
  setDayOfWeek(record.get(), day, startDay);
  // The word after the day is part of the text but does not move the date.
  applyWeekDayLead(record.get(), match[1].str(), vocabulary);
  mkTM(record.get());
  return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
}

}  // namespace nlpdate
