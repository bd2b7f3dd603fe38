// Settings of one run of the command-line tool, and how options and batch
// keys fill them in.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "nlpdate/nlpdate.h"

namespace nlpdate::cli {

// A bad option or value; the message names it. Exit status 2.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct HourMinute {
  int hour;
  int minute;
};

class Settings : public NLPNativeParserDataSource {
 public:
  std::string language = "en";
  std::optional<std::string> zone;  // IANA name; empty: the process's zone
  std::optional<std::string> now;   // fixed current local time
  std::optional<std::string> base;  // base date
  int weekStart = 1;
  bool clock24 = true;
  std::optional<bool> monthFirstOrder;
  HourMinute morning{9, 0};
  HourMinute afternoon{13, 0};
  HourMinute evening{17, 0};
  HourMinute night{20, 0};
  std::optional<std::string> holidays;
  std::optional<std::string> japanHolidays;

  int firstWeekday() const override { return weekStart; }
  int morningHour() const override { return morning.hour; }
  int morningMinute() const override { return morning.minute; }
  int afternoonHour() const override { return afternoon.hour; }
  int afternoonMinute() const override { return afternoon.minute; }
  int eveningHour() const override { return evening.hour; }
  int eveningMinute() const override { return evening.minute; }
  int nightHour() const override { return night.hour; }
  int nightMinute() const override { return night.minute; }
  bool is24Hour() const override { return clock24; }
  std::optional<std::string> holidayInfosJSONString() const override { return holidays; }
  std::optional<std::string> japanHolidayInfosJSONString() const override { return japanHolidays; }
  std::string preferredLanguage() const override { return language; }
  std::optional<bool> monthFirst() const override { return monthFirstOrder; }
};

// "HH:MM" with 0 <= HH <= 23 and 0 <= MM <= 59; `what` names the option in errors.
HourMinute parseHourMinute(const std::string& text, const std::string& what);
// "YYYY-MM-DDTHH:MM:SS", checked field by field.
void checkLocalTime(const std::string& text, const std::string& what);
// 1..7.
int parseWeekday(const std::string& text, const std::string& what);
// A zone name known to the system's zone database.
void checkZone(const std::string& zone, const std::string& what);
// TEXT, or @FILE for the content of a file.
std::string readTextOrFile(const std::string& value, const std::string& what);

// Applies the settings' zone (or the process's) to the process, and gives the
// parser that the settings describe.
class ZoneScope {
 public:
  explicit ZoneScope(const std::optional<std::string>& zone);
  ~ZoneScope();
  ZoneScope(const ZoneScope&) = delete;
  ZoneScope& operator=(const ZoneScope&) = delete;

 private:
  bool applied;
  std::optional<std::string> previous;
};

// The zone of a run of batch lines: a line's zone (or the process's, for a
// line without one) is put in force only when it differs from the last line's,
// since reading a zone costs more than most parses. The process's zone is back
// in force once the keeper goes.
class ZoneKeeper {
 public:
  ZoneKeeper();
  ~ZoneKeeper();
  ZoneKeeper(const ZoneKeeper&) = delete;
  ZoneKeeper& operator=(const ZoneKeeper&) = delete;
  void use(const std::optional<std::string>& zone);

 private:
  std::optional<std::string> original_;  // TZ as the process had it
  std::optional<std::string> current_;   // the zone in force; none: the original
};

// Parses one title with these settings; zone must already be in force.
ParseResult parseWith(const Settings& settings, const std::string& title);

}  // namespace nlpdate::cli
