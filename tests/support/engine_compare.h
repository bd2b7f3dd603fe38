// How the differential test and the pattern fuzzer compare the two engines:
// a match as its group positions and lengths, leaving out groups that sit
// inside a negative lookahead.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "vocabulary/pattern_kit.h"
#include "vocabulary/pattern_record.h"

namespace nlpdate {

// One line of a recording (tests/patterns/recorded.tsv.gz).
struct RecordedOperation {
  char operation = 0;  // 's' search, 'w' whole match, 'a' find all
  bool insensitive = false;
  size_t from = 0;
  std::wstring pattern;
  std::wstring subject;
};

// Calls use(operation) for every readable line of a gzip'd recording; false
// when the file cannot be opened.
template <class Use>
bool forEachRecordedOperation(const std::string& path, Use use) {
  std::unique_ptr<FILE, int (*)(FILE*)> in(popen(("gzip -dc '" + path + "'").c_str(), "r"), pclose);
  if (!in) return false;
  std::string line;
  char buffer[1 << 16];
  while (fgets(buffer, sizeof buffer, in.get()) != nullptr) {
    line += buffer;
    if (line.empty() || line.back() != '\n') continue;
    line.pop_back();
    RecordedOperation recorded;
    const bool read = readRecordLine(line, recorded.operation, recorded.insensitive, recorded.from, recorded.pattern,
                                     recorded.subject);
    line.clear();
    if (read) use(recorded);
  }
  return true;
}

// Groups inside a negative lookahead: ECMAScript leaves them unset, but the
// reference engine leaks what a failed lookahead captured. No code reads them.
inline std::vector<bool> groupsInNegativeLookahead(const std::wstring& pattern) {
  std::vector<bool> hidden(1, false);
  std::vector<bool> frames;  // per open parenthesis: inside a negative lookahead
  bool inClass = false;
  for (size_t i = 0; i < pattern.size(); ++i) {
    const wchar_t c = pattern[i];
    if (c == L'\\') {
      ++i;
    } else if (inClass) {
      inClass = c != L']';
    } else if (c == L'[') {
      inClass = true;
    } else if (c == L'(') {
      const bool outer = !frames.empty() && frames.back();
      const bool negative = pattern.compare(i + 1, 2, L"?!") == 0;
      if (i + 1 < pattern.size() && pattern[i + 1] != L'?') hidden.push_back(outer);
      frames.push_back(outer || negative);
    } else if (c == L')' && !frames.empty()) {
      frames.pop_back();
    }
  }
  return hidden;
}

inline std::string describe(bool found, const PatternMatch& match, const std::vector<bool>& hidden) {
  if (!found) return "no match";
  std::string text;
  for (size_t i = 0; i < match.size(); ++i) {
    if (i < hidden.size() && hidden[i]) continue;
    text += "[" + std::to_string(match.position(i)) + "," + std::to_string(match.length(i)) + "]";
  }
  return text;
}

inline std::string describe(bool found, const PatternMatch& match) { return describe(found, match, {}); }

inline std::string describeAll(const std::vector<PatternMatch>& matches, const std::vector<bool>& hidden) {
  std::string text;
  for (const PatternMatch& match : matches) text += describe(true, match, hidden) + ";";
  return text;
}

}  // namespace nlpdate
