// Placeholder until offsets and advance reminders land.
#include "core/title_parser.h"

namespace nlpdate {
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnAfterTime(std::wstring, Vocabulary) {
  return std::nullopt;
}
std::wstring NLPNativeTitleParser::matchEnAdvanceTime(std::wstring, Vocabulary) { return L""; }
}  // namespace nlpdate
