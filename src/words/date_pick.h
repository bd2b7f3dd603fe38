// Which date recogniser of the word-language driver wins: the earliest
// mention in the title, with a fixed order for ties.
#pragma once

#include <optional>

#include "core/results.h"

namespace nlpdate {

// kind: -1 none, 0 weekday, 1 named day, 2 month, 3 numeric date, 6 Japanese holiday.
struct NLPDatePick {
  int kind = -1;
  long position = 60000;
  OptTM cal;
  const NLPRecognizeDate* winner = nullptr;
};

// Equal positions keep the earlier winner in the order of the arguments. A
// numeric date that wins its own test is never compared with a Japanese
// holiday, and a holiday that wins leaves `cal` as it was. The pick points
// into the arguments, which must outlive it.
NLPDatePick pickEarliestDate(const std::optional<NLPRecognizeDate>& weekday,
                             const std::optional<NLPRecognizeDate>& special,
                             const std::optional<NLPRecognizeDate>& month,
                             const std::optional<NLPRecognizeDate>& numeric,
                             const std::optional<NLPRecognizeDate>& japan);

}  // namespace nlpdate
