// Value types shared by every part of the parser: time points, calendar
// records, weekdays and the vocabulary map.
#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace nlpdate {

// A system-clock time point counting microseconds; conversion to seconds truncates.
using TimePoint = std::chrono::time_point<std::chrono::system_clock, std::chrono::microseconds>;
using OptTime = std::optional<TimePoint>;

// A broken-down local time. Recognisers hand records around by pointer and
// sometimes alias them on purpose, so a record is shared and owned.
using TMPtr = std::shared_ptr<std::tm>;
using OptTM = std::optional<TMPtr>;

// Vocabulary: key constant text -> alternation text, as the table builders write it.
using VocabularyTable = std::map<std::wstring, std::wstring>;

// A language's vocabulary as the recognisers read it: a shared, immutable table,
// so passing one around copies a pointer. Read by subscript; a missing key reads
// as the empty text. Writing (set, erase) copies the table first when it is
// shared, so a change never reaches another holder. Every distinct table has its
// own serial, which lets derived texts (patterns built from the words) be kept.
class Vocabulary {
 public:
  Vocabulary();
  Vocabulary(VocabularyTable table);  // NOLINT: a table reads as a vocabulary
  Vocabulary(std::initializer_list<VocabularyTable::value_type> entries);

  const std::wstring& operator[](const std::wstring& key) const;
  std::size_t count(const std::wstring& key) const { return shared_->table.count(key); }
  std::size_t size() const { return shared_->table.size(); }
  bool empty() const { return shared_->table.empty(); }
  VocabularyTable::const_iterator find(const std::wstring& key) const { return shared_->table.find(key); }
  VocabularyTable::const_iterator begin() const { return shared_->table.begin(); }
  VocabularyTable::const_iterator end() const { return shared_->table.end(); }
  const VocabularyTable& table() const { return shared_->table; }

  void set(const std::wstring& key, std::wstring value);
  void erase(const std::wstring& key);

  friend bool operator==(const Vocabulary& a, const Vocabulary& b) { return a.table() == b.table(); }
  friend bool operator!=(const Vocabulary& a, const Vocabulary& b) { return !(a == b); }

  // Same serial, same words: a key for texts built from this vocabulary.
  std::uint64_t serial() const { return shared_->serial; }

 private:
  struct Shared {
    VocabularyTable table;
    std::uint64_t serial;
  };
  static std::shared_ptr<Shared> share(VocabularyTable table);
  VocabularyTable& writable();

  std::shared_ptr<const Shared> shared_;
};

enum WeekDay { Sunday = 0, Monday = 1, Tuesday = 2, Wednesday = 3, Thursday = 4, Friday = 5, Saturday = 6 };

// Scoped, since the vocabulary has keys named DAILY, WEEKLY, ...
enum class NLPFrequency { SECONDLY = 0, MINUTELY = 1, HOURLY = 2, DAILY = 3, WEEKLY = 4, MONTHLY = 5, YEARLY = 6 };

// Fresh heap records.
TMPtr newTM();
TMPtr newTM(const std::tm& value);

// Seconds and time points.
TimePoint timePointFromSeconds(long long seconds);
long long secondsOf(const TimePoint& point);

// Local broken-down time of a time point (localtime_r), as a fresh record.
TMPtr tmFromTimePoint(const TimePoint& point);
// mktime of a copy of the record, as a time point.
TimePoint timePointFromTM(const std::tm& record);

}  // namespace nlpdate
