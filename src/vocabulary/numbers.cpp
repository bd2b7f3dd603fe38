// Numbers captured as text ("12", "十二", "廿三", "twenty one", "半") turned
// into integers, and the alternation of Chinese numerals up to a limit.
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

// Whole words with a fixed value: minutes of a half and a quarter hour, the
// first days of the three ten-day parts of a month, Sunday as day 7, lunar
// month names. "廿" alone is 2, not 20.
const std::pair<const wchar_t*, int> kWholeWords[] = {
    {L"半", 30},   {L"天", 7},    {L"1刻", 15}, {L"个", 1}, {L"一刻", 15}, {L"廿", 2},   {L"3刻", 45},
    {L"正", 1},    {L"三刻", 45}, {L"元", 1},   {L"两", 2}, {L"腊", 12},   {L"零两", 2}, {L"冬", 11},
    {L"中旬", 11}, {L"寒", 10},   {L"上旬", 1}, {L"日", 7}, {L"下旬", 21},
};

// Prefixes that carry no value of their own, in the order they are tested.
const wchar_t* const kEmptyPrefixes[] = {L"零", L"初", L"第"};

const wchar_t* const kChineseDigits[] = {L"零", L"一", L"二", L"三", L"四", L"五", L"六", L"七", L"八", L"九"};
const wchar_t* const kAsciiDigits[] = {L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"};

// Each limit's list is the new part in front of the list of the next lower limit.
const std::pair<int, const wchar_t*> kChinaNumParts[] = {
    {6, L"零?六|零?五|零?四|零?三|零?二|零?一"},
    {12, L"十二|十一|一十|十|零?九|零?八|零?七|"},
    {24, L"二十四|二十三|二十二|二十一|二十|十九|十八|十七|十六|十五|十四|十三|"},
    {31, L"三十一|三十|二十九|二十八|二十七|二十六|二十五|"},
    {60,
     L"六十|五十九|五十八|五十七|五十六|五十五|五十四|五十三|五十二|五十一|五十|四十九|四十八|四十七|"
     L"四十六|四十五|四十四|四十三|四十二|四十一|四十|三十九|三十八|三十七|三十六|三十五|三十四|三十三|"
     L"三十二|"},
};

// Number words tested high to low, since containStr finds "six" inside
// "sixteen" and "twenty" inside "twenty one". Built per call: the key
// constants are globals of another file.
std::vector<std::pair<std::wstring, int>> englishNumberKeys() {
  return {
      {TWENTY_FOUR, 24}, {TWENTY_THREE, 23}, {TWENTY_TWO, 22}, {TWENTY_ONE, 21}, {TWENTY, 20},   {NINETEEN, 19},
      {EIGHTEEN, 18},    {SEVENTEEN, 17},    {SIXTEEN, 16},    {FIFTEEN, 15},    {FOURTEEN, 14}, {THIRTEEN, 13},
      {TWELVE, 12},      {ELEVEN, 11},       {TEN, 10},        {ONE, 1},         {TWO, 2},       {THREE, 3},
      {FOUR, 4},         {FIVE, 5},          {SIX, 6},         {SEVEN, 7},       {EIGHT, 8},     {NINE, 9},
      {FIRST, 1},        {SECOND, 2},        {THIRD, 3},       {FOURTH, 4},      {FIFTH, 5},
  };
}

bool allAsciiDigits(const std::wstring& text) {
  for (wchar_t unit : text)
    if (unit < L'0' || unit > L'9') return false;
  return true;
}

// Index of the first word (by list order, not by position) found in text, or -1.
template <size_t N>
int firstContained(const std::wstring& text, const wchar_t* const (&words)[N]) {
  for (size_t i = 0; i < N; ++i)
    if (text.find(words[i]) != std::wstring::npos) return static_cast<int>(i);
  return -1;
}

}  // namespace

int NLPNativeTitleParser::translateNum(std::wstring text) {
  if (text.empty()) return 0;
  // Nine digits or more skip the conversion and take the digit search below.
  if (allAsciiDigits(text) && text.size() < 9) {
    try {
      return std::stoi(text);
    } catch (const std::exception&) {
      return matchNum(text);
    }
  }
  return matchNum(text);
}

int NLPNativeTitleParser::matchNum(std::wstring text) {
  for (const auto& [word, value] : kWholeWords)
    if (text == word) return value;
  if (toLowerCase(text) == L"mid") return 15;
  for (const wchar_t* prefix : kEmptyPrefixes) {
    if (text.rfind(prefix, 0) != 0) continue;
    return text.size() == 1 ? 0 : matchNum(text.substr(1));
  }
  size_t ten = text.find(L"十");
  if (ten != std::wstring::npos) {
    std::wstring left = text.substr(0, ten);
    int right = matchNum(text.substr(ten + 1));
    return left.empty() ? 10 + right : matchNum(left) * 10 + right;
  }
  size_t twenty = text.find(L"廿");
  if (twenty != std::wstring::npos) return 20 + matchNum(text.substr(twenty + 1));
  int digit = firstContained(text, kChineseDigits);
  if (digit >= 0) return digit;
  digit = firstContained(text, kAsciiDigits);
  return digit >= 0 ? digit : 0;
}

int NLPNativeTitleParser::matchEnglishNum(std::wstring text, Vocabulary vocabulary) {
  for (const auto& [key, value] : englishNumberKeys())
    if (containStr(text, vocabulary[key])) return value;
  return translateNum(text);
}

// The number patterns are the same for every parse: built once for every limit.
const std::wstring& NLPNativeTitleParser::getChinaNumPattern(int limit) {
  static const std::map<int, std::wstring> patterns = [] {
    std::map<int, std::wstring> built;
    std::wstring pattern;
    for (const auto& [partLimit, part] : kChinaNumParts) {
      pattern = part + pattern;
      built.emplace(partLimit, pattern);
    }
    return built;
  }();
  static const std::wstring none;
  const auto found = patterns.find(limit);
  return found == patterns.end() ? none : found->second;
}

}  // namespace nlpdate
