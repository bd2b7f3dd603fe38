// What a recogniser builds from a vocabulary's words (pattern texts, word lists,
// compiled patterns) depends on those words alone. keptFor builds it once per
// call site, vocabulary and variant, and hands back the kept value afterwards.
// The value lives as long as the thread; only the language tables and the
// vocabularies a test makes by hand have serials, so the store stays small.
#pragma once

#include <cstdint>
#include <functional>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "core/types.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/word_guard.h"

namespace nlpdate {

struct DerivedKey {
  std::uint64_t serial;
  std::uint64_t variant;
  bool operator==(const DerivedKey& other) const { return serial == other.serial && variant == other.variant; }
};

struct DerivedKeyHash {
  size_t operator()(const DerivedKey& key) const {
    return std::hash<std::uint64_t>()(key.serial * 0x9E3779B97F4A7C15ull ^ key.variant);
  }
};

// Each lambda is a type of its own, so each call site gets a store of its own.
// variant tells apart what one site builds for different arguments (a list
// pointer, a flag); it must capture everything besides the words that the
// builder reads.
template <class Build>
const std::decay_t<std::invoke_result_t<Build&>>& keptFor(const Vocabulary& vocabulary, Build build,
                                                          std::uint64_t variant = 0) {
  using Value = std::decay_t<std::invoke_result_t<Build&>>;
  thread_local std::unordered_map<DerivedKey, Value, DerivedKeyHash> kept;
  const DerivedKey key{vocabulary.serial(), variant};
  auto found = kept.find(key);
  if (found != kept.end()) return found->second;
  return kept.emplace(key, build()).first->second;
}

// A compiled pattern whose text build() makes from the vocabulary (and the
// variant) alone.
template <class Build>
const Pattern& keptPattern(const Vocabulary& vocabulary, PatternCase mode, Build build, std::uint64_t variant = 0) {
  return keptFor(
      vocabulary, [&] { return compilePattern(build(), mode); }, variant);
}

// A pattern with a guard: a part that every match of the pattern must contain
// (a group the pattern cannot do without, same case mode, no back references).
// Where the guard finds nothing the pattern cannot match either, so its search
// is skipped; the guard is a plain alternation and scans in one pass where the
// whole pattern would go back over long runs of blanks.
// When each alternative of the part starts with literal text (a word list),
// a plain test for those texts stands in for the guard's search; with neither
// a usable word test nor a guard pattern, the pattern is always searched.
struct GuardedPattern {
  Pattern guard;
  Pattern full;
  WordGuard words = WordGuard();

  // group: the part as one group, "(...)".
  static GuardedPattern of(const std::wstring& group, const std::wstring& whole, PatternCase mode) {
    return GuardedPattern{compilePattern(group, mode), compilePattern(whole, mode),
                          WordGuard(group.substr(1, group.size() - 2))};
  }

  bool search(const std::wstring& subject, PatternMatch& match) const {
    const bool mayMatch = words.usable() ? words.mayMatch(subject) : !guard.compiled() || guard.search(subject);
    if (!mayMatch) {
      match.reset(&subject, 0);  // as a failed search leaves it
      return false;
    }
    return full.search(subject, match);
  }
};

// The word guard of a group text "(...)" that build() makes from the vocabulary.
template <class Build>
const WordGuard& keptWordGuard(const Vocabulary& vocabulary, Build build) {
  return keptFor(vocabulary, [&] {
    const std::wstring group = build();
    return WordGuard(group.substr(1, group.size() - 2));
  });
}

// For variants named by a constant text (a pattern template).
inline std::uint64_t variantOf(const void* constant) { return reinterpret_cast<std::uintptr_t>(constant); }

}  // namespace nlpdate
