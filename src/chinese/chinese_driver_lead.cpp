// Which Chinese stage leads: the lead date handed to the time stage, and the
// contest of start positions that picks the one stage whose date is used.
#include "chinese/chinese_driver_steps.h"

namespace nlpdate {

void copyDateOf(const std::tm* from, std::tm* to) {
  to->tm_year = from->tm_year;
  to->tm_mon = from->tm_mon;
  to->tm_mday = from->tm_mday;
}

std::tm* startOf(const std::optional<NLPRecognizeDate>& result) {
  if (!result) return nullptr;
  const OptTM start = result->getStartCal();
  return start && *start ? start->get() : nullptr;
}

void chooseChineseLead(ChineseStages& stages) {
  if (stages.date && stages.lunar) {
    const bool dateFirst =
        stages.date->getRecognizeStringStartPosition() < stages.lunar->getRecognizeStringStartPosition();
    stages.lead = dateFirst ? stages.date : stages.lunar;
  } else if (stages.date) {
    stages.lead = stages.date;
  } else {
    for (const auto* candidate : {&stages.lunar, &stages.weekday, &stages.named, &stages.offset, &stages.holiday}) {
      if (*candidate) {
        stages.lead = *candidate;
        break;
      }
    }
  }
}

namespace {

// Takes the stage when `best` lies beyond its position (or at it, when ties count).
bool take(ChineseStages& stages, const std::optional<NLPRecognizeDate>& result, int stage, bool tieWins = false) {
  if (!result) return false;
  const long position = result->getRecognizeStringStartPosition();
  if (!(stages.best > position || (tieWins && stages.best == position))) return false;
  stages.best = position;
  stages.leading = stage;
  return true;
}

}  // namespace

void contestChineseStages(ChineseStages& stages) {
  stages.best = kNoPosition;
  stages.leading = kNoStage;
  take(stages, stages.weekday, kWeekdayStage);
  // A date that leads skips the holiday altogether, even one that starts earlier: kept as it is.
  if (!take(stages, stages.date, kDateStage)) take(stages, stages.holiday, kHolidayStage);
  take(stages, stages.named, kNamedDayStage);
  take(stages, stages.offset, kOffsetStage);
  take(stages, stages.time, kTimeStage);
  take(stages, stages.lunar, kLunarStage, true);  // lunar wins every tie, on purpose
}

}  // namespace nlpdate
