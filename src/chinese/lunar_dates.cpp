// Lunar dates in a Chinese title (农历八月十五, 腊月二十三, 大年三十) and named
// festivals (中秋节, 国庆节). Not built yet: nothing is found here.
#include "core/title_parser.h"

namespace nlpdate {

std::vector<std::wstring> NLPNativeTitleParser::getLunarPattern() { return {}; }

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchLunar(std::wstring /*title*/) { return std::nullopt; }

std::wstring NLPNativeTitleParser::getHolidayDateRecognition() { return std::wstring(); }

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchHoliday(std::wstring /*title*/) { return std::nullopt; }

}  // namespace nlpdate
