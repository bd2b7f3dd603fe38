// The pattern of the named days (yesterday, today, tomorrow, ...), shared by
// the named-day and range recognisers.
#pragma once

#include <string>

#include "core/types.h"
#include "vocabulary/word_guard.h"

namespace nlpdate {

// Two groups: the named day and its trailing blanks.
const std::wstring& getSpecialDayRecognition(Vocabulary vocabulary);
// The named-day words alone (one group), which every match above holds, and
// their literal guard.
const std::wstring& getSpecialDayWords(const Vocabulary& vocabulary);
const WordGuard& specialDayWordGuard(const Vocabulary& vocabulary);

}  // namespace nlpdate
