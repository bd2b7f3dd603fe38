// The one place where regular expressions are built. Every pattern of the
// parser goes through compilePattern, so the engine (or a cache) can change
// here alone. Patterns are ECMAScript over wide strings in the classic
// locale: \b, \w, \s and case folding are ASCII-only, which the vocabulary's
// word borders rely on.
#pragma once

#include <regex>
#include <string>

namespace nlpdate {

enum class PatternCase { Sensitive, Insensitive };

std::wregex compilePattern(const std::wstring& text, PatternCase caseMode = PatternCase::Sensitive);

}  // namespace nlpdate
