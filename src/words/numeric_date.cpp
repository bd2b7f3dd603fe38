// Dates written in digits with dividers (31/12/2024, 2024-12-31, 12.31.24,
// 3/4) and the phrases for next month, next year and the end of the month.
#include <vector>

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

// A point divides only where a four-digit year makes the date certain.
const wchar_t* const kDayMonthFullYear =
    LR"~((\(|\b)(«ON_BY»)?\s*(3[0-1]|[0-2]?[0-9])([\.«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])([\.«DATE_DIVIDER»])?(\d{4})(\)|\b)(\s)*)~";
const wchar_t* const kRelativeMonthYear = LR"~((«NEXT»\s+(«MONTH»|«YEAR»))|(«END_OF_MONTH»))~";
const wchar_t* const kFullYearFirst =
    LR"~((\(|\b)(«ON_BY»)?\s*(\d{4})([\.«DATE_DIVIDER»])?(1[0-2]|0?[1-9])([\.«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])(\)|\b)(\s)*)~";
const wchar_t* const kDayMonthShortYear =
    LR"~((\(|\b)(«ON_BY»)?\s*(3[0-1]|[0-2]?[0-9])([«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])([«DATE_DIVIDER»])?(\d{2})(\)|\b)(\s)*)~";
const wchar_t* const kMonthFirstNoYear =
    LR"~((\(|\b)(«ON_BY»)?\s*(1[0-2]|0?[0-9])([«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])([«DATE_DIVIDER»])?(\)|\b)(?!\.)(\s)*)~";
const wchar_t* const kDayFirstNoYear =
    LR"~((\(|\b)(«ON_BY»)?\s*(3[0-1]|[0-2]?[0-9])([«DATE_DIVIDER»])(1[0-2]|0?[0-9])([«DATE_DIVIDER»])?(\)|\b)(?!\.)(\s)*)~";

// Which groups hold month, day and year; a relative phrase has none.
struct DateFields {
  int month;
  int day;
  int year;
};

struct NumericStep {
  const wchar_t* pattern;
  bool relative;
  DateFields fields;
};

std::vector<NumericStep> numericSteps(bool monthFirst) {
  DateFields ambiguous = monthFirst ? DateFields{3, 5, 7} : DateFields{5, 3, 7};
  std::vector<NumericStep> steps = {
      {kDayMonthFullYear, false, ambiguous},
      {kRelativeMonthYear, true, {0, 0, 0}},
      {kFullYearFirst, false, {5, 7, 3}},
      {kDayMonthShortYear, false, ambiguous},
  };
  // Without a year the setting alone decides; only one of the two is tried.
  if (monthFirst) {
    steps.push_back({kMonthFirstNoYear, false, {3, 5, 7}});
  } else {
    steps.push_back({kDayFirstNoYear, false, {5, 3, 7}});
  }
  return steps;
}

const PatternPieces& numericPieces(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> PatternPieces {
    return {{L"ON_BY", vocabulary[ON_BY]}, {L"DATE_DIVIDER", vocabulary[DATE_DIVIDER]},
            {L"NEXT", vocabulary[NEXT]},   {L"MONTH", vocabulary[MONTH]},
            {L"YEAR", vocabulary[YEAR]},   {L"END_OF_MONTH", vocabulary[END_OF_MONTH]}};
  });
}

// A two-digit year means 20xx. With no year a date that has passed this year
// means next year. In a bracketed date with no year the year group holds the
// closing ")", which is read as a year all the same, as the rule has always
// done.
void applyYear(NLPNativeTitleParser& parser, std::tm* record, std::wstring yearText, long todaySeconds) {
  trim(yearText);
  if (!yearText.empty()) {
    if (yearText.size() == 2) yearText = L"20" + yearText;
    record->tm_year = parser.translateNum(yearText) - 1900;
    return;
  }
  if (secondsOf(timePointFromTM(*record)) < todaySeconds) record->tm_year += 1;
}

// Fields go in as read: a month of 13 or a day of 31 in a short month is
// carried over by the later normalising.
TMPtr readFields(NLPNativeTitleParser& parser, const PatternMatch& match, const DateFields& fields, long todaySeconds) {
  TMPtr record = parser.getDefaultTM();
  parser.setTMToDefaultTime(record.get());
  std::wstring monthText = match[fields.month].str();
  std::wstring dayText = match[fields.day].str();
  trim(monthText);
  trim(dayText);
  record->tm_mon = parser.translateNum(monthText) - 1;
  record->tm_mday = parser.translateNum(dayText);
  applyYear(parser, record.get(), match[fields.year].str(), todaySeconds);
  return record;
}

TMPtr readRelative(NLPNativeTitleParser& parser, const PatternMatch& match, const Vocabulary& vocabulary) {
  TMPtr record = parser.getDefaultTM();
  parser.setTMToDefaultTime(record.get());
  std::wstring unit = toLowerCase(match[2].str());
  if (containStr(unit, vocabulary[MONTH])) {
    record->tm_mon += 1;
    record->tm_mday = 1;
  } else if (containStr(unit, vocabulary[YEAR])) {
    record->tm_year += 1;
    record->tm_mon = 0;
    record->tm_mday = 1;
  } else if (!match[3].str().empty()) {
    record->tm_mon += 1;
    record->tm_mday = 0;  // day 0 of next month: the last day of this one
  }
  mkTM(record.get());
  return record;
}

}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnDate(std::wstring title, Vocabulary vocabulary) {
  long todaySeconds = today();
  const std::vector<NumericStep> steps = numericSteps(isUsOrUkDateFormat);
  // The steps depend on the month-first setting, their patterns on the words too.
  const std::vector<Pattern>& patterns = keptFor(
      vocabulary,
      [&] {
        std::vector<Pattern> compiled;
        for (const NumericStep& step : steps) {
          compiled.push_back(
              compilePattern(fillPieces(step.pattern, numericPieces(vocabulary)), PatternCase::Insensitive));
        }
        return compiled;
      },
      isUsOrUkDateFormat ? 1 : 0);
  for (size_t at = 0; at < steps.size(); ++at) {
    const NumericStep& step = steps[at];
    PatternMatch match;
    if (!patterns[at].search(title, match)) continue;
    TMPtr record =
        step.relative ? readRelative(*this, match, vocabulary) : readFields(*this, match, step.fields, todaySeconds);
    return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
  }
  return std::nullopt;
}

}  // namespace nlpdate
