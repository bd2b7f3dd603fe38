// The reference engine: std::wregex, ECMAScript, in the classic locale, so
// that \b, \w and case folding stay ASCII whatever the host's global locale is.
#include <locale>
#include <regex>

#include "vocabulary/pattern_engine.h"

namespace nlpdate {

namespace {

void copyGroups(const std::wstring& subject, const std::wsmatch& found, PatternMatch& match) {
  match.reset(&subject, found.size());
  for (size_t i = 0; i < found.size(); ++i) {
    if (!found[i].matched) continue;
    const long start = static_cast<long>(found[i].first - subject.begin());
    match.setGroup(i, start, start + static_cast<long>(found[i].length()));
  }
}

class ReferencePattern : public CompiledPattern {
 public:
  ReferencePattern(const std::wstring& text, PatternCase caseMode) : CompiledPattern(text, caseMode) {
    regex_.imbue(std::locale::classic());  // before assign
    auto flags = std::regex_constants::ECMAScript;
    if (caseMode == PatternCase::Insensitive) flags |= std::regex_constants::icase;
    regex_.assign(text, flags);
  }

  bool find(const std::wstring& subject, size_t from, bool anchoredNotEmpty, PatternMatch& match) const override {
    match.reset(&subject, 0);
    if (from > subject.size()) return false;
    auto flags = from > 0 ? std::regex_constants::match_prev_avail : std::regex_constants::match_default;
    if (anchoredNotEmpty) flags |= std::regex_constants::match_not_null | std::regex_constants::match_continuous;
    std::wsmatch found;
    if (!std::regex_search(subject.begin() + static_cast<long>(from), subject.end(), found, regex_, flags)) {
      return false;
    }
    copyGroups(subject, found, match);
    return true;
  }

  bool whole(const std::wstring& subject, PatternMatch& match) const override {
    match.reset(&subject, 0);
    std::wsmatch found;
    if (!std::regex_match(subject, found, regex_)) return false;
    copyGroups(subject, found, match);
    return true;
  }

  size_t groupCount() const override { return regex_.mark_count(); }

 private:
  std::wregex regex_;
};

}  // namespace

std::shared_ptr<const CompiledPattern> compileReference(const std::wstring& text, PatternCase caseMode) {
  return std::make_shared<const ReferencePattern>(text, caseMode);
}

}  // namespace nlpdate
