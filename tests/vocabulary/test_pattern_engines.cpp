// The proof that the PCRE2 engine answers as the reference engine does: every
// pattern operation the parser issued over the test suite and the benchmark
// titles (tests/patterns/recorded.tsv.gz, made by scripts/record-patterns) is
// replayed through both engines, and match, position, length and every group
// must agree.
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "nlpdate/nlpdate.h"
#include "support/engine_compare.h"
#include "vocabulary/pattern_engine.h"
#include "vocabulary/pattern_record.h"

using namespace nlpdate;

namespace {

// Sanitizer builds replay every n-th operation: the reference engine is slow there.
#ifdef NLPDATE_DIFF_STRIDE
constexpr size_t kStride = NLPDATE_DIFF_STRIDE;
#else
constexpr size_t kStride = 1;
#endif

struct EnginePair {
  Pattern reference;
  Pattern pcre2;
  std::vector<bool> hidden;
  bool refused = false;
};

}  // namespace

TEST(PatternEngines, TranslationSpellsOutTheDotOnlyOutsideClasses) {
  EXPECT_EQ(translateForPcre2(L"a.b"), L"a[^\\n\\r\\x{2028}\\x{2029}]b");
  EXPECT_EQ(translateForPcre2(L"[.]\\."), L"[.]\\.");
  EXPECT_EQ(translateForPcre2(L"[]a.]."), L"[]a.][^\\n\\r\\x{2028}\\x{2029}]");
}

TEST(PatternEngines, GroupsInsideANegativeLookaheadAreFound) {
  EXPECT_EQ(groupsInNegativeLookahead(L"[0-9]{4,}(?!\\s{0,4}([ap])|\\s)\\s*"), (std::vector<bool>{false, true}));
  EXPECT_EQ(groupsInNegativeLookahead(L"(a)(?:b)(c)[(]"), (std::vector<bool>{false, false, false}));
}

TEST(PatternEngines, BothEnginesAgreeOnKnownTraps) {
  if (!hasPcre2Engine()) GTEST_SKIP() << "built without PCRE2";
  const std::vector<std::pair<std::wstring, std::wstring>> cases = {
      {L"a$", L"a\n"},         {L"\\bété\\b", L"l'été"}, {L"(?:x|(y))z", L"xz"},
      {L"\\s+", L"a\u00a0 b"}, {L".+", L"ab\u2028cd"},   {L"É", L"é"},
      {L"^(a)|b", L"cab"},     {L"(\\d+)?x", L"x"},      {L"a(?!b)", L"ab ac"},
  };
  for (const auto& [pattern, subject] : cases) {
    for (PatternCase mode : {PatternCase::Sensitive, PatternCase::Insensitive}) {
      PatternMatch a;
      PatternMatch b;
      const bool foundA = compileWithEngine(PatternEngine::Reference, pattern, mode).search(subject, a);
      const bool foundB = compileWithEngine(PatternEngine::Pcre2, pattern, mode).search(subject, b);
      EXPECT_EQ(describe(foundA, a), describe(foundB, b)) << wideToUtf8(pattern);
    }
  }
}

TEST(PatternEngines, EveryRecordedOperationAgrees) {
  if (!hasPcre2Engine()) GTEST_SKIP() << "built without PCRE2";
  const std::string path = std::string(NLPDATE_SOURCE_DIR) + "/tests/patterns/recorded.tsv.gz";
  std::map<std::pair<std::wstring, bool>, EnginePair> compiled;
  size_t operations = 0;
  size_t seen = 0;
  size_t differences = 0;
  const bool opened = forEachRecordedOperation(path, [&](const RecordedOperation& recorded) {
    const auto& [operation, insensitive, from, pattern, subject] = recorded;
    auto [entry, isNew] = compiled.try_emplace({pattern, insensitive});
    EnginePair& engines = entry->second;
    if (isNew) {
      const PatternCase mode = insensitive ? PatternCase::Insensitive : PatternCase::Sensitive;
      try {
        engines.reference = compileWithEngine(PatternEngine::Reference, pattern, mode);
      } catch (const std::exception&) {
        engines.refused = true;  // the parser turns a refused pattern into an empty answer either way
      }
      if (!engines.refused) engines.pcre2 = compileWithEngine(PatternEngine::Pcre2, pattern, mode);
      engines.hidden = groupsInNegativeLookahead(pattern);
    }
    if (engines.refused) return;
    if (++seen % kStride != 0) return;
    ++operations;
    std::string a;
    std::string b;
    if (operation == 'a') {
      a = describeAll(engines.reference.findAll(subject), engines.hidden);
      b = describeAll(engines.pcre2.findAll(subject), engines.hidden);
    } else {
      PatternMatch ma;
      PatternMatch mb;
      const bool whole = operation == 'w';
      const bool fa = whole ? engines.reference.matchWhole(subject, ma) : engines.reference.search(subject, ma, from);
      const bool fb = whole ? engines.pcre2.matchWhole(subject, mb) : engines.pcre2.search(subject, mb, from);
      a = describe(fa, ma, engines.hidden);
      b = describe(fb, mb, engines.hidden);
    }
    if (a != b) {
      ++differences;
      if (differences <= 20) {
        ADD_FAILURE() << "operation " << operation << " from " << from << "\n  pattern: " << wideToUtf8(pattern)
                      << "\n  subject: " << wideToUtf8(subject) << "\n  reference: " << a << "\n  pcre2:     " << b;
      }
    }
  });
  ASSERT_TRUE(opened) << path;
  std::printf("replayed %zu operations over %zu patterns, %zu differences\n", operations, compiled.size(), differences);
  EXPECT_GT(operations, 100000u / kStride);
  EXPECT_EQ(differences, 0u);
}
