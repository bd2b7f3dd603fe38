// Value types shared by every part of the parser: time points, calendar
// records, weekdays and the vocabulary map.
#pragma once

#include <chrono>
#include <ctime>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace nlpdate {

// A system-clock time point counting microseconds; conversion to seconds truncates.
using TimePoint = std::chrono::time_point<std::chrono::system_clock, std::chrono::microseconds>;
using OptTime = std::optional<TimePoint>;

// A broken-down local time. Recognisers hand records around by pointer and
// sometimes alias them on purpose, so a record is shared and owned.
using TMPtr = std::shared_ptr<std::tm>;
using OptTM = std::optional<TMPtr>;

// Vocabulary: key constant text -> alternation text. Read by subscript, so a
// missing key reads as the empty text.
using Vocabulary = std::map<std::wstring, std::wstring>;

enum WeekDay { Sunday = 0, Monday = 1, Tuesday = 2, Wednesday = 3, Thursday = 4, Friday = 5, Saturday = 6 };

// Scoped, since the vocabulary has keys named DAILY, WEEKLY, ...
enum class NLPFrequency { SECONDLY = 0, MINUTELY = 1, HOURLY = 2, DAILY = 3, WEEKLY = 4, MONTHLY = 5, YEARLY = 6 };

// Fresh heap records.
TMPtr newTM();
TMPtr newTM(const std::tm& value);

// Seconds and time points.
TimePoint timePointFromSeconds(long long seconds);
long long secondsOf(const TimePoint& point);

// Local broken-down time of a time point (localtime_r), as a fresh record.
TMPtr tmFromTimePoint(const TimePoint& point);
// mktime of a copy of the record, as a time point.
TimePoint timePointFromTM(const std::tm& record);

}  // namespace nlpdate
