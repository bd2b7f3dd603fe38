// How the Chinese range recognisers read the two sides of a range.
//
// Design of the four range recognisers (named days, weekdays, holidays, dates
// with times). Each joins a left and a right form with the range word
// (getDurationFlag), searches the title, and reads each side's text on its own:
//
// Forms, tried by the dispatcher in this order:
//   named days   (named day | written date) time?  to  (named day | written date) time?,
//                at least one side a named day: 明天到后天, 今晚到明早, 今天下午3点到明天上午10点.
//                Times are the open forms of getMatchTimePatternOutClock.
//   weekdays     full-date? weekday time?  to  weekday time? | time | day-part word:
//                周一到周三, 下周二到下周四, 周五到下周一, 周五下午3点到5点, 2024年3月5日周二到周四.
//   holidays     lunar holiday time?  to  lunar holiday time? | time | day-part word:
//                春节到元宵节, 中秋节晚上8点到10点.
//   date times   (written date | named day)? clock time  to  (written date | named day)? clock time:
//                3月5日9点到3月6日10点, 明天3点到5点, 下午3点到5点.
// Only the outer groups are read (left side, range word, right side): the
// pieces inside are made non-capturing, and each side's text goes through the
// single-title recognisers again.
//
// Each side: its date from a written date, a weekday (这/本 pin this week,
// 下 adds 7 days, 下下 14, placed with setDayOfWeek and startDay), a named day
// of getSpecialDateMaps or a lunar holiday of holidaySeasonMap; its clock time
// from matchTime, else the hour a named day carries (今晚, 明早), else a
// day-part word of getSpecialHourMap. A side with no clock time is 00:00:00; a
// bare hour of today already past is read in the afternoon (3点 at 10:00 is
// 15:00), as in a single title. Every side must hold a date word, weekday,
// day-part word or digit.
//
// Joining: a start with no date takes the lead date, else the default date;
// an end with no date takes the start's date. An end at or before the start
// moves: a bare end hour to the afternoon when that puts it after the start,
// else to the next day; a weekday end by 7 days; a written end without a year
// by a year (a day alone by a month). A leading full date before a weekday
// gives the start that date and puts the end weekday in the same week.
//
// Past ranges: single-title rolls are not applied per side. A range that has
// already ended rolls as a whole (weekdays by 7 days, a time-only range by a
// day, a written date without a year by a year, a day alone by a month); one
// that has started but not ended stays. 这/本, named days, written years and
// holidays (their table date is already the next one) never roll.
//
// A range with any clock time (day-part words included) carries ON_TIME;
// otherwise no reminder, and it is all-day.
#pragma once

#include <optional>
#include <string>

#include "core/title_parser.h"

namespace nlpdate {

enum class RangeDateKind { None, Written, Weekday, Named, Holiday };

struct RangeSide {
  RangeDateKind kind = RangeDateKind::None;
  OptTM date;                // the day the side names, at 00:00:00
  bool yearWritten = false;  // a written date with its year
  bool monthWritten = false;
  bool pinned = false;  // 这/本 before a weekday
  bool hasTime = false;
  bool hasPeriod = false;    // a morning or afternoon word stood by the time
  long minutes = 0;          // minutes after the start of the side's day; may pass a day
};

// The pattern text with every capturing group made non-capturing, so that a
// combined pattern's own groups keep their numbers.
std::wstring nonCapturing(const std::wstring& pattern);
// "(?:a|b|c)" of the texts.
std::wstring anyOf(const std::vector<std::wstring>& patterns);

}  // namespace nlpdate
