#include "vocabulary/translation.h"

#include "vocabulary/tables/tables.h"

namespace nlpdate {

// Case-sensitive substring tests, first hit wins: "ja_RU" is Japanese, and
// "zh", "EN" or an empty code fall through to English (the Chinese recogniser
// carries its own patterns).
Vocabulary NLPTranslation::getTransKeyToValue(std::wstring language) {
  auto has = [&language](const wchar_t* code) { return language.find(code) != std::wstring::npos; };
  if (has(L"ja")) return buildJapaneseVocabulary();
  if (has(L"ru")) return buildRussianVocabulary();
  if (has(L"fr")) return buildFrenchVocabulary();
  if (has(L"ko")) return buildKoreanVocabulary();
  if (has(L"pt")) return buildPortugueseVocabulary();
  return buildEnglishVocabulary();
}

}  // namespace nlpdate
