// nlpdate: reads the date, time, range, repetition and reminders out of a
// task title as a person typed it, and answers with one JSON text.
//
//   nlpdate::NLPNativeParser parser;
//   std::string json = parser.parse("buy milk tomorrow at 9am");
//
// The JSON has the keys repeatFlag, recognizeStrings, startDate, dueDate,
// reminder and isAllDay, in that order. A title with nothing in it gives the
// same keys with empty values; a failure inside the parser gives "".
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "nlpdate/errors.h"

namespace nlpdate {

// The user's settings. Subclass and override what differs from the defaults,
// which are those of a plain NLPNativeParser.
class NLPNativeParserDataSource {
 public:
  virtual ~NLPNativeParserDataSource() = default;
  // First day of the week: 1 = Sunday ... 7 = Saturday.
  virtual int firstWeekday() const { return 1; }
  // The hour and minute that morning, afternoon, evening and night stand for.
  virtual int morningHour() const { return 9; }
  virtual int morningMinute() const { return 0; }
  virtual int afternoonHour() const { return 13; }
  virtual int afternoonMinute() const { return 0; }
  virtual int eveningHour() const { return 17; }
  virtual int eveningMinute() const { return 0; }
  virtual int nightHour() const { return 20; }
  virtual int nightMinute() const { return 0; }
  // The user's clock is a 24-hour clock.
  virtual bool is24Hour() const { return true; }
  // The host's official calendar, {"20240101":2,"20240204":1,...}: 1 marks a
  // working day, other values a day off. Empty optional: none.
  virtual std::optional<std::string> holidayInfosJSONString() const { return std::nullopt; }
  // The Japanese public holidays, {"元日":20240101,...}. Empty optional: none.
  virtual std::optional<std::string> japanHolidayInfosJSONString() const { return std::nullopt; }
  // The language code: "en", "zh_CN", "ja", "ru", "fr", "ko", "pt", ...
  virtual std::string preferredLanguage() const { return "en"; }
  // Numeric dates read month before day. Empty optional: ask the locale
  // (NLPNativeParser::isUSOrUKDateFormat).
  virtual std::optional<bool> monthFirst() const { return std::nullopt; }
};

using Clock = std::chrono::system_clock;

// The answer for one title, field by field, with the values of the JSON text.
struct ParseResult {
  bool ok = false;  // false: the parser failed and the JSON text is ""
  std::string text;  // the parser's own JSON text, as parse returns it
  std::string repeatFlag;
  std::vector<std::string> recognizeStrings;
  std::string startDate;  // "yyyy-MM-ddTHH:mm:ss" local time, or ""
  std::string dueDate;
  std::vector<std::string> reminder;  // sorted, unique
  bool isAllDay = true;

  // The same keys in the same order as the parser's own text, but strict JSON:
  // quotes, backslashes, control characters, U+2028 and U+2029 are escaped. For
  // titles without such characters it equals the parser's text byte for byte.
  // A failed parse gives "".
  std::string toJson() const;
};

// The host facade. Each parse builds a parser object, applies the settings
// and holiday texts, parses once and drops it, so one facade may serve many
// threads at once as long as its data source may.
class NLPNativeParser : public NLPNativeParserDataSource {
 public:
  NLPNativeParser();
  ~NLPNativeParser() override;

  // The process-wide instance.
  static NLPNativeParser& sharedInstance();

  // Where settings come from. Held weakly: once the owner releases it, the
  // facade's own defaults apply again.
  void setDataSource(std::weak_ptr<const NLPNativeParserDataSource> source);
  std::weak_ptr<const NLPNativeParserDataSource> dataSource() const;

  // Parses a UTF-8 title. baseDate, when given, is the date the title is
  // relative to. Returns the UTF-8 JSON text, or "" when the parser failed.
  // Throws InvalidUtf8Error for invalid UTF-8, HolidayTextError for a bad
  // holiday text.
  std::string parse(const std::string& title, std::optional<Clock::time_point> baseDate = std::nullopt) const;
  // The same for a C string; a null title gives "" and reads no setting.
  std::string parse(const char* title, std::optional<Clock::time_point> baseDate = std::nullopt) const;
  // The answer field by field (see ParseResult); throws as parse does.
  ParseResult parseResult(const std::string& title, std::optional<Clock::time_point> baseDate = std::nullopt) const;

  // Fixes "now" for replay and tests (seconds since the epoch); 0 or an empty
  // optional goes back to the system clock.
  void setFixedNow(std::optional<long long> secondsSinceEpoch);
  std::optional<long long> fixedNow() const;

  // Whether the user's locale writes short dates month before day.
  static bool isUSOrUKDateFormat();
  // "yyyy-MM-dd'T'HH:mm:ss" in the process's local time zone, and back
  // (an empty optional for "" or text that does not read).
  static std::string stringFromDate(Clock::time_point date);
  static std::optional<Clock::time_point> dateFromString(const std::string& text);

  // Unicode full lower-casing of UTF-8 text, as the facade applies it to titles.
  static std::string lowercase(const std::string& utf8);

 private:
  std::string parseInto(const std::string& title, std::optional<Clock::time_point> baseDate,
                        ParseResult* result) const;
  std::weak_ptr<const NLPNativeParserDataSource> source_;
  std::optional<long long> fixedNow_;
};

// UTF-8 to one wide character per code point and back. Invalid input throws
// InvalidUtf8Error.
std::wstring utf8ToWide(const std::string& utf8);
std::string wideToUtf8(const std::wstring& text);

}  // namespace nlpdate
