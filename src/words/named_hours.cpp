// Named hours in a word-language title. Fixed hours (noon, supper, brunch,
// midnight, tonight) are taken as they are; the four day parts start at the
// user's hour and step forward by whole hours while they lie in the past.

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

// Latin words get word borders; in Portuguese every word gets a leading one.
const std::wstring& morningWords(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    const std::wstring value = vocabulary[MORNING];
    if (value.empty()) return value;
    const bool isPortuguese = vocabulary[LOCAL].find(L"pt") != std::wstring::npos;
    std::wstring words;
    size_t begin = 0;
    while (true) {
      size_t bar = value.find(L'|', begin);
      const std::wstring word = value.substr(begin, bar == std::wstring::npos ? std::wstring::npos : bar - begin);
      if (isAsciiCode(word)) {
        words += L"\\b" + word + L"\\b|";
      } else if (isPortuguese) {
        words += L"\\b" + word + L"|";
      } else {
        words += word + L"|";
      }
      if (bar == std::wstring::npos) break;
      begin = bar + 1;
    }
    words.pop_back();
    return words;
  });
}

struct DayPart {
  const Pattern& pattern;
  int hour;
  int minute;
  int limit;
};

}  // namespace

std::map<std::wstring, std::pair<int, int>> NLPNativeTitleParser::getEnSpecialHourMap(Vocabulary vocabulary) {
  const std::wstring at = L"(" + vocabulary[AT] + L")?\\s*";
  std::map<std::wstring, std::pair<int, int>> hours;
  hours[at + addWordBorderInStartAndEnd(vocabulary[NOON])] = {12, 0};
  hours[at + addWordBorderInStartAndEnd(vocabulary[SUPPER])] = {18, 0};
  hours[at + addWordBorderInStartAndEnd(vocabulary[BRUNCH])] = {10, 0};
  hours[at + addWordBorderInStartAndEnd(vocabulary[TONIGHT])] = {nightHour, nightMinute};
  hours[at + addWordBorderInStartAndEnd(vocabulary[MIDNIGHT])] = {0, 0};
  return hours;
}

OptTM NLPNativeTitleParser::matchSpecialEnTime(std::wstring title, std::tm* calendar, Vocabulary vocabulary) {
  // The patterns come from the words, the hour of tonight from the settings.
  const std::uint64_t night =
      static_cast<std::uint64_t>(static_cast<std::uint32_t>(nightHour)) << 32 | static_cast<std::uint32_t>(nightMinute);
  const auto& rows = keptFor(
      vocabulary,
      [&] {
        std::vector<std::pair<Pattern, std::pair<int, int>>> compiled;
        for (const auto& [text, time] : getEnSpecialHourMap(vocabulary)) {
          compiled.emplace_back(compilePattern(text, PatternCase::Insensitive), time);
        }
        return compiled;
      },
      night);
  PatternMatch match;
  for (const auto& [pattern, time] : rows) {
    if (!pattern.search(title, match)) continue;
    TMPtr record = getDefaultTM();
    copyTM(calendar, record.get());
    setTMToDefaultTime(record.get());
    record->tm_hour = time.first;
    record->tm_min = time.second;
    // A fixed hour does not roll here; the driver may move it a day.
    parserDueDate.reminder.push_back(ON_TIME);
    parserDueDate.recognizeStrings.push_back(match[0].str());
    return record;
  }
  return matchEnDayPart(title, calendar, vocabulary);
}

OptTM NLPNativeTitleParser::matchEnDayPart(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary) {
  // Morning, afternoon, evening, night: patterns from the words, hours from the settings.
  const std::vector<Pattern>& words = keptFor(vocabulary, [&] {
    const std::wstring at = L"(" + vocabulary[AT] + L")?\\s*";
    return compileEach(
        {at + morningWords(vocabulary), at + addWordBorderInStartAndEnd(vocabulary[AFTERNOON]),
         at + addWordBorderInStartAndEnd(vocabulary[EVENING]), at + addWordBorderInStartAndEnd(vocabulary[NIGHT])},
        PatternCase::Insensitive);
  });
  const DayPart parts[] = {
      {words[0], morningHour, morningMinute, 12},
      {words[1], afternoonHour, afternoonMinute, 17},
      {words[2], eveningHour, eveningMinute, 19},
      {words[3], nightHour, nightMinute, 24},
  };
  PatternMatch match;
  for (const DayPart& part : parts) {
    if (!part.pattern.search(title, match)) continue;
    TMPtr record = getDefaultTM();
    copyTM(calendar, record.get());
    setTMToDefaultTime(record.get());
    record->tm_hour = part.hour;
    record->tm_min = part.minute;
    // Step a whole hour at a time to the first one ahead of now, up to the
    // limit.
    for (int h = part.hour; h < part.limit; h = record->tm_hour) {
      if (!isBeforeNow(record.get())) break;
      record->tm_hour += 1;
      if (!isBeforeNow(record.get())) break;
    }
    if (isBeforeNow(record.get())) {
      // The day part is over today, so it means tomorrow.
      record->tm_hour = part.hour;
      record->tm_mday += 1;
    }
    parserDueDate.reminder.push_back(ON_TIME);
    parserDueDate.recognizeStrings.push_back(match[0].str());
    return record;
  }
  return std::nullopt;
}

}  // namespace nlpdate
