// Chinese repeat rules (每天, 每周三, 每月15号, 每年农历八月十五, ...). Not
// built yet: no title sets a rule here.
#include "core/title_parser.h"

namespace nlpdate {

NLPRepeatResult NLPNativeTitleParser::matchRepeat(std::wstring /*title*/) { return NLPRepeatResult(std::nullopt, false); }

}  // namespace nlpdate
