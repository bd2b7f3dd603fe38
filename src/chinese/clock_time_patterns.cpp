// The Chinese clock-time pattern texts and day-part words: «AM»/«PM» words,
// the hours the day-part words stand for, and the three lists of time
// patterns (single times, and the two forms the range recognisers read).
#include <string>

#include "core/title_parser.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

const wchar_t* const kAmFlag = LR"((早上|上午|中午|凌晨|午夜|半夜|明早|早|a\.m\.|am\.|am|a\.))";
const wchar_t* const kPmFlag = LR"((下午|傍晚|晚上|明晚|今晚|晚|p\.m\.|pm\.|pm|p\.))";

// The "|" inside the brackets is kept as written: a literal bar also counts as a separator.
const wchar_t* const kTimePatterns[] = {
    LR"(，?«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时|:|：]钟?(([0-5]?[0-9]|半|1?3?一?三?刻|零?两|«N60»)\s*(分)?)?\s?«AM»?«PM»?时?，?)",
    LR"(，?«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时]钟?(([0-5]?[0-9]|零?两|«N60»)\s*(分)?)?\s?«AM»?«PM»?，?)",
    LR"(，?«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时|:|：](([0-5]?[0-9]|半|1?3?一?三?刻)())?\s?«AM»?«PM»?，?)",
    LR"(，?«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时]钟?(([0-5]?[0-9]|半|1?3?一?三?刻)())?\s?«AM»?«PM»?，?)",
};

// Hour, separator and clock word all optional: the bare numbers of a range's second half.
const wchar_t* const kOutClockPatterns[] = {
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)?\s*[点|时]?钟?(([0-5]?[0-9]|半|1?3?一?三?刻|零?两|«N60»)\s*(分)?)?«AM»?«PM»?)",
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)?\s*[点|时]?钟?(([0-5]?[0-9]|零?两|«N60»)\s*(分)?)?«AM»?«PM»?)",
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)?\s*[点|时|:|：]?(([0-5]?[0-9]|半|1?3?一?三?刻)())?«AM»?«PM»?)",
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)?\s*[点|时]?钟?(([0-5]?[0-9]|半|1?3?一?三?刻)())?«AM»?«PM»?)",
};

const wchar_t* const kWithoutClockWordPatterns[] = {
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时]钟?\s?(([0-5]?[0-9]|半|1?3?一?三?刻|零?两|«N60»)\s*(分)?)?«AM»?«PM»?)",
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时]钟?\s?(([0-5]?[0-9]|零?两|«N60»)\s*(分)?)?«AM»?«PM»?)",
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时|:|：]?\s?(([0-5]?[0-9]|半|1?3?一?三?刻)())?«AM»?«PM»?)",
    LR"(«AM»?«PM»?\s?(2[0-4]|[0-1]?[0-9]|«N24»|零|两)\s*[点|时]钟?\s?(([0-5]?[0-9]|半|1?3?一?三?刻)())?«AM»?«PM»?)",
};

}  // namespace

std::wstring NLPNativeTitleParser::getAMFlag() { return kAmFlag; }

std::wstring NLPNativeTitleParser::getPMFlag() { return kPmFlag; }

std::map<std::wstring, std::pair<int, int>> NLPNativeTitleParser::getSpecialHourMap() {
  // Hours past 23 land on the next day once the record is normalised.
  return {{L"上午", {morningHour, morningMinute}},
          {L"下午", {afternoonHour, afternoonMinute}},
          {L"傍晚", {eveningHour, eveningMinute}},
          {L"晚上", {nightHour, nightMinute}},
          {L"晚", {nightHour, nightMinute}},
          {L"今晚", {nightHour, nightMinute}},
          {L"早上", {7, 0}},
          {L"早", {7, 0}},
          {L"中午", {12, 0}},
          {L"凌晨", {24, 0}},
          {L"午夜", {24, 0}},
          {L"半夜", {26, 0}},
          {L"明晚", {nightHour + 24, nightMinute}}};
}

namespace {

template <size_t N>
std::vector<std::wstring> fillTimePatterns(NLPNativeTitleParser& parser, const wchar_t* const (&patterns)[N]) {
  const PatternPieces pieces = {{L"AM", parser.getAMFlag()},
                                {L"PM", parser.getPMFlag()},
                                {L"N24", parser.getChinaNumPattern(24)},
                                {L"N60", parser.getChinaNumPattern(60)}};
  std::vector<std::wstring> filled;
  for (const wchar_t* pattern : patterns) filled.push_back(fillPieces(pattern, pieces));
  return filled;
}

}  // namespace

// The lists are constant: filled once.
const std::vector<std::wstring>& NLPNativeTitleParser::getMatchTimePattern() {
  static const std::vector<std::wstring> patterns = fillTimePatterns(*this, kTimePatterns);
  return patterns;
}

const std::vector<std::wstring>& NLPNativeTitleParser::getMatchTimePatternOutClock() {
  static const std::vector<std::wstring> patterns = fillTimePatterns(*this, kOutClockPatterns);
  return patterns;
}

const std::vector<std::wstring>& NLPNativeTitleParser::getMatchTimePatternWithoutClockWord() {
  static const std::vector<std::wstring> patterns = fillTimePatterns(*this, kWithoutClockWordPatterns);
  return patterns;
}

}  // namespace nlpdate
