// Pattern texts of the word-language repeat stage, assembled from the
// vocabulary on each call.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/types.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

// Weekday lists ("every monday and friday") and month-day lists ("every 1 and
// 15").
const std::wstring& repeatListPattern(const Vocabulary& vocabulary);
// "every last day".
const std::wstring& repeatLastDayPattern(const Vocabulary& vocabulary);
// The every patterns with their frequency, in the order they are tried: the
// ascending order of their texts, reversed for Portuguese. Two of them are
// monthly: M1 reads a day around "every month" ("15th day of every month",
// "every month on the last friday"), M2 a day and maybe a month right behind
// the word for every ("every 15th", "every march 15").
// Rows of (pattern text, frequency), compiled without regard to case, in their order.
template <class Rows>
std::vector<std::pair<Pattern, NLPFrequency>> compileRepeatRows(const Rows& rows) {
  std::vector<std::pair<Pattern, NLPFrequency>> compiled;
  for (const auto& [text, frequency] : rows)
    compiled.emplace_back(compilePattern(text, PatternCase::Insensitive), frequency);
  return compiled;
}

const std::vector<std::pair<std::wstring, NLPFrequency>>& repeatEveryPatterns(const Vocabulary& vocabulary);
// "daily", "weekly", ...: tried in key order.
const std::map<std::wstring, NLPFrequency>& repeatOneWordPatterns(const Vocabulary& vocabulary);
// The one case-sensitive pattern of the stage; it takes nothing from the
// vocabulary.
std::wstring officialWorkDayPattern();
// "\b(EVERY) (\w*)\b": the word behind "every".
const std::wstring& repeatIntervalPattern(const Vocabulary& vocabulary);

}  // namespace nlpdate
