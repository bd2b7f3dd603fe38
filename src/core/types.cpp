#include "core/types.h"

#include <atomic>

namespace nlpdate {

std::shared_ptr<Vocabulary::Shared> Vocabulary::share(VocabularyTable table) {
  static std::atomic<std::uint64_t> nextSerial{1};
  return std::make_shared<Shared>(Shared{std::move(table), nextSerial.fetch_add(1)});
}

Vocabulary::Vocabulary() {
  static const std::shared_ptr<const Shared> none = share({});
  shared_ = none;
}

Vocabulary::Vocabulary(VocabularyTable table) : shared_(share(std::move(table))) {}

Vocabulary::Vocabulary(std::initializer_list<VocabularyTable::value_type> entries)
    : shared_(share(VocabularyTable(entries))) {}

const std::wstring& Vocabulary::operator[](const std::wstring& key) const {
  static const std::wstring missing;
  auto found = shared_->table.find(key);
  return found == shared_->table.end() ? missing : found->second;
}

// Every change gives a table of its own with a new serial, so texts kept for
// the old words are never taken for the new ones.
VocabularyTable& Vocabulary::writable() {
  std::shared_ptr<Shared> fresh = share(shared_->table);
  shared_ = fresh;
  return fresh->table;
}

void Vocabulary::set(const std::wstring& key, std::wstring value) { writable()[key] = std::move(value); }

void Vocabulary::erase(const std::wstring& key) { writable().erase(key); }

TMPtr newTM() { return std::make_shared<std::tm>(); }

TMPtr newTM(const std::tm& value) { return std::make_shared<std::tm>(value); }

TimePoint timePointFromSeconds(long long seconds) { return TimePoint(std::chrono::seconds(seconds)); }

long long secondsOf(const TimePoint& point) {
  return std::chrono::duration_cast<std::chrono::seconds>(point.time_since_epoch()).count();
}

TMPtr tmFromTimePoint(const TimePoint& point) {
  std::time_t seconds = static_cast<std::time_t>(secondsOf(point));
  TMPtr record = newTM();
  localtime_r(&seconds, record.get());
  return record;
}

TimePoint timePointFromTM(const std::tm& record) {
  std::tm copy = record;
  return timePointFromSeconds(static_cast<long long>(std::mktime(&copy)));
}

}  // namespace nlpdate
