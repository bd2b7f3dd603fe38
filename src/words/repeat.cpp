// Placeholder until repeat rules land.
#include "core/title_parser.h"

namespace nlpdate {
bool NLPNativeTitleParser::repeatHelper(const std::wstring, Vocabulary) { return false; }
}  // namespace nlpdate
