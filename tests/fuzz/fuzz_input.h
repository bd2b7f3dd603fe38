// Decoding of a fuzz input into language, settings and title; shared by the
// fuzz target and the corpus writer so both agree on the byte layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

#include "nlpdate/nlpdate.h"

namespace nlpdate::fuzz {

// 2024-03-08T10:00:00Z, a Friday: the fixed "now" of every fuzz run.
constexpr long long kFixedNow = 1709892000;

// The languages the first byte picks from; the last one is unknown on purpose.
inline const char* const kLanguages[] = {"en", "zh_CN", "ja", "ru", "fr", "ko", "pt", "xx_ZZ"};
constexpr int kLanguageCount = 8;

struct FuzzCase {
  std::string language;
  bool is24Hour = true;
  bool monthFirst = false;
  int firstWeekday = 1;
  std::optional<Clock::time_point> baseDate;
  std::string title;
};

inline FuzzCase readFuzzCase(const std::uint8_t* data, std::size_t size) {
  FuzzCase input;
  input.language = kLanguages[data[0] % kLanguageCount];
  const std::uint8_t bits = data[1];
  input.is24Hour = (bits & 0x01) != 0;
  input.monthFirst = (bits & 0x02) != 0;
  const int weekday = (bits >> 2) & 0x07;
  input.firstWeekday = weekday == 0 ? 1 : weekday;
  // A base date three days before now, at 18:30, so rolls against it show.
  if (bits & 0x20) input.baseDate = Clock::from_time_t(static_cast<std::time_t>(kFixedNow - 3 * 86400 + 30600));
  input.title.assign(reinterpret_cast<const char*>(data + 2), size - 2);
  return input;
}

// The first two bytes of an input for the given settings.
inline std::string encodeHeader(int languageIndex, bool is24Hour, bool monthFirst, int firstWeekday, bool withBase) {
  std::string header(2, '\0');
  header[0] = static_cast<char>(languageIndex);
  header[1] = static_cast<char>((is24Hour ? 0x01 : 0) | (monthFirst ? 0x02 : 0) | ((firstWeekday & 0x07) << 2) |
                                (withBase ? 0x20 : 0));
  return header;
}

class FuzzSettings : public NLPNativeParserDataSource {
 public:
  explicit FuzzSettings(const FuzzCase& input) : input_(input) {}
  int firstWeekday() const override { return input_.firstWeekday; }
  bool is24Hour() const override { return input_.is24Hour; }
  std::string preferredLanguage() const override { return input_.language; }
  std::optional<bool> monthFirst() const override { return input_.monthFirst; }

 private:
  FuzzCase input_;
};

// "" or {"repeatFlag":"...", ..., "isAllDay":true|false}: the only texts parse may give.
inline bool hasResultShape(const std::string& json) {
  if (json.empty()) return true;
  const auto endsWith = [&json](const std::string& tail) {
    return json.size() > tail.size() && json.compare(json.size() - tail.size(), tail.size(), tail) == 0;
  };
  return json.rfind("{\"repeatFlag\":\"", 0) == 0 &&
         (endsWith(",\"isAllDay\":true}") || endsWith(",\"isAllDay\":false}")) &&
         json.find("\"recognizeStrings\":[") != std::string::npos &&
         json.find("\"startDate\":\"") != std::string::npos && json.find("\"dueDate\":\"") != std::string::npos &&
         json.find("\"reminder\":[") != std::string::npos;
}

}  // namespace nlpdate::fuzz
