// Chinese clock times (下午3点, 9点半, 十点一刻, 15:30). Not built yet: nothing is found here.
#include "core/title_parser.h"

namespace nlpdate {

std::wstring NLPNativeTitleParser::getAMFlag() { return std::wstring(); }
std::wstring NLPNativeTitleParser::getPMFlag() { return std::wstring(); }
std::map<std::wstring, std::pair<int, int>> NLPNativeTitleParser::getSpecialHourMap() { return {}; }
std::vector<std::wstring> NLPNativeTitleParser::getMatchTimePattern() { return {}; }
std::vector<std::wstring> NLPNativeTitleParser::getMatchTimePatternOutClock() { return {}; }
std::vector<std::wstring> NLPNativeTitleParser::getMatchTimePatternWithoutClockWord() { return {}; }
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchTime(std::optional<NLPRecognizeDate>&, std::wstring,
                                                                OptTime, OptTM) {
  return std::nullopt;
}
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchSpecialTime(std::wstring) { return std::nullopt; }

}  // namespace nlpdate
