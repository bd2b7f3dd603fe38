// Small weekday helpers that the Chinese recognisers share.
#pragma once

#include <ctime>
#include <list>

#include "core/calendar_ops.h"
#include "values/rrule.h"

namespace nlpdate {

// A weekday number as the Chinese day words give it: 0 and 7 are Sunday; anything outside 0..7 is Monday.
inline WeekDay weekDayOfNumber(int value) {
  if (value < 0 || value > 7) return Monday;
  return value == 7 ? Sunday : static_cast<WeekDay>(value);
}

inline bool isWeekendDay(std::tm* record) {
  const WeekDay day = getWeekDay(record);
  return day == Saturday || day == Sunday;
}

// Monday to Friday, as a rule's BYDAY list.
inline std::list<NLPWeekdayNum> workWeek() {
  return {NLPWeekdayNum(0, Monday), NLPWeekdayNum(0, Tuesday), NLPWeekdayNum(0, Wednesday),
          NLPWeekdayNum(0, Thursday), NLPWeekdayNum(0, Friday)};
}

}  // namespace nlpdate
