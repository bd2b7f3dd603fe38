// The steps of the word-language repeat stage, tried in turn by repeatHelper.
// Each returns true when it recognised a rule and wrote it into the parser's
// result; false leaves the result untouched.
#pragma once

#include <ctime>
#include <string>

#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

bool matchRepeatList(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);
bool matchRepeatLastDay(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);
bool matchRepeatEvery(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);
bool matchRepeatOneWord(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary);
bool matchOfficialWorkDays(NLPNativeTitleParser& parser, const std::wstring& title);

// The monthly branch of the every patterns (month patterns M1 and M2).
void applyMonthlyRepeat(NLPNativeTitleParser& parser, const PatternMatch& match, StringRRule& rule, std::tm* record,
                        const Vocabulary& vocabulary);

// Stores the rule, its text, the recognised text and the start date.
void storeRepeat(NLPNativeTitleParser& parser, const StringRRule& rule, const std::wstring& text, std::tm* record);
// Clears the clock fields of a record.
void clearClock(std::tm* record);

}  // namespace nlpdate
