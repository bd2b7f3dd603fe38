// Dates that name a month: "12 March", "March 12th", "mid March 2024",
// "12 Mar 9:30", "9:30 Mar 12", and the bare ordinal "5th".
#include <utility>
#include <vector>

#include "vocabulary/derived.h"
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
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return getEnMonthDayTimePattern(vocabulary);
      }).search(title, match)) {
    return readMonthWithClock(*this, match, {1, 3, 5, 6}, vocabulary);
  }
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return getEnMonthTimeDayPattern(vocabulary);
      }).search(title, match)) {
    return readMonthWithClock(*this, match, {6, 5, 2, 3}, vocabulary);
  }
  const GuardedPattern& main = keptFor(vocabulary, [&] {
    return GuardedPattern::of(getEnMonthWords(vocabulary), getEnMonthRecognition(vocabulary), PatternCase::Insensitive);
  });
  if (main.search(title, match)) {
    return readMainMonthDate(*this, title, match, vocabulary);
  }
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return getEnMonthOrdinalDayPattern(vocabulary);
      }).search(title, match))
    return readOrdinalDay(*this, match);
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return getEnMonthDayFirstPattern(vocabulary);
      }).search(title, match)) {
    return readDayFirstMonth(*this, match, vocabulary);
  }
  return std::nullopt;
}

}  // namespace nlpdate
