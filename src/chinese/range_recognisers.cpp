// The patterns of the four Chinese range recognisers: named days, weekdays,
// holidays and dates with times. Each finds its left and right side around
// the range word and hands their texts to joinRangeSides; the forms and the
// rules of each are told at the head of range_sides.h.
#include "chinese/range_sides.h"
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/range_word.h"

namespace nlpdate {

namespace {

// Groups of every combined pattern "(left)flag(right)": the inside is
// non-capturing.
constexpr int kLeftGroup = 1;
constexpr int kRightGroup = 3;

const wchar_t* const kWeekdayPiece =
    L"(?:本|这|这个)?(?:下下个|下下)?(?:下个|下)?(?:星期|礼拜|周)(?:一|二|三|"
    L"四|五|六|日|天|1|2|3|4|5|6|7)";
const wchar_t* const kFullDatePiece = L"(?:\\d{4}年\\d{1,2}月\\d{1,2}日)?";

}  // namespace

std::wstring NLPNativeTitleParser::rangePiece(RangePiece piece) {
  switch (piece) {
    case RangePiece::Named:
      return nonCapturing(getSpecialDateRecognition());
    case RangePiece::Written:
      return anyOf(getChineseDatePattern());
    case RangePiece::Weekday:
      return kWeekdayPiece;
    case RangePiece::OpenTime:
      return anyOf(getMatchTimePatternOutClock());
    case RangePiece::ClockTime:
      return anyOf(getMatchTimePattern());
    case RangePiece::BareTime:
      return anyOf(getMatchTimePatternWithoutClockWord());
    case RangePiece::DayPart:
      return L"(?:" + nonCapturing(getAMFlag()) + L"|" + nonCapturing(getPMFlag()) + L")";
    case RangePiece::Holiday: {
      std::wstring names;
      for (const std::wstring& name : getLunarHolidays()) names += (names.empty() ? L"" : L"|") + name;
      return L"(?:" + names + L")";
    }
  }
  return std::wstring();
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::searchChineseRange(const std::wstring& title,
                                                                         const Pattern& range, OptTM fallbackDay) {
  PatternMatch match;
  if (!range.search(title, match)) return std::nullopt;
  return joinRangeSides(match, kLeftGroup, kRightGroup, fallbackDay);
}

// "(left)range-word(right)": the sides are constant, the range word comes from
// the vocabulary, so each recogniser keeps its pattern per vocabulary.
Pattern NLPNativeTitleParser::rangePattern(const std::wstring& left, const std::wstring& right) {
  return compilePattern(L"(" + left + L")" + getDurationFlag(rangeVocabulary) + L"(" + right + L")");
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseSpecialDayDurationRecognition(std::wstring title) {
  const Pattern& range = keptFor(rangeVocabulary, [this] {
    const std::wstring side = L"(?:" + rangePiece(RangePiece::Named) + L"|" + rangePiece(RangePiece::Written) + L")" +
                              L"(?:" + rangePiece(RangePiece::OpenTime) + L")?";
    return rangePattern(side, side);
  });
  PatternMatch match;
  if (!range.search(title, match)) return std::nullopt;
  // Written date to written date belongs to the recognisers after this one.
  static const Pattern named = compilePattern(getSpecialDateRecognition());
  if (!named.search(match.str(kLeftGroup)) && !named.search(match.str(kRightGroup))) return std::nullopt;
  return joinRangeSides(match, kLeftGroup, kRightGroup, std::nullopt);
}

std::wstring NLPNativeTitleParser::rangeTimeOrPart() {
  return L"(?:" + rangePiece(RangePiece::ClockTime) + L"|" + rangePiece(RangePiece::BareTime) + L"|" +
         rangePiece(RangePiece::DayPart) + L")";
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseWeekDayDurationRecognition(std::wstring title) {
  const Pattern& range = keptFor(rangeVocabulary, [this] {
    const std::wstring time = rangeTimeOrPart();
    const std::wstring weekday = rangePiece(RangePiece::Weekday);
    return rangePattern(kFullDatePiece + weekday + time + L"?", L"(?:" + weekday + time + L"?|" + time + L")");
  });
  return searchChineseRange(title, range, std::nullopt);
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseHolidayDurationRecognition(std::wstring title) {
  const Pattern& range = keptFor(rangeVocabulary, [this] {
    const std::wstring holiday = rangePiece(RangePiece::Holiday);
    const std::wstring open = L"(?:" + rangePiece(RangePiece::OpenTime) + L")?";
    return rangePattern(holiday + open, L"(?:" + holiday + open + L"|" + rangeTimeOrPart() + L")");
  });
  return searchChineseRange(title, range, std::nullopt);
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationDateTimeRecognition(std::wstring title,
                                                                                             OptTime defaultDate,
                                                                                             OptTM leadDate) {
  const Pattern& range = keptFor(rangeVocabulary, [this] {
    const std::wstring day = L"(?:" + rangePiece(RangePiece::Written) + L"|" + rangePiece(RangePiece::Named) + L")?";
    const std::wstring clock = rangePiece(RangePiece::ClockTime);
    return rangePattern(day + clock, day + L"(?:" + clock + L"|" + rangePiece(RangePiece::BareTime) + L")");
  });
  OptTM fallback = leadDate;
  if (!(fallback && *fallback) && defaultDate) fallback = tmFromTimePoint(*defaultDate);
  return searchChineseRange(title, range, fallback);
}

}  // namespace nlpdate
