// Ranges written with month names: a month date to a month date, with or
// without clock times, bare days with clock times, and a month date to a bare day.
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "words/month_patterns.h"
#include "words/piece_fill.h"
#include "words/range_patterns.h"

namespace nlpdate {

namespace {
const wchar_t* const kMonthTimeRange = LR"~((«MONTHDATE»)\s*«TIME»«FLAG»(«MONTHDATE»)?\s*«TIME»)~";
const wchar_t* const kDayOnlyTimeRange = LR"~((«DAYONLY»)\s*«TIME»«FLAG»(«DAYONLY»)?\s*«TIME»)~";
const wchar_t* const kMonthRange = LR"~((«MONTHDATE»)«FLAG»(«MONTHDATE»))~";
const wchar_t* const kMonthDayRange = LR"~((«MONTHDATE»)«FLAG»\s*(3[0-1]|[0-2]?[0-9])(\s*(\d{4}))?)~";

// Month dates with clock times.
constexpr int kTimeFirstDayBeforeGroup = 6;
constexpr int kTimeFirstMonthGroup = 8;
constexpr int kTimeFirstDayBehindGroup = 10;
constexpr int kTimeFirstYearGroup = 13;
constexpr int kTimeStartHourGroup = 16;
constexpr int kTimeStartMinuteGroup = 17;
constexpr int kTimeStartMeridiemGroup = 18;
constexpr int kTimeSecondDayBeforeGroup = 26;
constexpr int kTimeSecondMonthGroup = 28;
constexpr int kTimeSecondDayBehindGroup = 30;
constexpr int kTimeSecondYearGroup = 33;
constexpr int kTimeEndHourGroup = 36;
constexpr int kTimeEndMinuteGroup = 37;
constexpr int kTimeEndMeridiemGroup = 38;
// Bare days with clock times.
constexpr int kDayOnlyFirstDayGroup = 4;
constexpr int kDayOnlyFirstYearGroup = 7;
constexpr int kDayOnlyStartHourGroup = 10;
constexpr int kDayOnlyStartMinuteGroup = 11;
constexpr int kDayOnlyStartMeridiemGroup = 12;
constexpr int kDayOnlySecondDayGroup = 18;
constexpr int kDayOnlySecondYearGroup = 21;
constexpr int kDayOnlyEndHourGroup = 24;
constexpr int kDayOnlyEndMinuteGroup = 25;
constexpr int kDayOnlyEndMeridiemGroup = 26;
// Month date to month date.
constexpr int kFirstDayBeforeGroup = 6;
constexpr int kFirstMonthGroup = 8;
constexpr int kFirstDayBehindGroup = 10;
constexpr int kFirstYearGroup = 13;
constexpr int kSecondDayBeforeGroup = 20;
constexpr int kSecondMonthGroup = 22;
constexpr int kSecondDayBehindGroup = 24;
constexpr int kSecondYearGroup = 27;
// Month date to a bare day.
constexpr int kDayRangeMonthGroup = 8;
constexpr int kDayRangeFirstDayGroup = 10;
constexpr int kDayRangeSecondDayGroup = 15;
constexpr int kDayRangeYearGroup = 17;

// The first non-empty of two day texts, else the fallback.
int dayOf(NLPNativeTitleParser& parser, const std::wstring& first, const std::wstring& second, int fallback) {
  if (!first.empty()) return parser.translateNum(first);
  if (!second.empty()) return parser.translateNum(second);
  return fallback;
}

void setYearText(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& text) {
  if (!text.empty()) record->tm_year = rangeYearValue(parser, text);
}

void rollBoth(std::tm* start, std::tm* end, int months, int years) {
  start->tm_mon += months;
  end->tm_mon += months;
  start->tm_year += years;
  end->tm_year += years;
}
}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnMonthDuration(std::wstring title, Vocabulary vocabulary) {
  struct Forms {
    std::vector<Pattern> monthTimed;
    std::vector<Pattern> dayOnlyTimed;
    Pattern months;
    Pattern monthDay;
  };
  const Forms& forms = keptFor(vocabulary, [&] {
    PatternPieces pieces = {
        {L"MONTHDATE", getEnMonthRecognition(vocabulary)},
        {L"FLAG", rangeFlag(vocabulary)},
        {L"DAYONLY", fillPieces(kRangeDayOnly, {{L"DAY_OF_MONTH_DIGITAL", vocabulary[DAY_OF_MONTH_DIGITAL]},
                                                {L"DAY_END", vocabulary[DAY_END]},
                                                {L"FOUR_OR_TWO_YEAR_DIGITAL", vocabulary[FOUR_OR_TWO_YEAR_DIGITAL]}})}};
    Forms built;
    built.monthTimed = compileTimedForm(*this, vocabulary, kMonthTimeRange, pieces, L"TIME");
    built.dayOnlyTimed = compileTimedForm(*this, vocabulary, kDayOnlyTimeRange, pieces, L"TIME");
    pieces[L"TIME"] = L"";
    built.months = compilePattern(fillPieces(kMonthRange, pieces), PatternCase::Insensitive);
    built.monthDay = compilePattern(fillPieces(kMonthDayRange, pieces), PatternCase::Insensitive);
    return built;
  });
  PatternMatch match;

  // Every form but the bare-day one holds a month word.
  const bool mayHoldMonth = monthWordGuard(vocabulary).mayMatch(title);
  static const std::vector<Pattern> kNoForms;
  for (const Pattern& form : mayHoldMonth ? forms.monthTimed : kNoForms) {
    if (!form.search(title, match)) continue;
    // A numeric date's tail must not pass for a month range.
    const long at = match.position(0);
    if (at > 0 && (title[at - 1] == L'/' || title[at - 1] == L'-')) continue;
    TMPtr start = getEnMonthCalendar(match.str(kTimeFirstMonthGroup), vocabulary);
    start->tm_mday = dayOf(*this, match.str(kTimeFirstDayBehindGroup), match.str(kTimeFirstDayBeforeGroup), 1);
    setRangeClock(start.get(), readRangeClock(*this, match.str(kTimeStartHourGroup), match.str(kTimeStartMinuteGroup),
                                              match.str(kTimeStartMeridiemGroup), vocabulary));
    setYearText(*this, start.get(), match.str(kTimeFirstYearGroup));
    const std::wstring secondMonth = match.str(kTimeSecondMonthGroup);
    TMPtr end = secondMonth.empty() ? copyRangeRecord(start.get()) : getEnMonthCalendar(secondMonth, vocabulary);
    end->tm_mday =
        dayOf(*this, match.str(kTimeSecondDayBehindGroup), match.str(kTimeSecondDayBeforeGroup), end->tm_mday);
    setYearText(*this, end.get(), match.str(kTimeSecondYearGroup));
    const bool noMonth = match.str(kTimeFirstMonthGroup).empty() && secondMonth.empty();
    if (isBeforeToday(end.get())) rollBoth(start.get(), end.get(), noMonth ? 1 : 0, noMonth ? 0 : 1);
    setRangeClock(end.get(), readRangeClock(*this, match.str(kTimeEndHourGroup), match.str(kTimeEndMinuteGroup),
                                            match.str(kTimeEndMeridiemGroup), vocabulary));
    return makeRangeResult(match, start, end, ON_TIME);
  }

  for (const Pattern& form : forms.dayOnlyTimed) {
    if (!form.search(title, match)) continue;
    TMPtr start = getDefaultTM();
    TMPtr end = getDefaultTM();
    start->tm_mday = translateNum(match.str(kDayOnlyFirstDayGroup));
    // Without a second day the range stays inside the first.
    end->tm_mday = dayOf(*this, match.str(kDayOnlySecondDayGroup), match.str(kDayOnlyFirstDayGroup), end->tm_mday);
    setYearText(*this, start.get(), match.str(kDayOnlyFirstYearGroup));
    setYearText(*this, end.get(), match.str(kDayOnlySecondYearGroup));
    setRangeClock(start.get(),
                  readRangeClock(*this, match.str(kDayOnlyStartHourGroup), match.str(kDayOnlyStartMinuteGroup),
                                 match.str(kDayOnlyStartMeridiemGroup), vocabulary));
    setRangeClock(end.get(), readRangeClock(*this, match.str(kDayOnlyEndHourGroup), match.str(kDayOnlyEndMinuteGroup),
                                            match.str(kDayOnlyEndMeridiemGroup), vocabulary));
    if (match.str(kDayOnlySecondYearGroup).empty() && isBeforeToday(end.get())) rollBoth(start.get(), end.get(), 1, 0);
    return makeRangeResult(match, start, end, ON_TIME);
  }

  if (mayHoldMonth && forms.months.search(title, match)) {
    TMPtr start = getEnMonthCalendar(match.str(kFirstMonthGroup), vocabulary);
    // Here the day before the month wins.
    start->tm_mday = dayOf(*this, match.str(kFirstDayBeforeGroup), match.str(kFirstDayBehindGroup), 1);
    setYearText(*this, start.get(), match.str(kFirstYearGroup));
    TMPtr end = getEnMonthCalendar(match.str(kSecondMonthGroup), vocabulary);
    end->tm_mday = dayOf(*this, match.str(kSecondDayBeforeGroup), match.str(kSecondDayBehindGroup), 1);
    const std::wstring endYear = match.str(kSecondYearGroup);
    setYearText(*this, end.get(), endYear);
    if (endYear.empty() && isBeforeToday(end.get())) rollBoth(start.get(), end.get(), 0, 1);
    return makeRangeResult(match, start, end, L"");
  }

  if (mayHoldMonth && forms.monthDay.search(title, match)) {
    TMPtr start = getEnMonthCalendar(match.str(kDayRangeMonthGroup), vocabulary);
    start->tm_mday = translateNum(match.str(kDayRangeFirstDayGroup));
    const std::wstring year = match.str(kDayRangeYearGroup);
    if (!year.empty()) {
      start->tm_year = rangeYearValue(*this, year);
    } else if (isBeforeToday(start.get())) {
      start->tm_year += 1;
    }
    TMPtr end = copyRangeRecord(start.get());
    const std::wstring endDay = match.str(kDayRangeSecondDayGroup);
    end->tm_mday = endDay.empty() ? 1 : translateNum(endDay);
    return makeRangeResult(match, start, end, L"");
  }
  return std::nullopt;
}

}  // namespace nlpdate
