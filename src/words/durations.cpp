// Turning a count and a unit word into a reminder offset. The unit tests know
// English and Chinese unit words; other languages reach them through the
// vocabulary's unit values.
#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

enum class Unit { None, Minute, Hour, Day, Week, Month, Year };

bool isUnit(Unit unit, const std::wstring& text, const Vocabulary& vocabulary) {
  switch (unit) {
    case Unit::Minute:
      return isMinutesUnit(text) || containStr(text, vocabulary[MINUTE]);
    case Unit::Hour:
      return isHourUnit(text) || containStr(text, vocabulary[HOUR]);
    case Unit::Day:
      return isDayUnit(text) || containStr(text, vocabulary[DAY]);
    case Unit::Week:
      return isWeekUnit(text) || containStr(text, vocabulary[WEEK]);
    case Unit::Month:
      return isMonthUnit(text) || containStr(text, vocabulary[MONTH]);
    case Unit::Year:
      return isYearUnit(text) || containStr(text, vocabulary[YEAR]);
    case Unit::None:
      break;
  }
  return false;
}

// The first unit of `order` that the text names.
Unit firstUnit(const std::wstring& text, std::initializer_list<Unit> order, const Vocabulary& vocabulary) {
  for (Unit unit : order) {
    if (isUnit(unit, text, vocabulary)) return unit;
  }
  return Unit::None;
}

NLPMorvaneDuration makeOffset(Unit unit, int count, bool isPositive) {
  int fields[6] = {0, 0, 0, 0, 0, 0};  // years, months, weeks, days, hours, minutes
  switch (unit) {
    case Unit::Year:
      fields[0] = count;
      break;
    case Unit::Month:
      fields[1] = count;
      break;
    case Unit::Week:
      fields[2] = count;
      break;
    case Unit::Day:
      fields[3] = count;
      break;
    case Unit::Hour:
      fields[4] = count;
      break;
    case Unit::Minute:
      fields[5] = count;
      break;
    case Unit::None:
      break;
  }
  return NLPMorvaneDuration(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], 0, isPositive);
}

}  // namespace

std::optional<NLPMorvaneDuration> NLPNativeTitleParser::getDuration(int count, std::wstring unit, bool isPositive,
                                                                    Vocabulary vocabulary) {
  Unit found = firstUnit(unit, {Unit::Minute, Unit::Hour, Unit::Day, Unit::Week, Unit::Month, Unit::Year}, vocabulary);
  if (found == Unit::None) return std::nullopt;
  return makeOffset(found, count, isPositive);
}

std::optional<NLPMorvaneDuration> NLPNativeTitleParser::getDuration(std::wstring count, std::wstring unit,
                                                                    bool isPositive, Vocabulary vocabulary) {
  int n = 0;
  if (isAnOrA(count) || containStr(count, vocabulary[A])) {
    n = 1;
  } else if (!count.empty()) {
    n = matchEnglishNum(count, vocabulary);
  }
  // The half test looks at the unit text on its second leg, not at the count.
  bool half = isHalf(count) || containStr(unit, vocabulary[HALF_A]);

  // Months and years come before the shorter units and never read `half`.
  Unit found = firstUnit(unit, {Unit::Minute, Unit::Month, Unit::Week, Unit::Year, Unit::Hour, Unit::Day}, vocabulary);
  switch (found) {
    case Unit::Month:
    case Unit::Year:
      return makeOffset(found, n, isPositive);
    case Unit::Minute:
      if (half) return NLPMorvaneDuration(0, 0, 0, 0, 0, 0, 30, isPositive);
      break;
    case Unit::Week:
      if (half) return NLPMorvaneDuration(0, 0, 0, 3, 0, 0, 0, isPositive);
      break;
    case Unit::Hour:
      if (half) return NLPMorvaneDuration(0, 0, 0, 0, 0, 30, 0, isPositive);
      break;
    case Unit::Day:
      if (half) return NLPMorvaneDuration(0, 0, 0, 0, 12, 0, 0, isPositive);
      break;
    case Unit::None:
      return std::nullopt;
  }
  if (n == 0) return std::nullopt;
  return makeOffset(found, n, isPositive);
}

std::optional<NLPMorvaneDuration> NLPNativeTitleParser::getDuration(std::wstring count, std::wstring unit,
                                                                    Vocabulary vocabulary) {
  return getDuration(std::move(count), std::move(unit), false, std::move(vocabulary));
}

}  // namespace nlpdate
