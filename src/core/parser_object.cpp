// Settings and the clock of the parser object.
#include "core/title_parser.h"

namespace nlpdate {

void NLPNativeTitleParser::setCustomizeHour(int morningH, int morningM, int afternoonH, int afternoonM,
                                            int eveningH, int eveningM, int nightH, int nightM) {
  morningHour = morningH;
  morningMinute = morningM;
  afternoonHour = afternoonH;
  afternoonMinute = afternoonM;
  eveningHour = eveningH;
  eveningMinute = eveningM;
  nightHour = nightH;
  nightMinute = nightM;
}

void NLPNativeTitleParser::setStartDay(WeekDay day) { startDay = day; }

void NLPNativeTitleParser::setStartDay(int hostWeekday) {
  startDay = (hostWeekday >= 2 && hostWeekday <= 7) ? static_cast<WeekDay>(hostWeekday - 1) : Sunday;
}

void NLPNativeTitleParser::setIs24DateFormat(bool value) { is24DateFormat = value; }

void NLPNativeTitleParser::setIsUsOrUkDateFormat(bool value) { isUsOrUkDateFormat = value; }

void NLPNativeTitleParser::setDefaultTimeSecond(long value) { defaultTimeSecond = value; }

TimePoint NLPNativeTitleParser::getDefaultTime() {
  if (defaultTimeSecond >= 1) return timePointFromSeconds(defaultTimeSecond);
  std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return timePointFromSeconds(static_cast<long long>(std::mktime(&local)));
}

TMPtr NLPNativeTitleParser::getDefaultTM() { return tmFromTimePoint(getDefaultTime()); }

TMPtr NLPNativeTitleParser::getTM(long seconds) { return tmFromTimePoint(timePointFromSeconds(seconds)); }

long NLPNativeTitleParser::today() {
  TMPtr now = getDefaultTM();
  now->tm_sec = 0;
  now->tm_min = 0;
  now->tm_hour = 0;
  return static_cast<long>(std::mktime(now.get()));
}

long NLPNativeTitleParser::tomorrow() {
  TMPtr now = getDefaultTM();
  now->tm_sec = 0;
  now->tm_min = 0;
  now->tm_hour = 0;
  now->tm_mday += 1;
  return static_cast<long>(std::mktime(now.get()));
}

}  // namespace nlpdate
