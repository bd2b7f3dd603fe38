// The parser's own holiday dates: each holiday holds its next date from now,
// today included, filled once per parser object.
#include "calendar/holiday_tables.h"
#include "core/title_parser.h"

namespace nlpdate {

namespace {
struct DateNumber {
  int year;
  int month;
  int day;
};

DateNumber splitDate(int value) { return DateNumber{value / 10000, value / 100 % 100, value % 100}; }

// Whether the date lies on or after today.
bool notBefore(const DateNumber& date, const DateNumber& today) {
  if (date.year != today.year) return date.year > today.year;
  if (date.month != today.month) return today.month < date.month;
  return today.day <= date.day;
}
}  // namespace

void NLPNativeTitleParser::initHolidaySeasonMap(const std::wstring& /*ignored*/) {
  if (!holidaySeasonMap.empty()) return;
  const int year = getDefaultTM()->tm_year + 1900;
  std::map<std::wstring, int> seasons;
  for (const FixedHoliday& holiday : fixedHolidays()) {
    seasons[holiday.name] = year * 10000 + holiday.month * 100 + holiday.day;
  }
  for (const MovableHoliday& holiday : movableHolidays()) {
    setLunarHolidayByKey(seasons, holiday.name, holiday.table, kMovableHolidayDates, holiday.defaultValue);
  }
  holidaySeasonMap = std::move(seasons);
}

void NLPNativeTitleParser::setLunarHolidayByKey(std::map<std::wstring, int>& map, const std::wstring& key,
                                                const int* table, int count, int defaultValue) {
  map[key] = defaultValue;
  if (count < 1) return;
  const TMPtr now = getDefaultTM();
  const DateNumber today{now->tm_year + 1900, now->tm_mon + 1, now->tm_mday};
  // Oldest entry first: the first one not yet past is the next date.
  for (int i = count - 1; i >= 0; --i) {
    if (notBefore(splitDate(table[i]), today)) {
      map[key] = table[i];
      return;
    }
  }
}

std::list<std::wstring> NLPNativeTitleParser::getLunarHolidays() { return lunarHolidayNames(); }

}  // namespace nlpdate
