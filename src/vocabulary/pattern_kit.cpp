#include "vocabulary/pattern_kit.h"

#include <locale>
#include <map>
#include <mutex>
#include <regex>

namespace nlpdate {

class CompiledPattern {
 public:
  explicit CompiledPattern(std::wregex regex) : regex(std::move(regex)) {}
  std::wregex regex;
};

namespace {

std::wregex compileReference(const std::wstring& text, PatternCase caseMode) {
  std::wregex pattern;
  // The classic locale keeps \b, \w and icase to ASCII whatever the host's
  // global locale is; imbue must come before assign.
  pattern.imbue(std::locale::classic());
  auto flags = std::regex_constants::ECMAScript;
  if (caseMode == PatternCase::Insensitive) flags |= std::regex_constants::icase;
  pattern.assign(text, flags);
  return pattern;
}

void copyGroups(const std::wstring& subject, const std::wsmatch& found, PatternMatch& match) {
  match.reset(&subject, found.size());
  for (size_t i = 0; i < found.size(); ++i) {
    if (!found[i].matched) continue;
    const long start = static_cast<long>(found[i].first - subject.begin());
    match.setGroup(i, start, start + static_cast<long>(found[i].length()));
  }
}

}  // namespace

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

bool Pattern::search(const std::wstring& subject, PatternMatch& match, size_t from) const {
  match.reset(&subject, 0);
  if (!compiled_ || from > subject.size()) return false;
  std::wsmatch found;
  auto flags = from > 0 ? std::regex_constants::match_prev_avail : std::regex_constants::match_default;
  if (!std::regex_search(subject.begin() + static_cast<long>(from), subject.end(), found, compiled_->regex, flags)) {
    return false;
  }
  copyGroups(subject, found, match);
  return true;
}

bool Pattern::search(const std::wstring& subject) const {
  return compiled_ && std::regex_search(subject, compiled_->regex);
}

bool Pattern::matchWhole(const std::wstring& subject, PatternMatch& match) const {
  match.reset(&subject, 0);
  if (!compiled_) return false;
  std::wsmatch found;
  if (!std::regex_match(subject, found, compiled_->regex)) return false;
  copyGroups(subject, found, match);
  return true;
}

bool Pattern::matchWhole(const std::wstring& subject) const {
  return compiled_ && std::regex_match(subject, compiled_->regex);
}

std::wstring Pattern::replaceAll(const std::wstring& subject, const std::wstring& replacement) const {
  if (!compiled_) return subject;
  std::wstring out;
  size_t copied = 0;
  for (std::wsregex_iterator it(subject.begin(), subject.end(), compiled_->regex), end; it != end; ++it) {
    const size_t start = static_cast<size_t>((*it)[0].first - subject.begin());
    out.append(subject, copied, start - copied).append(replacement);
    copied = start + static_cast<size_t>((*it)[0].length());
  }
  return out.append(subject, copied, std::wstring::npos);
}

std::vector<PatternMatch> Pattern::findAll(const std::wstring& subject) const {
  std::vector<PatternMatch> all;
  if (!compiled_) return all;
  for (std::wsregex_iterator it(subject.begin(), subject.end(), compiled_->regex), end; it != end; ++it) {
    PatternMatch match;
    copyGroups(subject, *it, match);
    all.push_back(match);
  }
  return all;
}

std::vector<std::wstring> Pattern::split(const std::wstring& subject) const {
  std::vector<std::wstring> pieces;
  if (!compiled_) return {subject};
  std::wsregex_token_iterator it(subject.begin(), subject.end(), compiled_->regex, -1), end;
  for (; it != end; ++it) pieces.push_back(it->str());
  return pieces;
}

size_t Pattern::groupCount() const { return compiled_ ? compiled_->regex.mark_count() : 0; }

Pattern compilePattern(const std::wstring& text, PatternCase caseMode) {
  // Patterns are constant texts or built from the vocabulary, so a process
  // keeps each one compiled; compiling is the dominant cost of a search.
  static std::mutex lock;
  static std::map<std::pair<std::wstring, int>, std::shared_ptr<const CompiledPattern>> cache;
  const auto key = std::make_pair(text, static_cast<int>(caseMode));
  {
    std::lock_guard<std::mutex> guard(lock);
    auto found = cache.find(key);
    if (found != cache.end()) return Pattern(found->second);
  }
  auto compiled = std::make_shared<const CompiledPattern>(compileReference(text, caseMode));
  std::lock_guard<std::mutex> guard(lock);
  if (cache.size() > 4096) cache.clear();  // titles make patterns too; keep memory bounded
  return Pattern(cache.emplace(key, compiled).first->second);
}

}  // namespace nlpdate
