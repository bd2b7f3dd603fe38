// The general Chinese repeat form: 每 with an optional interval, a unit
// (日/天, 周/星期/礼拜, 月, 年), a work-day or weekend word, and a day number.
// A 每 with neither unit nor work-day word (每人, 每次) sets no rule and leaves
// nothing recognised: a rule with no frequency never reaches the result.
#include <string>

#include "chinese/week_days.h"
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

namespace {

const wchar_t* const kGeneralPattern =
    L"每(\\d{1,2}|«N12»|两)?(个)?(日|天|礼拜|星期|周|月|年)?(工作日|周末|末)?(最后一天|最后1天|第)?(\\d{1,2}|天|日|"
    L"«N31»)?(天|号|日|"
    L"月)?";
constexpr int kInterval = 1;
constexpr int kMeasure = 2;
constexpr int kUnit = 3;
constexpr int kWorkWord = 4;
constexpr int kLastWord = 5;
constexpr int kNumber = 6;
constexpr int kSuffix = 7;

const wchar_t* const kDailyPattern = L"每(\\d{1,2}|«N12»|两)?(日|天)?";

// "每" and groups 1 to 4: the text a work-day or weekend rule recognises.
std::wstring headOf(const PatternMatch& match) {
  return L"每" + match.str(kInterval) + match.str(kMeasure) + match.str(kUnit) + match.str(kWorkWord);
}

void replaceLast(std::list<std::wstring>& strings, const std::wstring& text) {
  if (!strings.empty()) strings.pop_back();
  strings.push_back(text);
}

}  // namespace

NLPRepeatResult NLPNativeTitleParser::matchGeneralRepeat(const std::wstring& title) {
  const NLPRepeatResult none(std::nullopt, false);
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillRepeatNumbers(kGeneralPattern)); }).search(title, match))
    return none;
  const std::wstring unit = match.str(kUnit);
  const std::wstring workWord = match.str(kWorkWord);
  if (unit.empty() && workWord.empty()) return none;  // 每 alone sets no rule
  StringRRule rule;
  TMPtr cal = getDefaultTM();
  if (unit.empty()) {
    rule.setInterval(1);
    if (workWord == L"工作日") {
      rule.setFreq(NLPFrequency::WEEKLY);
      rule.setWkSt(Monday);
      rule.setByDay(workWeek());
      while (isWeekendDay(cal.get())) {
        cal->tm_mday += 1;
        mkTM(cal.get());
      }
    } else {
      rule.setFreq(NLPFrequency::YEARLY);  // a bare weekend word gives a yearly rule: kept as it is
    }
    parserDueDate.recognizeStrings.push_back(headOf(match));
    storeChineseRule(rule);
    return NLPRepeatResult(OptTM(cal), false);
  }
  parserDueDate.recognizeStrings.push_back(match.str(0));
  rule.setInterval(match.str(kInterval).empty() ? 1 : translateNum(match.str(kInterval)));
  bool ruled = false;
  if (unit == L"日" || unit == L"天") {
    PatternMatch daily;
    compiledOnce([&] { return compilePattern(fillRepeatNumbers(kDailyPattern)); }).search(title, daily);
    if (daily.str(1).empty() && daily.str(2).empty()) {
      parserDueDate.recognizeStrings.clear();  // only the bare 每 stands
      return none;
    }
    replaceLast(parserDueDate.recognizeStrings, daily.str(0));
    rule.setFreq(NLPFrequency::DAILY);
    ruled = true;
  } else if (unit == L"礼拜" || unit == L"星期" || unit == L"周") {
    rule.setFreq(NLPFrequency::WEEKLY);
    readWeeklyGeneral(match, rule, cal.get());
    ruled = true;
  } else if (unit == L"月") {
    rule.setFreq(NLPFrequency::MONTHLY);
    readMonthlyGeneral(match, rule, cal.get());
    ruled = true;
  } else if (unit == L"年") {
    rule.setFreq(NLPFrequency::YEARLY);
    if (!match.str(kNumber).empty() && match.str(kSuffix) == L"月") {
      cal->tm_mon = translateNum(match.str(kNumber)) - 1;
      cal->tm_mday = 1;
      if (isBeforeToday(cal.get())) cal->tm_year += 1;
      mkTM(cal.get());
    }
    ruled = true;
  }
  if (!ruled) {
    parserDueDate.recognizeStrings.pop_back();
    return none;
  }
  storeChineseRule(rule);
  return NLPRepeatResult(OptTM(cal), false);
}

void NLPNativeTitleParser::readWeeklyGeneral(const PatternMatch& match, StringRRule& rule, std::tm* cal) {
  const std::wstring workWord = match.str(kWorkWord);
  const std::wstring number = match.str(kNumber);
  const int weekday = number.empty() ? 0 : translateNum(number);
  if (workWord == L"工作日") {
    rule.setWkSt(Monday);
    rule.setByDay(workWeek());
    while (isWeekendDay(cal)) {
      cal->tm_mday += 1;
      mkTM(cal);
    }
    replaceLast(parserDueDate.recognizeStrings, headOf(match));
  } else if (workWord == L"末" || workWord == L"周末") {
    rule.setWkSt(Monday);
    rule.setByDay({NLPWeekdayNum(0, Sunday), NLPWeekdayNum(0, Saturday)});
    while (!isWeekendDay(cal)) {
      cal->tm_mday += 1;
      mkTM(cal);
    }
    replaceLast(parserDueDate.recognizeStrings, headOf(match));
  } else if (weekday >= 1 && weekday <= 7) {
    // 天 reads 7 here first, so 每周天 is Sunday through this branch.
    const WeekDay day = weekday == 7 ? Sunday : static_cast<WeekDay>(weekday);
    rule.setWkSt(Monday);
    rule.setByDay({NLPWeekdayNum(0, day)});
    getNextDayOfWeek(cal, day);
    if (isBeforeToday(cal)) cal->tm_mday += 7;
    mkTM(cal);
  } else if (number == L"天" || number == L"日") {
    rule.setWkSt(Monday);
    rule.setByDay({NLPWeekdayNum(0, Sunday)});
  }
}

void NLPNativeTitleParser::readMonthlyGeneral(const PatternMatch& match, StringRRule& rule, std::tm* cal) {
  const std::wstring last = match.str(kLastWord);
  if (last == L"最后一天" || last == L"最后1天") {
    rule.setByMonthDay({-1});
    cal->tm_mon += 1;
    cal->tm_mday = 0;  // day 0 of the next month is the last day of this one
    mkTM(cal);
  } else if (!match.str(kNumber).empty() && !match.str(kSuffix).empty()) {
    const int day = translateNum(match.str(kNumber));
    rule.setByMonthDay({day});
    cal->tm_mday = day;
    if (isBeforeToday(cal)) cal->tm_mon += 1;
    mkTM(cal);
  }
}

}  // namespace nlpdate
