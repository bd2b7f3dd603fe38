// Placeholder until the title clean-up lands.
#include "core/title_parser.h"

namespace nlpdate {
std::wstring NLPNativeTitleParser::deleteStringByRegex(std::wstring& text, const std::wstring&) { return text; }
std::wstring NLPNativeTitleParser::deleteWebUrl(std::wstring& title) { return title; }
std::wstring NLPNativeTitleParser::deleteNumber(std::wstring& title) { return title; }
std::wstring NLPNativeTitleParser::deleteSerialNumber(std::wstring& title) { return title; }
std::wstring NLPNativeTitleParser::deleteConfusionString(std::wstring& title) { return title; }
}  // namespace nlpdate
