// Placeholder until the word-language driver lands.
#include "core/title_parser.h"

namespace nlpdate {
bool NLPNativeTitleParser::englishDateRecognition(std::wstring, OptTime, Vocabulary, bool, std::wstring) {
  return false;
}
}  // namespace nlpdate
