// How the Chinese driver assembles its value: the repeat date and the time of
// day first, then the date of the leading stage over them. A value already
// past rolls by the repeat rule, or by the day-part word of the time.
#include <algorithm>
#include <cwctype>

#include "chinese/chinese_driver_steps.h"
#include "core/calendar_ops.h"
#include "core/title_parser.h"

namespace nlpdate {

namespace {

bool contains(const std::wstring& text, const wchar_t* part) { return text.find(part) != std::wstring::npos; }

std::wstring lowerAscii(std::wstring text) {
  for (wchar_t& c : text)
    if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
  return text;
}

// The day-part words of a time and the hours they allow; see rollByTimeWord.
struct DayPart {
  int limit;
  int nextDayHour;
};

}  // namespace

bool NLPNativeTitleParser::ruleHasWeekDay(std::tm* cal) {
  if (!parserDueDate.repeatRule) return false;
  const auto& days = parserDueDate.repeatRule->getByDay();
  const WeekDay day = getWeekDay(cal);
  return std::any_of(days.begin(), days.end(), [day](const NLPWeekdayNum& num) { return num.getWday() == day; });
}

// Moves on to the next weekday of the rule's BYDAY list; a day already listed stays.
void NLPNativeTitleParser::moveToRuleWeekDay(std::tm* cal) {
  if (!parserDueDate.repeatRule || parserDueDate.repeatRule->getByDay().empty()) return;
  for (int step = 0; step < 8 && !ruleHasWeekDay(cal); ++step) {
    cal->tm_mday += 1;
    mkTM(cal);
  }
}

void NLPNativeTitleParser::rollByRule(std::tm* cal) {
  const std::wstring rule = lowerAscii(parserDueDate.repeatFlag);
  if (!contains(rule, L"freq=weekly")) {
    if (contains(rule, L"freq=daily")) {
      cal->tm_mday += 1;
    } else if (contains(rule, L"freq=monthly")) {
      cal->tm_mon += 1;
    } else if (contains(rule, L"freq=yearly")) {
      cal->tm_year += 1;
    }
  } else if (contains(rule, L"byday=")) {
    cal->tm_mday += 1;
    mkTM(cal);
    moveToRuleWeekDay(cal);
  } else {
    cal->tm_mday += 7;
  }
  mkTM(cal);
}

void NLPNativeTitleParser::rollByTimeWord(std::tm* cal, const ChineseStages& stages) {
  bool morning = false, afternoon = false, dusk = false, night = false;
  for (const std::wstring& text : stages.time->getRecogString()) {
    if (contains(text, L"上午")) {
      morning = true;
    } else if (contains(text, L"下午")) {
      afternoon = true;
    } else if (contains(text, L"傍晚")) {
      dusk = true;
    } else if (contains(text, L"晚上")) {
      night = true;
    }
  }
  std::tm* named = startOf(stages.named);
  if (named) {
    copyDateOf(named, cal);
    if (!isBeforeNow(cal)) return;
  }
  const bool anyFlag = morning || afternoon || dusk || night;
  if (anyFlag) {
    const DayPart part = morning     ? DayPart{11, morningHour}
                         : afternoon ? DayPart{16, afternoonHour}
                         : dusk      ? DayPart{18, eveningHour}
                                     : DayPart{23, nightHour};
    cal->tm_hour += 1;
    while (cal->tm_hour <= part.limit && isBeforeNow(cal)) cal->tm_hour += 1;
    if (isBeforeNow(cal)) {
      cal->tm_hour = part.nextDayHour;
      cal->tm_mday += 1;
    }
  } else if (!named) {
    cal->tm_mday += 1;
  }
  mkTM(cal);
  if (!named) moveToRuleWeekDay(cal);
}

OptTM NLPNativeTitleParser::mergeChineseTime(ChineseStages& stages, const std::wstring& title) {
  OptTM cal;
  if (stages.hasRepeatDate()) {
    TMPtr day = newTM(**stages.repeat.repeatDate);
    mkTM(day.get());
    day->tm_hour = 0;
    day->tm_min = 0;
    day->tm_sec = 0;
    cal = day;
    if (std::tm* time = startOf(stages.time)) {
      day->tm_hour = time->tm_hour;
      day->tm_min = time->tm_min;
      if (isBeforeNow(day.get())) rollByRule(day.get());
      return cal;
    }
  } else if (stages.time) {
    return stages.time->getStartCal();
  }
  stages.time = matchSpecialTime(title);
  if (!stages.time) return cal;
  std::tm* special = startOf(stages.time);
  if (stages.hasRepeatDate()) {
    (*cal)->tm_hour = special->tm_hour;
    (*cal)->tm_min = special->tm_min;
    (*cal)->tm_sec = special->tm_sec;
  } else {
    cal = stages.time->getStartCal();
    std::tm* date = startOf(stages.date);
    if (stages.leading == kDateStage && cal && *cal && !stages.repeat.dateInRule && date) {
      copyDateOf(date, cal->get());
    }
  }
  if (cal && *cal && isBeforeNow(cal->get())) rollByTimeWord(cal->get(), stages);
  return cal;
}

// The leading stage's texts, and its date over the value assembled so far.
OptTM NLPNativeTitleParser::collectChineseStage(ChineseStages& stages, OptTM cal) {
  const std::optional<NLPRecognizeDate>* result = nullptr;
  bool overridesRule = false;  // weekday and named day override even a date the rule fixed: kept as it is
  switch (stages.leading) {
    case kWeekdayStage: result = &stages.weekday; overridesRule = true; break;
    case kDateStage: result = &stages.date; break;
    case kNamedDayStage: result = &stages.named; overridesRule = true; break;
    case kLunarStage: result = &stages.lunar; break;
    case kHolidayStage: result = &stages.holiday; break;
    default: return cal;
  }
  if (!*result) return cal;
  parserDueDate.addAllRecogStr((*result)->getRecogString());
  if (stages.leading == kNamedDayStage && !(*result)->getReminder().empty()) {
    parserDueDate.reminder.push_back((*result)->getReminder());
  }
  if (!cal || !*cal) {
    cal = (*result)->getStartCal();
  } else if (std::tm* start = startOf(*result); start && (overridesRule || !stages.repeat.dateInRule)) {
    copyDateOf(start, cal->get());
  }
  if (stages.leading == kLunarStage) markLunarYearlyRule();
  return cal;
}

// A yearly rule over a lunar date becomes a lunar yearly rule.
void NLPNativeTitleParser::markLunarYearlyRule() {
  static const std::wstring solar = L"RRULE:FREQ=YEARLY";
  static const std::wstring lunar = L"LUNAR:FREQ=YEARLY";
  std::wstring& flag = parserDueDate.repeatFlag;
  for (size_t at = flag.find(solar); at != std::wstring::npos; at = flag.find(solar, at + lunar.size())) {
    flag.replace(at, solar.size(), lunar);
  }
}

}  // namespace nlpdate
