// Chinese named days (今天, 明天, 下周末) and weekdays (周五, 下周三). Not built yet: nothing is found here.
#include "core/title_parser.h"

namespace nlpdate {

std::map<std::wstring, int> NLPNativeTitleParser::getSpecialDateMaps() { return {}; }
std::wstring NLPNativeTitleParser::getSpecialDateRecognition() { return std::wstring(); }
std::wstring NLPNativeTitleParser::getSpecialDateRecognitionWithNextWeek() { return std::wstring(); }
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchTodayAndSoOn(std::wstring) { return std::nullopt; }
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchWeekDay(std::wstring) { return std::nullopt; }

}  // namespace nlpdate
