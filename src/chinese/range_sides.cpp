// Reading one side of a Chinese range and joining the two sides into a start
// and an end; the rules are told at the head of range_sides.h.
#include "chinese/range_sides.h"

#include <algorithm>

#include "chinese/week_days.h"
#include "core/calendar_ops.h"
#include "values/duration.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

namespace {

const wchar_t* const kRangeWeekdayPattern =
    L"(?:((\\d{4})年(\\d{1,2})月(\\d{1,2})日))?(本|这|这个)?(下下个|下下)?(下个|下)?(星期|礼拜|周)(一|二|三|四|五|六|"
    L"日|天|1|2|3|4|5|6|7)";
constexpr int kFullDateGroup = 1;
constexpr int kFullYearGroup = 2;
constexpr int kFullMonthGroup = 3;
constexpr int kFullDayGroup = 4;
constexpr int kThisWeekGroup = 5;
constexpr int kWeekAfterNextGroup = 6;
constexpr int kNextWeekGroup = 7;
constexpr int kWeekdayGroup = 9;

bool hasDigit(const std::wstring& text) {
  return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

TMPtr copyOf(const TMPtr& record) { return newTM(*record); }

long minutesFrom(const TMPtr& day, std::tm* record);

}  // namespace

std::wstring nonCapturing(const std::wstring& pattern) {
  std::wstring out;
  bool inClass = false;
  for (size_t i = 0; i < pattern.size(); ++i) {
    const wchar_t c = pattern[i];
    out += c;
    if (c == L'\\' && i + 1 < pattern.size()) {
      out += pattern[++i];
    } else if (c == L'[') {
      inClass = true;
    } else if (c == L']') {
      inClass = false;
    } else if (c == L'(' && !inClass && (i + 1 >= pattern.size() || pattern[i + 1] != L'?')) {
      out += L"?:";
    }
  }
  return out;
}

std::wstring anyOf(const std::vector<std::wstring>& patterns) {
  std::wstring out = L"(?:";
  for (size_t i = 0; i < patterns.size(); ++i) out += (i ? L"|" : L"") + nonCapturing(patterns[i]);
  return out + L")";
}

TMPtr NLPNativeTitleParser::rangeDefaultDay() {
  TMPtr day = getDefaultTM();
  setTMToDefaultTime(day.get());
  return day;
}

bool NLPNativeTitleParser::readRangeWeekday(const std::wstring& text, RangeSide& side) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kRangeWeekdayPattern); }).search(text, match)) return false;
  TMPtr day = rangeDefaultDay();
  if (!match.str(kFullDateGroup).empty()) {
    // A full date before the weekday gives the day itself; its year never rolls.
    day->tm_year = translateNum(match.str(kFullYearGroup)) - 1900;
    day->tm_mon = translateNum(match.str(kFullMonthGroup)) - 1;
    day->tm_mday = translateNum(match.str(kFullDayGroup));
    mkTM(day.get());
    side.kind = RangeDateKind::Written;
    side.yearWritten = true;
    side.monthWritten = true;
  } else {
    setDayOfWeek(day.get(), weekDayOfNumber(matchNum(match.str(kWeekdayGroup))), startDay);
    side.pinned = !match.str(kThisWeekGroup).empty();
    if (!side.pinned && !match.str(kWeekAfterNextGroup).empty()) {
      day->tm_mday += 14;
    } else if (!side.pinned && !match.str(kNextWeekGroup).empty()) {
      day->tm_mday += 7;
    }
    mkTM(day.get());
    side.kind = RangeDateKind::Weekday;
  }
  side.date = day;
  return true;
}

bool NLPNativeTitleParser::readRangeWritten(const std::wstring& text, RangeSide& side) {
  const auto found = matchDate(text);
  if (!found) return false;
  TMPtr day = copyOf(*found->getStartCal());
  const std::vector<std::wstring> patterns = getChineseDatePattern();
  side.yearWritten = compiledOnce([&] { return compilePattern(getChineseMonthDayYearPattern()); }).search(text) ||
                     compiledOnce([&] { return compilePattern(patterns[0]); }).search(text);
  side.monthWritten = side.yearWritten || compiledOnce([&] { return compilePattern(patterns[1]); }).search(text);
  // Undo the single-date roll: the range decides as a whole.
  TMPtr base = rangeDefaultDay();
  if (!side.yearWritten) day->tm_year = base->tm_year;
  if (!side.monthWritten) day->tm_mon = base->tm_mon;
  mkTM(day.get());
  side.kind = RangeDateKind::Written;
  side.date = day;
  return true;
}

bool NLPNativeTitleParser::readRangeHoliday(const std::wstring& text, RangeSide& side) {
  for (const std::wstring& name : getLunarHolidays()) {
    if (text.find(name) != std::wstring::npos) {
      initHolidaySeasonMap(L"");
      const auto found = matchHoliday(text);
      if (!found) return false;
      side.kind = RangeDateKind::Holiday;
      side.date = copyOf(*found->getStartCal());
      return true;
    }
  }
  return false;
}

namespace {
// Minutes from the start of `day` to the record, whole days included.
long minutesFrom(const TMPtr& day, std::tm* record) {
  TMPtr start = newTM(*record);
  start->tm_hour = 0;
  start->tm_min = 0;
  start->tm_sec = 0;
  const long long days =
      (secondsOf(timePointFromTM(*start)) - secondsOf(timePointFromTM(*day)) + 43200) / 86400;  // DST-proof
  return static_cast<long>(days * 1440 + record->tm_hour * 60 + record->tm_min);
}
}  // namespace

void NLPNativeTitleParser::readRangeTime(const std::wstring& text, const std::wstring& dateText, RangeSide& side,
                                         const std::optional<NLPRecognizeDate>& named) {
  TMPtr day = side.date ? copyOf(*side.date) : rangeDefaultDay();
  // The side's day as lead date: a stated day is never rolled by the time stage.
  std::optional<NLPRecognizeDate> lead = NLPRecognizeDate(dateText, 0, OptTM(copyOf(day)));
  TMPtr origin = day;
  std::optional<NLPRecognizeDate> time = matchTime(lead, text, std::nullopt, std::nullopt);
  if (!time && named && !named->getReminder().empty()) time = named;  // 今晚, 明早 carry their hours
  if (!time) {
    time = matchSpecialTime(text);  // day-part words, on the default day
    origin = rangeDefaultDay();
  }
  if (!time || !time->getStartCal() || !*time->getStartCal()) return;
  side.minutes = minutesFrom(origin, time->getStartCal()->get());
  side.hasTime = true;
  side.hasPeriod = compiledOnce([&] { return compilePattern(getAMFlag(), PatternCase::Insensitive); }).search(text) ||
                   compiledOnce([&] { return compilePattern(getPMFlag(), PatternCase::Insensitive); }).search(text);
}

std::optional<RangeSide> NLPNativeTitleParser::readRangeSide(const std::wstring& text) {
  RangeSide side;
  std::wstring dateText;
  std::optional<NLPRecognizeDate> named;
  if (readRangeHoliday(text, side)) {
  } else if (readRangeWritten(text, side)) {
  } else if (readRangeWeekday(text, side)) {
    PatternMatch match;
    compiledOnce([&] { return compilePattern(kRangeWeekdayPattern); }).search(text, match);
    dateText = match.str(0);
  } else if ((named = matchTodayAndSoOn(text))) {
    side.kind = RangeDateKind::Named;
    TMPtr day = copyOf(*named->getStartCal());
    clearValueAfterDay(day.get());
    mkTM(day.get());
    side.date = day;
  }
  readRangeTime(text, dateText, side, named);
  const bool hasDayPart =
      compiledOnce([&] { return compilePattern(getAMFlag(), PatternCase::Insensitive); }).search(text) ||
      compiledOnce([&] { return compilePattern(getPMFlag(), PatternCase::Insensitive); }).search(text);
  if (side.kind == RangeDateKind::None && !side.hasTime && !hasDigit(text) && !hasDayPart) return std::nullopt;
  return side;
}

}  // namespace nlpdate
