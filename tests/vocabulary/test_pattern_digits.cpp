// The digit reading of patterns: claimed only where every match takes a digit.
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <set>
#include <string>

#include "nlpdate/nlpdate.h"
#include "support/engine_compare.h"
#include "vocabulary/pattern_digits.h"
#include "vocabulary/pattern_engine.h"

namespace nlpdate {
namespace {

TEST(PatternDigits, PatternsThatCannotDoWithoutADigit) {
  for (const wchar_t* pattern :
       {L"\\d", L"[0-9]", L"(2[0-4]|[0-1]?[0-9])", L"a\\d+", L"x{0}\\d", L"(?:\\d)", L"\\d{1,2}", L"[\\d]", L"7",
        L"(\\(|\\b)(on|by)?\\s*(3[0-1]|[0-2]?[0-9])([/|-])", L"(?:a|b)(?:1|2)", L"[13579]x", L"\\d\\d?"}) {
    EXPECT_TRUE(everyMatchHoldsADigit(pattern)) << wideToUtf8(pattern);
  }
}

TEST(PatternDigits, PatternsThatMayMatchWithoutOne) {
  for (const wchar_t* pattern :
       {L"\\d?",     L"\\d*",      L"\\d{0,2}", L"(a|\\d)", L"[0-9a]",    L"[--9]",   L"[^0-9]", L"(?=\\d)",
        L"(?!\\d)x", L"(?<=\\d)x", L"a{2}",     L"\\x31",   L"\\u0031",   L"\\u{31}", L"\\12",   L".",
        L"\\D",      L"[\\D]",     L"",         L"(\\d)?",  L"\\d)",      L"[0-]",    L"[]0]",   L"\\d|",
        L"|\\d",     L"(?:\\d|)",  L"a{,2}",    L"\\d{0}",  L"[0-9]{0,}", L"\\c1"}) {
    EXPECT_FALSE(everyMatchHoldsADigit(pattern)) << wideToUtf8(pattern);
  }
}

TEST(PatternDigits, DigitsAreLookedForFromTheStart) {
  EXPECT_TRUE(holdsAsciiDigit(L"at 3pm"));
  EXPECT_FALSE(holdsAsciiDigit(L"at 3pm", 4));
  EXPECT_FALSE(holdsAsciiDigit(L"三点 ３"));  // full-width digits are no \d
  EXPECT_FALSE(holdsAsciiDigit(L""));
}

TEST(PatternDigits, AGuardedSearchAnswersAsTheEngine) {
  const Pattern hour = compilePattern(L"(\\d{1,2})\\s*(am|pm)");
  ASSERT_TRUE(hour.compiled()->needsDigit());
  PatternMatch match;
  const std::wstring none = L"call at noon pm";
  EXPECT_FALSE(hour.search(none, match));
  EXPECT_TRUE(match.empty());
  EXPECT_FALSE(hour.compiled()->find(none, 0, false, match));
  EXPECT_TRUE(hour.findAll(none).empty());
  EXPECT_EQ(hour.replaceAll(none, L"X"), none);
  const std::wstring some = L"call at 10 pm";
  ASSERT_TRUE(hour.search(some, match));
  EXPECT_EQ(match.str(1), L"10");
  EXPECT_FALSE(hour.search(some, match, 10));
}

// Every recorded pattern that claims a digit finds nothing, through either
// engine and without the guard, in every recorded subject with its digits taken out.
TEST(PatternDigits, NoRecordedPatternMatchesASubjectWithoutDigits) {
  const std::string path = std::string(NLPDATE_SOURCE_DIR) + "/tests/patterns/recorded.tsv.gz";
  std::map<std::pair<std::wstring, bool>, Pattern> claimed;
  std::set<std::wstring> subjects;
  size_t patterns = 0;
  ASSERT_TRUE(forEachRecordedOperation(path, [&](const RecordedOperation& recorded) {
    std::wstring subject;
    for (wchar_t unit : recorded.subject) {
      if (unit < L'0' || unit > L'9') subject += unit;
    }
    if (subjects.size() < 3000) subjects.insert(subject);
    const auto key = std::make_pair(recorded.pattern, recorded.insensitive);
    if (claimed.count(key) != 0 || !everyMatchHoldsADigit(recorded.pattern)) return;
    ++patterns;
    claimed.emplace(key, compileWithEngine(defaultPatternEngine(), recorded.pattern,
                                           recorded.insensitive ? PatternCase::Insensitive : PatternCase::Sensitive));
  }));
  std::printf("%zu recorded patterns need a digit; tried on %zu subjects without digits\n", patterns, subjects.size());
  EXPECT_GT(patterns, 100u);
  // The reference engine is slow: a build that uses it tries every 50th pair.
#ifdef NLPDATE_DIFF_STRIDE
  size_t step = NLPDATE_DIFF_STRIDE;
#else
  size_t step = 1;
#endif
  if (defaultPatternEngine() == PatternEngine::Reference) step = 50;
  size_t stride = 0;
  for (const auto& [key, pattern] : claimed) {
    for (const std::wstring& subject : subjects) {
      if (++stride % step != 0) continue;
      PatternMatch match;
      ASSERT_FALSE(pattern.compiled()->find(subject, 0, false, match))
          << wideToUtf8(key.first) << "\n  in: " << wideToUtf8(subject);
    }
  }
}

}  // namespace
}  // namespace nlpdate
