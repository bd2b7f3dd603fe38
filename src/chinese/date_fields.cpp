// Placeholder until the date field setters land.
#include "core/title_parser.h"

namespace nlpdate {
void NLPNativeTitleParser::setYear(std::wstring, TMPtr) {}
}  // namespace nlpdate
