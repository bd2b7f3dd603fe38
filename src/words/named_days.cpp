// Named days in a word-language title: yesterday, today, tomorrow, the day
// after tomorrow and tonight, each relative to the current default day.
#include "words/named_days.h"

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

const std::wstring& getSpecialDayWords(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    // Russian words for tomorrow are bordered at both ends.
    const bool isRussian = vocabulary[LOCAL].find(L"ru") != std::wstring::npos;
    const std::wstring tomorrowWord =
        isRussian ? addWordBorderInStartAndEnd(vocabulary[TOMORROW]) : addWordBorderInEnd(vocabulary[TOMORROW]);
    return L"(" + addWordBorderInEnd(vocabulary[YESTERDAY]) + L"|" + addWordBorderInEnd(vocabulary[TODAY]) + L"|" +
           addWordBorderInEnd(vocabulary[DAY_AFTER_TOMORROW]) + L"|" + tomorrowWord + L"|" +
           addWordBorderInEnd(vocabulary[TONIGHT]) + L")";
  });
}

const std::wstring& getSpecialDayRecognition(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring { return getSpecialDayWords(vocabulary) + L"(\\s)*"; });
}

const WordGuard& specialDayWordGuard(const Vocabulary& vocabulary) {
  return keptWordGuard(vocabulary, [&] { return getSpecialDayWords(vocabulary); });
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchEnSpecialDate(std::wstring title, Vocabulary vocabulary) {
  PatternMatch match;
  const GuardedPattern& named = keptFor(vocabulary, [&] {
    return GuardedPattern::of(getSpecialDayWords(vocabulary), getSpecialDayRecognition(vocabulary),
                              PatternCase::Insensitive);
  });
  if (!named.search(title, match)) {
    return std::nullopt;
  }
  TMPtr record = getDefaultTM();
  clearValueAfterDay(record.get());
  const std::wstring word = toLowerCase(match[0].str());
  // Yesterday first and the day after tomorrow ahead of tomorrow, which it
  // contains.
  if (containStr(word, vocabulary[YESTERDAY])) {
    record->tm_mday -= 1;
  } else if (containStr(word, vocabulary[TODAY])) {
  } else if (containStr(word, vocabulary[DAY_AFTER_TOMORROW])) {
    record->tm_mday += 2;
  } else if (containStr(word, vocabulary[TOMORROW])) {
    record->tm_mday += 1;
  } else if (containStr(word, vocabulary[TONIGHT])) {
    record->tm_hour = 21;
    parserDueDate.reminder.push_back(ON_TIME);  // tonight carries a time of day
  }
  return NLPRecognizeDate(match[0].str(), static_cast<long>(match.position(0)), record);
}

}  // namespace nlpdate
