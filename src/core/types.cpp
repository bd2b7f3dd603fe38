#include "core/types.h"

namespace nlpdate {

TMPtr newTM() { return std::make_shared<std::tm>(); }

TMPtr newTM(const std::tm& value) { return std::make_shared<std::tm>(value); }

TimePoint timePointFromSeconds(long long seconds) {
  return TimePoint(std::chrono::seconds(seconds));
}

long long secondsOf(const TimePoint& point) {
  return std::chrono::duration_cast<std::chrono::seconds>(point.time_since_epoch()).count();
}

TMPtr tmFromTimePoint(const TimePoint& point) {
  std::time_t seconds = static_cast<std::time_t>(secondsOf(point));
  TMPtr record = newTM();
  localtime_r(&seconds, record.get());
  return record;
}

TimePoint timePointFromTM(const std::tm& record) {
  std::tm copy = record;
  return timePointFromSeconds(static_cast<long long>(std::mktime(&copy)));
}

}  // namespace nlpdate
