// Placeholder until named hours land.
#include "core/title_parser.h"

namespace nlpdate {
OptTM NLPNativeTitleParser::matchSpecialEnTime(std::wstring, std::tm*, Vocabulary) { return std::nullopt; }
}  // namespace nlpdate
