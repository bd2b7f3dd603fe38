// A range between two written dates (4月1日至4月3日, 25号到3号,
// 2024年12月30日到1月2日): every pairing of the three date patterns around the
// range word, with the year and month of the end completed from the start.
#include <string>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/range_word.h"

namespace nlpdate {

namespace {

// Groups of "(first)flag(second)", each date with year, year separator, month,
// month separator and day.
constexpr int kFirstYear = 2;
constexpr int kFirstYearSeparator = 3;
constexpr int kFirstMonth = 4;
constexpr int kFirstMonthSeparator = 5;
constexpr int kFirstDay = 6;
constexpr int kSecondYear = 9;
constexpr int kSecondYearSeparator = 10;
constexpr int kSecondMonth = 11;
constexpr int kSecondMonthSeparator = 12;
constexpr int kSecondDay = 13;

struct DateTexts {
  std::wstring year;
  std::wstring yearSeparator;
  std::wstring month;
  std::wstring monthSeparator;
  std::wstring day;
};

DateTexts textsOf(const PatternMatch& match, int year, int yearSeparator, int month, int monthSeparator, int day) {
  return {match.str(year), match.str(yearSeparator), match.str(month), match.str(monthSeparator), match.str(day)};
}

// Two differing separators read as month and day, as in a single written date.
void shiftMixedSeparators(DateTexts& date) {
  if (date.yearSeparator == L"年" || date.monthSeparator == L"月" || date.yearSeparator.empty() ||
      date.yearSeparator == date.monthSeparator) {
    return;
  }
  date.day = date.month;
  date.month = date.year;
  date.year.clear();
}

// Fills the end from the second date; a year left out moves both dates on when
// the end is past.
void completeEnd(NLPNativeTitleParser& parser, const DateTexts& one, const DateTexts& two, std::tm* start,
                 const TMPtr& end) {
  if (!two.year.empty() && !two.month.empty()) {
    parser.setYear(two.year, end);
    parser.setMonth(two.month, end);
    parser.setDayOfMonth(two.day, end);
  } else if (!two.month.empty()) {
    parser.setMonth(two.month, end);
    parser.setDayOfMonth(two.day, end);
    if (one.year.empty() && parser.isBeforeToday(end.get())) {
      start->tm_year += 1;
      end->tm_year += 1;
    }
  } else if (!two.day.empty()) {
    parser.setDayOfMonth(two.day, end);
    const bool past = parser.isBeforeToday(end.get());
    if (one.month.empty() && past) {
      start->tm_mon += 1;
      end->tm_mon += 1;
    } else if (one.year.empty() && past) {
      start->tm_year += 1;
      end->tm_year += 1;
    }
  }
}

}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationDateRecognition(std::wstring title) {
  // Every pairing of the written-date forms, first form outermost.
  const std::vector<Pattern>& pairings = keptFor(rangeVocabulary, [this] {
    const std::vector<std::wstring> dates = getChineseDatePattern();
    const std::wstring flag = getDurationFlag(rangeVocabulary);
    std::vector<Pattern> all;
    for (const std::wstring& first : dates) {
      for (const std::wstring& second : dates)
        all.push_back(compilePattern(L"(" + first + L")" + flag + L"(" + second + L")"));
    }
    return all;
  });
  for (const Pattern& pairing : pairings) {
    PatternMatch match;
    if (!pairing.search(title, match)) continue;
    if (auto range = readWrittenDateRange(match)) return range;
  }
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::readWrittenDateRange(const PatternMatch& match) {
  TMPtr start = getDefaultTM();
  setTMToDefaultTime(start.get());
  TMPtr end = getDefaultTM();
  setTMToDefaultTime(end.get());
  DateTexts one = textsOf(match, kFirstYear, kFirstYearSeparator, kFirstMonth, kFirstMonthSeparator, kFirstDay);
  DateTexts two = textsOf(match, kSecondYear, kSecondYearSeparator, kSecondMonth, kSecondMonthSeparator, kSecondDay);
  shiftMixedSeparators(one);
  if (isOverMonthLimit(one.month)) return std::nullopt;
  if (!one.year.empty() && !one.month.empty()) {
    setYear(one.year, start);
    setMonth(one.month, start);
    setDayOfMonth(one.day, start);
    setYear(one.year, end);
    setMonth(one.month, end);
    setDayOfMonth(one.day, end);
  } else if (one.month.empty() && !one.day.empty()) {
    setDayOfMonth(one.day, start);
    setDayOfMonth(one.day, end);
    if (translateNum(one.day) > translateNum(two.day)) end->tm_mon += 1;  // 25号到3号 ends next month
  } else if (one.year.empty() && !one.month.empty()) {
    setMonth(one.month, start);
    setDayOfMonth(one.day, start);
    setMonth(one.month, end);
    setDayOfMonth(one.day, end);
  }
  shiftMixedSeparators(two);
  if (isOverMonthLimit(two.month)) return std::nullopt;
  completeEnd(*this, one, two, start.get(), end);
  clearValueAfterDay(start.get());
  clearValueAfterDay(end.get());
  mkTM(start.get());
  mkTM(end.get());
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(start), OptTM(end));
}

}  // namespace nlpdate
