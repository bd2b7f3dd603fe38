// Pattern texts and small shared readers of the word-language range
// recognisers (times, offsets, numeric dates, day words, month names and
// weekdays on both sides of a range word).
#pragma once

#include <ctime>
#include <string>

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "words/piece_fill.h"

namespace nlpdate {

// Numeric date pieces; «DATE_DIVIDER» is filled from the vocabulary.
extern const wchar_t* const kRangeYearMonthDay;  // groups 2, 4, 6: first, middle, last field; eight groups
extern const wchar_t* const kRangeMonthDayYear;  // groups 2, 4, 6: month, day, year; eight groups
extern const wchar_t* const kRangeMonthDay;      // groups 2, 4: month, day; six groups
// A bare day with an optional year: day in group 3, year in group 6; six groups.
extern const wchar_t* const kRangeDayOnly;

// Whether a clock reading had an am or pm word, and which.
enum class RangeMeridiem { None, Am, Pm };

struct RangeClock {
  int hour = 0;
  int minute = 0;
  RangeMeridiem meridiem = RangeMeridiem::None;
};

// The range word pattern of the vocabulary (one group).
std::wstring rangeFlag(const Vocabulary& vocabulary);

// Hour, minute and am/pm of one clock reading: pm adds 12 below 12, am turns 12
// into 0; an empty minute reads 0. With hourLimit set, the am/pm word counts
// only when the hour is at most that limit.
RangeClock readRangeClock(NLPNativeTitleParser& parser, const std::wstring& hourText, const std::wstring& minuteText,
                          const std::wstring& meridiemText, const Vocabulary& vocabulary, int hourLimit = 1000);

// Sets hour and minute of a record from a clock reading.
void setRangeClock(std::tm* record, const RangeClock& clock);

// Whether first lies strictly after second as points in time (both normalised).
bool rangeIsAfter(std::tm* first, std::tm* second);

// A fresh record of the same moment, normalised.
TMPtr copyRangeRecord(const std::tm* record);

// One compiled pattern per clock pattern of the vocabulary, in their order:
// fill turns a clock pattern into the text of the form.
template <class Fill>
std::vector<Pattern> compileForEachTime(NLPNativeTitleParser& parser, const Vocabulary& vocabulary, PatternCase mode,
                                        Fill fill) {
  std::vector<Pattern> forms;
  for (const std::wstring& time : parser.getEnTimePattern(vocabulary))
    forms.push_back(compilePattern(fill(time), mode));
  return forms;
}

// A range form holding a clock piece (named timeKey among pieces), filled with
// each clock pattern in turn and compiled without regard to case.
std::vector<Pattern> compileTimedForm(NLPNativeTitleParser& parser, const Vocabulary& vocabulary, const wchar_t* form,
                                      PatternPieces pieces, const std::wstring& timeKey);

// The first match of text in title; false when there is none.
bool searchRange(const std::wstring& title, const std::wstring& text, PatternCase mode, PatternMatch& match);

// A year text as tm_year: fewer than four characters count from 2000.
int rangeYearValue(NLPNativeTitleParser& parser, std::wstring text);

// The result record of a range match: group 0 text, its position, start and end normalised.
NLPRecognizeDate makeRangeResult(const PatternMatch& match, const TMPtr& start, const TMPtr& end,
                                 const std::wstring& reminder);

}  // namespace nlpdate
