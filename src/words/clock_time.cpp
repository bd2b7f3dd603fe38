// Clock times in a word-language title. Three families are tried in order,
// the first that matches decides: a lead word with an hour ("at 9",
// "@ 10:30pm"), four digits with an am word ("930am"), and a list of five
// forms (digits with am/pm, hh:mm, digits or hour words with o'clock).

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"

namespace nlpdate {

std::wstring NLPNativeTitleParser::getAtTimePattern(Vocabulary vocabulary) {
  // The divider value goes into the character class as it stands, bars and all.
  return L"(@|" + addWordBorderInStart(vocabulary[ON_AT]) + L")\\s*(2[0-4]|[0-1]?[0-9])[" + vocabulary[TIME_DIVIDER] +
         L"]?([0-5]?[0-9]|60)?\\s*(" + vocabulary[AM_PM] + L")?(\\s|$)";
}

std::wstring NLPNativeTitleParser::getAmPmPattern(Vocabulary vocabulary) {
  // The fixed words run into the vocabulary's first alternative with no bar
  // between "晚\b" and it; that text is kept as it is.
  return L"(\\bmorning|\\bmidnight|\\bafternoon|\\bevening|\\bnight|\\btonight|\\bmidday|\\bnoon|[ap]\\.?m\\.?|"
         L"早上|上午|中午|下午|傍晚|晚上|凌晨|午夜|半夜|明晚|早|晚\\b" +
         vocabulary[MORNING] + L"|\\b" + vocabulary[MIDNIGHT] + L"|\\b" + vocabulary[AFTERNOON] + L"|\\b" +
         vocabulary[EVENING] + L"|\\b" + vocabulary[NIGHT] + L"|\\b" + vocabulary[TONIGHT] + L"|\\b" +
         vocabulary[NOON] + L"|" + addWordBorderInEnd(vocabulary[AM_PM]) + L")";
}

OptTM NLPNativeTitleParser::matchEnTime(std::wstring title, std::tm* calendar, Vocabulary vocabulary, bool hasDate,
                                        bool isFrench) {
  if (OptTM found = matchEnAtTime(title, calendar, vocabulary, hasDate, isFrench)) return found;
  if (OptTM found = matchEnCompactTime(title, calendar, vocabulary, hasDate)) return found;
  return matchEnListTime(title, calendar, vocabulary, hasDate, isFrench);
}

OptTM NLPNativeTitleParser::matchEnAtTime(const std::wstring& title, std::tm* calendar, Vocabulary vocabulary,
                                          bool hasDate, bool isFrench) {
  PatternMatch match;
  if (!keptPattern(vocabulary, PatternCase::Insensitive, [&] {
         return getAtTimePattern(vocabulary);
       }).search(title, match)) {
    return std::nullopt;
  }
  parserDueDate.reminder.push_back(ON_TIME);
  TMPtr record = getDefaultTM();
  copyTM(calendar, record.get());
  if (!hasDate) setTMToDefaultTime(record.get());
  const int hour = translateNum(match[2].str());
  record->tm_hour = hour;
  record->tm_min = translateNum(match[3].str());
  record->tm_sec = 0;
  const std::wstring dayPart = toLowerCase(match[4].str());
  if (isFrench) {
    // French keeps the hour as written, whatever am/pm word follows.
  } else if (!dayPart.empty()) {
    if (containStr(dayPart, vocabulary[AM]) && hour == 12) {
      record->tm_hour = 0;
    } else if (containStr(dayPart, vocabulary[PM]) && hour < 12) {
      record->tm_hour += 12;
    }
  } else if (isBeforeNow(record.get()) && !rollPassedTimeOnWeeklyRule(record.get(), hour)) {
    addOverdueTime(record.get(), match[2].str(), match[3].str());
  }
  parserDueDate.recognizeStrings.push_back(match[0].str());
  parserDueDate.reminder.push_back(ON_TIME);
  return record;
}

}  // namespace nlpdate
