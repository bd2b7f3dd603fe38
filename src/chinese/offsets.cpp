// Chinese relative offsets (3天后, 两个小时后) and advance reminders (提前10分钟).
// Not built yet: nothing is found here.
#include "core/title_parser.h"

namespace nlpdate {

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchAfterTime(const std::wstring& /*title*/) {
  return std::nullopt;
}

std::wstring NLPNativeTitleParser::matchAdvanceTime(std::wstring /*title*/) { return std::wstring(); }

}  // namespace nlpdate
