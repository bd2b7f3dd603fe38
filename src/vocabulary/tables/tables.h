// Builders of the per-language vocabularies. Each call makes a fresh table with
// LOCAL, the shared digit/divider values and the language's own words.
#pragma once

#include "core/types.h"

namespace nlpdate {

// Adds the values that every language shares (digit patterns, dividers).
void addSharedValues(VocabularyTable& vocabulary);

VocabularyTable buildEnglishVocabulary();
VocabularyTable buildJapaneseVocabulary();
VocabularyTable buildRussianVocabulary();
VocabularyTable buildFrenchVocabulary();
VocabularyTable buildKoreanVocabulary();
VocabularyTable buildPortugueseVocabulary();

}  // namespace nlpdate
