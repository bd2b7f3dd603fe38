// The Chinese family's driver. It runs every Chinese stage over the title in
// a fixed order, lets the stage whose text starts first lead, merges its date
// with the time of day and the repeat date, rolls a past value forward and
// writes the outcome into the result. Only the driver cuts its title.
#include "chinese/chinese_driver_steps.h"
#include "core/calendar_ops.h"
#include "core/title_parser.h"

namespace nlpdate {

bool NLPNativeTitleParser::chineseDateRecognition(std::wstring title, OptTime baseDate, Vocabulary vocabulary) {
  ChineseStages stages;
  stages.repeat = matchRepeat(title);
  // The recognised texts are taken as patterns here, unescaped, as they always have been.
  const std::list<std::wstring> recognised = parserDueDate.recognizeStrings;
  for (const std::wstring& text : recognised) deleteStringByRegex(title, text);
  deleteConfusionString(title);
  stages.offset = matchAfterTime(title);
  if (takeChineseRange(title, baseDate, vocabulary, stages.repeat.repeatDate)) return true;
  stages.lunar = matchLunar(title);
  stages.holiday = matchHoliday(title);
  stages.weekday = matchWeekDay(title);
  stages.date = matchDate(title);
  stages.named = matchTodayAndSoOn(title);
  chooseChineseLead(stages);
  stages.time = matchTime(stages.lead, title, baseDate, stages.repeat.repeatDate);
  contestChineseStages(stages);
  if (stages.leading == kOffsetStage) return finishChineseOffset(stages, title);
  if (stages.leading == kTimeStage) letWordDatesLead(stages, title, vocabulary);
  const std::wstring advance = matchAdvanceTime(title);
  if (!advance.empty()) deleteStringByRegex(title, advance);
  OptTM cal = mergeChineseTime(stages, title);
  if (stages.time) collectChineseResult(*stages.time);
  cal = collectChineseStage(stages, cal);
  copyDefaultTimeToCal(baseDate, cal, stages.leading);
  if (stages.leading != kNoStage) cal = handleSpecialAm(cal, title, vocabulary);
  if (cal && *cal) {
    parserDueDate.startDate = timePointFromTM(**cal);
  } else {
    parserDueDate.startDate.reset();
  }
  return stages.leading != kNoStage || (cal && *cal);
}

bool NLPNativeTitleParser::takeChineseRange(const std::wstring& title, OptTime baseDate, Vocabulary vocabulary,
                                            OptTM repeatDate) {
  std::optional<NLPRecognizeDate> range = chineseDateDurationRecognition(title, baseDate, vocabulary, repeatDate);
  if (!range) range = englishDateDurationRecognition(title, vocabulary);
  if (!range) return false;
  writeRange(*range);
  return true;
}

void NLPNativeTitleParser::collectChineseResult(const NLPRecognizeDate& result) {
  parserDueDate.addAllRecogStr(result.getRecogString());
  if (!result.getReminder().empty()) parserDueDate.reminder.push_back(result.getReminder());
}

// An offset that leads: its time (if any) lands on today's date, and the offset
// itself is applied after recognition.
bool NLPNativeTitleParser::finishChineseOffset(ChineseStages& stages, std::wstring& title) {
  if (stages.time) {
    const std::wstring advance = matchAdvanceTime(title);
    if (!advance.empty()) deleteStringByRegex(title, advance);
    TMPtr cal = *stages.time->getStartCal();
    collectChineseResult(*stages.time);
    copyDateOf(getDefaultTM().get(), cal.get());
    parserDueDate.startDate = timePointFromTM(*cal);
  }
  parserDueDate.addAllRecogStr(stages.offset->getRecogString());
  parserDueDate.pendingOffset = stages.offset->getDuration();
  return true;
}

// A time that stands before every Chinese date word: the word-language month
// and named-day readers get their say instead of the Chinese date stages.
void NLPNativeTitleParser::letWordDatesLead(ChineseStages& stages, const std::wstring& title, Vocabulary vocabulary) {
  const std::optional<NLPRecognizeDate> named = matchEnSpecialDate(title, vocabulary);
  const std::optional<NLPRecognizeDate> month = matchEnMonth(title, vocabulary);
  stages.date = month;
  stages.named = named;
  if (stages.date && stages.best > stages.date->getRecognizeStringStartPosition()) {
    stages.best = stages.date->getRecognizeStringStartPosition();
    stages.leading = kDateStage;
  }
  if (stages.named && stages.best > stages.named->getRecognizeStringStartPosition()) stages.leading = kNamedDayStage;
}

}  // namespace nlpdate
