// The range word that joins the two sides of a range ("到", "至", "-", "to",
// and the language's own words). Both recogniser families build their range
// patterns around it.
#pragma once

#include <string>

#include "core/types.h"

namespace nlpdate {

// "\s*(-|~|～|到|至|—|to|until|<the language's DURATION_FLAG>)\s*": exactly one
// group, which every range pattern counts on.
const std::wstring& getDurationFlag(const Vocabulary& vocabulary);

}  // namespace nlpdate
