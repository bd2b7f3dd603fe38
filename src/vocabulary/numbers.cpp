// Placeholder until numbers in words land.
#include <string>

#include "core/title_parser.h"

namespace nlpdate {
int NLPNativeTitleParser::translateNum(std::wstring text) { return text.empty() ? 0 : std::stoi(text); }
int NLPNativeTitleParser::matchNum(std::wstring) { return 0; }
int NLPNativeTitleParser::matchEnglishNum(std::wstring text, Vocabulary) { return translateNum(text); }
std::wstring NLPNativeTitleParser::getChinaNumPattern(int) { return L""; }
}  // namespace nlpdate
