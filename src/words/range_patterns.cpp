// The shared numeric pieces and clock readers of the word-language range
// recognisers.
#include "words/range_patterns.h"

#include "core/calendar_ops.h"
#include "vocabulary/keys.h"
#include "vocabulary/range_word.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

const wchar_t* const kRangeYearMonthDay =
    LR"~((\(|\b)(\d{4}|\d{2})([«DATE_DIVIDER»])?(1[0-2]|0?[1-9])([«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])(\)|\b)(\s)*)~";
const wchar_t* const kRangeMonthDayYear =
    LR"~((\(|\b)(1[0-2]|0?[1-9])([«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])([«DATE_DIVIDER»])?(\d{4}|\d{2})?(\)|\b)(\s)*)~";
const wchar_t* const kRangeMonthDay =
    LR"~((\(|\b)?(1[0-2]|0?[1-9])([«DATE_DIVIDER»])(3[0-1]|[0-2]?[0-9])(\)|\b)?(\s)*)~";
const wchar_t* const kRangeDayOnly =
    LR"~((\(|\b)(\s?(«DAY_OF_MONTH_DIGITAL»))(«DAY_END»)?[ ,]( *(«FOUR_OR_TWO_YEAR_DIGITAL»))?)~";

std::wstring rangeFlag(const Vocabulary& vocabulary) { return getDurationFlag(vocabulary); }

RangeClock readRangeClock(NLPNativeTitleParser& parser, const std::wstring& hourText, const std::wstring& minuteText,
                          const std::wstring& meridiemText, const Vocabulary& vocabulary, int hourLimit) {
  RangeClock clock;
  clock.hour = parser.translateNum(hourText);
  clock.minute = minuteText.empty() ? 0 : parser.translateNum(minuteText);
  if (meridiemText.empty() || clock.hour > hourLimit) return clock;
  const auto pm = vocabulary.find(PM);
  const auto am = vocabulary.find(AM);
  if (pm != vocabulary.end() && containStr(meridiemText, pm->second)) {
    clock.meridiem = RangeMeridiem::Pm;
    if (clock.hour < 12) clock.hour += 12;
  } else if (am != vocabulary.end() && containStr(meridiemText, am->second)) {
    clock.meridiem = RangeMeridiem::Am;
    if (clock.hour == 12) clock.hour = 0;
  }
  return clock;
}

void setRangeClock(std::tm* record, const RangeClock& clock) {
  record->tm_min = clock.minute;
  record->tm_hour = clock.hour;
}

bool rangeIsAfter(std::tm* first, std::tm* second) { return std::mktime(first) > std::mktime(second); }

TMPtr copyRangeRecord(const std::tm* record) {
  TMPtr copy = newTM(*record);
  mkTM(copy.get());
  return copy;
}

std::vector<Pattern> compileTimedForm(NLPNativeTitleParser& parser, const Vocabulary& vocabulary, const wchar_t* form,
                                      PatternPieces pieces, const std::wstring& timeKey) {
  return compileForEachTime(parser, vocabulary, PatternCase::Insensitive, [&](const std::wstring& time) {
    pieces[timeKey] = time;
    return fillPieces(form, pieces);
  });
}

bool searchRange(const std::wstring& title, const std::wstring& text, PatternCase mode, PatternMatch& match) {
  return compilePattern(text, mode).search(title, match);
}

int rangeYearValue(NLPNativeTitleParser& parser, std::wstring text) {
  trim(text);
  const int year = parser.translateNum(text) + (text.size() < 4 ? 2000 : 0);
  return year - 1900;
}

NLPRecognizeDate makeRangeResult(const PatternMatch& match, const TMPtr& start, const TMPtr& end,
                                 const std::wstring& reminder) {
  mkTM(start.get());
  mkTM(end.get());
  NLPRecognizeDate result(match.str(0), match.position(0), start, end);
  if (!reminder.empty()) result.setReminder(reminder);
  return result;
}

}  // namespace nlpdate
