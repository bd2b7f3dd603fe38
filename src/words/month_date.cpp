// Placeholder until month-name dates land.
#include "core/title_parser.h"

namespace nlpdate {
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnMonth(std::wstring, Vocabulary) { return std::nullopt; }
TMPtr NLPNativeTitleParser::getEnMonthCalendar(std::wstring, Vocabulary) { return getDefaultTM(); }
}  // namespace nlpdate
