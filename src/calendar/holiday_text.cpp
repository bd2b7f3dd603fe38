// The host's holiday texts: official work days and days off, and the dates
// of the Japanese holidays. Not JSON: a flat list read by hand.
#include "calendar/holiday_text.h"

#include <stdexcept>
#include <vector>

#include "core/title_parser.h"
#include "nlpdate/errors.h"
#include "nlpdate/nlpdate.h"

namespace nlpdate {

namespace {

// The text between the first "{" and the last "}", either of them optional.
std::wstring stripBraces(std::wstring text) {
  const size_t open = text.find(L'{');
  if (open != std::wstring::npos) text.erase(0, open + 1);
  const size_t close = text.rfind(L'}');
  if (close != std::wstring::npos) text.erase(close);
  return text;
}

// Entries between commas; an empty rest after the last comma is no entry.
std::vector<std::wstring> splitEntries(const std::wstring& text) {
  std::vector<std::wstring> entries;
  size_t start = 0;
  for (size_t comma = text.find(L','); comma != std::wstring::npos; comma = text.find(L',', start)) {
    entries.push_back(text.substr(start, comma - start));
    start = comma + 1;
  }
  if (start < text.size()) entries.push_back(text.substr(start));
  return entries;
}

[[noreturn]] void refuseEntry(const std::wstring& entry, const char* why) {
  throw HolidayTextError("holiday text: entry '" + wideToUtf8(entry) + "' " + why);
}

// The number after the first ":", as the standard conversion reads it:
// leading blanks skipped, reading stops at the first non-digit.
int entryValue(const std::wstring& entry, size_t colon) {
  if (colon == std::wstring::npos) refuseEntry(entry, "has no number");
  try {
    return std::stoi(entry.substr(colon + 1), nullptr, 10);
  } catch (const std::out_of_range&) {
    refuseEntry(entry, "has a number out of range");
  } catch (const std::invalid_argument&) {
    refuseEntry(entry, "has no number");
  }
}

}  // namespace

std::map<std::wstring, int> readHolidayText(const std::wstring& text) {
  std::map<std::wstring, int> table;
  for (const std::wstring& entry : splitEntries(stripBraces(text))) {
    const size_t colon = entry.find(L':');
    const int value = entryValue(entry, colon);
    table[entry.substr(0, colon)] = value;  // a later equal key wins
  }
  return table;
}

void NLPNativeTitleParser::setHolidayDay(std::wstring text) {
  if (text == holidayInfos) return;
  std::map<std::wstring, int> table = readHolidayText(text);  // may throw: nothing changed yet
  holidayInfos = text;
  holidayDayMap = std::move(table);
}

void NLPNativeTitleParser::setJapanHolidayDay(std::wstring text) {
  if (text == japanHolidayInfos) return;
  std::map<std::wstring, int> table = readHolidayText(text);
  japanHolidayInfos = text;
  japanHolidayDayMap = std::move(table);
}

}  // namespace nlpdate
