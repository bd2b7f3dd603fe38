#include "vocabulary/word_guard.h"

#include <algorithm>

namespace nlpdate {

namespace {

// Zero-width or border pieces that may stand in front of a word: a match of
// the alternative still holds the word's literal right after them.
const wchar_t* const kLeadingBorders[] = {L"(?:\\b|^|\\s)", L"\\b"};

bool isSpecial(wchar_t unit) { return std::wstring(L"\\^$.|?*+()[]{}").find(unit) != std::wstring::npos; }

bool isQuantifier(wchar_t unit) { return unit == L'?' || unit == L'*' || unit == L'{'; }

// The alternatives at the top level of a pattern text: bars inside groups,
// classes or escapes do not split.
std::vector<std::wstring> topLevelAlternatives(const std::wstring& text) {
  std::vector<std::wstring> alternatives(1);
  int depth = 0;
  bool inClass = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const wchar_t unit = text[i];
    if (unit == L'\\' && i + 1 < text.size()) {
      alternatives.back() += text.substr(i, 2);
      ++i;
      continue;
    }
    if (inClass) {
      inClass = unit != L']';
    } else if (unit == L'[') {
      inClass = true;
    } else if (unit == L'(') {
      ++depth;
    } else if (unit == L')') {
      --depth;
    } else if (unit == L'|' && depth == 0) {
      alternatives.emplace_back();
      continue;
    }
    alternatives.back() += unit;
  }
  return alternatives;
}

// The literal characters an alternative starts with, past its leading
// borders; a character that a quantifier follows may be absent, so it ends
// the literal before itself. Empty when the alternative starts otherwise.
std::wstring leadingLiteral(std::wstring alternative) {
  for (bool stripped = true; stripped;) {
    stripped = false;
    for (const wchar_t* border : kLeadingBorders) {
      const std::wstring piece(border);
      if (alternative.compare(0, piece.size(), piece) == 0) {
        alternative.erase(0, piece.size());
        stripped = true;
      }
    }
  }
  std::wstring literal;
  for (size_t i = 0; i < alternative.size() && !isSpecial(alternative[i]); ++i) {
    if (i + 1 < alternative.size() && isQuantifier(alternative[i + 1])) break;
    literal += alternative[i];
  }
  return literal;
}

}  // namespace

std::wstring foldAscii(std::wstring text) {
  for (wchar_t& unit : text) {
    if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit - L'A' + L'a');
  }
  return text;
}

WordGuard::WordGuard(const std::wstring& alternation) {
  for (const std::wstring& alternative : topLevelAlternatives(alternation)) {
    const std::wstring literal = leadingLiteral(alternative);
    if (literal.empty()) {
      literals_.clear();
      return;  // an alternative that may start with anything: no guard
    }
    literals_.push_back(foldAscii(literal));
  }
  std::sort(literals_.begin(), literals_.end());
  literals_.erase(std::unique(literals_.begin(), literals_.end()), literals_.end());
  usable_ = !literals_.empty();
  for (const std::wstring& literal : literals_) {
    byFirst_[literal[0]].push_back(literal);
    firstUnits_.set(static_cast<size_t>(literal[0]) & 255);
  }
}

bool WordGuard::mayMatch(const std::wstring& text) const {
  if (!usable_) return true;
  // One pass over the text: only where a literal's first letter stands are
  // the literals that begin with it compared.
  auto fold = [](wchar_t unit) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
  };
  for (size_t at = 0; at < text.size(); ++at) {
    const wchar_t first = fold(text[at]);
    if (!firstUnits_.test(static_cast<size_t>(first) & 255)) continue;
    const auto found = byFirst_.find(first);
    if (found == byFirst_.end()) continue;
    for (const std::wstring& literal : found->second) {
      if (at + literal.size() > text.size()) continue;
      size_t k = 1;
      while (k < literal.size() && fold(text[at + k]) == literal[k]) ++k;
      if (k == literal.size()) return true;
    }
  }
  return false;
}

}  // namespace nlpdate
