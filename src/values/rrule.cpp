#include "values/rrule.h"

#include <map>

namespace nlpdate {

namespace {
// Two digits for values below ten; kept apart from the JSON writer's copy on purpose.
std::wstring formatMonthOrDay(int value) {
  std::wstring text = std::to_wstring(value);
  return value < 10 ? L"0" + text : text;
}

std::wstring frequencyWord(NLPFrequency freq) {
  static const std::map<NLPFrequency, std::wstring> words = {
      {NLPFrequency::SECONDLY, L"SECONDLY"}, {NLPFrequency::MINUTELY, L"MINUTELY"},
      {NLPFrequency::HOURLY, L"HOURLY"},     {NLPFrequency::DAILY, L"DAILY"},
      {NLPFrequency::WEEKLY, L"WEEKLY"},     {NLPFrequency::MONTHLY, L"MONTHLY"},
      {NLPFrequency::YEARLY, L"YEARLY"}};
  auto found = words.find(freq);
  return found == words.end() ? std::wstring() : found->second;
}
}  // namespace

std::wstring weekDayToString(int weekDay) {
  switch (weekDay) {
    case Sunday: return L"SU";
    case Monday: return L"MO";
    case Tuesday: return L"TU";
    case Wednesday: return L"WE";
    case Thursday: return L"TH";
    case Friday: return L"FR";
    case Saturday: return L"SA";
    default: return L"MO";
  }
}

std::wstring NLPWeekdayNum::toIcal() const {
  if (number == 0) return weekDayToString(weekDay);
  return std::to_wstring(number) + weekDayToString(weekDay);
}

std::wstring StringRRule::toIcal() const {
  std::wstring text = L"RRULE:FREQ=" + frequencyWord(freq);
  if (wkSt) text += L";WKST=" + weekDayToString(*wkSt);
  text += L";INTERVAL=" + std::to_wstring(interval);
  if (!byMonthDay.empty()) {
    text += L";BYMONTHDAY=";
    bool first = true;
    for (int day : byMonthDay) {
      if (!first) text += L",";
      text += std::to_wstring(day);
      first = false;
    }
  }
  if (!byDay.empty()) {
    text += L";BYDAY=";
    bool first = true;
    for (const NLPWeekdayNum& day : byDay) {
      if (!first) text += L",";
      text += day.toIcal();
      first = false;
    }
  }
  if (untilDate && *untilDate) {
    const std::tm& until = **untilDate;
    text += L";UNTIL=" + std::to_wstring(until.tm_year + 1900) + formatMonthOrDay(until.tm_mon + 1) +
            formatMonthOrDay(until.tm_mday);
  }
  return text;
}

}  // namespace nlpdate
