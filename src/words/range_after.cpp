// Ranges of two clock times behind an offset ("in 3 days 9am-10am", "two hours
// later 3-4"): the offset gives the day, the clock times the hours.
#include <vector>

#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/piece_fill.h"
#include "words/range_patterns.h"

namespace nlpdate {

namespace {
// Number words are deliberately not part of the first form.
const wchar_t* const kAfterOffset = LR"~((«AFTER»)\s+(\d{1,3}|«HALF_A»|«A»)\s+(«UNITS»))~";
constexpr int kAfterNumberGroup = 2;
constexpr int kAfterUnitGroup = 3;
const wchar_t* const kLaterOffset = LR"~((\d{1,3}|«HALF_A»|«A»|«NUMBER_WORDS»)\s*(«UNITS»)\s+(«LATER»))~";
constexpr int kLaterNumberGroup = 1;
constexpr int kLaterUnitGroup = 2;
// Clock groups behind either offset of three groups.
constexpr int kStartHourGroup = 6;
constexpr int kStartMinuteGroup = 7;
constexpr int kStartMeridiemGroup = 8;
constexpr int kEndHourGroup = 13;
constexpr int kEndMinuteGroup = 14;
constexpr int kEndMeridiemGroup = 15;

const std::vector<const std::wstring*>& numberWordKeys() {
  static const std::vector<const std::wstring*> keys = {
      &ONE,       &TWO,      &THREE,    &FOUR,   &FIVE,       &SIX,        &SEVEN,        &EIGHT,
      &NINE,      &TEN,      &ELEVEN,   &TWELVE, &THIRTEEN,   &FOURTEEN,   &FIFTEEN,      &SIXTEEN,
      &SEVENTEEN, &EIGHTEEN, &NINETEEN, &TWENTY, &TWENTY_ONE, &TWENTY_TWO, &TWENTY_THREE, &TWENTY_FOUR};
  return keys;
}

const PatternPieces& offsetPieces(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> PatternPieces {
    std::wstring numbers;
    for (const std::wstring* key : numberWordKeys()) numbers += (numbers.empty() ? L"" : L"|") + vocabulary[*key];
    const std::wstring units = vocabulary[MINUTE] + L"|" + vocabulary[HOUR] + L"|" + vocabulary[DAY] + L"|" +
                               vocabulary[WEEK] + L"|" + vocabulary[MONTH] + L"|" + vocabulary[YEAR];
    return {{L"AFTER", vocabulary[AFTER]}, {L"HALF_A", vocabulary[HALF_A]}, {L"A", vocabulary[A]}, {L"UNITS", units},
            {L"LATER", vocabulary[LATER]}, {L"NUMBER_WORDS", numbers}};
  });
}

// The hour of one side: a pm word adds 12 below 13, so 12 pm reads 24 and
// rolls into the next day (kept as it is); an am word changes nothing.
int afterHour(NLPNativeTitleParser& parser, const std::wstring& hourText, const std::wstring& meridiemText,
              const Vocabulary& vocabulary) {
  int hour = parser.translateNum(hourText);
  if (hour < 13 && !meridiemText.empty() && containStr(toLowerCase(meridiemText), vocabulary[PM])) hour += 12;
  return hour;
}

// Moves now by the offset; an offset of whole days starts at midnight.
void applyAfterOffset(NLPNativeTitleParser& parser, std::tm* start, const NLPMorvaneDuration& offset) {
  if (offset.getHours() == 0 && offset.getMinutes() == 0 && offset.getSeconds() == 0) {
    start->tm_sec = 0;
    start->tm_min = 0;
    start->tm_hour = 0;
  } else {
    start->tm_hour += offset.getHours();
    start->tm_min += offset.getMinutes();
    start->tm_sec += offset.getSeconds();
    parser.parserDueDate.reminder.push_back(ON_TIME);
  }
  if (offset.getYears() >= 1) start->tm_year += offset.getYears();
  if (offset.getMonths() >= 1) start->tm_mon += offset.getMonths();
  if (offset.getWeeks() >= 1) start->tm_mday += 7 * offset.getWeeks();
  if (offset.getDays() >= 1) start->tm_mday += offset.getDays();
}
}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnAfterDuration(std::wstring title, Vocabulary vocabulary) {
  const std::pair<const wchar_t*, std::pair<int, int>> offsets[] = {
      {kAfterOffset, {kAfterNumberGroup, kAfterUnitGroup}}, {kLaterOffset, {kLaterNumberGroup, kLaterUnitGroup}}};
  // Each offset form before each clock pattern, compiled once per vocabulary.
  const std::vector<std::vector<Pattern>>& forms = keptFor(vocabulary, [&] {
    const std::wstring flag = rangeFlag(vocabulary);
    std::vector<std::vector<Pattern>> all;
    for (const auto& entry : offsets) {
      const std::wstring offset = fillPieces(entry.first, offsetPieces(vocabulary));
      all.push_back(compileForEachTime(*this, vocabulary, PatternCase::Insensitive,
                                       [&](const std::wstring& time) { return offset + time + flag + time; }));
    }
    return all;
  });
  PatternMatch match;
  int numberGroup = 0;
  int unitGroup = 0;
  for (size_t form = 0; form < forms.size() && numberGroup == 0; ++form) {
    for (const Pattern& timed : forms[form]) {
      if (timed.search(title, match)) {
        numberGroup = offsets[form].second.first;
        unitGroup = offsets[form].second.second;
        break;
      }
    }
  }
  if (numberGroup == 0) return std::nullopt;

  TMPtr start = getDefaultTM();
  const std::optional<NLPMorvaneDuration> offset =
      getDuration(match.str(numberGroup), match.str(unitGroup), true, vocabulary);
  if (offset) applyAfterOffset(*this, start.get(), *offset);
  TMPtr end = getTM(static_cast<long>(std::mktime(start.get())));
  start->tm_min = translateNum(match.str(kStartMinuteGroup));
  start->tm_hour = afterHour(*this, match.str(kStartHourGroup), match.str(kStartMeridiemGroup), vocabulary);
  end->tm_min = translateNum(match.str(kEndMinuteGroup));
  end->tm_hour = afterHour(*this, match.str(kEndHourGroup), match.str(kEndMeridiemGroup), vocabulary);
  if (rangeIsAfter(start.get(), end.get())) end->tm_mday += 1;
  return makeRangeResult(match, start, end, ON_TIME);
}

}  // namespace nlpdate
