// Placeholder until the am/pm correction lands.
#include "core/title_parser.h"

namespace nlpdate {
OptTM NLPNativeTitleParser::handleSpecialAm(OptTM cal, std::wstring, Vocabulary) { return cal; }
}  // namespace nlpdate
