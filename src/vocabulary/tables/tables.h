// Builders of the per-language vocabularies. Each call makes a fresh map with
// LOCAL, the shared digit/divider values and the language's own words.
#pragma once

#include "core/types.h"

namespace nlpdate {

// Adds the values that every language shares (digit patterns, dividers).
void addSharedValues(Vocabulary& vocabulary);

Vocabulary buildEnglishVocabulary();
Vocabulary buildJapaneseVocabulary();
Vocabulary buildRussianVocabulary();
Vocabulary buildFrenchVocabulary();
Vocabulary buildKoreanVocabulary();
Vocabulary buildPortugueseVocabulary();

}  // namespace nlpdate
