// Ranges of two clock times (9am-11am, 14:30-15:30): the start is placed on
// the base date, or the next day once past, and the end is kept after it.
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "words/range_patterns.h"

namespace nlpdate {

namespace {
// Groups of "«TIME»«FLAG»«TIME»".
constexpr int kStartHourGroup = 3;
constexpr int kStartMinuteGroup = 4;
constexpr int kStartMeridiemGroup = 5;
constexpr int kEndHourGroup = 10;
constexpr int kEndMinuteGroup = 11;
constexpr int kEndMeridiemGroup = 12;
}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnTimeDuration(std::wstring title, Vocabulary vocabulary) {
  const std::vector<Pattern>& forms = keptFor(vocabulary, [&] {
    return compileForEachTime(*this, vocabulary, PatternCase::Sensitive,
                              [flag = rangeFlag(vocabulary)](const std::wstring& time) { return time + flag + time; });
  });
  PatternMatch match;
  bool found = false;
  for (const Pattern& form : forms) {
    if ((found = form.search(title, match))) break;
  }
  if (!found) return std::nullopt;

  TMPtr start = getDefaultTM();
  setTMToDefaultTime(start.get());
  const RangeClock first = readRangeClock(*this, match.str(kStartHourGroup), match.str(kStartMinuteGroup),
                                          match.str(kStartMeridiemGroup), vocabulary);
  const RangeClock second = readRangeClock(*this, match.str(kEndHourGroup), match.str(kEndMinuteGroup),
                                           match.str(kEndMeridiemGroup), vocabulary);
  setRangeClock(start.get(), first);
  TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
  setRangeClock(end.get(), second);
  const bool midnightEnd = second.meridiem == RangeMeridiem::Am && second.hour == 0;
  if (midnightEnd) end->tm_mday += 1;

  const bool startTwoDigits = match.length(kStartHourGroup) == 2 && match.length(kStartMinuteGroup) == 2;
  const bool endTwoDigits = match.length(kEndHourGroup) == 2 && match.length(kEndMinuteGroup) == 2;
  if (isBeforeNow(start.get())) {
    rollEnTimeRangeStart(start.get(), end.get(), first.meridiem != RangeMeridiem::None, startTwoDigits);
  }
  rollEnTimeRangeEnd(start.get(), end.get(), second.hour, midnightEnd, !match.str(kEndMeridiemGroup).empty(),
                     endTwoDigits);
  fixEnTimeRangeOrder(start.get(), end.get(), second.meridiem != RangeMeridiem::None, midnightEnd);
  return makeRangeResult(match, start, end, ON_TIME);
}

// A start already past moves to tomorrow (am/pm or a 24-hour clock) or to the
// evening (a bare hour on a 12-hour clock), and the end follows it.
void NLPNativeTitleParser::rollEnTimeRangeStart(std::tm* start, std::tm* end, bool startHasMeridiem,
                                                bool twoDigitClock) {
  if (startHasMeridiem) {
    start->tm_mday += 1;
    if (isBeforeNow(start)) start->tm_mday -= 1;
  } else if (is24DateFormat && twoDigitClock) {
    start->tm_mday += 1;
    if (isBeforeNow(start)) start->tm_mday += 1;
    for (int i = 0; i < 3; ++i) {
      if (!rangeIsAfter(end, start)) end->tm_mday += 1;
    }
  } else {
    start->tm_hour += 12;
    if (isBeforeNow(start)) {
      start->tm_hour -= 12;
      start->tm_mday += 1;
    }
    for (int i = 0; i < 2; ++i) {
      if (!rangeIsAfter(end, start)) end->tm_hour += 12;
    }
  }
}

// An end already past: with its own am/pm word it moves a day (and back if
// that is not enough); without, by the clock setting and the hour.
void NLPNativeTitleParser::rollEnTimeRangeEnd(std::tm* start, std::tm* end, int endHour, bool midnightEnd,
                                              bool endMeridiemText, bool twoDigitClock) {
  if (!isBeforeNow(end)) return;
  if (endMeridiemText) {
    if (!midnightEnd) {
      end->tm_mday += 1;
      if (isBeforeNow(end)) end->tm_mday -= 1;
    }
  } else if (is24DateFormat && twoDigitClock) {
    end->tm_mday += 1;
  } else if (endHour < 12) {
    start->tm_hour += 12;
    if (!midnightEnd) end->tm_hour += 12;
  } else {
    end->tm_mday += 1;
  }
}

// An end still before the start moves on by days, or by half a day on a
// 12-hour clock without am/pm.
void NLPNativeTitleParser::fixEnTimeRangeOrder(std::tm* start, std::tm* end, bool endHasMeridiem, bool midnightEnd) {
  if (!rangeIsAfter(start, end)) return;
  if (endHasMeridiem) {
    if (!midnightEnd || end->tm_mday <= start->tm_mday) {
      end->tm_mday += 1;
      if (rangeIsAfter(start, end)) end->tm_mday += 1;
    }
  } else if (is24DateFormat) {
    end->tm_mday += 1;
    if (rangeIsAfter(start, end)) end->tm_mday += 1;
  } else {
    end->tm_hour += 12;
    if (rangeIsAfter(start, end)) {
      end->tm_hour -= 12;
      end->tm_mday += 1;
    }
  }
}

}  // namespace nlpdate
