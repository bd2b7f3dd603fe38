// Placeholder until clock times land.
#include "core/title_parser.h"

namespace nlpdate {
OptTM NLPNativeTitleParser::matchEnTime(std::wstring, std::tm*, Vocabulary, bool, bool) { return std::nullopt; }
std::wstring NLPNativeTitleParser::getAtTimePattern(Vocabulary) { return L""; }
std::vector<std::wstring> NLPNativeTitleParser::getEnTimePattern(Vocabulary) { return {}; }
std::wstring NLPNativeTitleParser::getAmPmPattern(Vocabulary) { return L""; }
}  // namespace nlpdate
