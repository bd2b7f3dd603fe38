#include <istream>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli_modes.h"

namespace nlpdate::cli {

namespace {
using nlohmann::json;

std::string stringKey(const json& line, const char* key) {
  const json& value = line.at(key);
  if (!value.is_string()) throw UsageError(std::string(key) + ": expected a string");
  return value.get<std::string>();
}

bool boolKey(const json& line, const char* key) {
  const json& value = line.at(key);
  if (!value.is_boolean()) throw UsageError(std::string(key) + ": expected true or false");
  return value.get<bool>();
}

// The settings of one input line: the tool's defaults, then the line's keys.
Settings settingsOf(const json& line, const Settings& defaults) {
  if (!line.is_object()) throw UsageError("expected a JSON object");
  if (!line.contains("title")) throw UsageError("title: missing");
  Settings settings = defaults;
  if (line.contains("lang")) settings.language = stringKey(line, "lang");
  if (line.contains("tz")) {
    settings.zone = stringKey(line, "tz");
    checkZone(*settings.zone, "tz");
  }
  if (line.contains("now")) checkLocalTime(*(settings.now = stringKey(line, "now")), "now");
  if (line.contains("base")) checkLocalTime(*(settings.base = stringKey(line, "base")), "base");
  if (line.contains("firstWeekday")) {
    const json& value = line.at("firstWeekday");
    if (!value.is_number_integer() || value.get<long long>() < 1 || value.get<long long>() > 7) {
      throw UsageError("firstWeekday: expected an integer from 1 to 7");
    }
    settings.weekStart = value.get<int>();
  }
  if (line.contains("is24Hour")) settings.clock24 = boolKey(line, "is24Hour");
  if (line.contains("monthFirst")) settings.monthFirstOrder = boolKey(line, "monthFirst");
  if (line.contains("morning")) settings.morning = parseHourMinute(stringKey(line, "morning"), "morning");
  if (line.contains("afternoon")) settings.afternoon = parseHourMinute(stringKey(line, "afternoon"), "afternoon");
  if (line.contains("evening")) settings.evening = parseHourMinute(stringKey(line, "evening"), "evening");
  if (line.contains("night")) settings.night = parseHourMinute(stringKey(line, "night"), "night");
  if (line.contains("holidays")) settings.holidays = stringKey(line, "holidays");
  if (line.contains("japanHolidays")) settings.japanHolidays = stringKey(line, "japanHolidays");
  return settings;
}

std::string answer(const std::string& text, const Settings& defaults, ZoneKeeper& zones) {
  json line = json::parse(text, nullptr, false);
  if (line.is_discarded()) throw UsageError("not a JSON text");
  Settings settings = settingsOf(line, defaults);
  const std::string title = stringKey(line, "title");
  zones.use(settings.zone);
  return jsonLine(parseWith(settings, title));
}
}  // namespace

bool runBatch(std::istream& in, std::ostream& out, const Settings& defaults) {
  Settings batchDefaults = defaults;
  if (!batchDefaults.monthFirstOrder) batchDefaults.monthFirstOrder = true;
  bool allGood = true;
  ZoneKeeper zones;
  std::string text;
  while (std::getline(in, text)) {
    if (!text.empty() && text.back() == '\r') text.pop_back();
    try {
      out << answer(text, batchDefaults, zones) << "\n";
    } catch (const std::exception& error) {
      out << json{{"error", error.what()}}.dump(-1, ' ', false, json::error_handler_t::replace) << "\n";
      allGood = false;
    }
    out.flush();
  }
  return allGood;
}

}  // namespace nlpdate::cli
