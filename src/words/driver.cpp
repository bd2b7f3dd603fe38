// The word-language driver: runs a title through every word-language
// recogniser in a fixed order, decides which result overrules which, merges
// date and time, and writes the result record.
#include <list>

#include "core/title_parser.h"
#include "words/date_pick.h"

namespace nlpdate {

bool NLPNativeTitleParser::englishDateRecognition(std::wstring title, OptTime baseDate, Vocabulary vocabulary,
                                                  bool isFrench, std::wstring language) {
  const bool result = repeatHelper(title, vocabulary);
  for (const std::wstring& text : std::list<std::wstring>(parserDueDate.recognizeStrings)) {
    deleteStringByRegex(title, text);
  }
  const std::wstring advanceText = matchEnAdvanceTime(title, vocabulary);
  if (!advanceText.empty()) deleteStringByRegex(title, advanceText);
  const std::optional<NLPRecognizeDate> offset = matchEnAfterTime(title, vocabulary);
  if (takeEnRange(title, baseDate, vocabulary)) return true;

  const std::optional<NLPRecognizeDate> weekday = matchEnWeekDay(title, vocabulary);
  const std::optional<NLPRecognizeDate> japan = matchJapanHoliday(title, language);
  const std::optional<NLPRecognizeDate> special = matchEnSpecialDate(title, vocabulary);
  const std::optional<NLPRecognizeDate> month = matchEnMonth(title, vocabulary);
  const std::optional<NLPRecognizeDate> numeric = matchEnDate(title, vocabulary);
  const NLPDatePick pick = pickEarliestDate(weekday, special, month, numeric, japan);
  if (offset && pick.position > offset->getRecognizeStringStartPosition()) {
    return finishEnOffset(*offset, offset->getStartCal(), title, vocabulary, isFrench);
  }

  // A date found wins; else a date the repeat stage left; else the default day.
  TMPtr calendar = (pick.cal && *pick.cal) ? *pick.cal : getDefaultTM();
  bool hasDate = pick.cal && *pick.cal;
  if (!hasDate && parserDueDate.startDate) {
    copyTM(tmFromTimePoint(*parserDueDate.startDate).get(), calendar.get());
    hasDate = true;
  }
  if (pick.kind == 2) {
    // A month-name date is the one date kind cut before the time is read.
    for (const std::wstring& text : month->getRecogString()) deleteStringByRegex(title, text);
  }
  OptTM timeCal = matchEnTimeOnDate(title, calendar.get(), hasDate, pick.kind == -1, vocabulary, isFrench);
  if (pick.winner) timeCal = mergeEnDate(pick.kind, *pick.winner, timeCal);

  copyDefaultTimeToCal(baseDate, timeCal, pick.kind);
  timeCal = handleSpecialAm(timeCal, title, vocabulary);
  if (timeCal && *timeCal) {
    parserDueDate.startDate = timePointFromTM(**timeCal);
    return true;
  }
  if (!advanceText.empty()) {
    parserDueDate.startDate = timePointFromTM(*getDefaultTM());
    return true;
  }
  return result;
}

bool NLPNativeTitleParser::takeEnRange(const std::wstring& title, OptTime baseDate, Vocabulary vocabulary) {
  std::optional<NLPRecognizeDate> range = englishDateDurationRecognition(title, vocabulary);
  // The Chinese range recogniser is a second chance inside the word-language flow.
  if (!range) range = chineseDateDurationRecognition(title, baseDate, vocabulary, std::nullopt);
  if (!range) return false;
  writeRange(*range);
  return true;
}

void NLPNativeTitleParser::writeRange(const NLPRecognizeDate& range) {
  for (const std::wstring& text : range.getRecogString()) parserDueDate.recognizeStrings.push_back(text);
  const OptTM start = range.getStartCal();
  if (start && *start) parserDueDate.startDate = timePointFromTM(**start);
  const OptTM end = range.getEndCal();
  if (end && *end) parserDueDate.dueDate = timePointFromTM(**end);
  if (!range.getReminder().empty()) parserDueDate.reminder.push_back(range.getReminder());
}

bool NLPNativeTitleParser::finishEnOffset(const NLPRecognizeDate& offset, OptTM dateCal, const std::wstring& title,
                                          Vocabulary vocabulary, bool isFrench) {
  const bool hasDate = dateCal && *dateCal;
  TMPtr calendar = hasDate ? *dateCal : getDefaultTM();
  const OptTM timeCal = matchEnTimeOnDate(title, calendar.get(), hasDate, false, vocabulary, isFrench);
  if (timeCal && *timeCal && parserDueDate.startDate) {
    TMPtr start = tmFromTimePoint(*parserDueDate.startDate);
    start->tm_hour = (*timeCal)->tm_hour;
    start->tm_min = (*timeCal)->tm_min;
    start->tm_sec = (*timeCal)->tm_sec;
    parserDueDate.startDate = timePointFromTM(*start);
  } else if (timeCal && *timeCal) {
    parserDueDate.startDate = timePointFromTM(**timeCal);
  }
  parserDueDate.addAllRecogStr(offset.getRecogString());
  // The offset itself is applied after recognition, to the start or as a reminder.
  parserDueDate.pendingOffset = offset.getDuration();
  return true;
}

OptTM NLPNativeTitleParser::matchEnTimeOnDate(const std::wstring& title, std::tm* calendar, bool hasDate,
                                              bool bareTimeRolls, Vocabulary vocabulary, bool isFrench) {
  OptTM timeCal = matchEnTime(title, calendar, vocabulary, hasDate, isFrench);
  if (timeCal) {
    if (bareTimeRolls && isBeforeNow(timeCal->get())) rollBareTime(timeCal->get(), title, vocabulary, isFrench);
    return timeCal;
  }
  timeCal = matchSpecialEnTime(title, calendar, vocabulary);
  if (timeCal && isBeforeNow(timeCal->get())) rollNamedHour(timeCal->get(), title, vocabulary);
  return timeCal;
}

OptTM NLPNativeTitleParser::mergeEnDate(int dateKind, const NLPRecognizeDate& winner, OptTM timeCal) {
  parserDueDate.addAllRecogStr(winner.getRecogString());
  const OptTM start = winner.getStartCal();
  if (!start || !*start) return timeCal;
  if (!timeCal || !*timeCal) return start;
  std::tm* time = timeCal->get();
  if (dateKind == 0) {
    // The weekday's week and day of month; year and month stay those of the time.
    setDayOfWeek(time, getWeekDay(start->get()), startDay);
    time->tm_mday = (*start)->tm_mday;
  } else {
    time->tm_year = (*start)->tm_year;
    time->tm_mon = (*start)->tm_mon;
    time->tm_mday = (*start)->tm_mday;
  }
  return timeCal;
}

}  // namespace nlpdate
