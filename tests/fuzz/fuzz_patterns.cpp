// libFuzzer entry: random subjects against the patterns the parser really
// issues (the recorded corpus of the differential test), under both engines.
// Any difference in match, position, length or group stops the run, and so
// does a match without a digit of a pattern said to need one.
//
// Input layout:
//   bytes 0-1  which recorded pattern (little-endian, modulo their count)
//   byte 2     operation: search from 0, search from a later unit, find all
//   byte 3     that later unit, for the second operation
//   rest       the subject: ASCII bytes stand for themselves, the others pick
//              one of a few characters the vocabularies hold (accented Latin,
//              Cyrillic, CJK, full-width colon, no-break space, line separator)
// Subjects stop at 64 units and runs of blanks at eight: the reference
// engine recurses and is slow.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "nlpdate/nlpdate.h"
#include "support/engine_compare.h"
#include "vocabulary/pattern_engine.h"
#include "vocabulary/pattern_record.h"

namespace {

using nlpdate::Pattern;
using nlpdate::PatternCase;
using nlpdate::PatternEngine;
using nlpdate::PatternMatch;

struct EnginePair {
  std::wstring text;
  Pattern reference;
  Pattern pcre2;
  std::vector<bool> hidden;
};

std::vector<EnginePair>& pairs() {
  static std::vector<EnginePair> all;
  return all;
}

void loadRecordedPatterns(const std::string& path) {
  std::set<std::pair<std::wstring, bool>> seen;
  nlpdate::forEachRecordedOperation(path, [&seen](const nlpdate::RecordedOperation& recorded) {
    const std::wstring& pattern = recorded.pattern;
    const bool insensitive = recorded.insensitive;
    if (!seen.insert({pattern, insensitive}).second) return;
    const PatternCase mode = insensitive ? PatternCase::Insensitive : PatternCase::Sensitive;
    try {
      EnginePair pair{pattern, nlpdate::compileWithEngine(PatternEngine::Reference, pattern, mode),
                      nlpdate::compileWithEngine(PatternEngine::Pcre2, pattern, mode),
                      nlpdate::groupsInNegativeLookahead(pattern)};
      pairs().push_back(std::move(pair));
    } catch (const std::exception&) {
      // refused by an engine: the parser answers empty either way
    }
  });
}

const wchar_t kWide[] = {L'é',  L'è',  L'ç',  L'ã',  L'д',      L'П',      L'я',  L'三',
                         L'月', L'日', L'号', L'：', L'\u00a0', L'\u2028', L'半', L'点'};

bool isBlank(wchar_t unit) {
  return unit == L' ' || (unit >= L'\t' && unit <= L'\r') || unit == L'\u00a0' || unit == L'\u2028';
}

// Runs of blanks stop at eight: the reference engine goes back and forth over
// longer runs for seconds (the differential test replays the long runs the
// parser really meets).
std::wstring subjectOf(const std::uint8_t* data, std::size_t size) {
  std::wstring subject;
  size_t blanks = 0;
  for (std::size_t i = 0; i < size && subject.size() < 64; ++i) {
    const wchar_t unit = data[i] < 0x80 ? static_cast<wchar_t>(data[i]) : kWide[data[i] & 15];
    blanks = isBlank(unit) ? blanks + 1 : 0;
    if (blanks <= 8) subject += unit;
  }
  return subject;
}

[[noreturn]] void differ(const EnginePair& pair, const std::wstring& subject, const std::string& a,
                         const std::string& b) {
  std::fprintf(stderr, "engines differ\n  pattern: %s\n  subject: %s\n  reference: %s\n  pcre2:     %s\n",
               nlpdate::wideToUtf8(pair.text).c_str(), nlpdate::wideToUtf8(subject).c_str(), a.c_str(), b.c_str());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  const char* path = std::getenv("NLPDATE_RECORDED_PATTERNS");
  loadRecordedPatterns(path != nullptr ? path : NLPDATE_SOURCE_DIR "/tests/patterns/recorded.tsv.gz");
  if (pairs().empty()) {
    std::fprintf(stderr, "no recorded patterns loaded\n");
    std::abort();
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 4) return 0;
  const EnginePair& pair = pairs()[(data[0] | (data[1] << 8)) % pairs().size()];
  const int operation = data[2] % 3;
  const std::wstring subject = subjectOf(data + 4, size - 4);
  std::string a;
  std::string b;
  if (operation == 2) {
    a = nlpdate::describeAll(pair.reference.findAll(subject), pair.hidden);
    b = nlpdate::describeAll(pair.pcre2.findAll(subject), pair.hidden);
  } else {
    const size_t from = operation == 1 && !subject.empty() ? data[3] % (subject.size() + 1) : 0;
    PatternMatch ma;
    PatternMatch mb;
    const bool fa = pair.reference.search(subject, ma, from);
    const bool fb = pair.pcre2.search(subject, mb, from);
    a = nlpdate::describe(fa, ma, pair.hidden);
    b = nlpdate::describe(fb, mb, pair.hidden);
  }
  if (a != b) differ(pair, subject, a, b);
  // A pattern that claims a digit must find nothing, unguarded, where there is none.
  if (pair.pcre2.compiled()->needsDigit() && !nlpdate::holdsAsciiDigit(subject)) {
    PatternMatch raw;
    if (pair.pcre2.compiled()->find(subject, 0, false, raw) ||
        pair.reference.compiled()->find(subject, 0, false, raw)) {
      differ(pair, subject, "a match without a digit", "claimed a digit");
    }
  }
  return 0;
}
