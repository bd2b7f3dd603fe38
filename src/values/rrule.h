// A repetition as the recognisers find it, written out as an RRULE text.
#pragma once

#include <list>
#include <optional>
#include <string>

#include "core/types.h"

namespace nlpdate {

// "SU".."SA"; any value outside the enumeration gives "MO".
std::wstring weekDayToString(int weekDay);

// A weekday with an ordinal within the period ("2FR"); 0 means every such day.
class NLPWeekdayNum {
 public:
  NLPWeekdayNum(int number, WeekDay weekDay) : number(number), weekDay(weekDay) {}
  WeekDay getWday() const { return weekDay; }
  int getNumber() const { return number; }
  std::wstring toIcal() const;

 private:
  int number;
  WeekDay weekDay;
};

class StringRRule {
 public:
  StringRRule() = default;
  StringRRule(const StringRRule& other) = default;  // the until record is shared, not copied
  StringRRule& operator=(const StringRRule& other) = default;

  void setInterval(int value) { interval = value; }
  int getInterval() const { return interval; }
  void setFreq(NLPFrequency value) { freq = value; }
  NLPFrequency getFreq() const { return freq; }
  void setByDay(std::list<NLPWeekdayNum> value) { byDay = std::move(value); }
  const std::list<NLPWeekdayNum>& getByDay() const { return byDay; }
  void setWkSt(std::optional<WeekDay> value) { wkSt = value; }
  std::optional<WeekDay> getWkSt() const { return wkSt; }
  void setByMonthDay(std::list<int> value) { byMonthDay = std::move(value); }
  const std::list<int>& getByMonthDay() const { return byMonthDay; }
  void setUntilDate(OptTM value) { untilDate = std::move(value); }
  const OptTM& getUntilDate() const { return untilDate; }

  // "RRULE:FREQ=..;WKST=..;INTERVAL=..;BYMONTHDAY=..;BYDAY=..;UNTIL=yyyymmdd", in that fixed order.
  std::wstring toIcal() const;

 private:
  std::list<NLPWeekdayNum> byDay;
  int interval = 0;
  NLPFrequency freq = NLPFrequency::DAILY;
  std::optional<WeekDay> wkSt;
  std::list<int> byMonthDay;
  OptTM untilDate;
};

}  // namespace nlpdate
