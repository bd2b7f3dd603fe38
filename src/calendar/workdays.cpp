// Official working days: the host's calendar first, then Monday to Friday.
#include <cstdio>

#include "core/title_parser.h"

namespace nlpdate {

namespace {
// yyyymmdd, month and day with a leading zero.
std::wstring dateKey(const std::tm& record) {
  wchar_t text[32];
  std::swprintf(text, sizeof text / sizeof text[0], L"%d%02d%02d", record.tm_year + 1900, record.tm_mon + 1,
                record.tm_mday);
  return text;
}
}  // namespace

bool NLPNativeTitleParser::isOfficialWorkDay(std::tm* record) {
  mkTM(record);
  const std::wstring key = dateKey(*record);
  // The host may send its keys with or without the JSON quotes.
  for (const std::wstring& candidate : {key, L"\"" + key + L"\""}) {
    auto found = holidayDayMap.find(candidate);
    if (found != holidayDayMap.end()) return found->second == 1;
  }
  return record->tm_wday != 0 && record->tm_wday != 6;
}

}  // namespace nlpdate
