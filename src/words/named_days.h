// The pattern of the named days (yesterday, today, tomorrow, ...), shared by
// the named-day and range recognisers.
#pragma once

#include <string>

#include "core/types.h"

namespace nlpdate {

// Two groups: the named day and its trailing blanks.
const std::wstring& getSpecialDayRecognition(Vocabulary vocabulary);

}  // namespace nlpdate
