// Calendar operations on records: normalising, weekday walks, comparisons
// with the parser's "now".
#include "core/calendar_ops.h"

#include "core/title_parser.h"

namespace nlpdate {

std::tm* mkTM(std::tm* record) {
  std::time_t seconds = std::mktime(record);
  localtime_r(&seconds, record);
  return record;
}

void copyTM(const std::tm* source, std::tm* target) { *target = *source; }

WeekDay getWeekDay(std::tm* record) {
  mkTM(record);
  int day = record->tm_wday;
  return (day >= 1 && day <= 6) ? static_cast<WeekDay>(day) : Sunday;
}

namespace {
// tm_wday read through 0..6,0 for 0..7 and 1 above that.
int walkWeekDay(const std::tm* record) {
  static const int table[] = {0, 1, 2, 3, 4, 5, 6, 0};
  int day = record->tm_wday;
  if (day > 7) return 1;
  if (day < 0) return table[0];
  return table[day];
}
}  // namespace

std::tm* setDayOfWeek(std::tm* record, WeekDay target, WeekDay weekStart) {
  int hour = record->tm_hour;
  int isdst = record->tm_isdst;
  record->tm_hour = 12;  // noon keeps the day walk clear of daylight-saving gaps
  mkTM(record);
  record->tm_isdst = 0;
  while (walkWeekDay(record) != weekStart) {
    record->tm_mday -= 1;
    mkTM(record);
  }
  record->tm_isdst = 0;
  while (walkWeekDay(record) != target) {
    record->tm_mday += 1;
    mkTM(record);
  }
  record->tm_hour = hour;
  record->tm_isdst = isdst;
  mkTM(record);
  return record;
}

std::tm* NLPNativeTitleParser::getNextDayOfWeek(std::tm* record, WeekDay day) {
  while (getWeekDay(record) != day) record->tm_mday += 1;
  mkTM(record);
  return record;
}

std::tm* NLPNativeTitleParser::getLastDayOfWeek(std::tm* record, WeekDay day) {
  while (getWeekDay(record) != day) record->tm_mday -= 1;
  mkTM(record);
  return record;
}

OptTM NLPNativeTitleParser::getNextDayOfWeek(OptTM record, WeekDay day) {
  if (!record || !*record) return std::nullopt;
  getNextDayOfWeek(record->get(), day);
  return record;
}

OptTM NLPNativeTitleParser::getLastDayOfWeek(OptTM record, WeekDay day) {
  if (!record || !*record) return std::nullopt;
  getLastDayOfWeek(record->get(), day);
  return record;
}

void NLPNativeTitleParser::clearValueAfterDay(std::tm* record) {
  record->tm_sec = 0;
  record->tm_min = 0;
  record->tm_hour = 0;
}

void NLPNativeTitleParser::setTMToDefaultTime(std::tm* record) {
  if (baseDate) {
    TMPtr base = tmFromTimePoint(*baseDate);
    record->tm_year = base->tm_year;
    record->tm_mon = base->tm_mon;
    record->tm_mday = base->tm_mday;
  }
  clearValueAfterDay(record);
}

void NLPNativeTitleParser::copyDefaultTimeToCal(OptTime base, OptTM cal, int dateKind) {
  if (dateKind != -1 || !base || !cal || !*cal) return;
  TMPtr local = tmFromTimePoint(*base);
  (*cal)->tm_year = local->tm_year;
  (*cal)->tm_mon = local->tm_mon;
  (*cal)->tm_mday = local->tm_mday;
}

void NLPNativeTitleParser::setCalendarToDefaultTimeWithoutDefaultDate(TimePoint& point) {
  TMPtr local = tmFromTimePoint(point);
  clearValueAfterDay(local.get());
  point = timePointFromTM(*local);
}

bool NLPNativeTitleParser::isBeforeNow(std::tm* record) {
  TMPtr now = getDefaultTM();
  return std::mktime(record) <= std::mktime(now.get());
}

bool NLPNativeTitleParser::isBeforeToday(std::tm* record) {
  mkTM(record);
  TMPtr now = getDefaultTM();
  if (record->tm_year < now->tm_year) return true;
  return record->tm_year == now->tm_year && record->tm_yday < now->tm_yday;
}

bool NLPNativeTitleParser::isBeforeToday(OptTM record) {
  if (!record || !*record) return false;
  return isBeforeToday(record->get());
}

bool NLPNativeTitleParser::isToday(std::tm* record) {
  TMPtr now = getDefaultTM();
  return record->tm_year == now->tm_year && record->tm_mon == now->tm_mon && record->tm_mday == now->tm_mday;
}

}  // namespace nlpdate
