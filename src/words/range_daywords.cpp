// Ranges that start with a day word (today, tomorrow, tonight, ...): to a
// clock time, to another day word, to a month-name date or to a weekday.
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/month_patterns.h"
#include "words/named_days.h"
#include "words/piece_fill.h"
#include "words/range_patterns.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {
const wchar_t* const kDayWordTimeRange = LR"~(«DAYWORD»«TIME»«FLAG»(«DAYWORD»)?«TIME»)~";
const wchar_t* const kDayWordRange = LR"~(«DAYWORD»«FLAG»(«DAYWORD»))~";
const wchar_t* const kDayWordMonthRange = LR"~(«DAYWORD»«FLAG»(«MONTHDATE»))~";
const wchar_t* const kDayWordWeekDayRange = LR"~(«DAYWORD»«FLAG»(«WEEKDAY_RANGE»))~";

constexpr int kFirstWordGroup = 1;
// Day word with clock times.
constexpr int kStartHourGroup = 5;
constexpr int kStartMinuteGroup = 6;
constexpr int kStartMeridiemGroup = 7;
constexpr int kSecondWordOuterGroup = 10;
constexpr int kSecondWordGroup = 11;
constexpr int kEndHourGroup = 15;
constexpr int kEndMinuteGroup = 16;
constexpr int kEndMeridiemGroup = 17;
// Day word to day word.
constexpr int kOtherWordGroup = 5;
// Day word to a month-name date.
constexpr int kMonthDayBeforeGroup = 9;
constexpr int kMonthGroup = 11;
constexpr int kMonthDayBehindGroup = 13;
constexpr int kMonthYearGroup = 16;
// Day word to a weekday: the weekday pattern has three groups (5, 6, 7), so
// group 8 never exists and the target reads as Sunday (kept as it is).
constexpr int kWeekBeforeGroup = 5;
constexpr int kWeekAfterGroup = 7;
constexpr int kWeekDayGroup = 8;
// The am/pm word of a day-word row counts only up to this hour.
constexpr int kMeridiemHourLimit = 12;

enum class DayWordUse { Time, Date };

// The first day word on the start. With a clock time it moves the day; in the
// date rows it moves the year instead, a slip of one field that is kept as it is.
void applyFirstDayWord(NLPNativeTitleParser& parser, std::tm* start, const std::wstring& word,
                       const Vocabulary& vocabulary, DayWordUse use) {
  const bool date = use == DayWordUse::Date;
  if (containStr(word, vocabulary[YESTERDAY])) {
    if (date) {
      start->tm_hour = 0;
      start->tm_year -= 1;
    } else {
      start->tm_mday -= 1;
    }
  } else if (containStr(word, vocabulary[TODAY])) {
    if (date) start->tm_hour = 0;
  } else if (containStr(word, vocabulary[DAY_AFTER_TOMORROW])) {
    if (date) {
      start->tm_hour = 0;
      start->tm_year += 2;
    } else {
      start->tm_mday += 2;
    }
  } else if (containStr(word, vocabulary[TOMORROW])) {
    if (date) {
      start->tm_hour = 0;
      start->tm_year += 1;
    } else {
      start->tm_mday += 1;
    }
  } else if (containStr(word, vocabulary[TONIGHT])) {
    start->tm_hour = 21;
    parser.parserDueDate.reminder.push_back(ON_TIME);
  }
}

// The second day word moves the end's day.
void applySecondDayWord(NLPNativeTitleParser& parser, std::tm* end, const std::wstring& word,
                        const Vocabulary& vocabulary, bool withYesterday) {
  if (withYesterday && containStr(word, vocabulary[YESTERDAY])) {
    end->tm_mday -= 1;
  } else if (containStr(word, vocabulary[TODAY])) {
    return;
  } else if (containStr(word, vocabulary[DAY_AFTER_TOMORROW])) {
    end->tm_mday += 2;
  } else if (containStr(word, vocabulary[TOMORROW])) {
    end->tm_mday += 1;
  } else if (containStr(word, vocabulary[TONIGHT])) {
    end->tm_hour = 21;
    parser.parserDueDate.reminder.push_back(ON_TIME);
  }
}
}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnDayWordDuration(const std::wstring& title,
                                                                             const Vocabulary& vocabulary) {
  // Every form opens with a named day: without one none can match.
  if (!specialDayWordGuard(vocabulary).mayMatch(title)) return std::nullopt;
  struct Forms {
    std::vector<Pattern> timed;
    Pattern dayWords;
    Pattern month;
    Pattern weekday;
  };
  const Forms& forms = keptFor(vocabulary, [&] {
    PatternPieces pieces = {{L"DAYWORD", getSpecialDayRecognition(vocabulary)},
                            {L"FLAG", rangeFlag(vocabulary)},
                            {L"MONTHDATE", getEnMonthRecognition(vocabulary)},
                            {L"WEEKDAY_RANGE", getDayOfWeekRecog(vocabulary)}};
    Forms built;
    built.timed = compileTimedForm(*this, vocabulary, kDayWordTimeRange, pieces, L"TIME");
    pieces[L"TIME"] = L"";
    built.dayWords = compilePattern(fillPieces(kDayWordRange, pieces), PatternCase::Insensitive);
    built.month = compilePattern(fillPieces(kDayWordMonthRange, pieces), PatternCase::Insensitive);
    built.weekday = compilePattern(fillPieces(kDayWordWeekDayRange, pieces), PatternCase::Insensitive);
    return built;
  });
  PatternMatch match;
  // The seconds of now stay in these rows.
  TMPtr start = getDefaultTM();

  for (const Pattern& form : forms.timed) {
    if (!form.search(title, match)) continue;
    applyFirstDayWord(*this, start.get(), toLowerCase(match.str(kFirstWordGroup)), vocabulary, DayWordUse::Time);
    TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
    if (!match.str(kSecondWordOuterGroup).empty()) {
      applySecondDayWord(*this, end.get(), toLowerCase(match.str(kSecondWordGroup)), vocabulary, false);
    }
    setRangeClock(start.get(), readRangeClock(*this, match.str(kStartHourGroup), match.str(kStartMinuteGroup),
                                              match.str(kStartMeridiemGroup), vocabulary, kMeridiemHourLimit));
    setRangeClock(end.get(), readRangeClock(*this, match.str(kEndHourGroup), match.str(kEndMinuteGroup),
                                            match.str(kEndMeridiemGroup), vocabulary, kMeridiemHourLimit));
    if (rangeIsAfter(start.get(), end.get())) {
      if (!match.str(kEndMeridiemGroup).empty()) {
        end->tm_mday += 1;
        if (rangeIsAfter(start.get(), end.get())) end->tm_mday += 1;
      } else {
        end->tm_hour += 12;
        if (rangeIsAfter(start.get(), end.get())) {
          end->tm_hour -= 12;
          end->tm_mday += 1;
          if (rangeIsAfter(start.get(), end.get())) end->tm_mday += 1;
        }
      }
    }
    return makeRangeResult(match, start, end, ON_TIME);
  }

  if (forms.dayWords.search(title, match)) {
    applyFirstDayWord(*this, start.get(), toLowerCase(match.str(kFirstWordGroup)), vocabulary, DayWordUse::Date);
    TMPtr end = getDefaultTM();
    end->tm_hour = 0;
    applySecondDayWord(*this, end.get(), toLowerCase(match.str(kOtherWordGroup)), vocabulary, true);
    return makeRangeResult(match, start, end, L"");
  }

  if (monthWordGuard(vocabulary).mayMatch(title) && forms.month.search(title, match)) {
    applyFirstDayWord(*this, start.get(), toLowerCase(match.str(kFirstWordGroup)), vocabulary, DayWordUse::Date);
    TMPtr end = getEnMonthCalendar(match.str(kMonthGroup), vocabulary);
    if (!match.str(kMonthDayBeforeGroup).empty()) {
      end->tm_mday = translateNum(match.str(kMonthDayBeforeGroup));
    } else if (!match.str(kMonthDayBehindGroup).empty()) {
      end->tm_mday = translateNum(match.str(kMonthDayBehindGroup));
    } else {
      end->tm_mday = 1;
    }
    const std::wstring year = match.str(kMonthYearGroup);
    if (!year.empty()) {
      end->tm_year = rangeYearValue(*this, year);
    } else if (isBeforeToday(end.get())) {
      end->tm_year += 1;
    }
    end->tm_hour = 0;
    return makeRangeResult(match, start, end, L"");
  }

  if (weekdayWordGuard(vocabulary).mayMatch(title) && forms.weekday.search(title, match)) {
    applyFirstDayWord(*this, start.get(), toLowerCase(match.str(kFirstWordGroup)), vocabulary, DayWordUse::Date);
    TMPtr end = getDefaultTM();
    const WeekDay target = translateDayOfWeek(match.str(kWeekDayGroup), end->tm_wday, vocabulary);
    setDayOfWeek(end.get(), target, startDay);
    const bool hasWord = !match.str(kWeekBeforeGroup).empty() || !match.str(kWeekAfterGroup).empty();
    if (hasWord) {
      // Only the word before the weekday is read.
      const std::wstring before = toLowerCase(match.str(kWeekBeforeGroup));
      if (containStr(before, vocabulary[NEXT])) {
        end->tm_mday += 7;
      } else if (containStr(before, vocabulary[LAST])) {
        end->tm_mday -= 7;
      }
    }
    if (rangeIsAfter(start.get(), end.get())) end->tm_mday += 7;
    if (!hasWord && isBeforeToday(end.get())) end->tm_mday += 7;
    return makeRangeResult(match, start, end, L"");
  }
  return std::nullopt;
}

}  // namespace nlpdate
