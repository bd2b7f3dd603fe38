#include "vocabulary/pattern_kit.h"

#include <list>
#include <map>
#include <mutex>
#include <unordered_map>

#include "vocabulary/pattern_engine.h"
#include "vocabulary/pattern_record.h"

namespace nlpdate {

std::wstring PatternGroup::str() const {
  if (!matched || subject == nullptr) return std::wstring();
  return subject->substr(static_cast<size_t>(start), static_cast<size_t>(end - start));
}

PatternGroup PatternMatch::operator[](size_t i) const {
  PatternGroup group;
  group.subject = subject_;
  if (i >= groups_.size() || groups_[i].first < 0) return group;
  group.start = groups_[i].first;
  group.end = groups_[i].second;
  group.matched = true;
  return group;
}

void PatternMatch::reset(const std::wstring* subject, size_t groupCount) {
  subject_ = subject;
  groups_.assign(groupCount, {-1, -1});
}

void PatternMatch::setGroup(size_t i, long start, long end) {
  if (i < groups_.size()) groups_[i] = {start, end};
}

namespace {

// Compiled patterns, shared by every thread of the process. Patterns of the
// recognisers are constant texts or built from the vocabulary and stay; the few
// made from title text (recognised strings used as patterns) are bounded by
// evicting the least recently used once the cache is full. Pattern texts run to
// thousands of units, so a lookup hashes a sample of the text and compares the
// whole text only against entries of the same sample, without copying it.
class PatternCache {
 public:
  Pattern get(const std::wstring& text, PatternCase caseMode) {
    const bool insensitive = caseMode == PatternCase::Insensitive;
    const size_t hash = sampleHash(text, insensitive);
    {
      std::lock_guard<std::mutex> guard(lock_);
      if (const Pattern* kept = findLocked(hash, text, insensitive)) return *kept;
    }
    Pattern compiled = compileWithEngine(defaultPatternEngine(), text, caseMode);  // outside the lock
    std::lock_guard<std::mutex> guard(lock_);
    if (const Pattern* kept = findLocked(hash, text, insensitive)) return *kept;
    order_.push_front(Entry{text, insensitive, hash, compiled});
    index_.emplace(hash, order_.begin());
    while (order_.size() > kCapacity) evictOldestLocked();
    return compiled;
  }

 private:
  struct Entry {
    std::wstring text;
    bool insensitive;
    size_t hash;
    Pattern pattern;
  };
  using Position = std::list<Entry>::iterator;

  static size_t sampleHash(const std::wstring& text, bool insensitive) {
    constexpr size_t kSamples = 64;
    size_t hash = text.size() * 2 + (insensitive ? 1 : 0);
    const size_t step = text.size() / kSamples + 1;
    auto mix = [&hash](wchar_t unit) { hash = (hash ^ static_cast<size_t>(unit)) * 0x100000001B3ull; };
    for (size_t at = 0; at < text.size(); at += step) mix(text[at]);
    for (size_t back = 1; back <= 16 && back <= text.size(); ++back) mix(text[text.size() - back]);
    return hash;
  }

  const Pattern* findLocked(size_t hash, const std::wstring& text, bool insensitive) {
    auto [from, to] = index_.equal_range(hash);
    for (auto at = from; at != to; ++at) {
      Position entry = at->second;
      if (entry->insensitive != insensitive || entry->text != text) continue;
      order_.splice(order_.begin(), order_, entry);
      return &entry->pattern;
    }
    return nullptr;
  }

  void evictOldestLocked() {
    Position oldest = std::prev(order_.end());
    auto [from, to] = index_.equal_range(oldest->hash);
    for (auto at = from; at != to; ++at) {
      if (at->second == oldest) {
        index_.erase(at);
        break;
      }
    }
    order_.pop_back();
  }

  static constexpr size_t kCapacity = 8192;  // several times the patterns of all languages
  std::mutex lock_;
  std::list<Entry> order_;  // most recently used first
  std::unordered_multimap<size_t, Position> index_;
};

}  // namespace

Pattern compilePattern(const std::wstring& text, PatternCase caseMode) {
  static PatternCache* cache = new PatternCache();  // never destroyed: threads may still parse at exit
  return cache->get(text, caseMode);
}

std::vector<Pattern> compileEach(const std::vector<std::wstring>& texts, PatternCase caseMode) {
  std::vector<Pattern> compiled;
  for (const std::wstring& text : texts) compiled.push_back(compilePattern(text, caseMode));
  return compiled;
}

bool Pattern::search(const std::wstring& subject, PatternMatch& match, size_t from) const {
  match.reset(&subject, 0);
  if (!compiled_) return false;
  recordPatternOperation(*compiled_, 's', from, subject);
  if (compiled_->needsDigit() && !holdsAsciiDigit(subject, from)) return false;  // as the engine would answer
  return compiled_->find(subject, from, false, match);
}

bool Pattern::search(const std::wstring& subject) const {
  PatternMatch match;
  return search(subject, match);
}

bool Pattern::matchWhole(const std::wstring& subject, PatternMatch& match) const {
  match.reset(&subject, 0);
  if (!compiled_) return false;
  recordPatternOperation(*compiled_, 'w', 0, subject);
  if (compiled_->needsDigit() && !holdsAsciiDigit(subject)) return false;
  return compiled_->whole(subject, match);
}

bool Pattern::matchWhole(const std::wstring& subject) const {
  PatternMatch match;
  return matchWhole(subject, match);
}

// Iteration as ECMAScript's: the next search starts where the last match ended;
// after an empty match, a non-empty one at the same place, else one unit on.
std::vector<PatternMatch> Pattern::findAll(const std::wstring& subject) const {
  std::vector<PatternMatch> all;
  if (!compiled_) return all;
  recordPatternOperation(*compiled_, 'a', 0, subject);
  if (compiled_->needsDigit() && !holdsAsciiDigit(subject)) return all;
  PatternMatch match;
  if (!compiled_->find(subject, 0, false, match)) return all;
  while (true) {
    all.push_back(match);
    const size_t end = static_cast<size_t>(match.position(0) + match.length(0));
    if (match.length(0) == 0) {
      if (compiled_->find(subject, end, true, match)) continue;
      if (end >= subject.size() || !compiled_->find(subject, end + 1, false, match)) break;
    } else if (!compiled_->find(subject, end, false, match)) {
      break;
    }
  }
  return all;
}

std::wstring Pattern::replaceAll(const std::wstring& subject, const std::wstring& replacement) const {
  std::wstring out;
  size_t copied = 0;
  for (const PatternMatch& match : findAll(subject)) {
    const size_t start = static_cast<size_t>(match.position(0));
    out.append(subject, copied, start - copied).append(replacement);
    copied = start + static_cast<size_t>(match.length(0));
  }
  return out.append(subject, copied, std::wstring::npos);
}

std::vector<std::wstring> Pattern::split(const std::wstring& subject) const {
  const std::vector<PatternMatch> matches = findAll(subject);
  if (matches.empty()) return {subject};
  std::vector<std::wstring> pieces;
  size_t copied = 0;
  for (const PatternMatch& match : matches) {
    const size_t start = static_cast<size_t>(match.position(0));
    pieces.push_back(subject.substr(copied, start - copied));
    copied = start + static_cast<size_t>(match.length(0));
  }
  if (copied < subject.size()) pieces.push_back(subject.substr(copied));
  return pieces;
}

size_t Pattern::groupCount() const { return compiled_ ? compiled_->groupCount() : 0; }

}  // namespace nlpdate
