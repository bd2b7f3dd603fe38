// The three forms of a repeat with an end and the pieces they share.
#pragma once

#include <ctime>
#include <string>

#include "core/title_parser.h"

namespace nlpdate {

// Each form tries its one pattern; true when it matched and stored a rule.
bool repeatFromForm(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);
bool repeatForForm(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);
bool repeatStartEndForm(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);

// A unit word that names a part of the day sets the record's hour and minute
// and asks for a reminder at that time (true). Otherwise the unit may set the
// frequency: week, month, and year when `withYear`.
bool applyRepeatUnit(NLPNativeTitleParser& parser, const std::wstring& unitWord, std::tm* record, StringRRule& rule,
                     const Vocabulary& vocabulary, bool withYear);
// Walks the record to the day that a today or tomorrow word or a weekday word
// names, never before today. False when neither word is there.
bool walkToNamedDay(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& nameWord,
                    const std::wstring& weekdayWord, const Vocabulary& vocabulary);
// A last date written with a day or month. It rolls forward once if it lies
// before today or before the first date `record`. `wholeClock` clears minutes
// and seconds as well as the hour.
TMPtr readLastDate(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& monthWord,
                   const std::wstring& dayBefore, const std::wstring& dayBehind, const Vocabulary& vocabulary,
                   bool wholeClock);
// Stores the rule, its text and the recognised text; returns true.
bool storeUntilRepeat(NLPNativeTitleParser& parser, const StringRRule& rule, const std::wstring& text);

}  // namespace nlpdate
