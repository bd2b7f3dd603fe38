// Pattern texts of the repeats that name their own start and end.
#pragma once

#include <string>

#include "core/types.h"

namespace nlpdate {

// "every day from 3 march to 20 march": unit 4; first date 6, 8, 10, 13, 14;
// last date 17, 19, 21, 24, 25 (day before, month, day behind, today or
// tomorrow word, weekday word).
const std::wstring& repeatFromPattern(const Vocabulary& vocabulary);
// "every day for 2 weeks": unit 2, length 3, length unit 5 (week) or 6 (month).
const std::wstring& repeatForPattern(const Vocabulary& vocabulary);
// "every monday start 3 march end on 20 march": ordinal 2, weekday 4, day of
// month 6, start part 8 (11, 13, 15, 18, 19), end part 20 (25, 27, 29, 32, 33),
// length part 34 (36, 37).
const std::wstring& repeatStartEndPattern(const Vocabulary& vocabulary);

}  // namespace nlpdate
