#include "words/piece_fill.h"

#include <stdexcept>

namespace nlpdate {

namespace {
const wchar_t kOpen = L'\u00AB';
const wchar_t kClose = L'\u00BB';
}  // namespace

std::wstring fillPieces(const std::wstring& text, const PatternPieces& pieces) {
  std::wstring out;
  size_t at = 0;
  while (true) {
    size_t open = text.find(kOpen, at);
    if (open == std::wstring::npos) break;
    size_t close = text.find(kClose, open);
    if (close == std::wstring::npos) break;
    out.append(text, at, open - at);
    auto found = pieces.find(text.substr(open + 1, close - open - 1));
    if (found == pieces.end()) throw std::logic_error("pattern piece without a value");
    out += found->second;
    at = close + 1;
  }
  out.append(text, at, std::wstring::npos);
  return out;
}

}  // namespace nlpdate
