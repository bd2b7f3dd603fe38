// The two engines behind the pattern kit: PCRE2 (32-bit code units, JIT), the
// default, and std::wregex in the classic locale, kept as the reference that
// PCRE2 must reproduce. Internal to the kit and its differential test.
#pragma once

#include <memory>
#include <string>

#include "vocabulary/pattern_digits.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

enum class PatternEngine { Reference, Pcre2 };

// One compiled pattern of one engine. Every operation of Pattern is built on
// `find`, so that both engines iterate, replace and split alike.
class CompiledPattern {
 public:
  CompiledPattern(std::wstring text, PatternCase caseMode)
      : text_(std::move(text)), caseMode_(caseMode), needsDigit_(everyMatchHoldsADigit(text_)) {}
  virtual ~CompiledPattern() = default;
  // The leftmost match at or after `from` (earlier text still counts for \b and
  // lookarounds; ^ only at 0). With `anchoredNotEmpty`, only a non-empty match
  // that starts exactly at `from`.
  virtual bool find(const std::wstring& subject, size_t from, bool anchoredNotEmpty, PatternMatch& match) const = 0;
  // A match of the whole subject.
  virtual bool whole(const std::wstring& subject, PatternMatch& match) const = 0;
  virtual size_t groupCount() const = 0;
  const std::wstring& text() const { return text_; }
  PatternCase caseMode() const { return caseMode_; }
  // Every match takes an ASCII digit: a subject without one is not searched.
  bool needsDigit() const { return needsDigit_; }

 private:
  std::wstring text_;
  PatternCase caseMode_;
  bool needsDigit_;
};

// The engine compilePattern uses, fixed at build time.
PatternEngine defaultPatternEngine();
// Whether this build has the PCRE2 engine at all.
bool hasPcre2Engine();

// Compiles with the given engine, bypassing the cache; throws std::runtime_error
// (or std::regex_error) for a pattern the engine refuses.
std::shared_ptr<const CompiledPattern> compileReference(const std::wstring& text, PatternCase caseMode);
std::shared_ptr<const CompiledPattern> compilePcre2(const std::wstring& text, PatternCase caseMode);
Pattern compileWithEngine(PatternEngine engine, const std::wstring& text, PatternCase caseMode);

// ECMAScript's "." (anything but \n, \r, U+2028, U+2029) spelled out for PCRE2, whose
// newline conventions give no such set; everything else passes unchanged.
std::wstring translateForPcre2(const std::wstring& text);

}  // namespace nlpdate
