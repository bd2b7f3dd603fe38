// Ranges between numeric dates (2024-03-05 09:00 - 2024-03-06 17:00, 3/5-3/8,
// 3/20 - 25), tried before every other range form; the day-word forms follow in
// range_daywords.cpp.
#include <vector>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/piece_fill.h"
#include "words/range_patterns.h"

namespace nlpdate {

namespace {
const wchar_t* const kYmdTimeRange = LR"~(«YMD»«TIME»«FLAG»(«YMD»)?«TIME»)~";
const wchar_t* const kYmdRange = LR"~(«YMD»«FLAG»(«YMD»))~";
const wchar_t* const kMdyTimeRange = LR"~(«MDY»，?,?\s*«TIME»«FLAG»(«MDY»)?«TIME»)~";
const wchar_t* const kMdyDayRange = LR"~(«MDY»«FLAG»((1[0-2]|0?[1-9])([«DATE_DIVIDER»]))?(3[0-1]|[0-2]?[0-9]))~";
const wchar_t* const kMdyRange = LR"~(«MDY»«FLAG»(«MDY»))~";
const wchar_t* const kMdRange = LR"~(«MD»«FLAG»(«MD»))~";

// Date and time groups of the two numeric forms with times.
constexpr int kFirstFieldGroup = 2;
constexpr int kMiddleFieldGroup = 4;
constexpr int kLastFieldGroup = 6;
constexpr int kStartHourGroup = 11;
constexpr int kStartMinuteGroup = 12;
constexpr int kStartMeridiemGroup = 13;
constexpr int kSecondDateGroup = 16;
constexpr int kSecondFirstFieldGroup = 18;
constexpr int kSecondMiddleFieldGroup = 20;
constexpr int kSecondLastFieldGroup = 22;
constexpr int kEndHourGroup = 27;
constexpr int kEndMinuteGroup = 28;
constexpr int kEndMeridiemGroup = 29;
// Year-first pair without times: year, month, day of the second date.
constexpr int kYmdSecondYearGroup = 12;
constexpr int kYmdSecondMonthGroup = 14;
constexpr int kYmdSecondDayGroup = 16;
// Month-day to a bare day: the optional month and the day behind the range word.
constexpr int kDayRangeMonthGroup = 11;
constexpr int kDayRangeDayGroup = 13;
// Month-first pair: month, day, year of the second date.
constexpr int kMdySecondMonthGroup = 12;
constexpr int kMdySecondDayGroup = 14;
constexpr int kMdySecondYearGroup = 16;
// Month-day pair: month and day of the second date.
constexpr int kMdSecondMonthGroup = 10;
constexpr int kMdSecondDayGroup = 12;

struct NumericPieces {
  PatternPieces pieces;
  std::vector<std::wstring> times;
};

std::wstring fillDivider(const wchar_t* text, const Vocabulary& vocabulary) {
  return fillPieces(text, {{L"DATE_DIVIDER", vocabulary[DATE_DIVIDER]}});
}

std::wstring formText(const wchar_t* form, const NumericPieces& pieces, const std::wstring& time,
                      const Vocabulary& vocabulary) {
  PatternPieces all = pieces.pieces;
  all[L"TIME"] = time;
  return fillDivider(fillPieces(form, all).c_str(), vocabulary);
}

// The first match of a form that holds «TIME», trying each clock pattern in turn.
// Both kinds of form are compiled once per vocabulary and form.
bool searchTimeForm(const std::wstring& title, const wchar_t* form, const NumericPieces& pieces,
                    const Vocabulary& vocabulary, PatternMatch& match) {
  const std::vector<Pattern>& forms = keptFor(
      vocabulary,
      [&] {
        std::vector<Pattern> all;
        for (const std::wstring& time : pieces.times) {
          all.push_back(compilePattern(formText(form, pieces, time, vocabulary), PatternCase::Sensitive));
        }
        return all;
      },
      variantOf(form));
  for (const Pattern& timed : forms) {
    if (timed.search(title, match)) return true;
  }
  return false;
}

// The first match of a form without «TIME».
bool searchPlainForm(const std::wstring& title, const wchar_t* form, const NumericPieces& pieces,
                     const Vocabulary& vocabulary, PatternMatch& match) {
  const Pattern& plain = keptFor(
      vocabulary, [&] { return compilePattern(formText(form, pieces, L"", vocabulary), PatternCase::Sensitive); },
      variantOf(form));
  return plain.search(title, match);
}

// Year rule of the numeric forms: a written year (two digits mean 20xx), or
// next year when the date has passed.
void applyRangeYear(NLPNativeTitleParser& parser, std::tm* record, std::wstring yearText) {
  trim(yearText);
  if (!yearText.empty()) {
    if (yearText.size() == 2) yearText = L"20" + yearText;
    record->tm_year = parser.translateNum(yearText) - 1900;
  } else if (parser.isBeforeToday(record)) {
    record->tm_year += 1;
  }
}

void setRangeMonthDay(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& month,
                      const std::wstring& day) {
  record->tm_mon = parser.translateNum(month) - 1;
  record->tm_mday = parser.translateNum(day);
}
}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnDateDuration(std::wstring title, Vocabulary vocabulary) {
  if (auto found = matchEnNumericDateDuration(title, vocabulary)) return found;
  return matchEnDayWordDuration(title, vocabulary);
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnNumericDateDuration(const std::wstring& title,
                                                                                 const Vocabulary& vocabulary) {
  const NumericPieces& pieces = keptFor(vocabulary, [&] {
    return NumericPieces{{{L"YMD", kRangeYearMonthDay},
                          {L"MDY", kRangeMonthDayYear},
                          {L"MD", kRangeMonthDay},
                          {L"FLAG", rangeFlag(vocabulary)},
                          {L"DATE_DIVIDER", L"«DATE_DIVIDER»"}},
                         getEnTimePattern(vocabulary)};
  });
  PatternMatch match;
  TMPtr start = getDefaultTM();
  setTMToDefaultTime(start.get());

  if (searchTimeForm(title, kYmdTimeRange, pieces, vocabulary, match)) {
    std::wstring first = match.str(kFirstFieldGroup);
    std::wstring middle = match.str(kMiddleFieldGroup);
    std::wstring last = match.str(kLastFieldGroup);
    trim(first);
    trim(middle);
    trim(last);
    std::wstring year = first, month = middle, day = last;
    // A two-digit first field is no year: the year stands last, the others by the month-first setting.
    if (first.size() == 2) {
      year = last;
      month = isUsOrUkDateFormat ? first : middle;
      day = isUsOrUkDateFormat ? middle : first;
    }
    setRangeClock(start.get(), readRangeClock(*this, match.str(kStartHourGroup), match.str(kStartMinuteGroup),
                                              match.str(kStartMeridiemGroup), vocabulary));
    setRangeMonthDay(*this, start.get(), month, day);
    if (!year.empty()) {
      setYear(year, start);
    } else if (isBeforeToday(start.get())) {
      start->tm_year += 1;
    }
    TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
    setRangeClock(end.get(), readRangeClock(*this, match.str(kEndHourGroup), match.str(kEndMinuteGroup),
                                            match.str(kEndMeridiemGroup), vocabulary));
    if (!match.str(kSecondDateGroup).empty()) {
      setRangeMonthDay(*this, end.get(), match.str(kSecondMiddleFieldGroup), match.str(kSecondLastFieldGroup));
      const std::wstring endYear = match.str(kSecondFirstFieldGroup);
      if (!endYear.empty()) {
        setYear(endYear, end);
      } else if (isBeforeToday(end.get())) {
        end->tm_year += 1;
      }
    }
    return makeRangeResult(match, start, end, ON_TIME);
  }

  if (searchPlainForm(title, kYmdRange, pieces, vocabulary, match)) {
    setRangeMonthDay(*this, start.get(), match.str(kMiddleFieldGroup), match.str(kLastFieldGroup));
    applyRangeYear(*this, start.get(), match.str(kFirstFieldGroup));
    TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
    setRangeMonthDay(*this, end.get(), match.str(kYmdSecondMonthGroup), match.str(kYmdSecondDayGroup));
    applyRangeYear(*this, end.get(), match.str(kYmdSecondYearGroup));
    return makeRangeResult(match, start, end, L"");
  }

  if (searchTimeForm(title, kMdyTimeRange, pieces, vocabulary, match)) {
    const RangeClock second = readRangeClock(*this, match.str(kEndHourGroup), match.str(kEndMinuteGroup),
                                             match.str(kEndMeridiemGroup), vocabulary);
    const bool hasMeridiem = !match.str(kStartMeridiemGroup).empty() || !match.str(kEndMeridiemGroup).empty();
    setRangeClock(start.get(), readRangeClock(*this, match.str(kStartHourGroup), match.str(kStartMinuteGroup),
                                              match.str(kStartMeridiemGroup), vocabulary));
    setRangeMonthDay(*this, start.get(), match.str(kFirstFieldGroup), match.str(kMiddleFieldGroup));
    applyRangeYear(*this, start.get(), match.str(kLastFieldGroup));
    TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
    setRangeClock(end.get(), second);
    // An end at 12 am is the midnight that closes the day.
    if (containStr(match.str(kEndMeridiemGroup), vocabulary[AM]) && second.hour == 0) end->tm_mday += 1;
    if (!match.str(kSecondDateGroup).empty()) {
      setRangeMonthDay(*this, end.get(), match.str(kSecondFirstFieldGroup), match.str(kSecondMiddleFieldGroup));
      applyRangeYear(*this, end.get(), match.str(kSecondLastFieldGroup));
    }
    if (rangeIsAfter(start.get(), end.get())) {
      if (hasMeridiem) {
        end->tm_mday += 1;
        if (isBeforeToday(end.get())) end->tm_year += 1;
      } else {
        end->tm_hour += 12;
        if (rangeIsAfter(start.get(), end.get())) {
          end->tm_hour -= 12;
          end->tm_mday += 1;
        }
      }
    }
    return makeRangeResult(match, start, end, ON_TIME);
  }

  if (searchPlainForm(title, kMdyDayRange, pieces, vocabulary, match)) {
    setRangeMonthDay(*this, start.get(), match.str(kFirstFieldGroup), match.str(kMiddleFieldGroup));
    std::wstring year = match.str(kLastFieldGroup);
    trim(year);
    if (!year.empty()) applyRangeYear(*this, start.get(), year);
    // The end is taken before the start's year rolls, and keeps that year.
    TMPtr end = copyRangeRecord(start.get());
    if (year.empty()) applyRangeYear(*this, start.get(), year);
    const std::wstring endMonth = match.str(kDayRangeMonthGroup);
    end->tm_mday = translateNum(match.str(kDayRangeDayGroup));
    if (!endMonth.empty()) end->tm_mon = translateNum(endMonth) - 1;
    return makeRangeResult(match, start, end, L"");
  }

  if (searchPlainForm(title, kMdyRange, pieces, vocabulary, match)) {
    setRangeMonthDay(*this, start.get(), match.str(kFirstFieldGroup), match.str(kMiddleFieldGroup));
    std::wstring startYear = match.str(kLastFieldGroup);
    trim(startYear);
    if (!startYear.empty()) applyRangeYear(*this, start.get(), startYear);
    TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
    setRangeMonthDay(*this, end.get(), match.str(kMdySecondMonthGroup), match.str(kMdySecondDayGroup));
    std::wstring endYear = match.str(kMdySecondYearGroup);
    trim(endYear);
    if (!endYear.empty()) {
      applyRangeYear(*this, end.get(), endYear);
    } else if (isBeforeToday(end.get())) {
      start->tm_year += 1;
      end->tm_year += 1;
    }
    return makeRangeResult(match, start, end, L"");
  }

  if (searchPlainForm(title, kMdRange, pieces, vocabulary, match)) {
    setRangeMonthDay(*this, start.get(), match.str(kFirstFieldGroup), match.str(kMiddleFieldGroup));
    TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
    setRangeMonthDay(*this, end.get(), match.str(kMdSecondMonthGroup), match.str(kMdSecondDayGroup));
    if (isBeforeToday(end.get())) {
      start->tm_year += 1;
      end->tm_year += 1;
    }
    return makeRangeResult(match, start, end, L"");
  }
  return std::nullopt;
}

}  // namespace nlpdate
