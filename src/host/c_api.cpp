// The C interface: a handle that carries a data source of its own and the
// last error, and functions that never let an exception through.
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>

#include "nlpdate/nlpdate.h"
#include "nlpdate/nlpdate_c.h"

namespace {

class HandleSettings : public nlpdate::NLPNativeParserDataSource {
 public:
  std::string language = "en";
  int weekStart = 1;
  bool clock24 = true;
  std::optional<bool> monthFirstOrder;
  int hours[4] = {9, 13, 17, 20};
  int minutes[4] = {0, 0, 0, 0};
  std::optional<std::string> holidays;
  std::optional<std::string> japanHolidays;

  int firstWeekday() const override { return weekStart; }
  int morningHour() const override { return hours[NLPDATE_MORNING]; }
  int morningMinute() const override { return minutes[NLPDATE_MORNING]; }
  int afternoonHour() const override { return hours[NLPDATE_AFTERNOON]; }
  int afternoonMinute() const override { return minutes[NLPDATE_AFTERNOON]; }
  int eveningHour() const override { return hours[NLPDATE_EVENING]; }
  int eveningMinute() const override { return minutes[NLPDATE_EVENING]; }
  int nightHour() const override { return hours[NLPDATE_NIGHT]; }
  int nightMinute() const override { return minutes[NLPDATE_NIGHT]; }
  bool is24Hour() const override { return clock24; }
  std::optional<std::string> holidayInfosJSONString() const override { return holidays; }
  std::optional<std::string> japanHolidayInfosJSONString() const override { return japanHolidays; }
  std::string preferredLanguage() const override { return language; }
  std::optional<bool> monthFirst() const override { return monthFirstOrder; }
};

}  // namespace

struct nlpdate_parser {
  std::shared_ptr<HandleSettings> settings = std::make_shared<HandleSettings>();
  nlpdate::NLPNativeParser parser;
  std::string lastError;
};

namespace {

nlpdate_status fail(nlpdate_parser* handle, nlpdate_status status, const std::string& message) {
  if (handle != nullptr) {
    try {
      handle->lastError = message;
    } catch (...) {
      handle->lastError.clear();
    }
  }
  return status;
}

// Runs `body`, turning every exception into a status and a message.
template <typename Body>
nlpdate_status guarded(nlpdate_parser* handle, Body body) {
  if (handle == nullptr) return NLPDATE_NULL_ARGUMENT;
  try {
    handle->lastError.clear();
    return body();
  } catch (const nlpdate::InvalidUtf8Error& error) {
    return fail(handle, NLPDATE_INVALID_UTF8, error.what());
  } catch (const nlpdate::HolidayTextError& error) {
    return fail(handle, NLPDATE_BAD_HOLIDAYS, error.what());
  } catch (const std::bad_alloc&) {
    return fail(handle, NLPDATE_OUT_OF_MEMORY, "out of memory");
  } catch (const std::exception& error) {
    return fail(handle, NLPDATE_INTERNAL, error.what());
  } catch (...) {
    return fail(handle, NLPDATE_INTERNAL, "unknown error");
  }
}

char* copyOut(const std::string& text) {
  char* out = static_cast<char*>(std::malloc(text.size() + 1));
  if (out == nullptr) throw std::bad_alloc();
  std::memcpy(out, text.c_str(), text.size() + 1);
  return out;
}

// Checks a holiday text by parsing a title with it, so that errors show at the setter.
void checkHolidays(const HandleSettings& settings) {
  auto probe = std::make_shared<HandleSettings>(settings);
  nlpdate::NLPNativeParser parser;
  parser.setDataSource(probe);
  parser.parse("x");
}

}  // namespace

extern "C" {

nlpdate_parser* nlpdate_parser_new(void) {
  try {
    auto* handle = new nlpdate_parser();
    handle->parser.setDataSource(handle->settings);
    return handle;
  } catch (...) {
    return nullptr;
  }
}

void nlpdate_parser_free(nlpdate_parser* parser) { delete parser; }

nlpdate_status nlpdate_set_language(nlpdate_parser* parser, const char* language) {
  return guarded(parser, [&] {
    if (language == nullptr) return fail(parser, NLPDATE_NULL_ARGUMENT, "language: NULL");
    nlpdate::utf8ToWide(language);  // refuses invalid UTF-8
    parser->settings->language = language;
    return NLPDATE_OK;
  });
}

nlpdate_status nlpdate_set_first_weekday(nlpdate_parser* parser, int weekday) {
  return guarded(parser, [&] {
    if (weekday < 1 || weekday > 7) return fail(parser, NLPDATE_BAD_ARGUMENT, "first weekday: expected 1 to 7");
    parser->settings->weekStart = weekday;
    return NLPDATE_OK;
  });
}

nlpdate_status nlpdate_set_24_hour(nlpdate_parser* parser, int is_24_hour) {
  return guarded(parser, [&] {
    parser->settings->clock24 = is_24_hour != 0;
    return NLPDATE_OK;
  });
}

nlpdate_status nlpdate_set_month_first(nlpdate_parser* parser, int month_first) {
  return guarded(parser, [&] {
    if (month_first < -1 || month_first > 1) return fail(parser, NLPDATE_BAD_ARGUMENT, "month first: expected -1, 0 or 1");
    parser->settings->monthFirstOrder = month_first < 0 ? std::nullopt : std::optional<bool>(month_first == 1);
    return NLPDATE_OK;
  });
}

nlpdate_status nlpdate_set_day_part(nlpdate_parser* parser, nlpdate_day_part part, int hour, int minute) {
  return guarded(parser, [&] {
    if (part < NLPDATE_MORNING || part > NLPDATE_NIGHT) return fail(parser, NLPDATE_BAD_ARGUMENT, "day part: unknown");
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59) {
      return fail(parser, NLPDATE_BAD_ARGUMENT, "day part: hour 0-23 and minute 0-59 expected");
    }
    parser->settings->hours[part] = hour;
    parser->settings->minutes[part] = minute;
    return NLPDATE_OK;
  });
}

static nlpdate_status setTable(nlpdate_parser* parser, const char* text, bool japan) {
  return guarded(parser, [&] {
    HandleSettings trial = *parser->settings;
    std::optional<std::string>& table = japan ? trial.japanHolidays : trial.holidays;
    if (text == nullptr) {
      table.reset();
    } else {
      table = std::string(text);
      checkHolidays(trial);
    }
    (japan ? parser->settings->japanHolidays : parser->settings->holidays) = table;
    return NLPDATE_OK;
  });
}

nlpdate_status nlpdate_set_holidays(nlpdate_parser* parser, const char* holidays_json) {
  return setTable(parser, holidays_json, false);
}

nlpdate_status nlpdate_set_japan_holidays(nlpdate_parser* parser, const char* holidays_json) {
  return setTable(parser, holidays_json, true);
}

nlpdate_status nlpdate_set_fixed_now(nlpdate_parser* parser, int64_t seconds_since_epoch) {
  return guarded(parser, [&] {
    if (seconds_since_epoch < 0) return fail(parser, NLPDATE_BAD_ARGUMENT, "fixed now: negative");
    parser->parser.setFixedNow(seconds_since_epoch == 0 ? std::nullopt
                                                        : std::optional<long long>(seconds_since_epoch));
    return NLPDATE_OK;
  });
}

nlpdate_status nlpdate_parse(nlpdate_parser* parser, const char* title_utf8, const char* base_date,
                             nlpdate_json_mode mode, char** json_out) {
  if (json_out != nullptr) *json_out = nullptr;
  return guarded(parser, [&] {
    if (title_utf8 == nullptr) return fail(parser, NLPDATE_NULL_ARGUMENT, "title: NULL");
    if (json_out == nullptr) return fail(parser, NLPDATE_NULL_ARGUMENT, "json_out: NULL");
    if (mode != NLPDATE_JSON_RAW && mode != NLPDATE_JSON_STRICT) {
      return fail(parser, NLPDATE_BAD_ARGUMENT, "mode: unknown");
    }
    std::optional<nlpdate::Clock::time_point> base;
    if (base_date != nullptr) {
      base = nlpdate::NLPNativeParser::dateFromString(base_date);
      if (!base) return fail(parser, NLPDATE_BAD_ARGUMENT, std::string("base date: expected YYYY-MM-DDTHH:MM:SS, got '") + base_date + "'");
    }
    const nlpdate::ParseResult result = parser->parser.parseResult(title_utf8, base);
    if (!result.ok) return fail(parser, NLPDATE_PARSE_FAILED, "the parser failed on this title");
    *json_out = copyOut(mode == NLPDATE_JSON_STRICT ? result.toJson() : result.text);
    return NLPDATE_OK;
  });
}

const char* nlpdate_last_error(const nlpdate_parser* parser) {
  if (parser == nullptr) return "parser: NULL";
  return parser->lastError.c_str();
}

void nlpdate_free(char* text) { std::free(text); }

const char* nlpdate_version(void) { return NLPDATE_VERSION; }

}  // extern "C"
