// The readers behind matchEnMonth, one per pattern family; each turns a match
// into the result of the recogniser.
#pragma once

#include <string>

#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

// Which groups of a day-month-clock pattern hold what.
struct MonthClockGroups {
  int day;
  int month;
  int hour;
  int minute;
};

NLPRecognizeDate readMonthWithClock(NLPNativeTitleParser& parser, const PatternMatch& match,
                                    const MonthClockGroups& groups, const Vocabulary& vocabulary);
NLPRecognizeDate readMainMonthDate(NLPNativeTitleParser& parser, const std::wstring& title, const PatternMatch& match,
                                   const Vocabulary& vocabulary);
NLPRecognizeDate readOrdinalDay(NLPNativeTitleParser& parser, const PatternMatch& match);
NLPRecognizeDate readDayFirstMonth(NLPNativeTitleParser& parser, const PatternMatch& match,
                                   const Vocabulary& vocabulary);

}  // namespace nlpdate
