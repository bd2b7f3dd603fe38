// The parser's own holiday data: the holidays on a fixed day of the year, the
// published dates of the movable ones, and the names of the lunar ones.
#pragma once

#include <list>
#include <string>
#include <vector>

namespace nlpdate {

struct FixedHoliday {
  std::wstring name;
  int month;
  int day;
};

// Dates as yyyymmdd, newest first; defaultValue is the 2024 date, held once
// the table has run out.
struct MovableHoliday {
  std::wstring name;
  const int* table;
  int defaultValue;
};

constexpr int kMovableHolidayDates = 11;

const std::vector<FixedHoliday>& fixedHolidays();
const std::vector<MovableHoliday>& movableHolidays();
// The holidays that follow the lunar calendar (or, for the last three, a
// weekday rule), in the order matchHoliday reads them.
const std::list<std::wstring>& lunarHolidayNames();

}  // namespace nlpdate
