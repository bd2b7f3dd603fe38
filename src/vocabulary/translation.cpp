#include "vocabulary/translation.h"

#include "vocabulary/keys.h"

namespace nlpdate {

// Placeholder until the language tables land: every code reads English with no words.
Vocabulary NLPTranslation::getTransKeyToValue(std::wstring /*language*/) {
  Vocabulary vocabulary;
  vocabulary[LOCAL] = L"en";
  return vocabulary;
}

}  // namespace nlpdate
