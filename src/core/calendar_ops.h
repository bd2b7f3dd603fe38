// Free operations on calendar records shared by every recogniser.
#pragma once

#include <ctime>

#include "core/types.h"

namespace nlpdate {

// Normalises in place through mktime and localtime_r; returns the same record.
std::tm* mkTM(std::tm* record);
inline TMPtr mkTM(const TMPtr& record) {
  mkTM(record.get());
  return record;
}
// Copies every field of source into target.
void copyTM(const std::tm* source, std::tm* target);
// Normalises, then the weekday; a tm_wday outside 1..6 reads as Sunday.
WeekDay getWeekDay(std::tm* record);
// The target weekday of the week the record lies in, for weeks starting on weekStart.
std::tm* setDayOfWeek(std::tm* record, WeekDay target, WeekDay weekStart);

}  // namespace nlpdate
