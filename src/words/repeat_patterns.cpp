#include "words/repeat_patterns.h"

#include <algorithm>

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

std::wstring weekdays(const Vocabulary& v) {
  return v[MONDAY] + L"|" + v[TUESDAY] + L"|" + v[WEDNESDAY] + L"|" + v[THURSDAY] + L"|" + v[FRIDAY] + L"|" +
         v[SATURDAY] + L"|" + v[SUNDAY];
}

std::wstring months(const Vocabulary& v) {
  return v[JANUARY] + L"|" + v[FEBRUARY] + L"|" + v[MARCH] + L"|" + v[APRIL] + L"|" + v[MAY] + L"|" + v[JUNE] + L"|" +
         v[JULY] + L"|" + v[AUGUST] + L"|" + v[SEPTEMBER] + L"|" + v[OCTOBER] + L"|" + v[NOVEMBER] + L"|" + v[DECEMBER];
}

// The empty last alternative is deliberate: a weekday part may carry no
// ordinal.
std::wstring ordinals(const Vocabulary& v) {
  return v[FIRST] + L"|" + v[SECOND] + L"|" + v[THIRD] + L"|" + v[FOURTH] + L"|" + v[FIFTH] + L"|" + v[LAST] + L"|";
}

std::wstring bordered(const Vocabulary& v, const std::wstring& key) { return addWordBorderInStartAndEnd(v[key]); }

// "\b(EVERY) ?\w{0,6} ?(WORD)\s?": the daily rows.
std::wstring dailyRow(const Vocabulary& v, const std::wstring& key) {
  return L"\\b(" + v[EVERY] + L") ?\\w{0,6} ?(" + bordered(v, key) + L")\\s?";
}

// "\b(EVERY) \w{0,6} ?(WORD)\s?": most weekly rows.
std::wstring weeklyRow(const Vocabulary& v, const std::wstring& word) {
  return L"\\b(" + v[EVERY] + L") \\w{0,6} ?(" + word + L")\\s?";
}

std::wstring monthPatternM1(const Vocabulary& v) {
  return L"\\b(\\d{1,2})?(" + v[DAY_END] + L")?(" + v[LAST] + L")?\\s*(" + v[DAY_OF] + L")?\\s*(" +
         v[AT_THE_BEGINNING_OF] + L")?\\s*(" + v[EVERY] + L") \\w{0,6} ?(" + v[MONTH] + L")\\s*((" + v[ON] + L")\\s*(" +
         months(v) + L")?(\\s?(" + v[DAY_OF_MONTH_DIGITAL] + L"))(" + v[DAY_END] + L")?)?\\s*((" + v[ON] +
         L")\\s*\\w{0,6}?\\s*(" + ordinals(v) + L")\\s*(" + weekdays(v) + L"))?\\s?";
}

std::wstring monthPatternM2(const Vocabulary& v) {
  return L"\\b(" + v[EVERY] + L")\\s*(((" + v[ON] + L")?)\\s*(" + months(v) + L")?(\\s?(" + v[DAY_OF_MONTH_DIGITAL] +
         L"))(" + v[DAY_END] + L")?)\\s*((" + v[ON] + L")?\\s*(" + months(v) + L")?)";
}

// ON stands without parentheses of its own here, so only its last
// alternative carries the date part behind it; kept as it is.
std::wstring yearPattern(const Vocabulary& v) {
  return L"\\b(" + v[EVERY] + L") \\w{0,6} ?(" + v[YEAR] + L")\\s*(" + v[ON] + L"\\s*(" + months(v) + L")?(\\s?(" +
         v[DAY_OF_MONTH_DIGITAL] + L"))(" + v[DAY_END] + L")?)?\\s?";
}

}  // namespace

const std::wstring& repeatListPattern(const Vocabulary& v) {
  return keptFor(v, [&]() -> std::wstring {
    const std::wstring days = weekdays(v);
    return L"((" + v[EVERY] + L")\\s+(" + days + L")\\s*(" + v[AND] + L")\\s*(" + days + L")\\s*(" + v[AND] +
           L")?\\s*(" + days + L")?)|((" + v[EVERY] + L")\\s+(" + v[MONTH] + L")?\\s*(" + v[ON] +
           L")?\\s*(\\d{1,2})\\s*(" + v[DAY_END] + L")?\\s*(" + v[AND] + L")\\s*(\\d{1,2})?\\s*(" + v[DAY_END] +
           L")?\\s*(" + v[AND] + L")?\\s*(\\d{1,2})?\\s*(" + v[DAY_END] + L")?)";
  });
}

const std::wstring& repeatLastDayPattern(const Vocabulary& v) {
  return keptFor(
      v, [&]() -> std::wstring { return L"(\\b(" + v[EVERY] + L")\\s*(" + v[LAST] + L"\\s+(" + v[DAY] + L")))"; });
}

const std::vector<std::pair<std::wstring, NLPFrequency>>& repeatEveryPatterns(const Vocabulary& v) {
  return keptFor(v, [&]() -> std::vector<std::pair<std::wstring, NLPFrequency>> {
    // Built as an ordered map: its key order is the order of the tries.
    const std::map<std::wstring, NLPFrequency> table = {
        {weeklyRow(v, bordered(v, WORKDAY)), NLPFrequency::WEEKLY},
        {dailyRow(v, DAY), NLPFrequency::DAILY},
        {dailyRow(v, NIGHT), NLPFrequency::DAILY},
        {dailyRow(v, MORNING), NLPFrequency::DAILY},
        {dailyRow(v, EVENING), NLPFrequency::DAILY},
        {dailyRow(v, AFTERNOON), NLPFrequency::DAILY},
        {dailyRow(v, NOON), NLPFrequency::DAILY},
        // The empty group gives this row a third group that stays empty.
        {L"\\b(" + v[EVERY] + L") \\w{0,6} ?()(" + bordered(v, WEEK) + L")\\s?", NLPFrequency::WEEKLY},
        {weeklyRow(v, bordered(v, WEEKEND)), NLPFrequency::WEEKLY},
        {weeklyRow(v, bordered(v, WEEKDAY)), NLPFrequency::WEEKLY},
        {L"\\b(" + v[EVERY] + L") \\w{0,6} ?(" + bordered(v, WORKING) + L")\\s*(?:" + bordered(v, DAY) + L")\\b\\s?",
         NLPFrequency::WEEKLY},
        {L"\\b(" + v[EVERY] + L") \\w{0,6} ?(" + addWordBorderInStartAndEnd(weekdays(v)) + L")()?\\s?",
         NLPFrequency::WEEKLY},
        {monthPatternM1(v), NLPFrequency::MONTHLY},
        {monthPatternM2(v), NLPFrequency::MONTHLY},
        {yearPattern(v), NLPFrequency::YEARLY},
    };
    std::vector<std::pair<std::wstring, NLPFrequency>> ordered(table.begin(), table.end());
    if (v[LOCAL] == L"pt") std::reverse(ordered.begin(), ordered.end());
    return ordered;
  });
}

const std::map<std::wstring, NLPFrequency>& repeatOneWordPatterns(const Vocabulary& v) {
  return keptFor(v, [&]() -> std::map<std::wstring, NLPFrequency> {
    // DAILY alone has no word border in front.
    return {
        {v[DAILY] + L"\\b\\s?", NLPFrequency::DAILY},
        {L"\\b" + v[EVERYDAY] + L"\\b\\s?", NLPFrequency::DAILY},
        {L"\\b" + v[WEEKLY] + L"\\b\\s?", NLPFrequency::WEEKLY},
        {L"\\b" + v[MONTHLY] + L"\\b\\s?", NLPFrequency::MONTHLY},
        {L"\\b" + v[YEARLY] + L"\\b\\s?", NLPFrequency::YEARLY},
    };
  });
}

std::wstring officialWorkDayPattern() { return L"(法定工作日|official working days?)"; }

const std::wstring& repeatIntervalPattern(const Vocabulary& v) {
  return keptFor(v, [&]() -> std::wstring { return L"\\b(" + v[EVERY] + L") (\\w*)\\b"; });
}

}  // namespace nlpdate
