#include "vocabulary/text_kit.h"

#include <stdexcept>

namespace nlpdate {

bool containStr(const std::wstring& text, const std::wstring& pattern) {
  if (pattern.empty()) return false;
  size_t begin = 0;
  while (true) {
    size_t bar = pattern.find(L'|', begin);
    std::wstring alternative = pattern.substr(begin, bar == std::wstring::npos ? std::wstring::npos : bar - begin);
    for (size_t at; (at = alternative.find(L"\\b")) != std::wstring::npos;) alternative.erase(at, 2);
    if (alternative.empty() || text.find(alternative) != std::wstring::npos) return true;
    if (bar == std::wstring::npos) return false;
    begin = bar + 1;
  }
}

// Placeholders until the text kit lands.
bool isAsciiCode(const std::wstring&) { throw std::logic_error("isAsciiCode"); }
std::wstring toLowerCase(std::wstring text) { return text; }
std::wstring trim(std::wstring& text) { return text; }
void rreplace(std::wstring&, const std::wstring&, const std::wstring&) {}
bool isAnOrA(const std::wstring& text) { return text == L"a" || text == L"an"; }
bool isHalf(const std::wstring& text) { return text == L"半" || text == L"half a" || text == L"half an"; }
bool isMinutesUnit(const std::wstring&) { return false; }
bool isHourUnit(const std::wstring&) { return false; }
bool isDayUnit(const std::wstring&) { return false; }
bool isWeekUnit(const std::wstring&) { return false; }
bool isMonthUnit(const std::wstring&) { return false; }
bool isYearUnit(const std::wstring&) { return false; }
std::wstring addWordBorderInStart(std::wstring value) { return value; }
std::wstring addWordBorderInStartAndEnd(std::wstring value, bool) { return value; }
std::wstring addWordBorderInEnd(std::wstring value) { return value; }
std::wstring addWordBorderInEndWithOutReg(std::wstring value) { return value; }
std::wstring addWordBorderInEndWithEnd(std::wstring value) { return value; }

}  // namespace nlpdate
