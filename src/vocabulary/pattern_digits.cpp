#include "vocabulary/pattern_digits.h"

namespace nlpdate {

namespace {

// A small recursive reading of ECMAScript pattern syntax: enough to tell
// whether a digit is required, and "not required" wherever it is unsure.
class DigitReader {
 public:
  explicit DigitReader(const std::wstring& text) : text_(text) {}

  bool wholePattern() {
    const bool required = alternation();
    return required && at_ == text_.size();  // a stray ")" leaves the reading unsure
  }

 private:
  // All alternatives must require a digit.
  bool alternation() {
    bool all = sequence();
    while (at_ < text_.size() && text_[at_] == L'|') {
      ++at_;
      all = sequence() && all;
    }
    return all;
  }

  // One alternative: any required item makes it require a digit.
  bool sequence() {
    bool any = false;
    while (at_ < text_.size() && text_[at_] != L'|' && text_[at_] != L')') {
      const bool required = atom();
      const bool optional = optionalQuantifier();  // always read, so that "{2}" is no digit
      any = (required && !optional) || any;
    }
    return any;
  }

  bool atom() {
    const wchar_t unit = text_[at_];
    if (unit == L'(') return group();
    if (unit == L'[') return digitClass();
    if (unit == L'\\') return escape();
    ++at_;
    return unit >= L'0' && unit <= L'9';
  }

  // "\d" is a digit; every other escape is read whole ("\x41", "\u0030",
  // "\12") and counts as none.
  bool escape() {
    ++at_;  // "\"
    if (at_ >= text_.size()) return false;
    const wchar_t kind = text_[at_++];
    if (kind == L'x') {
      at_ += 2;
    } else if (kind == L'u') {
      at_ = at_ < text_.size() && text_[at_] == L'{' ? text_.find(L'}', at_) + 1 : at_ + 4;
    } else if (kind == L'c') {
      at_ += 1;
    } else if (kind >= L'0' && kind <= L'9') {
      while (at_ < text_.size() && text_[at_] >= L'0' && text_[at_] <= L'9') ++at_;
    }
    if (at_ == 0 || at_ > text_.size()) at_ = text_.size();  // a cut escape ends the reading
    return kind == L'd';
  }

  bool group() {
    ++at_;  // "("
    bool lookaround = false;
    if (at_ < text_.size() && text_[at_] == L'?') {
      const wchar_t kind = at_ + 1 < text_.size() ? text_[at_ + 1] : L'\0';
      lookaround = kind == L'=' || kind == L'!' || kind == L'<';  // named groups read as lookbehinds: unsure
      at_ += 2;  // "?:", "?=", "?!"
    }
    const bool required = alternation();
    if (at_ < text_.size() && text_[at_] == L')') ++at_;
    return required && !lookaround;
  }

  // A class of digits only: [0-9], [0-5], [13579], [\d]. Anything else,
  // a "-" that is no range between two digits included, is unsure.
  bool digitClass() {
    ++at_;  // "["
    bool onlyDigits = at_ < text_.size() && text_[at_] != L'^' && text_[at_] != L']';
    if (at_ < text_.size() && text_[at_] == L'^') ++at_;
    if (at_ < text_.size() && text_[at_] == L']') ++at_;  // a "]" first is a member, as the engine reads it
    while (at_ < text_.size() && text_[at_] != L']') {
      const wchar_t unit = text_[at_];
      if (unit == L'\\') {
        onlyDigits = onlyDigits && at_ + 1 < text_.size() && text_[at_ + 1] == L'd';
        at_ += 2;
        continue;
      }
      const bool range = at_ + 2 < text_.size() && text_[at_ + 1] == L'-' && text_[at_ + 2] != L']';
      const wchar_t last = range ? text_[at_ + 2] : unit;
      onlyDigits = onlyDigits && isDigit(unit) && isDigit(last);
      at_ += range ? 3 : 1;
    }
    if (at_ < text_.size()) ++at_;  // "]"
    return onlyDigits;
  }

  static bool isDigit(wchar_t unit) { return unit >= L'0' && unit <= L'9'; }

  // Reads a quantifier if one follows; true when it allows zero repeats.
  bool optionalQuantifier() {
    if (at_ >= text_.size()) return false;
    bool optional = false;
    const wchar_t unit = text_[at_];
    if (unit == L'?' || unit == L'*') {
      optional = true;
      ++at_;
    } else if (unit == L'+') {
      ++at_;
    } else if (unit == L'{') {
      const size_t close = text_.find(L'}', at_);
      if (close == std::wstring::npos) return true;  // unsure
      const size_t digitsEnd = text_.find_first_not_of(L"0123456789", at_ + 1);
      optional = digitsEnd == at_ + 1 || text_.compare(at_ + 1, digitsEnd - at_ - 1, L"0") == 0 ||
                 std::stoul(text_.substr(at_ + 1, digitsEnd - at_ - 1)) == 0;
      at_ = close + 1;
    } else {
      return false;
    }
    if (at_ < text_.size() && text_[at_] == L'?') ++at_;  // lazy
    return optional;
  }

  const std::wstring& text_;
  size_t at_ = 0;
};

}  // namespace

bool everyMatchHoldsADigit(const std::wstring& pattern) {
  try {
    return DigitReader(pattern).wholePattern();
  } catch (const std::exception&) {
    return false;  // e.g. a repeat count too large to read: unsure
  }
}

bool holdsAsciiDigit(const std::wstring& text, size_t from) {
  for (size_t at = from; at < text.size(); ++at) {
    if (text[at] >= L'0' && text[at] <= L'9') return true;
  }
  return false;
}

}  // namespace nlpdate
