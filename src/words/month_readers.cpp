// Readers of the month patterns that carry a clock time, a bare ordinal day,
// or a day before a month with no borders.
#include "vocabulary/keys.h"
#include "words/month_steps.h"

namespace nlpdate {

namespace {

// A passed time tries the evening of the same day, then the next day, then
// the next year, and undoes each try that does not help.
void rollClockForward(NLPNativeTitleParser& parser, std::tm* record) {
  if (record->tm_hour < 12) {
    if (parser.isBeforeNow(record)) {
      record->tm_hour += 12;
      if (parser.isBeforeNow(record)) {
        record->tm_hour -= 12;
        record->tm_mday += 1;
        if (parser.isBeforeNow(record)) record->tm_mday -= 1;
      }
    }
  } else if (parser.isBeforeNow(record)) {
    record->tm_mday += 1;
    if (parser.isBeforeNow(record)) record->tm_mday -= 1;
  }
  if (parser.isBeforeNow(record)) {
    record->tm_year += 1;
    if (parser.isBeforeNow(record)) record->tm_year -= 1;
  }
}

}  // namespace

NLPRecognizeDate readMonthWithClock(NLPNativeTitleParser& parser, const PatternMatch& match,
                                    const MonthClockGroups& groups, const Vocabulary& vocabulary) {
  TMPtr record = parser.getEnMonthCalendar(match[groups.month].str(), vocabulary);
  record->tm_mday = parser.translateNum(match[groups.day].str());
  record->tm_hour = parser.translateNum(match[groups.hour].str());
  record->tm_min = parser.translateNum(match[groups.minute].str());
  rollClockForward(parser, record.get());
  parser.parserDueDate.startDate.reset();
  parser.parserDueDate.reminder.push_back(ON_TIME);
  return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
}

// "5th" that has passed this month means the 5th of next month.
NLPRecognizeDate readOrdinalDay(NLPNativeTitleParser& parser, const PatternMatch& match) {
  TMPtr record = parser.getDefaultTM();
  std::wstring day = match[4].str();
  if (!day.empty()) record->tm_mday = parser.translateNum(day);
  if (parser.isBeforeToday(record.get())) record->tm_mon += 1;
  parser.clearValueAfterDay(record.get());
  return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
}

// No roll forward here: the date stands as written.
NLPRecognizeDate readDayFirstMonth(NLPNativeTitleParser& parser, const PatternMatch& match,
                                   const Vocabulary& vocabulary) {
  TMPtr record = parser.getEnMonthCalendar(match[2].str(), vocabulary);
  if (!match[1].str().empty()) record->tm_mday = parser.translateNum(match[1].str());
  if (!match[3].str().empty()) record->tm_year = parser.translateNum(match[3].str()) - 1900;
  parser.clearValueAfterDay(record.get());
  return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
}

}  // namespace nlpdate
