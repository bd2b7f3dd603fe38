// Placeholder until the holiday tables land.
#include "core/title_parser.h"

namespace nlpdate {
void NLPNativeTitleParser::setHolidayDay(std::wstring) {}
void NLPNativeTitleParser::setJapanHolidayDay(std::wstring) {}
void NLPNativeTitleParser::initHolidaySeasonMap(const std::wstring&) {}
void NLPNativeTitleParser::setLunarHolidayByKey(std::map<std::wstring, int>&, const std::wstring&, const int*, int,
                                                int) {}
bool NLPNativeTitleParser::isOfficialWorkDay(std::tm*) { return false; }
std::list<std::wstring> NLPNativeTitleParser::getLunarHolidays() { return {}; }
}  // namespace nlpdate
