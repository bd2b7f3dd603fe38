// Chinese named days (今天, 明天, 今晚, 明早, 周末, 下周) and weekdays with their
// week words (周五, 下周三, 这个星期一, 下下礼拜天). Each gives a date; only
// 今晚, 明晚 and 明早 also carry a time of day.
#include <string>

#include "chinese/week_days.h"
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "values/duration.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

namespace {

const wchar_t* const kSpecialDatePattern =
    L"(大前天|前天|昨天|今天|今日|明天|明日|后天|大后天|今晚|明早|明晚|下个周末|下周末|周末)";
const wchar_t* const kSpecialDatePatternWithNextWeek =
    L"(大前天|前天|昨天|今天|今日|明天|明日|后天|大后天|今晚|明早|明晚|下个周末|下周末|周末|下周)";

const wchar_t* const kWeekDayPattern =
    L"(本|这|这个)?(下下个|下下)?(下个|下)?(星期|礼拜|周)(一|二|三|四|五|六|日|天|1|2|3|4|5|6|7)";
constexpr int kThisWeekGroup = 1;
constexpr int kWeekAfterNextGroup = 2;
constexpr int kNextWeekGroup = 3;
constexpr int kDayGroup = 5;

void moveToWeekend(std::tm* record) {
  while (!isWeekendDay(record)) record->tm_mday += 1;
}

}  // namespace

std::map<std::wstring, int> NLPNativeTitleParser::getSpecialDateMaps() {
  return {{L"大前天", -3}, {L"前天", -2}, {L"昨天", -1},  {L"今天", 0}, {L"今日", 0}, {L"明天", 1},
          {L"明日", 1},    {L"后天", 2},  {L"大后天", 3}, {L"今晚", 0}, {L"明早", 1}, {L"明晚", 1}};
}

std::wstring NLPNativeTitleParser::getSpecialDateRecognition() { return kSpecialDatePattern; }

std::wstring NLPNativeTitleParser::getSpecialDateRecognitionWithNextWeek() { return kSpecialDatePatternWithNextWeek; }

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchTodayAndSoOn(std::wstring title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(getSpecialDateRecognitionWithNextWeek()); }).search(title, match))
    return std::nullopt;
  TMPtr cal = getDefaultTM();
  cal->tm_hour = 0;
  cal->tm_min = 0;
  cal->tm_sec = 0;
  const std::wstring word = match.str(0);
  bool hasTime = false;
  const std::map<std::wstring, int> offsets = getSpecialDateMaps();
  const auto offset = offsets.find(word);
  if (offset != offsets.end()) {
    cal->tm_mday += offset->second;
    if (word == L"今晚" || word == L"明晚") {
      cal->tm_hour = nightHour;
      hasTime = true;
    } else if (word == L"明早") {
      cal->tm_hour = 7;  // a fixed 7 o'clock, not the morning setting: kept as it is
      hasTime = true;
    }
  } else if (word == L"下个周末" || word == L"下周末") {
    cal->tm_mday += 7;
    moveToWeekend(cal.get());
  } else if (word == L"周末") {
    moveToWeekend(cal.get());
  } else {  // 下周: the first weekday of next week
    setDayOfWeek(cal.get(), Monday, startDay);
    cal->tm_mday += 7;
  }
  mkTM(cal.get());
  NLPRecognizeDate result(word, match.position(0), OptTM(cal));
  if (hasTime) result.setReminder(ON_TIME);
  return result;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchWeekDay(std::wstring title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kWeekDayPattern); }).search(title, match)) return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  setDayOfWeek(cal.get(), weekDayOfNumber(matchNum(match.str(kDayGroup))), startDay);
  const bool thisWeek = !match.str(kThisWeekGroup).empty();
  if (thisWeek) {
    // 这/本 pins this week, whatever follows.
  } else if (!match.str(kWeekAfterNextGroup).empty()) {
    cal->tm_mday += 14;
  } else if (!match.str(kNextWeekGroup).empty()) {
    cal->tm_mday += 7;
  } else if (isBeforeToday(cal.get())) {
    cal->tm_mday += 7;
  }
  mkTM(cal.get());
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(cal));
}

}  // namespace nlpdate
