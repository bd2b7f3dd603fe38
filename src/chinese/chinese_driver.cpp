// The Chinese family's driver. Its recognisers have not landed yet, so it
// finds nothing and the word-language family's result stands alone.
#include "core/title_parser.h"

namespace nlpdate {

bool NLPNativeTitleParser::chineseDateRecognition(std::wstring /*title*/, OptTime /*baseDate*/,
                                                  Vocabulary /*vocabulary*/) {
  return false;
}

}  // namespace nlpdate
