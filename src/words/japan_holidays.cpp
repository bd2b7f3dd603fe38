// Japanese public holidays by name, dated from the host's holiday table.

#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

namespace {

const wchar_t* const kJapanHolidayPattern =
    L"(元日|振替休日|成人の日|建国記念の日|天皇誕生日|春分の日|昭和の日|憲法記念日|みどりの日|こどもの日|海の日|山の日|"
    L"敬老の日|秋分の日|体育の日|文化の日|勤労感謝の日)";

// The host's table may hold a name with or without double quotes around it.
const int* findHoliday(const std::map<std::wstring, int>& table, const std::wstring& name) {
  auto found = table.find(name);
  if (found == table.end()) found = table.find(L"\"" + name + L"\"");
  return found == table.end() ? nullptr : &found->second;
}

}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchJapanHoliday(std::wstring title, std::wstring language) {
  if (language.find(L"ja") == std::wstring::npos) return std::nullopt;
  PatternMatch match;
  if (!compiledOnce([] {
         return compilePattern(kJapanHolidayPattern, PatternCase::Insensitive);
       }).search(title, match)) {
    return std::nullopt;
  }
  TMPtr record = getDefaultTM();
  setTMToDefaultTime(record.get());
  const int* date = findHoliday(japanHolidayDayMap, match[1].str());
  if (!date) return std::nullopt;
  record->tm_year = *date / 10000 - 1900;
  record->tm_mon = (*date % 10000) / 100 - 1;
  record->tm_mday = *date % 100;
  return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
}

}  // namespace nlpdate
