#include "cli_settings.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>

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

HourMinute parseHourMinute(const std::string& text, const std::string& what) {
  static const std::regex shape("([0-9]{1,2}):([0-9]{2})");
  std::smatch match;
  if (!std::regex_match(text, match, shape)) throw UsageError(what + ": expected HH:MM, got '" + text + "'");
  int hour = std::stoi(match[1].str());
  int minute = std::stoi(match[2].str());
  if (hour > 23 || minute > 59) throw UsageError(what + ": time out of range: '" + text + "'");
  return {hour, minute};
}

void checkLocalTime(const std::string& text, const std::string& what) {
  static const std::regex shape("([0-9]{4})-([0-9]{2})-([0-9]{2})T([0-9]{2}):([0-9]{2}):([0-9]{2})");
  std::smatch match;
  if (!std::regex_match(text, match, shape)) {
    throw UsageError(what + ": expected YYYY-MM-DDTHH:MM:SS, got '" + text + "'");
  }
  int month = std::stoi(match[2].str());
  int day = std::stoi(match[3].str());
  int hour = std::stoi(match[4].str());
  int minute = std::stoi(match[5].str());
  int second = std::stoi(match[6].str());
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
  const bool plausible = !zone.empty() && zone.find("..") == std::string::npos && zone[0] != '/';
  std::ifstream file("/usr/share/zoneinfo/" + zone, std::ios::binary);
  char magic[4] = {};
  if (!plausible || !file.read(magic, 4) || std::string(magic, 4) != "TZif") {
    throw UsageError(what + ": unknown time zone '" + zone + "'");
  }
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
