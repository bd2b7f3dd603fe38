// Chinese repeat rules: 每年3月5日, 每月第二个周三, 每周一和周三, 每年中秋节,
// 法定工作日 and the general 每 form (每天, 每周三, 每月15号, 每两周, 每工作日...).
// The first form that matches writes the rule and tells the driver the first
// date it yields. A 每 that names no unit sets nothing.
#include <map>
#include <string>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"
#include "words/piece_fill.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {

const wchar_t* const kYearDayPattern = L"每(\\d{1,2})?[年|个](\\d{1,2}|«N12»)[/|\\-|－|月|\\s](\\d{1,2}|«N31»)[日号]";
constexpr int kYearDayInterval = 1;
constexpr int kYearDayMonth = 2;
constexpr int kYearDayDay = 3;

const wchar_t* const kNthWeekdayPattern =
    L"每(\\d{1,2}|«N12»|两)?月((最后一|第一|第二|第三|第四|第五|最后1|第1|第2|第3|第4|第5)个?(礼拜|星期|周)(["
    L"一二三四五六日1234567]))";
constexpr int kNthInterval = 1;
constexpr int kNthOrdinal = 3;
constexpr int kNthWeekday = 5;

const wchar_t* const kTwoDaysPattern =
    L"(每(周|星期)([一二三四五六七天日1234567])[和与，、 "
    L"]?(周|星期)([一二三四五六七天日1234567]))|(每月(\\d{1,2}|«N31»)([日号][和与，、 "
    L"]?)(\\d{1,2}|«N31»)(日|号))";
constexpr int kTwoWeekdays = 1;
constexpr int kFirstWeekday = 3;
constexpr int kSecondWeekday = 5;
constexpr int kTwoMonthDays = 6;
constexpr int kFirstMonthDay = 7;
constexpr int kSecondMonthDay = 9;

const wchar_t* const kYearlyHolidayPattern =
    L"(每年(除夕|春节|元宵节|端午节|七夕|中元节|中秋节|重阳节|腊八节|北方小年|南方小年|小年|母亲节|父亲节|感恩节))";
constexpr int kYearlyHolidayName = 2;

const wchar_t* const kOfficialWorkDayPattern = L"(法定工作日|official working days?)";

// Rule texts of the yearly festivals, written as they stand. 中元节 reads 7/7 like 七夕, as required.
struct FestivalRule {
  const wchar_t* name;
  const wchar_t* rule;  // a whole rule text, or null for a lunar date
  int lunarMonth;
  int lunarDay;
};
const FestivalRule kFestivalRules[] = {
    {L"母亲节", L"RRULE:FREQ=YEARLY;INTERVAL=1;BYMONTH=5;BYDAY=2SU", 0, 0},
    {L"父亲节", L"RRULE:FREQ=YEARLY;INTERVAL=1;BYMONTH=6;BYDAY=3SU", 0, 0},
    {L"感恩节", L"RRULE:FREQ=YEARLY;INTERVAL=1;BYMONTH=11;BYDAY=4TH", 0, 0},
    {L"除夕", nullptr, 12, 30},
    {L"春节", nullptr, 1, 1},
    {L"元宵节", nullptr, 1, 15},
    {L"端午节", nullptr, 5, 5},
    {L"七夕", nullptr, 7, 7},
    {L"中元节", nullptr, 7, 7},
    {L"中秋节", nullptr, 8, 15},
    {L"重阳节", nullptr, 9, 9},
    {L"腊八节", nullptr, 12, 8},
    {L"北方小年", nullptr, 12, 23},
    {L"南方小年", nullptr, 12, 24},
    {L"小年", nullptr, 12, 24},
};

const WeekDay kWeekOrder[] = {Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday};

int intervalOf(NLPNativeTitleParser& parser, const std::wstring& text) {
  return text.empty() ? 1 : parser.translateNum(text);
}

}  // namespace

// Filled once per pattern constant and thread.
const std::wstring& NLPNativeTitleParser::fillRepeatNumbers(const wchar_t* pattern) {
  thread_local std::map<const wchar_t*, std::wstring> filled;
  auto found = filled.find(pattern);
  if (found == filled.end()) {
    found =
        filled
            .emplace(pattern, fillPieces(pattern, {{L"N12", getChinaNumPattern(12)}, {L"N31", getChinaNumPattern(31)}}))
            .first;
  }
  return found->second;
}

void NLPNativeTitleParser::storeChineseRule(const StringRRule& rule) {
  parserDueDate.repeatRule = rule;
  parserDueDate.repeatFlag = rule.toIcal();
}

NLPRepeatResult NLPNativeTitleParser::matchRepeat(std::wstring title) {
  for (auto form : {&NLPNativeTitleParser::matchYearDayRepeat, &NLPNativeTitleParser::matchNthWeekdayRepeat,
                    &NLPNativeTitleParser::matchTwoDaysRepeat, &NLPNativeTitleParser::matchYearlyHolidayRepeat,
                    &NLPNativeTitleParser::matchOfficialWorkDayRepeat}) {
    if (auto result = (this->*form)(title)) return *result;
  }
  return matchGeneralRepeat(title);
}

std::optional<NLPRepeatResult> NLPNativeTitleParser::matchYearDayRepeat(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillRepeatNumbers(kYearDayPattern)); }).search(title, match))
    return std::nullopt;
  StringRRule rule;
  rule.setInterval(intervalOf(*this, match.str(kYearDayInterval)));
  rule.setFreq(NLPFrequency::YEARLY);
  parserDueDate.recognizeStrings.push_back(match.str(0));
  TMPtr cal = getDefaultTM();
  cal->tm_sec = 0;
  cal->tm_min = 0;
  cal->tm_mday = translateNum(match.str(kYearDayDay));
  cal->tm_mon = translateNum(match.str(kYearDayMonth)) - 1;
  if (isBeforeToday(cal.get())) cal->tm_year += 1;
  mkTM(cal.get());
  storeChineseRule(rule);
  return NLPRepeatResult(OptTM(cal), true);
}

// The n-th weekday of the month from the given month on; n of -1 is the last one.
TMPtr NLPNativeTitleParser::nthWeekdayOfMonth(int n, WeekDay weekday) {
  TMPtr cal = getDefaultTM();
  cal->tm_sec = 0;
  cal->tm_min = 0;
  if (n == -1) {
    getLastDayOfWeek(cal.get(), weekday);
    if (isBeforeToday(cal.get())) {
      cal->tm_mon += 1;
      getLastDayOfWeek(cal.get(), weekday);
    }
    return cal;
  }
  cal->tm_hour = 0;
  cal->tm_mday = 1;
  getNextDayOfWeek(cal.get(), weekday);
  if (n >= 2) cal->tm_mday += (n - 1) * 7;
  if (isBeforeToday(cal.get())) {
    cal->tm_mon += 1;
    cal->tm_mday = 1;
    getNextDayOfWeek(cal.get(), weekday);
    if (n >= 2) cal->tm_mday += (n - 1) * 7;
  }
  mkTM(cal.get());
  return cal;
}

std::optional<NLPRepeatResult> NLPNativeTitleParser::matchNthWeekdayRepeat(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillRepeatNumbers(kNthWeekdayPattern)); }).search(title, match))
    return std::nullopt;
  StringRRule rule;
  rule.setInterval(intervalOf(*this, match.str(kNthInterval)));
  rule.setFreq(NLPFrequency::MONTHLY);
  const WeekDay weekday = translateDayOfWeek(match.str(kNthWeekday), getDefaultTM()->tm_wday, Vocabulary{});
  const std::wstring ordinal = match.str(kNthOrdinal);
  const int n = ordinal == L"最后一" || ordinal == L"最后1" ? -1 : translateNum(ordinal);
  TMPtr cal = nthWeekdayOfMonth(n, weekday);
  rule.setByDay({NLPWeekdayNum(n, weekday)});
  parserDueDate.recognizeStrings.push_back(match.str(0));
  storeChineseRule(rule);
  return NLPRepeatResult(OptTM(cal), true);
}

std::optional<NLPRepeatResult> NLPNativeTitleParser::matchTwoDaysRepeat(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillRepeatNumbers(kTwoDaysPattern)); }).search(title, match))
    return std::nullopt;
  StringRRule rule;
  rule.setInterval(1);
  TMPtr cal = getDefaultTM();
  if (!match.str(kTwoWeekdays).empty()) {
    rule.setFreq(NLPFrequency::WEEKLY);
    const int today = getDefaultTM()->tm_wday;
    const WeekDay first = translateDayOfWeek(match.str(kFirstWeekday), today, Vocabulary{});
    const WeekDay second = translateDayOfWeek(match.str(kSecondWeekday), today, Vocabulary{});
    rule.setWkSt(Monday);
    std::list<NLPWeekdayNum> days;  // in week order, whatever the order in the title
    for (WeekDay day : kWeekOrder) {
      if (day == first) days.emplace_back(0, day);
      if (day == second) days.emplace_back(0, day);
    }
    rule.setByDay(days);
    getNextDayOfWeek(cal.get(), first);
  } else {
    rule.setFreq(NLPFrequency::MONTHLY);
    const int firstDay = translateNum(match.str(kFirstMonthDay));
    rule.setByMonthDay({firstDay, translateNum(match.str(kSecondMonthDay))});
    cal->tm_mday = firstDay;
    if (isBeforeToday(cal.get())) cal->tm_mon += 1;
    mkTM(cal.get());
  }
  parserDueDate.recognizeStrings.push_back(match.str(0));
  storeChineseRule(rule);
  return NLPRepeatResult(OptTM(cal), false);
}

std::optional<NLPRepeatResult> NLPNativeTitleParser::matchYearlyHolidayRepeat(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kYearlyHolidayPattern); }).search(title, match)) return std::nullopt;
  const auto holiday = matchHoliday(title);
  OptTM cal = holiday ? holiday->getStartCal() : std::nullopt;
  parserDueDate.recognizeStrings.push_back(match.str(0));
  const std::wstring name = match.str(kYearlyHolidayName);
  for (const FestivalRule& festival : kFestivalRules) {
    if (name != festival.name) continue;
    parserDueDate.repeatFlag = festival.rule != nullptr
                                   ? std::wstring(festival.rule)
                                   : L"LUNAR:FREQ=YEARLY;INTERVAL=1;BYMONTH=" + std::to_wstring(festival.lunarMonth) +
                                         L";BYMONTHDAY=" + std::to_wstring(festival.lunarDay);
    break;
  }
  return NLPRepeatResult(cal, false);
}

std::optional<NLPRepeatResult> NLPNativeTitleParser::matchOfficialWorkDayRepeat(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kOfficialWorkDayPattern); }).search(title, match)) return std::nullopt;
  TMPtr cal = getDefaultTM();
  while (!isOfficialWorkDay(cal.get())) {  // a work day today stays today
    cal->tm_mday += 1;
    mkTM(cal.get());
  }
  parserDueDate.recognizeStrings.push_back(match.str(1));
  parserDueDate.repeatFlag = L"RRULE:FREQ=DAILY;INTERVAL=1;MV_SKIP=HOLIDAY,WEEKEND";
  return NLPRepeatResult(OptTM(cal), false);
}

}  // namespace nlpdate
