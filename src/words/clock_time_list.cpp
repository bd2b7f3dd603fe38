// The compact family ("930am", "12.30pm") and the list family of clock times:
// digits with an am/pm word, hh:mm, and hours in digits or words with the
// word for o'clock. A bare hour may take its half of the day from a
// day-part word anywhere in the title.

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/number_words.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

// getEnTimePattern: three forms of digits, then two of number words.
constexpr size_t kFirstNumberWordForm = 3;

const std::wstring& amWordsPattern(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return L"(" + addWordBorderInStart(vocabulary[MORNING]) + L"|" + addWordBorderInStart(vocabulary[MIDNIGHT]) +
           L")()";
  });
}

const std::wstring& pmWordsPattern(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return L"(" + addWordBorderInStart(vocabulary[AFTERNOON]) + L"|" + addWordBorderInStart(vocabulary[EVENING]) +
           L"|" + addWordBorderInStart(vocabulary[NIGHT]) + L"|" + addWordBorderInStart(vocabulary[TONIGHT]) + L"|" +
           addWordBorderInStart(vocabulary[NOON]) + L")";
  });
}

}  // namespace

// The two forms of number words cannot do without one (their group 3);
// the three of digits are passed over by the kit where a title has none.
const std::vector<GuardedPattern>& NLPNativeTitleParser::enTimePatterns(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&] {
    const std::vector<std::wstring>& texts = getEnTimePattern(vocabulary);
    std::vector<GuardedPattern> compiled;
    for (size_t at = 0; at < texts.size(); ++at) {
      GuardedPattern form{Pattern(), compilePattern(texts[at], PatternCase::Insensitive)};
      if (at >= kFirstNumberWordForm) form.words = WordGuard(numberWordAlternation(vocabulary));
      compiled.push_back(form);
    }
    return compiled;
  });
}

const std::vector<std::wstring>& NLPNativeTitleParser::getEnTimePattern(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&vocabulary]() -> std::vector<std::wstring> {
    const std::wstring lead = L"(" + addWordBorderInStart(vocabulary[ON_AT]) + L")?";
    const std::wstring ampm = vocabulary[AM_PM];
    const std::wstring clock = vocabulary[CLOCK];
    const std::wstring minute = vocabulary[MINUTE];
    const std::wstring words = numberWordAlternation(vocabulary);
    return {
        L"\\s*" + lead + L"\\s*(\\b)(2[0-4]|[0-1]?[0-9])(?::([0-5]?[0-9]))? ?(" + ampm + L")()\\s*",
        lead + L"\\s*((2[0-4]|[0-1]?[0-9])[:|：]([0-5][0-9]))(\\b)()\\s*",
        lead + L"\\s*((2[0-4]|[0-1]?[0-9])\\s*(?:" + clock + L")\\s*([0-5][0-9])?(?:" + minute + L")?) ?(" + ampm +
            L")?()\\s*",
        lead + L"\\s*(\\b)(" + words + L")( ?)(" + ampm + L")\\b()\\s*",
        lead + L"\\s*()(" + words + L")\\s?(?:" + clock + L")\\s*(\\d)?(?:" + minute + L")?()()\\s*",
    };
  });
}

OptTM NLPNativeTitleParser::matchEnCompactTime(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary,
                                               bool hasDate) {
  PatternMatch match;
  const Pattern& compact = keptPattern(vocabulary, PatternCase::Insensitive,
                                       [&] { return L"\\b(\\d{1,2})\\.?(\\d{2})\\s*(" + vocabulary[AM_PM] + L")"; });
  if (!compact.search(title, match)) return std::nullopt;
  parserDueDate.reminder.push_back(ON_TIME);
  TMPtr record = getDefaultTM();
  copyTM(calendar, record.get());
  if (!hasDate) setTMToDefaultTime(record.get());
  const int hour = translateNum(match[1].str());
  const std::wstring dayPart = toLowerCase(match[3].str());
  if (containStr(dayPart, vocabulary[AM])) {
    record->tm_hour = hour >= 12 ? hour - 12 : hour;
  } else if (containStr(dayPart, vocabulary[PM])) {
    record->tm_hour = hour % 12 + 12;
  }
  record->tm_min = translateNum(match[2].str());
  parserDueDate.recognizeStrings.push_back(match[0].str());
  parserDueDate.reminder.push_back(ON_TIME);
  return record;
}

bool NLPNativeTitleParser::readListDayPart(std::tm* record, int number, std::wstring dayPart, const std::wstring& title,
                                           Vocabulary vocabulary) {
  trim(dayPart);
  if (!dayPart.empty()) {
    if (ampmToNumber(dayPart, vocabulary) == 1) {
      record->tm_hour = number == 12 ? 12 : record->tm_hour + 12;
    } else {
      record->tm_hour = number == 12 ? 0 : number;
    }
    return true;
  }
  // No am/pm word beside the hour: a day-part word anywhere in the title
  // decides, and with both kinds the pm reading wins.
  bool seen = false;
  PatternMatch match;
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return amWordsPattern(vocabulary);
      }).search(title, match)) {
    parserDueDate.recognizeStrings.push_back(match[0].str());
    if (record->tm_hour >= 12) record->tm_hour -= 12;
    seen = true;
  }
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return pmWordsPattern(vocabulary);
      }).search(title, match)) {
    parserDueDate.recognizeStrings.push_back(match[0].str());
    if (record->tm_hour <= 11) record->tm_hour += 12;
    seen = true;
  }
  return seen;
}

OptTM NLPNativeTitleParser::matchEnListTime(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary,
                                            bool hasDate, bool isFrench) {
  PatternMatch match;
  bool found = false;
  for (const GuardedPattern& pattern : enTimePatterns(vocabulary)) {
    if (pattern.search(title, match)) {
      found = true;
      break;
    }
  }
  if (!found) return std::nullopt;
  TMPtr record = getDefaultTM();
  copyTM(calendar, record.get());
  parserDueDate.reminder.push_back(ON_TIME);
  // A date that the repeat stage fixed wins over the calendar handed in.
  if (parserDueDate.startDate) copyTM(tmFromTimePoint(*parserDueDate.startDate).get(), record.get());
  if (!hasDate) setTMToDefaultTime(record.get());
  const int number = matchEnglishNum(match[3].str(), vocabulary);
  const std::wstring dayPart = match[5].str();
  record->tm_hour = (number <= 12 && !dayPart.empty() && !isFrench) ? number % 12 : number;
  std::wstring minute = match[4].str();
  trim(minute);
  record->tm_min = minute.empty() ? 0 : translateNum(minute);
  bool dayPartSeen = false;
  if (number <= 12 && !isFrench) dayPartSeen = readListDayPart(record.get(), number, dayPart, title, vocabulary);
  // A bare hour below 12 is left as written; the driver settles it.
  const bool settled = isFrench || (number < 12 && dayPart.empty() && !dayPartSeen);
  if (!settled && !hasDate && record->tm_hour != 0 && std::mktime(record.get()) < today()) {
    record->tm_mday += 1;
  }
  parserDueDate.recognizeStrings.push_back(match[0].str());
  parserDueDate.reminder.push_back(ON_TIME);
  return record;
}

}  // namespace nlpdate
