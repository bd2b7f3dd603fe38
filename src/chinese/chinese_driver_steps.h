// What the Chinese driver holds while it runs: the result of every stage,
// the lead date handed to the time stage, and the stage that leads.
#pragma once

#include <optional>

#include "core/results.h"

namespace nlpdate {

// The stages in the contest of positions; their order of comparison is fixed in the driver.
enum ChineseStage : int {
  kNoStage = -1,
  kWeekdayStage = 0,
  kDateStage = 1,
  kNamedDayStage = 2,
  kOffsetStage = 3,
  kTimeStage = 4,
  kLunarStage = 5,
  kHolidayStage = 6,
};

// Stands above any position: titles are cut far below it.
constexpr long kNoPosition = 60000;

struct ChineseStages {
  NLPRepeatResult repeat{std::nullopt, false};
  std::optional<NLPRecognizeDate> offset;
  std::optional<NLPRecognizeDate> lunar;
  std::optional<NLPRecognizeDate> holiday;
  std::optional<NLPRecognizeDate> weekday;
  std::optional<NLPRecognizeDate> date;
  std::optional<NLPRecognizeDate> named;
  std::optional<NLPRecognizeDate> time;
  std::optional<NLPRecognizeDate> lead;
  int leading = kNoStage;
  long best = kNoPosition;

  bool hasRepeatDate() const { return repeat.repeatDate && *repeat.repeatDate; }
};

// The lead date: the earlier of a written and a lunar date, else the first found of
// lunar, weekday, named day, offset, holiday.
void chooseChineseLead(ChineseStages& stages);
// The contest of positions; sets `leading` and `best`.
void contestChineseStages(ChineseStages& stages);

// Copies year, month and day of `from` into `to`; hour, minute and second stay.
void copyDateOf(const std::tm* from, std::tm* to);
// A result's start record, or null.
std::tm* startOf(const std::optional<NLPRecognizeDate>& result);

}  // namespace nlpdate
