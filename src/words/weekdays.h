// Weekday words: the pattern that finds them in a title and their reading as
// a WeekDay. Shared by the weekday, repeat and range recognisers.
#pragma once

#include <string>

#include "core/types.h"
#include "vocabulary/word_guard.h"

namespace nlpdate {

// The WeekDay that a weekday word names. `today` is a tm_wday: a value outside
// 0..7 reads as Monday and 7 as Sunday. "week" alone gives today, "weekend"
// gives Saturday (Sunday when today is Sunday), an empty word gives Sunday.
WeekDay translateDayOfWeek(std::wstring word, int today, Vocabulary vocabulary);

// Three groups: the word before the day, the day, the word after the day.
const std::wstring& getDayOfWeekRecog(Vocabulary vocabulary);
// The weekday words alone (one group): every match of the pattern above holds one.
const std::wstring& getDayOfWeekWords(const Vocabulary& vocabulary);
const WordGuard& weekdayWordGuard(const Vocabulary& vocabulary);

}  // namespace nlpdate
