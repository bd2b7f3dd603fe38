// Offsets from now in the word languages: "in 2 hours", "3 days later",
// "in 1 hour 30 minutes".
#include <vector>

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/number_words.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

const std::wstring& allUnits(const Vocabulary& v) {
  return keptFor(v, [&]() -> std::wstring {
    return v[MINUTE] + L"|" + v[HOUR] + L"|" + v[DAY] + L"|" + v[WEEK] + L"|" + v[MONTH] + L"|" + v[YEAR];
  });
}

// One offset pattern with the groups that hold its pieces (0 for none).
struct OffsetPattern {
  std::wstring text;
  int countGroup;
  int secondGroup;
  int unitGroup;
  bool wordNumbers;  // counts may be number words, read with matchEnglishNum
  Pattern compiled = Pattern();
  WordGuard guard = WordGuard();  // the after or later words, which the pattern cannot do without
};

const std::vector<OffsetPattern>& offsetPatterns(const Vocabulary& v) {
  return keptFor(v, [&]() -> std::vector<OffsetPattern> {
    const std::wstring words = numberWordAlternation(v);
    std::vector<OffsetPattern> rows = {
        {L"(" + v[AFTER] + L")\\s+(\\d{1,3}|" + v[HALF_A] + L"|" + v[A] + L")\\s*(" + v[HOUR] + L")\\s+(\\d{1,3}|" +
             v[A] + L")\\s+(" + v[MINUTE] + L")",
         2, 4, 5, false},
        {L"(\\d{1,3}|" + v[HALF_A] + L"|" + v[A] + L"|" + words + L")\\s*(" + v[HOUR] + L")\\s+(\\d{1,3}|" + v[A] +
             L"|" + words + L")\\s+(" + v[MINUTE] + L")\\s+(" + v[LATER] + L")",
         1, 3, 4, true},
        {L"(" + v[AFTER] + L")\\s+(\\d{1,3}|" + v[HALF_A] + L"|" + v[A] + L")\\s+(" + allUnits(v) + L")", 2, 0, 3,
         false},
        {L"(\\d{1,3}|" + v[HALF_A] + L"|" + v[A] + L"|" + words + L")\\s*(" + allUnits(v) + L")\\s+(" + v[LATER] + L")",
         1, 0, 2, true},
    };
    for (OffsetPattern& row : rows) row.compiled = compilePattern(row.text, PatternCase::Insensitive);
    rows[0].guard = rows[2].guard = WordGuard(v[AFTER]);
    rows[1].guard = rows[3].guard = WordGuard(v[LATER]);
    return rows;
  });
}

}  // namespace

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnAfterTime(std::wstring title, Vocabulary vocabulary) {
  for (const OffsetPattern& pattern : offsetPatterns(vocabulary)) {
    PatternMatch match;
    if (!pattern.guard.mayMatch(title) || !pattern.compiled.search(title, match)) continue;

    std::optional<NLPMorvaneDuration> offset;
    if (pattern.secondGroup == 0) {
      offset = getDuration(match[pattern.countGroup].str(), match[pattern.unitGroup].str(), true, vocabulary);
    } else {
      // Hours and minutes: the whole amount goes in minutes.
      auto readNumber = [&](const std::wstring& text) {
        return pattern.wordNumbers ? matchEnglishNum(text, vocabulary) : translateNum(text);
      };
      std::wstring first = match[pattern.countGroup].str();
      std::wstring second = match[pattern.secondGroup].str();
      int total = 0;
      if (isAnOrA(first) || containStr(first, vocabulary[A])) {
        total = 60;
      } else if (isHalf(first) || containStr(first, vocabulary[HALF_A])) {
        total = 30;
      } else if (!first.empty()) {
        total = 60 * readNumber(first);
      }
      if (isAnOrA(second) || containStr(second, vocabulary[A])) {
        total += 1;
      } else if (!second.empty()) {
        total += readNumber(second);
      }
      offset = getDuration(total, match[pattern.unitGroup].str(), true, vocabulary);
    }
    if (!offset) return std::nullopt;

    NLPRecognizeDate result(match[0].str(), static_cast<long>(match.position(0)), offset);
    // The start is made here, whatever the driver later prefers. Days and
    // larger units wait for the parse flow, which adds them from the pending
    // offset.
    TMPtr record = getDefaultTM();
    if (offset->getHours() == 0 && offset->getMinutes() == 0 && offset->getSeconds() == 0) {
      record->tm_hour = 0;
      record->tm_min = 0;
      record->tm_sec = 0;
    } else {
      record->tm_hour += offset->getHours();
      record->tm_min += offset->getMinutes();
      record->tm_sec += offset->getSeconds();
      parserDueDate.reminder.push_back(ON_TIME);
    }
    mkTM(record.get());
    parserDueDate.startDate = timePointFromTM(*record);
    result.setStartCal(record);
    return result;
  }
  return std::nullopt;
}

}  // namespace nlpdate
