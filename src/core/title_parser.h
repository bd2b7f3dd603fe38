// The parser object: the user's settings, the holiday tables, the result of
// the title in hand, the calendar helpers every recogniser stands on, and the
// recognisers themselves as member functions. One object serves one title on
// one thread; the host builds it, applies the settings, calls parse once and
// drops it.
#pragma once

#include <list>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/calendar_ops.h"
#include "core/results.h"
#include "core/types.h"
#include "values/duration.h"
#include "values/rrule.h"
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

struct ChineseStages;
struct RangeSide;
enum class RangePiece { Named, Written, Weekday, OpenTime, ClockTime, BareTime, DayPart, Holiday };

class NLPNativeTitleParser {
 public:
  NLPNativeTitleParser() = default;

  // ---- settings -----------------------------------------------------------
  void setCustomizeHour(int morningHour, int morningMinute, int afternoonHour, int afternoonMinute, int eveningHour,
                        int eveningMinute, int nightHour, int nightMinute);
  void setStartDay(WeekDay day);
  // The host's first-weekday number: 1 is Sunday, 2..7 Monday..Saturday,
  // anything else Sunday.
  void setStartDay(int hostWeekday);
  void setIs24DateFormat(bool value);
  void setIsUsOrUkDateFormat(bool value);
  void setDefaultTimeSecond(long value);
  bool isIsUsOrUkDateFormat() const { return isUsOrUkDateFormat; }

  // ---- clock: every reading of "now" goes through these ---------------------
  TimePoint getDefaultTime();
  TMPtr getDefaultTM();
  TMPtr getTM(long seconds);
  long today();
  long tomorrow();

  // ---- calendar operations
  // ----------------------------------------------------
  std::tm* getNextDayOfWeek(std::tm* record, WeekDay day);
  std::tm* getLastDayOfWeek(std::tm* record, WeekDay day);
  OptTM getNextDayOfWeek(OptTM record, WeekDay day);
  OptTM getLastDayOfWeek(OptTM record, WeekDay day);
  void clearValueAfterDay(std::tm* record);
  void setTMToDefaultTime(std::tm* record);
  void copyDefaultTimeToCal(OptTime base, OptTM cal, int dateKind);
  void setCalendarToDefaultTimeWithoutDefaultDate(TimePoint& point);
  bool isBeforeNow(std::tm* record);
  bool isBeforeToday(std::tm* record);
  bool isBeforeToday(OptTM record);
  bool isToday(std::tm* record);

  // ---- parse flow
  // --------------------------------------------------------------- The JSON
  // text of the title, or the empty string if anything went wrong.
  std::wstring parse(std::wstring title, std::wstring baseDate, std::wstring language);
  std::wstring parseTitle(std::wstring title, OptTime baseDate, std::wstring language);
  // The base date text read by the date pattern; an empty optional when it does
  // not read.
  OptTime readBaseDate(const std::wstring& text);
  // What follows recognition: cleans the recognised strings, applies the
  // pending offset, drops an end that is not after the start, computes
  // isAllDay, adds a reminder request, writes the JSON, clears the result.
  std::wstring finishResult(const std::wstring& title);

  // ---- holidays and work days
  // -----------------------------------------------------
  void setHolidayDay(std::wstring text);
  void setJapanHolidayDay(std::wstring text);
  void initHolidaySeasonMap(const std::wstring& ignored);
  void setLunarHolidayByKey(std::map<std::wstring, int>& map, const std::wstring& key, const int* table, int count,
                            int defaultValue);
  bool isOfficialWorkDay(std::tm* record);
  std::list<std::wstring> getLunarHolidays();
  // [calendar: further declarations go here]

  // ---- numbers in words
  // -------------------------------------------------------------
  int translateNum(std::wstring text);
  int matchNum(std::wstring text);
  int matchEnglishNum(std::wstring text, Vocabulary vocabulary);
  const std::wstring& getChinaNumPattern(int limit);

  // ---- title clean-up
  // ---------------------------------------------------------------
  std::wstring deleteStringByRegex(std::wstring& text, const std::wstring& pattern);
  std::wstring deleteWebUrl(std::wstring& title);
  std::wstring deleteNumber(std::wstring& title);
  std::wstring deleteSerialNumber(std::wstring& title);
  std::wstring deleteConfusionString(std::wstring& title);
  // [vocabulary: further declarations go here]

  // ---- Chinese family
  // ------------------------------------------------------------------
  bool chineseDateRecognition(std::wstring title, OptTime baseDate, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> chineseDateDurationRecognition(std::wstring title, OptTime defaultDate,
                                                                 Vocabulary vocabulary, OptTM leadDate);
  OptTM handleSpecialAm(OptTM cal, std::wstring title, Vocabulary vocabulary);
  void setYear(std::wstring year, TMPtr cal);
  // [chinese: further declarations go here]
  // Written dates.
  const std::wstring& getChineseMonthDayYearPattern();
  const std::vector<std::wstring>& getChineseDatePattern();
  std::optional<NLPRecognizeDate> getMatchDateResult(const Pattern& pattern, const std::wstring& title, int yearGroup,
                                                     int monthGroup, int dayGroup, int yearSeparatorGroup,
                                                     int monthSeparatorGroup);
  std::optional<NLPRecognizeDate> matchDate(std::wstring title);
  bool isOverMonthLimit(std::wstring month);
  // Named days and weekdays.
  std::map<std::wstring, int> getSpecialDateMaps();
  std::wstring getSpecialDateRecognition();
  std::wstring getSpecialDateRecognitionWithNextWeek();
  std::optional<NLPRecognizeDate> matchTodayAndSoOn(std::wstring title);
  std::optional<NLPRecognizeDate> matchWeekDay(std::wstring title);
  // Time of day.
  std::wstring getAMFlag();
  std::wstring getPMFlag();
  std::map<std::wstring, std::pair<int, int>> getSpecialHourMap();
  const std::vector<std::wstring>& getMatchTimePattern();
  const std::vector<std::wstring>& getMatchTimePatternOutClock();
  const std::vector<std::wstring>& getMatchTimePatternWithoutClockWord();
  std::optional<NLPRecognizeDate> matchTime(std::optional<NLPRecognizeDate>& dateResult, std::wstring title,
                                            OptTime defaultDate, OptTM repeatDate);
  std::optional<NLPRecognizeDate> matchSpecialTime(std::wstring title);
  // Steps of matchTime.
  bool applyChinesePeriod(std::tm* cal, int hour, const std::wstring& working, NLPRecognizeDate& result);
  void rollPastChineseTime(std::tm* cal, int hour, int minute, bool hasPeriod, const std::wstring& working,
                           const NLPRecognizeDate& result);
  std::optional<NLPRecognizeDate> matchLastChanceTime(const std::wstring& title);
  // Steps of chineseDateRecognition.
  bool takeChineseRange(const std::wstring& title, OptTime baseDate, Vocabulary vocabulary, OptTM repeatDate);
  void collectChineseResult(const NLPRecognizeDate& result);
  bool finishChineseOffset(ChineseStages& stages, std::wstring& title);
  void letWordDatesLead(ChineseStages& stages, const std::wstring& title, Vocabulary vocabulary);
  OptTM mergeChineseTime(ChineseStages& stages, const std::wstring& title);
  OptTM collectChineseStage(ChineseStages& stages, OptTM cal);
  void rollByRule(std::tm* cal);
  void rollByTimeWord(std::tm* cal, const ChineseStages& stages);
  bool ruleHasWeekDay(std::tm* cal);
  void moveToRuleWeekDay(std::tm* cal);
  void markLunarYearlyRule();
  // Stages of chineseDateRecognition that the offset, lunar, holiday and repeat
  // recognisers fill in.
  NLPRepeatResult matchRepeat(std::wstring title);
  std::optional<NLPRecognizeDate> matchAfterTime(const std::wstring& title);
  std::wstring matchAdvanceTime(std::wstring title);
  const std::vector<std::wstring>& getLunarPattern();
  std::optional<NLPRecognizeDate> matchLunar(std::wstring title);
  std::wstring getHolidayDateRecognition();
  std::optional<NLPRecognizeDate> matchHoliday(std::wstring title);
  // [chinese-stages: further declarations go here]
  // Steps of matchAfterTime.
  const std::wstring& fillChineseNumbers(const wchar_t* pattern);
  std::optional<NLPRecognizeDate> matchUnitAfter(const std::wstring& title);
  std::optional<NLPRecognizeDate> matchWorkDaysAfter(const PatternMatch& match);
  void matchHoursMinutesAfter(const std::wstring& title, std::optional<NLPRecognizeDate>& result);
  void matchHalfHourAfter(const std::wstring& title, std::optional<NLPRecognizeDate>& result);
  void takeOffsetMatch(std::optional<NLPRecognizeDate>& result, const PatternMatch& match,
                       const std::optional<NLPMorvaneDuration>& duration);
  int offsetHours(const std::wstring& text);
  // Steps of matchLunar.
  std::optional<NLPRecognizeDate> matchNewYearDay(const std::wstring& title);
  void placeLunarDate(std::tm* cal, int year, int month, int day, bool yearWritten);
  void extendRuleWithLunarDate(int month, int day);
  // Forms of matchRepeat.
  const std::wstring& fillRepeatNumbers(const wchar_t* pattern);
  void storeChineseRule(const StringRRule& rule);
  std::optional<NLPRepeatResult> matchYearDayRepeat(const std::wstring& title);
  std::optional<NLPRepeatResult> matchNthWeekdayRepeat(const std::wstring& title);
  std::optional<NLPRepeatResult> matchTwoDaysRepeat(const std::wstring& title);
  std::optional<NLPRepeatResult> matchYearlyHolidayRepeat(const std::wstring& title);
  std::optional<NLPRepeatResult> matchOfficialWorkDayRepeat(const std::wstring& title);
  NLPRepeatResult matchGeneralRepeat(const std::wstring& title);
  void readWeeklyGeneral(const PatternMatch& match, StringRRule& rule, std::tm* cal);
  void readMonthlyGeneral(const PatternMatch& match, StringRRule& rule, std::tm* cal);
  TMPtr nthWeekdayOfMonth(int n, WeekDay weekday);
  // Chinese ranges: the written-date range and the four range recognisers the
  // dispatcher tries.
  std::optional<NLPRecognizeDate> chineseDateDurationDateRecognition(std::wstring title);
  std::optional<NLPRecognizeDate> chineseSpecialDayDurationRecognition(std::wstring title);
  std::optional<NLPRecognizeDate> chineseWeekDayDurationRecognition(std::wstring title);
  std::optional<NLPRecognizeDate> chineseHolidayDurationRecognition(std::wstring title);
  std::optional<NLPRecognizeDate> chineseDateDurationDateTimeRecognition(std::wstring title, OptTime defaultDate,
                                                                         OptTM leadDate);
  // [chinese-ranges: further declarations go here]
  std::optional<NLPRecognizeDate> readWrittenDateRange(const PatternMatch& match);
  // Shared steps of the range recognisers.
  std::wstring rangePiece(RangePiece piece);
  std::wstring rangeTimeOrPart();
  Pattern rangePattern(const std::wstring& left, const std::wstring& right);
  std::optional<NLPRecognizeDate> searchChineseRange(const std::wstring& title, const Pattern& range,
                                                     OptTM fallbackDay);
  std::optional<NLPRecognizeDate> joinRangeSides(const PatternMatch& match, int leftGroup, int rightGroup,
                                                 OptTM fallbackDay);
  std::optional<RangeSide> readRangeSide(const std::wstring& text);
  bool readRangeWeekday(const std::wstring& text, RangeSide& side);
  bool readRangeWritten(const std::wstring& text, RangeSide& side);
  bool readRangeHoliday(const std::wstring& text, RangeSide& side);
  void readRangeTime(const std::wstring& text, const std::wstring& dateText, RangeSide& side,
                     const std::optional<NLPRecognizeDate>& named);
  TMPtr rangeDefaultDay();
  void readBareHourAsAfternoon(std::tm* record, const RangeSide& side);
  void moveEndAfterStart(std::tm* start, std::tm* end, const RangeSide& right);
  void rollEndedRange(std::tm* start, std::tm* end, const RangeSide& left, const RangeSide& right, bool hasTime,
                      bool dayGiven);
  void setMonth(std::wstring month, TMPtr cal);
  void setDayOfMonth(std::wstring day, TMPtr cal);

  // ---- word-language family: driver
  // -------------------------------------------------------
  bool englishDateRecognition(std::wstring title, OptTime baseDate, Vocabulary vocabulary, bool isFrench,
                              std::wstring language);
  std::optional<NLPRecognizeDate> englishDateDurationRecognition(std::wstring title, Vocabulary vocabulary);
  // [words-driver: further declarations go here]
  // Word-language ranges: clock times, an offset with clock times, month names,
  // weekdays.
  std::optional<NLPRecognizeDate> matchEnTimeDuration(std::wstring title, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> matchEnAfterDuration(std::wstring title, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> matchEnMonthDuration(std::wstring title, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> matchEnWeekDayDuration(std::wstring title, Vocabulary vocabulary);
  // Rows of matchEnDateDuration: numeric dates, then day words.
  std::optional<NLPRecognizeDate> matchEnNumericDateDuration(const std::wstring& title, const Vocabulary& vocabulary);
  std::optional<NLPRecognizeDate> matchEnDayWordDuration(const std::wstring& title, const Vocabulary& vocabulary);
  // Steps of matchEnTimeDuration: the start in the past, then the end.
  void rollEnTimeRangeStart(std::tm* start, std::tm* end, bool startHasMeridiem, bool twoDigitClock);
  void rollEnTimeRangeEnd(std::tm* start, std::tm* end, int endHour, bool midnightEnd, bool endMeridiemText,
                          bool twoDigitClock);
  void fixEnTimeRangeOrder(std::tm* start, std::tm* end, bool endHasMeridiem, bool midnightEnd);
  // Ranges of dates, named days and weekdays; the Chinese range dispatcher asks
  // it too.
  std::optional<NLPRecognizeDate> matchEnDateDuration(std::wstring title, Vocabulary vocabulary);
  // Stages of englishDateRecognition.
  bool takeEnRange(const std::wstring& title, OptTime baseDate, Vocabulary vocabulary);
  // Writes a range's texts, start, end and reminder into the result (both
  // drivers).
  void writeRange(const NLPRecognizeDate& range);
  bool finishEnOffset(const NLPRecognizeDate& offset, OptTM dateCal, const std::wstring& title, Vocabulary vocabulary,
                      bool isFrench);
  OptTM matchEnTimeOnDate(const std::wstring& title, std::tm* calendar, bool hasDate, bool bareTimeRolls,
                          Vocabulary vocabulary, bool isFrench);
  OptTM mergeEnDate(int dateKind, const NLPRecognizeDate& winner, OptTM timeCal);
  void rollBareTime(std::tm* record, const std::wstring& title, Vocabulary vocabulary, bool isFrench);
  void rollNamedHour(std::tm* record, const std::wstring& title, Vocabulary vocabulary);
  bool titleHasClockTime(const std::wstring& title);
  int writtenHourOf(const std::wstring& title, Vocabulary vocabulary);

  // ---- word-language: weekdays, named days, Japanese holidays
  // ---------------------------------
  std::optional<NLPRecognizeDate> matchEnWeekDay(std::wstring title, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> matchEnSpecialDate(std::wstring title, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> matchJapanHoliday(std::wstring title, std::wstring language);
  // [words-weekdays: further declarations go here]
  // Moves a weekday of this week by the word in front of it (next, last, on,
  // this or none).
  void applyWeekDayLead(std::tm* record, std::wstring lead, Vocabulary vocabulary);

  // ---- word-language: clock times and named hours
  // ---------------------------------------------
  OptTM matchEnTime(std::wstring title, std::tm* calendar, Vocabulary vocabulary, bool hasDate, bool isFrench);
  OptTM matchSpecialEnTime(std::wstring title, std::tm* calendar, Vocabulary vocabulary);
  std::wstring getAtTimePattern(Vocabulary vocabulary);
  const std::vector<std::wstring>& getEnTimePattern(const Vocabulary& vocabulary);
  // The same, compiled without regard to case.
  const std::vector<GuardedPattern>& enTimePatterns(const Vocabulary& vocabulary);
  std::wstring getAmPmPattern(Vocabulary vocabulary);
  // [words-time: further declarations go here]
  int ampmToNumber(std::wstring text, Vocabulary vocabulary);
  void addOverdueTime(std::tm* record, std::wstring hourText, std::wstring minuteText);
  std::map<std::wstring, std::pair<int, int>> getEnSpecialHourMap(Vocabulary vocabulary);
  // The three families of matchEnTime and the named-hour day parts.
  OptTM matchEnAtTime(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary, bool hasDate, bool isFrench);
  OptTM matchEnCompactTime(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary, bool hasDate);
  OptTM matchEnListTime(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary, bool hasDate,
                        bool isFrench);
  bool readListDayPart(std::tm* record, int number, std::wstring dayPart, const std::wstring& title,
                       Vocabulary vocabulary);
  bool rollPassedTimeOnWeeklyRule(std::tm* record, int hour);
  OptTM matchEnDayPart(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary);

  // ---- word-language: offsets, advance reminders, repeat rules
  // ---------------------------------
  std::optional<NLPRecognizeDate> matchEnAfterTime(std::wstring title, Vocabulary vocabulary);
  std::wstring matchEnAdvanceTime(std::wstring title, Vocabulary vocabulary);
  bool repeatHelper(const std::wstring title, Vocabulary vocabulary);
  // [words-repeat: further declarations go here]
  std::optional<NLPMorvaneDuration> getDuration(int count, std::wstring unit, bool isPositive, Vocabulary vocabulary);
  std::optional<NLPMorvaneDuration> getDuration(std::wstring count, std::wstring unit, bool isPositive,
                                                Vocabulary vocabulary);
  std::optional<NLPMorvaneDuration> getDuration(std::wstring count, std::wstring unit, Vocabulary vocabulary);
  int findInterval(std::wstring title, Vocabulary vocabulary);

  // ---- word-language: numeric dates, month-name dates, repeats with an end
  // ----------------------
  std::optional<NLPRecognizeDate> matchEnDate(std::wstring title, Vocabulary vocabulary);
  std::optional<NLPRecognizeDate> matchEnMonth(std::wstring title, Vocabulary vocabulary);
  TMPtr getEnMonthCalendar(std::wstring monthText, Vocabulary vocabulary);
  bool repeatUntilRecognize(std::wstring title, Vocabulary vocabulary);
  // [words-dates: further declarations go here]

  // ---- fields
  // -----------------------------------------------------------------------------------
  bool isUsOrUkDateFormat = true;
  int morningHour = 9;
  int morningMinute = 0;
  int afternoonHour = 13;
  int afternoonMinute = 0;
  int eveningHour = 17;
  int eveningMinute = 0;
  int nightHour = 20;
  int nightMinute = 0;
  bool is24DateFormat = true;
  WeekDay startDay = Sunday;
  long defaultTimeSecond = -1;
  std::map<std::wstring, int> holidayDayMap;
  std::map<std::wstring, int> holidaySeasonMap;
  std::map<std::wstring, int> japanHolidayDayMap;
  OptTime baseDate;
  std::wstring holidayInfos;
  std::wstring japanHolidayInfos;
  NLPParserDueDate parserDueDate;
  // The fields of the last answer that finishResult wrote, for hosts that want
  // them apart.
  std::optional<NLPParserDueDate::Texts> lastTexts;
  // The vocabulary of the range stage in hand, for the range recognisers that
  // take the title alone.
  Vocabulary rangeVocabulary;

 private:
  // [private: helpers of the parse flow]
  void cleanRecognizedStrings();
  void applyPendingOffset();
  void dropEndNotAfterStart();
  void computeIsAllDay();
  void addReminderRequest(const std::wstring& title);
  void clearResult();
};

}  // namespace nlpdate
