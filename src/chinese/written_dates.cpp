// Written Chinese dates: 2024年3月5日, 3月5号, 3/5, 5号, 下月上旬, 3-5-2024.
// The title leaves out what it can (year, month); the missing parts are
// completed so that the date lies ahead. The patterns are shared with the
// range recognisers.
#include <string>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

// Groups of the month-first pattern with the year at the end.
constexpr int kTailMonthGroup = 1;
constexpr int kTailMonthSeparatorGroup = 2;
constexpr int kTailDayGroup = 3;
constexpr int kTailYearSeparatorGroup = 4;
constexpr int kTailYearGroup = 5;
// Groups shared by the three patterns of getChineseDatePattern.
constexpr int kYearGroup = 1;
constexpr int kYearSeparatorGroup = 2;
constexpr int kMonthGroup = 3;
constexpr int kMonthSeparatorGroup = 4;
constexpr int kDayGroup = 5;

// The "|" inside the brackets is kept as written: a literal bar also counts as a separator.
const wchar_t* const kMonthDayYearPattern =
    LR"((\d{1,2}|«N12»|元)(\/|\-|\－|月|\.|\s)(\d{1,2}|«N31»|上旬|中旬|下旬)?[日号]?([\/|\-|\－|年|\.|\s])(\d{4}))";
const wchar_t* const kDatePatterns[] = {
    LR"((\d{2,4}|明)\s?([\/|\-|\－|年|\.|\s])\s?(\d{1,2}|«N12»|元)\s?(\/|\-|\－|月|\.|\s)\s?(\d{1,2}|«N31»|上旬|中旬|下旬)?\s?[日号]?)",
    LR"(()()(\d{1,}|下|下个|«N12»|元)\s?(\/|\-|\－|月)\s?(3[0-1]|[0-2]?[0-9]|«N31»|上旬|中旬|下旬)?\s?[日号]?)",
    LR"(()()()()(3[0-1]|[0-2]?[0-9]|«N31»|上旬|中旬|下旬)\s?[日号])",
};

bool isDigitSeparator(const std::wstring& separator) {
  return separator == L"/" || separator == L"-" || separator == L"－";
}

}  // namespace

// The written-date patterns are constant: filled once.
const std::wstring& NLPNativeTitleParser::getChineseMonthDayYearPattern() {
  static const std::wstring pattern =
      fillPieces(kMonthDayYearPattern, {{L"N12", getChinaNumPattern(12)}, {L"N31", getChinaNumPattern(31)}});
  return pattern;
}

const std::vector<std::wstring>& NLPNativeTitleParser::getChineseDatePattern() {
  static const std::vector<std::wstring> patterns = [this] {
    const PatternPieces pieces = {{L"N12", getChinaNumPattern(12)}, {L"N31", getChinaNumPattern(31)}};
    std::vector<std::wstring> filled;
    for (const wchar_t* pattern : kDatePatterns) filled.push_back(fillPieces(pattern, pieces));
    return filled;
  }();
  return patterns;
}

bool NLPNativeTitleParser::isOverMonthLimit(std::wstring month) {
  if (month.empty()) return false;
  for (wchar_t c : month)
    if (c < L'0' || c > L'9') return false;  // 下, 下个 and numerals in words are never over
  return translateNum(month) >= 13;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchDate(std::wstring title) {
  const Pattern& tail = compiledOnce([this] { return compilePattern(getChineseMonthDayYearPattern()); });
  auto found = getMatchDateResult(tail, title, kTailYearGroup, kTailMonthGroup, kTailDayGroup, kTailYearSeparatorGroup,
                                  kTailMonthSeparatorGroup);
  if (found) return found;
  for (const Pattern& pattern : compiledOnce([this] { return compileEach(getChineseDatePattern()); })) {
    found = getMatchDateResult(pattern, title, kYearGroup, kMonthGroup, kDayGroup, kYearSeparatorGroup,
                               kMonthSeparatorGroup);
    if (found) return found;
  }
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::getMatchDateResult(const Pattern& pattern,
                                                                         const std::wstring& title, int yearGroup,
                                                                         int monthGroup, int dayGroup,
                                                                         int yearSeparatorGroup,
                                                                         int monthSeparatorGroup) {
  PatternMatch match;
  if (!pattern.search(title, match)) return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  std::wstring year = match.str(yearGroup);
  std::wstring month = match.str(monthGroup);
  std::wstring day = match.str(dayGroup);
  const std::wstring yearSeparator = match.str(yearSeparatorGroup);
  const std::wstring monthSeparator = match.str(monthSeparatorGroup);
  if (isDigitSeparator(monthSeparator) && day.empty()) return std::nullopt;  // a date in figures needs its day
  if (!(yearSeparator == L"年" || monthSeparator == L"月" || yearSeparator.empty() ||
        yearSeparator == monthSeparator)) {
    // Two differing separators: the first two numbers are month and day.
    day = month;
    month = year;
    year.clear();
  }
  if (!year.empty() && !month.empty()) {
    if (isOverMonthLimit(month)) return std::nullopt;
    setYear(year, cal);
    setMonth(month, cal);
    setDayOfMonth(day, cal);
  } else if (!month.empty()) {
    if (isOverMonthLimit(month)) return std::nullopt;
    setMonth(month, cal);
    if (!day.empty()) {
      setDayOfMonth(day, cal);
    } else {
      const int monthBefore = cal->tm_mon;
      mkTM(cal.get());
      if (cal->tm_mon != monthBefore) cal->tm_mday = 1;
    }
    setYear(std::wstring(), cal);
    if (isBeforeToday(cal.get())) cal->tm_year += 1;
  } else if (!day.empty()) {
    setDayOfMonth(day, cal);
    if (isBeforeToday(cal.get())) cal->tm_mon += 1;
    if (isBeforeToday(cal.get())) {
      cal->tm_mon -= 1;
      cal->tm_year += 1;
    }
  }
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(cal));
}

}  // namespace nlpdate
