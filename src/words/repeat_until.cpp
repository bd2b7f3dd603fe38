// Placeholder until repeats with an end land.
#include "core/title_parser.h"

namespace nlpdate {
bool NLPNativeTitleParser::repeatUntilRecognize(std::wstring, Vocabulary) { return false; }
}  // namespace nlpdate
