// Dates that name a month: "12 March", "March 12th", "mid March 2024",
// "12 Mar 9:30", "9:30 Mar 12", and the bare ordinal "5th".
#include <utility>
#include <vector>

#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/month_patterns.h"
#include "words/month_steps.h"

namespace nlpdate {

namespace {

// The order of the tests is the tie-break between month words that hold one another.
std::vector<std::pair<const std::wstring*, int>> monthKeysInTestOrder() {
  return {{&DECEMBER, 11}, {&NOVEMBER, 10}, {&OCTOBER, 9}, {&JANUARY, 0}, {&FEBRUARY, 1}, {&MARCH, 2},
          {&APRIL, 3},     {&MAY, 4},       {&JUNE, 5},    {&JULY, 6},    {&AUGUST, 7},   {&SEPTEMBER, 8}};
}

bool searchTitle(const std::wstring& title, const std::wstring& pattern, PatternMatch& match) {
  Pattern compiled = compilePattern(pattern, PatternCase::Insensitive);
  return compiled.search(title, match);
}

}  // namespace

TMPtr NLPNativeTitleParser::getEnMonthCalendar(std::wstring monthText, Vocabulary vocabulary) {
  TMPtr record = getDefaultTM();
  trim(monthText);
  std::wstring month = toLowerCase(monthText);
  for (const auto& [key, monthIndex] : monthKeysInTestOrder()) {
    if (containStr(month, vocabulary[*key])) {
      record->tm_mon = monthIndex;
      break;
    }
  }
  return record;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnMonth(std::wstring title, Vocabulary vocabulary) {
  PatternMatch match;
  if (searchTitle(title, getEnMonthDayTimePattern(vocabulary), match)) {
    return readMonthWithClock(*this, match, {1, 3, 5, 6}, vocabulary);
  }
  if (searchTitle(title, getEnMonthTimeDayPattern(vocabulary), match)) {
    return readMonthWithClock(*this, match, {6, 5, 2, 3}, vocabulary);
  }
  if (searchTitle(title, getEnMonthRecognition(vocabulary), match)) {
    return readMainMonthDate(*this, title, match, vocabulary);
  }
  if (searchTitle(title, getEnMonthOrdinalDayPattern(vocabulary), match)) return readOrdinalDay(*this, match);
  if (searchTitle(title, getEnMonthDayFirstPattern(vocabulary), match)) {
    return readDayFirstMonth(*this, match, vocabulary);
  }
  return std::nullopt;
}

}  // namespace nlpdate
