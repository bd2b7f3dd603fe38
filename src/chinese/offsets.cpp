// Chinese relative offsets (3天后, 两个小时20分钟后, 一个半小时后, 5个工作日后) and
// advance reminders (提前10分钟, 提前1小时30分钟, 提前提醒我). Unlike the other
// stages these write the result record directly: the offset's time of day
// goes to the start at once, the day part waits as the pending offset.
#include <map>
#include <string>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "values/duration.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

const wchar_t* const kUnitAfter = L"(\\d{1,3}|两|«N60»)(个)?(分钟|分|小时|天|工作日|周|星期|礼拜|月|年)(后|之后|以后)";
constexpr int kUnitAfterCount = 1;
constexpr int kUnitAfterUnit = 3;

const wchar_t* const kHoursMinutesAfter = L"(\\d{1,3}|两|«N60»)(个)?(小时)(\\d{1,3}|两|«N60»)(分钟|分)(后|之后|以后)";
constexpr int kHoursGroup = 1;
constexpr int kMinutesGroup = 4;
constexpr int kMinuteUnitGroup = 5;

const wchar_t* const kHalfHourAfter = L"(\\d{1,3}|两|«N60»)?(个)?(半)(个)?(小时)(后|之后|以后)";
constexpr int kHalfHoursGroup = 1;

const wchar_t* const kAdvanceAmount =
    L"(提前|提早)(\\d{1,2}|«N60»|半|两)(分钟|小时|天|周|星期|礼拜)((\\d{1,2}|«N60»)分钟?)?";
constexpr int kAdvanceCount = 2;
constexpr int kAdvanceUnit = 3;
constexpr int kAdvanceMinutes = 5;

const wchar_t* const kAdvanceBare = L"(提前|提早)(提醒我)";

// The default of a reminder that names no amount.
constexpr int kDefaultAdvanceMinutes = 5;

}  // namespace

// Filled once per pattern constant and thread.
const std::wstring& NLPNativeTitleParser::fillChineseNumbers(const wchar_t* pattern) {
  thread_local std::map<const wchar_t*, std::wstring> filled;
  auto found = filled.find(pattern);
  if (found == filled.end())
    found = filled.emplace(pattern, fillPieces(pattern, {{L"N60", getChinaNumPattern(60)}})).first;
  return found->second;
}

// Work days are counted over the official calendar, holidays and make-up days included.
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchWorkDaysAfter(const PatternMatch& match) {
  int count = translateNum(match.str(kUnitAfterCount));
  TMPtr cal = getDefaultTM();
  while (count >= 1) {
    cal->tm_mday += 1;
    mkTM(cal.get());
    if (isOfficialWorkDay(cal.get())) count -= 1;
  }
  parserDueDate.startDate = timePointFromTM(*cal);
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(cal));
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchUnitAfter(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillChineseNumbers(kUnitAfter)); }).search(title, match))
    return std::nullopt;
  if (match.str(kUnitAfterUnit) == L"工作日") return matchWorkDaysAfter(match);
  const auto duration =
      getDuration(translateNum(match.str(kUnitAfterCount)), match.str(kUnitAfterUnit), true, Vocabulary{});
  if (!duration) return std::nullopt;
  parserDueDate.startDate = getDefaultTime();
  return NLPRecognizeDate(match.str(0), match.position(0), duration);
}

// A later pattern's offset replaces an earlier pattern's result unless that one starts first.
void NLPNativeTitleParser::takeOffsetMatch(std::optional<NLPRecognizeDate>& result, const PatternMatch& match,
                                           const std::optional<NLPMorvaneDuration>& duration) {
  if (duration) parserDueDate.startDate = getDefaultTime();
  if (result && result->getRecognizeStringStartPosition() < match.position(0)) return;
  if (!result) {
    result = NLPRecognizeDate(match.str(0), match.position(0), duration);
    return;
  }
  result->clearRecogStrings();
  result->addRecogString(match.str(0));
  result->setRecognizeStringStartPosition(match.position(0));
  result->setDuration(duration);
}

int NLPNativeTitleParser::offsetHours(const std::wstring& text) { return isAnOrA(text) ? 1 : translateNum(text); }

void NLPNativeTitleParser::matchHoursMinutesAfter(const std::wstring& title, std::optional<NLPRecognizeDate>& result) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillChineseNumbers(kHoursMinutesAfter)); }).search(title, match))
    return;
  const int hours = offsetHours(match.str(kHoursGroup));
  const std::wstring minutesText = match.str(kMinutesGroup);
  int total = hours * 60;
  if (isAnOrA(minutesText)) {
    total |= 1;
  } else if (!minutesText.empty()) {
    const int minutes = translateNum(minutesText);
    total = minutes > 59 ? minutes : total + minutes;  // minutes past 59 stand alone: kept as it is
  }
  takeOffsetMatch(result, match, getDuration(total, match.str(kMinuteUnitGroup), true, Vocabulary{}));
}

void NLPNativeTitleParser::matchHalfHourAfter(const std::wstring& title, std::optional<NLPRecognizeDate>& result) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(fillChineseNumbers(kHalfHourAfter)); }).search(title, match)) return;
  const int hours = offsetHours(match.str(kHalfHoursGroup));
  takeOffsetMatch(result, match, getDuration(hours * 60 + 30, L"分钟", true, Vocabulary{}));
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchAfterTime(const std::wstring& title) {
  std::optional<NLPRecognizeDate> result = matchUnitAfter(title);
  matchHoursMinutesAfter(title, result);
  matchHalfHourAfter(title, result);
  if (!result || !result->getDuration() || !parserDueDate.startDate) return result;
  const NLPMorvaneDuration duration = *result->getDuration();
  TMPtr cal = tmFromTimePoint(*parserDueDate.startDate);
  if (duration.getHours() == 0 && duration.getMinutes() == 0 && duration.getSeconds() == 0) {
    clearValueAfterDay(cal.get());  // an offset in whole days clears the time
  } else {
    cal->tm_hour += duration.getHours();
    cal->tm_min += duration.getMinutes();
    cal->tm_sec += duration.getSeconds();
    parserDueDate.reminder.push_back(ON_TIME);
  }
  mkTM(cal.get());
  parserDueDate.startDate = timePointFromTM(*cal);
  return result;
}

std::wstring NLPNativeTitleParser::matchAdvanceTime(std::wstring title) {
  PatternMatch match;
  if (compiledOnce([&] { return compilePattern(fillChineseNumbers(kAdvanceAmount)); }).search(title, match)) {
    auto duration = getDuration(match.str(kAdvanceCount), match.str(kAdvanceUnit), Vocabulary{});
    if (duration) {
      if (!match.str(kAdvanceMinutes).empty()) duration->addMinutes(translateNum(match.str(kAdvanceMinutes)));
      parserDueDate.pendingOffset = duration;
      parserDueDate.recognizeStrings.push_back(match.str(0));
    }
    return match.str(0);
  }
  if (!compiledOnce([&] { return compilePattern(kAdvanceBare); }).search(title, match)) return std::wstring();
  parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 0, 0, kDefaultAdvanceMinutes, 0, false);
  parserDueDate.recognizeStrings.push_back(match.str(0));
  return match.str(0);
}

}  // namespace nlpdate
