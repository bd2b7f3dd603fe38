// The host facade: settings from a data source, UTF-8 in and out, one
// parser object per title.
#include <cstdio>
#include <ctime>

#include "core/title_parser.h"
#include "nlpdate/nlpdate.h"

namespace nlpdate {

NLPNativeParser::NLPNativeParser() = default;
NLPNativeParser::~NLPNativeParser() = default;

NLPNativeParser& NLPNativeParser::sharedInstance() {
  static NLPNativeParser instance;  // thread-safe one-time construction
  return instance;
}

void NLPNativeParser::setDataSource(std::weak_ptr<const NLPNativeParserDataSource> source) {
  source_ = std::move(source);
}

std::weak_ptr<const NLPNativeParserDataSource> NLPNativeParser::dataSource() const { return source_; }

void NLPNativeParser::setFixedNow(std::optional<long long> secondsSinceEpoch) {
  if (secondsSinceEpoch && *secondsSinceEpoch < 1) secondsSinceEpoch.reset();
  fixedNow_ = secondsSinceEpoch;
}

std::optional<long long> NLPNativeParser::fixedNow() const { return fixedNow_; }

std::string NLPNativeParser::parse(const std::string& title, std::optional<Clock::time_point> baseDate) const {
  return parseInto(title, baseDate, nullptr);
}

ParseResult NLPNativeParser::parseResult(const std::string& title, std::optional<Clock::time_point> baseDate) const {
  ParseResult result;
  parseInto(title, baseDate, &result);
  return result;
}

std::string NLPNativeParser::parseInto(const std::string& title, std::optional<Clock::time_point> baseDate,
                                       ParseResult* result) const {
  // A released data source reads as none: the facade's own defaults apply.
  std::shared_ptr<const NLPNativeParserDataSource> held = source_.lock();
  const NLPNativeParserDataSource& settings = held ? *held : *this;

  const std::wstring wideTitle = utf8ToWide(lowercase(title));
  const std::wstring language = utf8ToWide(settings.preferredLanguage());

  NLPNativeTitleParser parser;
  parser.setCustomizeHour(settings.morningHour(), settings.morningMinute(), settings.afternoonHour(),
                          settings.afternoonMinute(), settings.eveningHour(), settings.eveningMinute(),
                          settings.nightHour(), settings.nightMinute());
  parser.setStartDay(settings.firstWeekday());
  parser.setIs24DateFormat(settings.is24Hour());
  const std::optional<bool> monthFirst = settings.monthFirst();
  parser.setIsUsOrUkDateFormat(monthFirst ? *monthFirst : isUSOrUKDateFormat());
  if (auto holidays = settings.holidayInfosJSONString()) parser.setHolidayDay(utf8ToWide(*holidays));
  if (auto japan = settings.japanHolidayInfosJSONString()) parser.setJapanHolidayDay(utf8ToWide(*japan));
  if (fixedNow_) parser.setDefaultTimeSecond(static_cast<long>(*fixedNow_));

  const std::wstring baseText = baseDate ? utf8ToWide(stringFromDate(*baseDate)) : std::wstring();
  std::string json = wideToUtf8(parser.parse(wideTitle, baseText, language));
  if (result != nullptr) result->text = json;
  if (result != nullptr && !json.empty() && parser.lastTexts) {
    const NLPParserDueDate::Texts& texts = *parser.lastTexts;
    result->ok = true;
    result->repeatFlag = wideToUtf8(texts.repeatFlag);
    for (const std::wstring& text : texts.recognizeStrings) result->recognizeStrings.push_back(wideToUtf8(text));
    result->startDate = wideToUtf8(texts.startDate);
    result->dueDate = wideToUtf8(texts.dueDate);
    for (const std::wstring& text : texts.reminder) result->reminder.push_back(wideToUtf8(text));
    result->isAllDay = texts.isAllDay;
  }
  return json;
}

std::string NLPNativeParser::parse(const char* title, std::optional<Clock::time_point> baseDate) const {
  if (title == nullptr) return std::string();
  return parse(std::string(title), baseDate);
}

std::string NLPNativeParser::stringFromDate(Clock::time_point date) {
  std::time_t seconds = Clock::to_time_t(date);
  std::tm local{};
  localtime_r(&seconds, &local);
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02dT%02d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1,
                local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
  return buffer;
}

std::optional<Clock::time_point> NLPNativeParser::dateFromString(const std::string& text) {
  if (text.empty()) return std::nullopt;
  std::tm local{};
  int consumed = 0;
  if (std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%n", &local.tm_year, &local.tm_mon, &local.tm_mday,
                  &local.tm_hour, &local.tm_min, &local.tm_sec, &consumed) != 6 ||
      static_cast<size_t>(consumed) != text.size()) {
    return std::nullopt;
  }
  if (local.tm_mon < 1 || local.tm_mon > 12 || local.tm_mday < 1 || local.tm_mday > 31 || local.tm_hour > 23 ||
      local.tm_min > 59 || local.tm_sec > 60) {
    return std::nullopt;
  }
  local.tm_year -= 1900;
  local.tm_mon -= 1;
  local.tm_isdst = -1;
  return Clock::from_time_t(std::mktime(&local));
}

}  // namespace nlpdate
