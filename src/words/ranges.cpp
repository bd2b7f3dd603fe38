// Word-language range recogniser; not built yet, so it finds no range.
#include "core/title_parser.h"

namespace nlpdate {

std::optional<NLPRecognizeDate> NLPNativeTitleParser::englishDateDurationRecognition(std::wstring, Vocabulary) {
  return std::nullopt;
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnDateDuration(std::wstring, Vocabulary) {
  return std::nullopt;
}

}  // namespace nlpdate
