// Joining the two sides of a Chinese range: the end takes the start's day
// when it names none, an end before the start moves on, and a range already
// over rolls as a whole. The rules are told at the head of range_sides.h.
#include "chinese/range_sides.h"
#include "core/calendar_ops.h"
#include "values/duration.h"

namespace nlpdate {

namespace {

TMPtr atMinutes(const TMPtr& day, long minutes) {
  TMPtr record = newTM(*day);
  record->tm_hour = 0;
  record->tm_min = static_cast<int>(minutes);
  record->tm_sec = 0;
  mkTM(record.get());
  return record;
}

bool notAfter(std::tm* end, std::tm* start) {
  return secondsOf(timePointFromTM(*end)) <= secondsOf(timePointFromTM(*start));
}

void moveBoth(std::tm* start, std::tm* end, int years, int months, int days) {
  for (std::tm* record : {start, end}) {
    record->tm_year += years;
    record->tm_mon += months;
    record->tm_mday += days;
    mkTM(record);
  }
}

}  // namespace

// A bare hour of today already past reads in the afternoon, as in a single title.
void NLPNativeTitleParser::readBareHourAsAfternoon(std::tm* record, const RangeSide& side) {
  if (!side.hasTime || side.hasPeriod || record->tm_hour > 11 || !isToday(record)) return;
  if (!isBeforeNow(record)) return;
  record->tm_hour += 12;
  mkTM(record);
}

void NLPNativeTitleParser::moveEndAfterStart(std::tm* start, std::tm* end, const RangeSide& right) {
  if (!notAfter(end, start)) return;
  if (!right.date) {
    TMPtr afternoon = newTM(*end);
    afternoon->tm_hour += 12;
    mkTM(afternoon.get());
    const bool bareMorningHour = right.hasTime && !right.hasPeriod && end->tm_hour < 12;
    if (bareMorningHour && !notAfter(afternoon.get(), start)) {
      *end = *afternoon;
    } else {
      end->tm_mday += 1;
    }
  } else if (right.kind == RangeDateKind::Weekday) {
    end->tm_mday += 7;
  } else if (right.kind == RangeDateKind::Written && !right.yearWritten) {
    if (right.monthWritten) {
      end->tm_year += 1;
    } else {
      end->tm_mon += 1;
    }
  }
  mkTM(end);
}

void NLPNativeTitleParser::rollEndedRange(std::tm* start, std::tm* end, const RangeSide& left, const RangeSide& right,
                                          bool hasTime, bool dayGiven) {
  const bool ended = hasTime ? isBeforeNow(newTM(*end).get()) : isBeforeToday(newTM(*end).get());
  if (!ended) return;
  const bool fixed = left.pinned || right.pinned || left.kind == RangeDateKind::Named ||
                     right.kind == RangeDateKind::Named || left.kind == RangeDateKind::Holiday || left.yearWritten;
  if (fixed) return;
  if (left.kind == RangeDateKind::Weekday) {
    moveBoth(start, end, 0, 0, 7);
  } else if (left.kind == RangeDateKind::Written) {
    moveBoth(start, end, left.monthWritten ? 1 : 0, left.monthWritten ? 0 : 1, 0);
  } else if (left.kind == RangeDateKind::None && right.kind == RangeDateKind::None && !dayGiven) {
    moveBoth(start, end, 0, 0, 1);
  }
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::joinRangeSides(const PatternMatch& match, int leftGroup,
                                                                     int rightGroup, OptTM fallbackDay) {
  const std::optional<RangeSide> left = readRangeSide(match.str(leftGroup));
  const std::optional<RangeSide> right = readRangeSide(match.str(rightGroup));
  if (!left || !right) return std::nullopt;
  const bool dayGiven = fallbackDay && *fallbackDay;
  TMPtr firstDay = left->date ? *left->date : dayGiven ? newTM(**fallbackDay) : rangeDefaultDay();
  clearValueAfterDay(firstDay.get());
  TMPtr start = atMinutes(firstDay, left->minutes);
  readBareHourAsAfternoon(start.get(), *left);
  TMPtr endDay = right->date ? *right->date : firstDay;
  if (right->kind == RangeDateKind::Weekday && left->kind == RangeDateKind::Written && left->yearWritten &&
      !right->pinned) {
    // After a full date, the end weekday lies in the start's week.
    endDay = newTM(*firstDay);
    setDayOfWeek(endDay.get(), getWeekDay(right->date->get()), startDay);
  }
  TMPtr end = atMinutes(endDay, right->minutes);
  if (right->date) readBareHourAsAfternoon(end.get(), *right);
  moveEndAfterStart(start.get(), end.get(), *right);
  const bool hasTime = left->hasTime || right->hasTime;
  rollEndedRange(start.get(), end.get(), *left, *right, hasTime, dayGiven);
  NLPRecognizeDate result(match.str(0), match.position(0), OptTM(start), OptTM(end));
  if (hasTime) result.setReminder(ON_TIME);
  return result;
}

}  // namespace nlpdate
