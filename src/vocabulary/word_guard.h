// A cheap first test for a group of words: which literal text each
// alternative of an alternation must contain. A title that holds none of them
// cannot match the group, so a pattern that cannot do without the group need
// not be searched. Letters are compared as the patterns compare them without
// regard to case: ASCII letters fold, nothing else does.
#pragma once

#include <bitset>
#include <string>
#include <unordered_map>
#include <vector>

namespace nlpdate {

class WordGuard {
 public:
  WordGuard() = default;
  // From the text of an alternation (without its enclosing group). The guard is
  // usable only when every alternative begins, after word borders and the
  // border groups of the vocabulary, with at least one literal character.
  explicit WordGuard(const std::wstring& alternation);

  bool usable() const { return usable_; }
  // False only when no alternative's literal occurs in the text; always true
  // when the guard is not usable.
  bool mayMatch(const std::wstring& text) const;
  const std::vector<std::wstring>& literals() const { return literals_; }

 private:
  std::vector<std::wstring> literals_;                              // ASCII letters lower-cased
  std::unordered_map<wchar_t, std::vector<std::wstring>> byFirst_;  // the literals by their first unit
  std::bitset<256> firstUnits_;                                     // first units, by their low byte
  bool usable_ = false;
};

// ASCII letters lower-cased, every other unit as it is.
std::wstring foldAscii(std::wstring text);

}  // namespace nlpdate
