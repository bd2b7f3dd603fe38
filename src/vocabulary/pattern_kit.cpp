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
// evicting the least recently used once the cache is full.
class PatternCache {
 public:
  Pattern get(const std::wstring& text, PatternCase caseMode) {
    const Key key{text, caseMode == PatternCase::Insensitive};
    {
      std::lock_guard<std::mutex> guard(lock_);
      auto found = entries_.find(key);
      if (found != entries_.end()) {
        order_.splice(order_.begin(), order_, found->second.second);
        return found->second.first;
      }
    }
    Pattern compiled = compileWithEngine(defaultPatternEngine(), text, caseMode);  // outside the lock
    std::lock_guard<std::mutex> guard(lock_);
    auto found = entries_.find(key);
    if (found != entries_.end()) return found->second.first;
    order_.push_front(key);
    entries_.emplace(key, std::make_pair(compiled, order_.begin()));
    while (entries_.size() > kCapacity) {
      entries_.erase(order_.back());
      order_.pop_back();
    }
    return compiled;
  }

 private:
  struct Key {
    std::wstring text;
    bool insensitive;
    bool operator==(const Key& other) const { return insensitive == other.insensitive && text == other.text; }
  };
  struct KeyHash {
    size_t operator()(const Key& key) const { return std::hash<std::wstring>()(key.text) ^ (key.insensitive ? 1 : 0); }
  };
  static constexpr size_t kCapacity = 8192;  // several times the patterns of all languages
  std::mutex lock_;
  std::list<Key> order_;
  std::unordered_map<Key, std::pair<Pattern, std::list<Key>::iterator>, KeyHash> entries_;
};

}  // namespace

Pattern compilePattern(const std::wstring& text, PatternCase caseMode) {
  static PatternCache* cache = new PatternCache();  // never destroyed: threads may still parse at exit
  return cache->get(text, caseMode);
}

bool Pattern::search(const std::wstring& subject, PatternMatch& match, size_t from) const {
  match.reset(&subject, 0);
  if (!compiled_) return false;
  recordPatternOperation(*compiled_, 's', from, subject);
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
