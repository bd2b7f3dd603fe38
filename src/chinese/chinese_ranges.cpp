// Chinese range recognisers; not built yet, so they find no range.
#include "core/title_parser.h"

namespace nlpdate {

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationRecognition(std::wstring, OptTime,
                                                                                     Vocabulary, OptTM) {
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationDateRecognition(std::wstring) {
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseSpecialDayDurationRecognition(std::wstring) {
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseWeekDayDurationRecognition(std::wstring) {
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseHolidayDurationRecognition(std::wstring) {
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationDateTimeRecognition(std::wstring, OptTime,
                                                                                             OptTM) {
  return std::nullopt;
}

}  // namespace nlpdate
