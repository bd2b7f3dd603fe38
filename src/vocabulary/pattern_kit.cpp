#include "vocabulary/pattern_kit.h"

#include <locale>

namespace nlpdate {

std::wregex compilePattern(const std::wstring& text, PatternCase caseMode) {
  std::wregex pattern;
  // The classic locale keeps \b, \w and icase to ASCII whatever the host's
  // global locale is; imbue must come before assign.
  pattern.imbue(std::locale::classic());
  auto flags = std::regex_constants::ECMAScript;
  if (caseMode == PatternCase::Insensitive) flags |= std::regex_constants::icase;
  pattern.assign(text, flags);
  return pattern;
}

}  // namespace nlpdate
