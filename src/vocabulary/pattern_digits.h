// Whether every match of a pattern must take an ASCII digit. Many date and
// time patterns cannot do without one, and a title without digits is spared
// their search. The reading is conservative: "false" only means "not shown".
#pragma once

#include <string>

namespace nlpdate {

// True when each way through the pattern consumes a character that only a
// digit matches (0-9, \d, a class of digits only), outside lookarounds and not
// under a quantifier that allows zero.
bool everyMatchHoldsADigit(const std::wstring& pattern);

// Whether text holds an ASCII digit at or after from.
bool holdsAsciiDigit(const std::wstring& text, size_t from = 0);

}  // namespace nlpdate
