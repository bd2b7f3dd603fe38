#include "values/duration.h"

namespace nlpdate {

const std::wstring ON_TIME = L"TRIGGER:-PT0S";

NLPMorvaneDuration::NLPMorvaneDuration(int years, int months, int weeks, int days, int hours, int minutes,
                                       int seconds, bool isPositive)
    : isPositive(isPositive),
      years(years),
      months(months),
      weeks(weeks),
      days(days),
      hours(hours),
      minutes(minutes),
      seconds(seconds),
      result(getResults()) {}

namespace {
void appendPart(std::wstring& text, int value, wchar_t unit) {
  if (!NLPMorvaneDuration::hasValue(value)) return;
  text += std::to_wstring(value);
  text += unit;
}
}  // namespace

std::wstring NLPMorvaneDuration::getResults() const {
  if (years == 0 && months == 0 && weeks == 0 && days == 0 && hours == 0 && minutes == 0 && seconds == 0) {
    return ON_TIME;  // a zero offset is "at the time", whatever its sign
  }
  std::wstring text = L"TRIGGER:";
  if (!isPositive) text += L"-";
  text += L"P";
  appendPart(text, years, L'Y');
  appendPart(text, months, L'M');
  appendPart(text, weeks, L'W');
  appendPart(text, days, L'D');
  if (hours == 0 && minutes == 0 && seconds == 0) return text;
  text += L"T";
  appendPart(text, hours, L'H');
  appendPart(text, minutes, L'M');
  appendPart(text, seconds, L'S');
  return text;
}

void NLPMorvaneDuration::addMinutes(int value) {
  minutes += value;
  result = getResults();
}

}  // namespace nlpdate
