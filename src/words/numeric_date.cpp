// Placeholder until numeric dates land.
#include "core/title_parser.h"

namespace nlpdate {
std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnDate(std::wstring, Vocabulary) { return std::nullopt; }
}  // namespace nlpdate
