// Written Chinese dates (2024年3月5日, 3月5号, 15号, 下旬). Not built yet: nothing is found here.
#include "core/title_parser.h"

namespace nlpdate {

std::wstring NLPNativeTitleParser::getChineseMonthDayYearPattern() { return std::wstring(); }
std::vector<std::wstring> NLPNativeTitleParser::getChineseDatePattern() { return {}; }
std::optional<NLPRecognizeDate> NLPNativeTitleParser::getMatchDateResult(const std::wstring&, const std::wstring&,
                                                                         int, int, int, int, int) {
  return std::nullopt;
}
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchDate(std::wstring) { return std::nullopt; }
bool NLPNativeTitleParser::isOverMonthLimit(std::wstring) { return false; }

}  // namespace nlpdate
