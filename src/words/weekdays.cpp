// Placeholder until weekdays and named days land.
#include "core/title_parser.h"

namespace nlpdate {
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnWeekDay(std::wstring, Vocabulary) { return std::nullopt; }
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnSpecialDate(std::wstring, Vocabulary) {
  return std::nullopt;
}
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchJapanHoliday(std::wstring, std::wstring) {
  return std::nullopt;
}
}  // namespace nlpdate
