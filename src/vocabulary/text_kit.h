// Small text tests and the word-border family that turns a vocabulary value
// ("morning|朝") into a pattern that does not match inside longer words.
#pragma once

#include <string>

namespace nlpdate {

// Whether any |-separated alternative of pattern (with "\b" removed) occurs
// in text as a plain substring. An alternative that becomes empty matches.
bool containStr(const std::wstring& text, const std::wstring& pattern);
// The whole text is ASCII letters, '-' and '_'; false for the empty text.
bool isAsciiCode(const std::wstring& text);
std::wstring toLowerCase(std::wstring text);
// Strips white space at both ends in place and returns a copy.
std::wstring trim(std::wstring& text);
// Replaces the last occurrence of search in place.
void rreplace(std::wstring& text, const std::wstring& search, const std::wstring& replacement);
bool isAnOrA(const std::wstring& text);
bool isHalf(const std::wstring& text);

bool isMinutesUnit(const std::wstring& text);
bool isHourUnit(const std::wstring& text);
bool isDayUnit(const std::wstring& text);
bool isWeekUnit(const std::wstring& text);
bool isMonthUnit(const std::wstring& text);
bool isYearUnit(const std::wstring& text);

std::wstring addWordBorderInStart(std::wstring value);
std::wstring addWordBorderInStartAndEnd(std::wstring value, bool always = false);
std::wstring addWordBorderInEnd(std::wstring value);
std::wstring addWordBorderInEndWithOutReg(std::wstring value);
std::wstring addWordBorderInEndWithEnd(std::wstring value);

}  // namespace nlpdate
