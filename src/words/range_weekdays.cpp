// Ranges between weekdays, with clock times (monday 9am to wednesday 5pm) or
// without (mon - fri); the week words next and last move one side a week.
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/piece_fill.h"
#include "words/range_patterns.h"
#include "words/weekdays.h"

namespace nlpdate {

namespace {
const wchar_t* const kWeekDayTimeRange = LR"~(«day»«time»«DURATION»(«day»)?«time»)~";
const wchar_t* const kWeekDayRange = LR"~((«day»)«DURATION»(«day»))~";

// Days with clock times.
constexpr int kTimeFirstBeforeGroup = 1;
constexpr int kTimeFirstDayGroup = 2;
constexpr int kTimeFirstAfterGroup = 3;
constexpr int kTimeStartHourGroup = 6;
constexpr int kTimeStartMinuteGroup = 7;
constexpr int kTimeStartMeridiemGroup = 8;
constexpr int kTimeSecondBeforeGroup = 12;
constexpr int kTimeSecondDayGroup = 13;
constexpr int kTimeSecondAfterGroup = 14;
constexpr int kTimeEndHourGroup = 17;
constexpr int kTimeEndMinuteGroup = 18;
constexpr int kTimeEndMeridiemGroup = 19;
// Days alone.
constexpr int kFirstBeforeGroup = 2;
constexpr int kFirstDayGroup = 3;
constexpr int kFirstAfterGroup = 4;
constexpr int kSecondBeforeGroup = 7;
constexpr int kSecondDayGroup = 8;
constexpr int kSecondAfterGroup = 9;
// The am/pm word counts below this hour.
constexpr int kMeridiemHourLimit = 12;
constexpr int kWeek = 7;

struct WeekWords {
  std::wstring before1;
  std::wstring after1;
  std::wstring before2;
  std::wstring after2;
  bool afterCounts;  // whether the word after the day takes part in the tests
};

// +7 for a next word, -7 for a last word, 0 otherwise.
int weekShift(const std::wstring& before, const std::wstring& after, bool afterCounts, const Vocabulary& vocabulary) {
  const std::wstring first = toLowerCase(before);
  const std::wstring second = afterCounts ? toLowerCase(after) : L"";
  if (containStr(first, vocabulary[NEXT]) || (!second.empty() && containStr(second, vocabulary[NEXT]))) return kWeek;
  if (containStr(first, vocabulary[LAST]) || (!second.empty() && containStr(second, vocabulary[LAST]))) return -kWeek;
  return 0;
}

// The first day's words decide when there are any, and then the end is left alone.
void applyWeekWords(std::tm* start, std::tm* end, const WeekWords& words, const Vocabulary& vocabulary) {
  if (!words.before1.empty() || !words.after1.empty()) {
    start->tm_mday += weekShift(words.before1, words.after1, words.afterCounts, vocabulary);
  } else if (!words.before2.empty() || !words.after2.empty()) {
    end->tm_mday += weekShift(words.before2, words.after2, words.afterCounts, vocabulary);
  }
}

// An end before the start is in the next week; a range over this week without words means next week.
void rollWeekRange(NLPNativeTitleParser& parser, std::tm* start, std::tm* end, const WeekWords& words) {
  if (rangeIsAfter(start, end)) end->tm_mday += kWeek;
  const bool noWords = words.before1.empty() && words.after1.empty() && words.before2.empty() && words.after2.empty();
  if (noWords && parser.isBeforeToday(end)) {
    start->tm_mday += kWeek;
    end->tm_mday += kWeek;
  }
}

int readWeekHour(NLPNativeTitleParser& parser, const std::wstring& hourText, const std::wstring& meridiemText,
                 const Vocabulary& vocabulary) {
  int hour = parser.translateNum(hourText);
  if (hour >= 13 || meridiemText.empty()) return hour;
  return readRangeClock(parser, hourText, L"", toLowerCase(meridiemText), vocabulary, kMeridiemHourLimit).hour;
}
}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnWeekDayDuration(std::wstring title,
                                                                             Vocabulary vocabulary) {
  // Both forms open with a weekday: without a weekday word neither can match.
  if (!weekdayWordGuard(vocabulary).mayMatch(title)) return std::nullopt;
  struct Forms {
    std::vector<Pattern> timed;
    Pattern plain;
  };
  const Forms& forms = keptFor(vocabulary, [&] {
    PatternPieces pieces = {{L"day", getDayOfWeekRecog(vocabulary)}, {L"DURATION", rangeFlag(vocabulary)}};
    Forms built;
    built.timed = compileTimedForm(*this, vocabulary, kWeekDayTimeRange, pieces, L"time");
    pieces[L"time"] = L"";
    built.plain = compilePattern(fillPieces(kWeekDayRange, pieces), PatternCase::Insensitive);
    return built;
  });
  PatternMatch match;
  for (const Pattern& form : forms.timed) {
    if (!form.search(title, match)) continue;
    TMPtr start = getDefaultTM();
    TMPtr end = getDefaultTM();
    setDayOfWeek(start.get(), translateDayOfWeek(match.str(kTimeFirstDayGroup), start->tm_wday, vocabulary), startDay);
    if (match.str(kTimeSecondDayGroup).empty()) {
      end = copyRangeRecord(start.get());
    } else {
      setDayOfWeek(end.get(), translateDayOfWeek(match.str(kTimeSecondDayGroup), end->tm_wday, vocabulary), startDay);
    }
    start->tm_hour =
        readWeekHour(*this, match.str(kTimeStartHourGroup), match.str(kTimeStartMeridiemGroup), vocabulary);
    start->tm_min = translateNum(match.str(kTimeStartMinuteGroup));
    end->tm_hour = readWeekHour(*this, match.str(kTimeEndHourGroup), match.str(kTimeEndMeridiemGroup), vocabulary);
    end->tm_min = translateNum(match.str(kTimeEndMinuteGroup));
    const WeekWords words{match.str(kTimeFirstBeforeGroup), match.str(kTimeFirstAfterGroup),
                          match.str(kTimeSecondBeforeGroup), match.str(kTimeSecondAfterGroup), true};
    applyWeekWords(start.get(), end.get(), words, vocabulary);
    rollWeekRange(*this, start.get(), end.get(), words);
    return makeRangeResult(match, start, end, ON_TIME);
  }

  if (!forms.plain.search(title, match)) return std::nullopt;
  // Both keep the time of day of now.
  TMPtr start = getDefaultTM();
  TMPtr end = getDefaultTM();
  setDayOfWeek(start.get(), translateDayOfWeek(match.str(kFirstDayGroup), start->tm_wday, vocabulary), startDay);
  setDayOfWeek(end.get(), translateDayOfWeek(match.str(kSecondDayGroup), end->tm_wday, vocabulary), startDay);
  // Only the word before a day is tested here; the word after counts only in choosing the side.
  // This differs from the form with times on purpose (deliberate, kept as it is).
  const WeekWords words{match.str(kFirstBeforeGroup), match.str(kFirstAfterGroup), match.str(kSecondBeforeGroup),
                        match.str(kSecondAfterGroup), false};
  applyWeekWords(start.get(), end.get(), words, vocabulary);
  rollWeekRange(*this, start.get(), end.get(), words);
  return makeRangeResult(match, start, end, L"");
}

}  // namespace nlpdate
