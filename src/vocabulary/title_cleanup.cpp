// Cuts numbers that look like dates and are none (web addresses, telephone
// and order numbers, serial keys, room numbers) out of the working title
// before any recogniser sees it.
#include <string>

#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

const wchar_t* const kWebUrl = L"(https?|ftp|file)://[-a-zA-Z0-9+&@#/%?=~_|!:,.;]*[-a-zA-Z0-9+&@#/%=~_|]";

// Telephone and order numbers: a number and hyphenated blocks of three digits or more.
const wchar_t* const kHyphenBlocks = L"([^-]|^)\\b([0-9]+)(-([0-9]{3,}))(-[0-9]{3,})*\\b";
// Day-month-year with a four-digit last block.
const wchar_t* const kShortDateWithYear = L"(^|\\b)[0-9]{1,2}-[0-9]{1,2}-([0-9]{4})(\\b|$)";
const wchar_t* const kTwoDigitsAndBlocks = L"(([^-]|^)\\b[0-9]{2}\\s*(-\\s*[0-9]{3,}){2,}\\b)";
// The '|' inside the class is an old slip that is kept as it is.
const wchar_t* const kPrefixedPair = L"[P|p][0-9]{1,}-[0-9]{1,}";
// A number above 31 in front of "号" cannot be a day of the month.
const wchar_t* const kNoDayNumber = L"(\\d{3,}|[4-9][0-9]|3[2-9])号";
const wchar_t* const kLongNumber = L"[0-9]{4,}(?!\\s{0,4}([ap])|\\s)\\s*";

const wchar_t* const kSerialPatterns[] = {
    L"([A-Z0-9]{1,}-){4,}[A-Z0-9]{1,}",
    L"([A-Z0-9]{4,}-)+[A-Z0-9]{4,}",
    L"\\d-([2-9][0-9]|1[3-9])-\\d{2}(?![\\d-])",
};

const wchar_t* const kRoomWords[] = {L"号楼", L"号电池", L"号会议室"};
const wchar_t* const kExamWords[] = {L"4级", L"六级", L"四级", L"6级"};

// Numbers from 2000 to 2100 may be meant as years and survive the clean-up.
bool isYear(int value) { return value >= 2000 && value <= 2100; }

bool contains(const std::wstring& text, const std::wstring& word) { return text.find(word) != std::wstring::npos; }

template <size_t N>
bool containsAny(const std::wstring& text, const wchar_t* const (&words)[N]) {
  for (const wchar_t* word : words)
    if (contains(text, word)) return true;
  return false;
}

std::wstring removeAll(const std::wstring& text, const Pattern& pattern) {
  return pattern.replaceAll(text, std::wstring());
}

// A number right after "@" or "at" (blanks between allowed) is a time or an
// address and stays.
bool followsAtMark(const std::wstring& title, size_t matchStart) {
  size_t i = matchStart;
  while (i > 0 && title[i - 1] == L' ') --i;
  if (i == 0) return false;
  if (title[i - 1] == L'@') return true;
  return i >= 2 && toLowerCase(title.substr(i - 2, 2)) == L"at";
}

// Cuts all matches of pattern if the number in the given group of the first
// match is not a year.
void deleteUnlessYear(NLPNativeTitleParser& parser, std::wstring& title, const Pattern& pattern, int group) {
  PatternMatch match;
  if (!pattern.search(title, match)) return;
  if (isYear(parser.translateNum(match.str(group)))) return;
  title = removeAll(title, pattern);
}

// A long digit run goes unless "@"/"at" comes before it or it reads as a
// year. Only the first match decides, for all matches.
void deleteLongNumber(NLPNativeTitleParser& parser, std::wstring& title) {
  const Pattern& pattern = compiledOnce([] { return compilePattern(kLongNumber, PatternCase::Insensitive); });
  PatternMatch match;
  if (!pattern.search(title, match)) return;
  if (followsAtMark(title, static_cast<size_t>(match.position(0)))) return;
  if (isYear(parser.translateNum(match.str(0)))) return;
  title = removeAll(title, pattern);
}

}  // namespace

std::wstring NLPNativeTitleParser::deleteStringByRegex(std::wstring& text, const std::wstring& pattern) {
  text = removeAll(text, compilePattern(pattern, PatternCase::Sensitive));
  return text;
}

std::wstring NLPNativeTitleParser::deleteWebUrl(std::wstring& title) {
  title = removeAll(title, compiledOnce([] { return compilePattern(kWebUrl); }));
  return title;
}

std::wstring NLPNativeTitleParser::deleteNumber(std::wstring& title) {
  // The patterns are constant: compiled once each.
  deleteUnlessYear(*this, title, compiledOnce([] { return compilePattern(kHyphenBlocks, PatternCase::Insensitive); }),
                   4);
  deleteUnlessYear(*this, title,
                   compiledOnce([] { return compilePattern(kShortDateWithYear, PatternCase::Insensitive); }), 2);
  title = removeAll(title, compiledOnce([] { return compilePattern(kTwoDigitsAndBlocks); }));
  title = removeAll(title, compiledOnce([] { return compilePattern(kPrefixedPair); }));
  title = removeAll(title, compiledOnce([] { return compilePattern(kNoDayNumber); }));
  deleteLongNumber(*this, title);
  return title;
}

std::wstring NLPNativeTitleParser::deleteSerialNumber(std::wstring& title) {
  const std::vector<Pattern>& serials = compiledOnce([] {
    std::vector<Pattern> compiled;
    for (const wchar_t* pattern : kSerialPatterns) compiled.push_back(compilePattern(pattern));
    return compiled;
  });
  for (const Pattern& serial : serials) title = removeAll(title, serial);
  return title;
}

std::wstring NLPNativeTitleParser::deleteConfusionString(std::wstring& title) {
  if (contains(title, L"点外卖")) deleteStringByRegex(title, L"点外卖");
  if (containsAny(title, kRoomWords))
    deleteStringByRegex(title, L"(\\d{1,2}|" + getChinaNumPattern(24) + L")(号楼|号电池|号会议室)");
  if (contains(title, L"早点")) deleteStringByRegex(title, L"早点");
  if (contains(title, L"五月天")) deleteStringByRegex(title, L"五月天");
  if (containsAny(title, kExamWords)) deleteStringByRegex(title, L"(六级|四级|6级|4级)");
  return title;
}

}  // namespace nlpdate
