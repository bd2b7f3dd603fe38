// How the word-language driver moves a time that lies at or before now: a
// bare time with no date goes to later today as pm or to tomorrow; a named
// hour goes to tomorrow unless a named day or a repeat rule fixes the day.

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

namespace {

// The hour once more as pm; if that has passed too, the same hour tomorrow
// once the record is normalised.
void toPmOrTomorrow(NLPNativeTitleParser& parser, std::tm* record) {
  record->tm_hour += 12;
  if (parser.isBeforeNow(record)) record->tm_hour += 12;
}

}  // namespace

void NLPNativeTitleParser::rollBareTime(std::tm* record, const std::wstring& title, Vocabulary vocabulary,
                                        bool isFrench) {
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] { return getAmPmPattern(vocabulary); }).search(title)) {
    record->tm_mday += 1;  // the title said am or pm outright
    return;
  }
  const bool flag = containStr(title, vocabulary[TWENTY_FOUR_HOUR_FLAG]);
  const int hour = record->tm_hour;
  const int minute = record->tm_min;
  if (!flag) {
    if ((hour == 0 && minute == 0) || hour > 11 || isFrench) {
      record->tm_mday += 1;
    } else {
      toPmOrTomorrow(*this, record);
    }
    return;
  }
  const bool noClockTime = !titleHasClockTime(title);
  if ((hour == 12 && minute == 0) || (hour == 0 && minute == 0) || isFrench || (is24DateFormat && !noClockTime)) {
    record->tm_mday += 1;
    return;
  }
  if (writtenHourOf(title, vocabulary) > 11) {
    record->tm_mday += 1;
  } else {
    toPmOrTomorrow(*this, record);
  }
}

bool NLPNativeTitleParser::titleHasClockTime(const std::wstring& title) {
  // Only a recognised text with a colon sends us to the title, which then
  // must hold a two-digit clock time.
  for (const std::wstring& text : parserDueDate.recognizeStrings) {
    if (text.find(L':') == std::wstring::npos && text.find(L'：') == std::wstring::npos) continue;
    if (compiledOnce([] { return compilePattern(L"\\b[0-2]\\d[:：]\\d{2}", PatternCase::Insensitive); }).search(title))
      return true;
  }
  return false;
}

int NLPNativeTitleParser::writtenHourOf(const std::wstring& title, Vocabulary vocabulary) {
  PatternMatch match;
  if (keptPattern(vocabulary, PatternCase::Insensitive, [&] {
        return getAtTimePattern(vocabulary);
      }).search(title, match)) {
    return translateNum(match[2].str());
  }
  for (const GuardedPattern& pattern : enTimePatterns(vocabulary)) {
    if (pattern.search(title, match)) {
      return matchEnglishNum(match[3].str(), vocabulary);
    }
  }
  return 0;
}

void NLPNativeTitleParser::rollNamedHour(std::tm* record, const std::wstring& title, Vocabulary vocabulary) {
  if (matchEnSpecialDate(title, vocabulary)) return;
  if (parserDueDate.repeatFlag.empty()) record->tm_mday += 1;
}

}  // namespace nlpdate
