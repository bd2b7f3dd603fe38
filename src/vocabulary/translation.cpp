#include "vocabulary/translation.h"

#include "vocabulary/tables/tables.h"

namespace nlpdate {

namespace {

// Each language's words are built once and shared by every parse: the tables
// never change, and a caller that edits its copy gets a table of its own.
template <VocabularyTable (*Build)()>
const Vocabulary& builtOnce() {
  static const Vocabulary vocabulary(Build());
  return vocabulary;
}

}  // namespace

// Case-sensitive substring tests, first hit wins: "ja_RU" is Japanese, and
// "zh", "EN" or an empty code fall through to English (the Chinese recogniser
// carries its own patterns).
Vocabulary NLPTranslation::getTransKeyToValue(const std::wstring& language) {
  auto has = [&language](const wchar_t* code) { return language.find(code) != std::wstring::npos; };
  if (has(L"ja")) return builtOnce<buildJapaneseVocabulary>();
  if (has(L"ru")) return builtOnce<buildRussianVocabulary>();
  if (has(L"fr")) return builtOnce<buildFrenchVocabulary>();
  if (has(L"ko")) return builtOnce<buildKoreanVocabulary>();
  if (has(L"pt")) return builtOnce<buildPortugueseVocabulary>();
  return builtOnce<buildEnglishVocabulary>();
}

}  // namespace nlpdate
