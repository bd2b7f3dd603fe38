// Exceptions that reach the caller of nlpdate. Everything that goes wrong
// inside the parsing of a title itself is turned into an empty result
// instead; these are about the input handed in.
#pragma once

#include <stdexcept>

namespace nlpdate {

// Text that is not valid UTF-8 (a title, a language code or a holiday text).
// Nothing is parsed in that case.
class InvalidUtf8Error : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

// A holiday text with an entry that carries no number, such as
// {"20240101":} or {"20240101"}. The message names the entry; the tables
// applied before stay as they were.
class HolidayTextError : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

}  // namespace nlpdate
