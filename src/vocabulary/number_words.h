// The vocabulary's twenty-four number words, "one" to "twenty four", as one
// alternation; the clock-time and offset patterns both read hours and
// counts written in words through it.
#pragma once

#include <string>

#include "core/types.h"

namespace nlpdate {

// «ONE»|«TWO»|...|«TWENTY_FOUR», joined literally: a missing word stays an
// empty alternative with its bar.
const std::wstring& numberWordAlternation(const Vocabulary& vocabulary);

}  // namespace nlpdate
