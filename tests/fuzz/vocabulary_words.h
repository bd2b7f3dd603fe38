// The plain words of a language's vocabulary, for building titles that the
// recognisers take seriously. Shared by the corpus writer and the sweep test.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "nlpdate/nlpdate.h"
#include "vocabulary/translation.h"

namespace nlpdate::fuzz {

// The words of one alternation text: regex syntax dropped, \s read as a space.
inline std::vector<std::string> wordsOfAlternation(const std::wstring& alternation) {
  std::vector<std::string> words;
  std::wstring word;
  const auto flush = [&] {
    if (!word.empty()) words.push_back(wideToUtf8(word));
    word.clear();
  };
  for (std::size_t i = 0; i < alternation.size(); ++i) {
    const wchar_t unit = alternation[i];
    if (unit == L'|') {
      flush();
    } else if (unit == L'\\' && i + 1 < alternation.size()) {
      if (alternation[++i] == L's') word += L' ';
    } else if (std::wstring(L"()[]?*+^${}").find(unit) == std::wstring::npos) {
      word += unit;
    }
  }
  flush();
  return words;
}

// Every distinct word of the vocabulary of a language code, sorted.
inline std::vector<std::string> vocabularyWords(const std::string& language) {
  std::set<std::string> unique;
  for (const auto& entry : NLPTranslation::getTransKeyToValue(utf8ToWide(language))) {
    for (const std::string& word : wordsOfAlternation(entry.second)) unique.insert(word);
  }
  return {unique.begin(), unique.end()};
}

// A small fixed generator, so generated titles are the same on every machine.
struct Lcg {
  unsigned long long state;
  unsigned next() {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<unsigned>(state >> 33);
  }
  std::size_t below(std::size_t limit) { return limit == 0 ? 0 : next() % limit; }
};

}  // namespace nlpdate::fuzz
