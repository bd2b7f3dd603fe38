// Chinese range recogniser; not built yet, so it finds no range.
#include "core/title_parser.h"

namespace nlpdate {

std::optional<NLPRecognizeDate> NLPNativeTitleParser::chineseDateDurationRecognition(std::wstring, OptTime,
                                                                                     Vocabulary, OptTM) {
  return std::nullopt;
}

}  // namespace nlpdate
