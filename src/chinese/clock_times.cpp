// Clock times in a Chinese title (下午3点, 9点半, 十点一刻, 15:30, 3pm) and the
// bare day-part words (中午, 今晚). A time takes its date from the lead date
// the driver hands over, reads its half of the day from the day-part words
// of the title, and a time already past with nothing to pin its date moves on.
#include <string>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "values/duration.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

// Groups of every time pattern.
constexpr int kHourGroup = 3;
constexpr int kMinuteGroup = 5;

// Groups of the last-chance pattern.
const wchar_t* const kLastChancePattern = LR"(((\d{1,2})((a\.m\.|am\.|am|a\.)|(p\.m\.|pm\.|pm|p\.))))";
constexpr int kLastChanceHourGroup = 2;
constexpr int kLastChanceAmGroup = 4;
constexpr int kLastChancePmGroup = 5;

const wchar_t* const kSpecialTimePattern = L"(早上|上午|中午|下午|傍晚|今晚|晚上|凌晨|午夜|半夜|明晚)";

bool contains(const std::wstring& text, const wchar_t* part) { return text.find(part) != std::wstring::npos; }

bool hasColon(const std::wstring& text) { return contains(text, L":") || contains(text, L"："); }

}  // namespace

// Which half of the day the day-part words of the working title give a read hour of 12 or less.
bool NLPNativeTitleParser::applyChinesePeriod(std::tm* cal, int hour, const std::wstring& working,
                                              NLPRecognizeDate& result) {
  PatternMatch am;
  PatternMatch pm;
  const bool hasAm =
      compiledOnce([&] { return compilePattern(getAMFlag(), PatternCase::Insensitive); }).search(working, am);
  const bool hasPm =
      compiledOnce([&] { return compilePattern(getPMFlag(), PatternCase::Insensitive); }).search(working, pm);
  if (!hasAm && !hasPm) return false;
  const bool afternoon = hasAm && hasPm ? am.position(0) >= pm.position(0) : hasPm;
  if (afternoon) {
    if (hour < 12) {
      cal->tm_hour += 12;
    } else if (hour == 12 && contains(working, L"晚")) {
      cal->tm_hour += 12;  // 12 at night is 00:00 of the next day
      mkTM(cal);
    }
    result.addRecogString(pm.str(0));
  } else {
    if (contains(toLowerCase(working), L"中午")) {
      if (hour <= 2) cal->tm_hour += 12;
    } else if (hour == 12) {
      cal->tm_hour = 0;
    }
    result.addRecogString(am.str(0));
  }
  return true;
}

// A past time that nothing pins to a date: afternoon when that is still ahead, else the next day.
void NLPNativeTitleParser::rollPastChineseTime(std::tm* cal, int hour, int minute, bool hasPeriod,
                                               const std::wstring& working, const NLPRecognizeDate& result) {
  if (hasPeriod) {
    cal->tm_mday += 1;
    return;
  }
  if (hasColon(working)) {
    bool meant24 = false;
    for (const std::wstring& text : result.getRecogString()) meant24 = meant24 || hasColon(text);
    meant24 = meant24 && is24DateFormat && compiledOnce([&] {
                                             return compilePattern(L"\\b[0-2]\\d[:：]\\d{2}", PatternCase::Insensitive);
                                           }).search(working);
    if (meant24 || (minute == 0 && (hour == 12 || hour == 0)) || hour > 11) {
      cal->tm_mday += 1;
      return;
    }
    cal->tm_hour += 12;
    if (isBeforeNow(cal)) cal->tm_hour += 12;
    return;
  }
  if (hour <= 12 && hour == 12 && minute > 0) {
    cal->tm_mday += 1;
  } else if (hour <= 12 && (hour != 0 || minute != 0)) {
    cal->tm_hour += 12;
    if (isBeforeNow(cal)) {  // 12:00 reaches 24:00, the next day's midnight, and stays: kept as it is
      cal->tm_hour = hour;
      cal->tm_mday += 1;
    }
  } else {
    cal->tm_mday += 1;
  }
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchTime(std::optional<NLPRecognizeDate>& dateResult,
                                                                std::wstring title, OptTime defaultDate,
                                                                OptTM repeatDate) {
  std::wstring working = title;
  if (dateResult) {
    // A weekday digit such as the 3 of 周3 must not read as an hour.
    for (const std::wstring& text : dateResult->getRecogString())
      if (contains(text, L"周")) deleteStringByRegex(working, text);
  }
  PatternMatch match;
  bool found = false;
  for (const Pattern& pattern :
       compiledOnce([this] { return compileEach(getMatchTimePattern(), PatternCase::Insensitive); })) {
    if ((found = pattern.search(working, match))) break;
  }
  if (!found) return matchLastChanceTime(title);
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  const int hour = translateNum(match.str(kHourGroup));
  const int minute = match.str(kMinuteGroup).empty() ? 0 : translateNum(match.str(kMinuteGroup));
  cal->tm_hour = hour;
  cal->tm_min = minute;
  if (hasColon(match.str(0)) && match.str(kMinuteGroup).empty()) return std::nullopt;  // a colon needs minutes
  NLPRecognizeDate result(match.str(0), match.position(0), OptTM(cal));
  result.setReminder(ON_TIME);
  const bool hasPeriod = hour <= 12 && applyChinesePeriod(cal.get(), hour, working, result);
  const OptTM leadStart = dateResult ? dateResult->getStartCal() : std::nullopt;
  const bool hasLeadStart = leadStart && *leadStart;
  if (hasLeadStart) {
    std::tm* lead = leadStart->get();
    cal->tm_year = lead->tm_year;
    cal->tm_mon = lead->tm_mon;
    cal->tm_mday = lead->tm_mday;
    // The extra day goes to the lead date's own value, as it always has.
    if (hour == 12 && isBeforeNow(cal.get()) && contains(toLowerCase(working), L"晚")) {
      lead->tm_mday += 1;
      mkTM(lead);
    }
  } else if (repeatDate && *repeatDate) {
    // The repeat date gives the day; the time just read stays.
    TMPtr day = newTM(**repeatDate);
    mkTM(day.get());
    cal->tm_year = day->tm_year;
    cal->tm_mon = day->tm_mon;
    cal->tm_mday = day->tm_mday;
  }
  if (!defaultDate && isBeforeNow(cal.get()) && !hasLeadStart && !(dateResult && dateResult->getDuration()) &&
      !matchTodayAndSoOn(working) && !(repeatDate && *repeatDate)) {
    rollPastChineseTime(cal.get(), hour, minute, hasPeriod, working, result);
  }
  mkTM(cal.get());
  return result;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchLastChanceTime(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kLastChancePattern, PatternCase::Insensitive); }).search(title, match))
    return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  cal->tm_min = 0;
  cal->tm_hour = translateNum(match.str(kLastChanceHourGroup));
  if (match.str(kLastChanceAmGroup).empty()) {
    if (!match.str(kLastChancePmGroup).empty() && cal->tm_hour < 12) cal->tm_hour += 12;
  } else if (cal->tm_hour >= 13) {
    cal->tm_hour -= 12;
  }
  mkTM(cal.get());
  NLPRecognizeDate result(match.str(0), match.position(0), OptTM(cal));
  result.setReminder(ON_TIME);
  return result;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchSpecialTime(std::wstring title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kSpecialTimePattern); }).search(title, match)) return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  NLPRecognizeDate result(match.str(0), match.position(0), OptTM(cal));
  const auto hours = getSpecialHourMap();
  const auto found = hours.find(match.str(0));
  if (found != hours.end()) {
    cal->tm_hour = found->second.first;
    cal->tm_min = found->second.second;
    mkTM(cal.get());
    result.setStartCal(OptTM(cal));
    result.setReminder(ON_TIME);
  }
  return result;
}

}  // namespace nlpdate
