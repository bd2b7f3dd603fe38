// Picks the vocabulary of a language code.
#pragma once

#include <string>

#include "core/types.h"

namespace nlpdate {

class NLPTranslation {
 public:
  // "ja", "ru", "fr", "ko", "pt" by substring, in that order; anything else is English.
  static Vocabulary getTransKeyToValue(const std::wstring& language);
};

}  // namespace nlpdate
