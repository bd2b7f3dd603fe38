#include "cli_settings.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>

namespace nlpdate::cli {

namespace {
bool allDigits(const std::string& text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

long long localSecondsOf(const std::string& text) {
  std::tm local{};
  std::sscanf(text.c_str(), "%d-%d-%dT%d:%d:%d", &local.tm_year, &local.tm_mon, &local.tm_mday, &local.tm_hour,
              &local.tm_min, &local.tm_sec);
  local.tm_year -= 1900;
  local.tm_mon -= 1;
  local.tm_isdst = -1;
  return static_cast<long long>(std::mktime(&local));
}
}  // namespace

namespace {

// Whether text has the given shape: 'd' a decimal digit, any other character itself.
bool hasShape(const std::string& text, const std::string& shape) {
  if (text.size() != shape.size()) return false;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (shape[i] == 'd' ? !digit : text[i] != shape[i]) return false;
  }
  return true;
}

}  // namespace

HourMinute parseHourMinute(const std::string& text, const std::string& what) {
  if (!hasShape(text, "d:dd") && !hasShape(text, "dd:dd")) {
    throw UsageError(what + ": expected HH:MM, got '" + text + "'");
  }
  const size_t colon = text.find(':');
  int hour = std::stoi(text.substr(0, colon));
  int minute = std::stoi(text.substr(colon + 1));
  if (hour > 23 || minute > 59) throw UsageError(what + ": time out of range: '" + text + "'");
  return {hour, minute};
}

void checkLocalTime(const std::string& text, const std::string& what) {
  if (!hasShape(text, "dddd-dd-ddTdd:dd:dd")) {
    throw UsageError(what + ": expected YYYY-MM-DDTHH:MM:SS, got '" + text + "'");
  }
  int month = std::stoi(text.substr(5, 2));
  int day = std::stoi(text.substr(8, 2));
  int hour = std::stoi(text.substr(11, 2));
  int minute = std::stoi(text.substr(14, 2));
  int second = std::stoi(text.substr(17, 2));
  if (month < 1 || month > 12 || day < 1 || day > 31 || hour > 23 || minute > 59 || second > 59) {
    throw UsageError(what + ": date or time out of range: '" + text + "'");
  }
}

int parseWeekday(const std::string& text, const std::string& what) {
  if (!allDigits(text) || text.size() > 1 || text[0] < '1' || text[0] > '7') {
    throw UsageError(what + ": expected a number from 1 (Sunday) to 7 (Saturday), got '" + text + "'");
  }
  return text[0] - '0';
}

void checkZone(const std::string& zone, const std::string& what) {
  static std::set<std::string> known;  // a batch names the same few zones on every line
  if (known.count(zone) != 0) return;
  const bool plausible = !zone.empty() && zone.find("..") == std::string::npos && zone[0] != '/';
  std::ifstream file("/usr/share/zoneinfo/" + zone, std::ios::binary);
  char magic[4] = {};
  if (!plausible || !file.read(magic, 4) || std::string(magic, 4) != "TZif") {
    throw UsageError(what + ": unknown time zone '" + zone + "'");
  }
  known.insert(zone);
}

std::string readTextOrFile(const std::string& value, const std::string& what) {
  if (value.empty() || value[0] != '@') return value;
  std::ifstream file(value.substr(1), std::ios::binary);
  if (!file) throw UsageError(what + ": cannot read file '" + value.substr(1) + "'");
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

ZoneScope::ZoneScope(const std::optional<std::string>& zone) : applied(zone.has_value()) {
  if (!zone) return;
  if (const char* old = std::getenv("TZ")) previous = old;
  setenv("TZ", zone->c_str(), 1);
  tzset();
}

ZoneScope::~ZoneScope() {
  if (!applied) return;
  if (previous) {
    setenv("TZ", previous->c_str(), 1);
  } else {
    unsetenv("TZ");
  }
  tzset();
}

ZoneKeeper::ZoneKeeper() {
  if (const char* old = std::getenv("TZ")) original_ = old;
}

ZoneKeeper::~ZoneKeeper() { use(std::nullopt); }

void ZoneKeeper::use(const std::optional<std::string>& zone) {
  if (zone == current_) return;
  const std::optional<std::string>& wanted = zone ? zone : original_;
  if (wanted) {
    setenv("TZ", wanted->c_str(), 1);
  } else {
    unsetenv("TZ");
  }
  tzset();
  current_ = zone;
}

ParseResult parseWith(const Settings& settings, const std::string& title) {
  NLPNativeParser parser;
  auto held = std::make_shared<Settings>(settings);  // the facade holds its source weakly
  parser.setDataSource(held);
  if (settings.now) parser.setFixedNow(localSecondsOf(*settings.now));
  std::optional<Clock::time_point> base;
  if (settings.base) base = Clock::from_time_t(static_cast<std::time_t>(localSecondsOf(*settings.base)));
  return parser.parseResult(title, base);
}

}  // namespace nlpdate::cli
