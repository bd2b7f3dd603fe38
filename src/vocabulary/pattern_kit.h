// The one place where regular expressions are built and run. Every pattern of
// the parser goes through compilePattern, which hands back a Pattern: a cheap
// handle to a compiled pattern with the few operations the recognisers need.
// The engine (and the cache of compiled patterns) change here alone.
// Patterns are ECMAScript over wide strings in the classic locale: \b, \w, \s
// and case folding are ASCII-only, which the vocabulary's word borders rely on.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace nlpdate {

enum class PatternCase { Sensitive, Insensitive };

// One group of a match. A group that did not take part reads as the empty text.
struct PatternGroup {
  const std::wstring* subject = nullptr;
  long start = -1;  // -1: did not take part
  long end = -1;
  bool matched = false;

  std::wstring str() const;
  long length() const { return matched ? end - start : 0; }
  operator std::wstring() const { return str(); }  // NOLINT: reads like std::sub_match
};

// The groups of one match, read through the subject it was found in; the
// subject must outlive the match (searches refuse temporaries for that reason).
class PatternMatch {
 public:
  bool empty() const { return groups_.empty(); }
  size_t size() const { return groups_.size(); }
  // Group i, or a group that did not take part when i is past the last group.
  PatternGroup operator[](size_t i) const;
  std::wstring str(size_t i = 0) const { return (*this)[i].str(); }
  // Start of group i in the subject, counted in code units; -1 when it did not take part.
  long position(size_t i = 0) const { return (*this)[i].start; }
  long length(size_t i = 0) const { return (*this)[i].length(); }

  // Filled by the engine.
  void reset(const std::wstring* subject, size_t groupCount);
  void setGroup(size_t i, long start, long end);

 private:
  const std::wstring* subject_ = nullptr;
  std::vector<std::pair<long, long>> groups_;
};

class CompiledPattern;  // engine-specific, in pattern_engine.h

class Pattern {
 public:
  Pattern() = default;
  explicit Pattern(std::shared_ptr<const CompiledPattern> compiled) : compiled_(std::move(compiled)) {}

  // Leftmost match at or after `from` (earlier text still counts for \b and lookbehind-free anchors,
  // but ^ matches only at 0). Positions in the match are counted from the start of the subject.
  bool search(const std::wstring& subject, PatternMatch& match, size_t from = 0) const;
  bool search(const std::wstring& subject) const;
  bool search(const std::wstring&& subject, PatternMatch& match, size_t from = 0) const = delete;
  // The whole subject matches.
  bool matchWhole(const std::wstring& subject, PatternMatch& match) const;
  bool matchWhole(const std::wstring& subject) const;
  bool matchWhole(const std::wstring&& subject, PatternMatch& match) const = delete;
  // Every match replaced by `replacement`, taken literally.
  std::wstring replaceAll(const std::wstring& subject, const std::wstring& replacement) const;
  // Every non-overlapping match from left to right, as offsets into the subject.
  std::vector<PatternMatch> findAll(const std::wstring& subject) const;
  std::vector<PatternMatch> findAll(const std::wstring&& subject) const = delete;
  // The pieces between matches. No match gives the whole subject (even when empty);
  // a piece after the last match is kept only when it is not empty.
  std::vector<std::wstring> split(const std::wstring& subject) const;
  // The number of capturing groups, group 0 not counted.
  size_t groupCount() const;
  const std::shared_ptr<const CompiledPattern>& compiled() const { return compiled_; }

 private:
  std::shared_ptr<const CompiledPattern> compiled_;
};

// The compiled form of text; compiled once per process and kept.
Pattern compilePattern(const std::wstring& text, PatternCase caseMode = PatternCase::Sensitive);

// A pattern (or list of patterns) whose text never changes, compiled on the
// first use at its call site (each lambda is a site of its own) and kept for
// the process.
template <class Build>
const std::decay_t<std::invoke_result_t<Build&>>& compiledOnce(Build build) {
  static const std::decay_t<std::invoke_result_t<Build&>> compiled = build();
  return compiled;
}

// The patterns of a list, in its order.
std::vector<Pattern> compileEach(const std::vector<std::wstring>& texts, PatternCase caseMode = PatternCase::Sensitive);

}  // namespace nlpdate
