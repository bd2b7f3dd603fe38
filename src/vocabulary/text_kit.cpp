#include "vocabulary/text_kit.h"

#include <cwctype>
#include <functional>
#include <unordered_map>
#include <vector>


namespace nlpdate {

namespace {

// Words of the unit tests. English and Chinese only: other languages reach
// these through their vocabulary first.
const wchar_t* const kMinuteWords[] = {L"minute", L"minutes", L"min", L"mins", L"分钟", L"分"};
const wchar_t* const kHourWords[] = {L"小时", L"h", L"hr", L"hrs", L"hour", L"hours"};
const wchar_t* const kDayWords[] = {L"天", L"day", L"d", L"days"};
const wchar_t* const kWeekWords[] = {L"周", L"礼拜", L"星期", L"wk", L"wks", L"week", L"weeks"};
const wchar_t* const kMonthWords[] = {L"月", L"month", L"months"};
const wchar_t* const kYearWords[] = {L"年", L"year", L"years", L"yr", L"yrs"};

template <size_t N>
bool isOneOf(const std::wstring& text, const wchar_t* const (&words)[N]) {
  for (const wchar_t* word : words)
    if (text == word) return true;
  return false;
}

// Splits a vocabulary value at every '|'. Token-iterator semantics: empty
// pieces before a bar are kept, an empty piece after the last bar is not.
std::vector<std::wstring> splitAlternatives(const std::wstring& value) {
  if (value.find(L'|') == std::wstring::npos) return {value};
  std::vector<std::wstring> pieces;
  size_t copied = 0;
  for (size_t bar; (bar = value.find(L'|', copied)) != std::wstring::npos; copied = bar + 1) {
    pieces.push_back(value.substr(copied, bar - copied));
  }
  if (copied < value.size()) pieces.push_back(value.substr(copied));
  return pieces;
}


void eraseAll(std::wstring& text, const std::wstring& piece) {
  for (size_t at; (at = text.find(piece)) != std::wstring::npos;) text.erase(at, piece.size());
}

// The shared skeleton of the word-border family: decorate each alternative,
// join them with '|'.
std::wstring decorateAlternatives(std::wstring value,
                                  const std::function<std::wstring(const std::wstring&)>& decorate) {
  if (value.empty()) return value;
  std::wstring result;
  for (const std::wstring& alternative : splitAlternatives(value)) result += decorate(alternative) + L"|";
  if (!result.empty()) result.pop_back();
  return result;
}

// The word-border family turns the same few vocabulary values into the same
// texts over and over; each kind keeps what it made (by value, so a caller
// never holds into the store), and starts afresh once the store is large.
template <int Kind>
std::wstring keptDecoration(const std::wstring& value,
                            const std::function<std::wstring(const std::wstring&)>& decorate) {
  thread_local std::unordered_map<std::wstring, std::wstring> kept;
  auto found = kept.find(value);
  if (found != kept.end()) return found->second;
  if (kept.size() >= 4096) kept.clear();
  std::wstring made = decorateAlternatives(value, decorate);
  kept.emplace(value, made);
  return made;
}

const std::wstring kBorder = L"\\b";
const std::wstring kEndOrBlank = L"(?:\\b|$|\\s)";
const std::wstring kStartOrBlank = L"(?:\\b|^|\\s)";
const std::wstring kCloseDotOrBorder = L"(?:\\)|\\.|\\b)";

}  // namespace

namespace {

// The alternatives of a value without their "\b"s, kept per value: the same
// few vocabulary values are tested over and over.
const std::vector<std::wstring>& plainAlternatives(const std::wstring& pattern) {
  thread_local std::unordered_map<std::wstring, std::vector<std::wstring>> kept;
  auto found = kept.find(pattern);
  if (found != kept.end()) return found->second;
  if (kept.size() >= 4096) kept.clear();
  std::vector<std::wstring> alternatives = splitAlternatives(pattern);
  for (std::wstring& alternative : alternatives) eraseAll(alternative, kBorder);
  return kept.emplace(pattern, std::move(alternatives)).first->second;
}

}  // namespace

bool containStr(const std::wstring& text, const std::wstring& pattern) {
  if (pattern.empty()) return false;
  for (const std::wstring& alternative : plainAlternatives(pattern)) {
    if (alternative.empty() || text.find(alternative) != std::wstring::npos) return true;
  }
  return false;
}

bool isAsciiCode(const std::wstring& text) {
  if (text.empty()) return false;
  for (wchar_t unit : text) {
    const bool letter = (unit >= L'a' && unit <= L'z') || (unit >= L'A' && unit <= L'Z');
    if (!letter && unit != L'-' && unit != L'_') return false;
  }
  return true;
}

std::wstring toLowerCase(std::wstring text) {
  for (wchar_t& unit : text) unit = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(unit)));
  return text;
}

std::wstring trim(std::wstring& text) {
  size_t first = 0;
  while (first < text.size() && std::iswspace(static_cast<wint_t>(text[first]))) ++first;
  size_t last = text.size();
  while (last > first && std::iswspace(static_cast<wint_t>(text[last - 1]))) --last;
  text = text.substr(first, last - first);
  return text;
}

void rreplace(std::wstring& text, const std::wstring& search, const std::wstring& replacement) {
  size_t at = text.rfind(search);
  if (at == std::wstring::npos) return;
  text.replace(at, search.size(), replacement);
}

bool isAnOrA(const std::wstring& text) { return text == L"a" || text == L"an"; }

bool isHalf(const std::wstring& text) { return text == L"半" || text == L"half a" || text == L"half an"; }

bool isMinutesUnit(const std::wstring& text) { return isOneOf(text, kMinuteWords); }
bool isHourUnit(const std::wstring& text) { return isOneOf(text, kHourWords); }
bool isDayUnit(const std::wstring& text) { return isOneOf(text, kDayWords); }
bool isWeekUnit(const std::wstring& text) { return isOneOf(text, kWeekWords); }
bool isMonthUnit(const std::wstring& text) { return isOneOf(text, kMonthWords); }
bool isYearUnit(const std::wstring& text) { return isOneOf(text, kYearWords); }

// \b only means something next to ASCII word letters, so other scripts get an
// explicit end-of-text-or-blank border instead.
std::wstring addWordBorderInStart(std::wstring value) {
  return keptDecoration<0>(value, [](const std::wstring& a) {
    return isAsciiCode(a) ? kBorder + a : a + kEndOrBlank;
  });
}

std::wstring addWordBorderInStartAndEnd(std::wstring value, bool always) {
  if (always) {
    return keptDecoration<1>(value, [](const std::wstring& a) { return kBorder + a + kBorder; });
  }
  return keptDecoration<2>(value, [](const std::wstring& a) {
    return isAsciiCode(a) ? kBorder + a + kBorder : a;
  });
}

std::wstring addWordBorderInEnd(std::wstring value) {
  return keptDecoration<3>(value, [](const std::wstring& a) {
    return isAsciiCode(a) ? kBorder + a + kCloseDotOrBorder : a;
  });
}

std::wstring addWordBorderInEndWithOutReg(std::wstring value) {
  return keptDecoration<4>(value, [](const std::wstring& a) { return a + kCloseDotOrBorder; });
}

// Long alternatives stay bare on purpose: a word of six letters or more
// rarely sits inside another one.
std::wstring addWordBorderInEndWithEnd(std::wstring value) {
  return keptDecoration<5>(value, [](const std::wstring& a) {
    return a.size() > 5 ? a : kStartOrBlank + a + kEndOrBlank;
  });
}

}  // namespace nlpdate
