// The word-language repeat stage: which kinds of repetition are tried, in
// which order, and the interval behind the word for every.

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "words/repeat_patterns.h"
#include "words/repeat_steps.h"

namespace nlpdate {

bool NLPNativeTitleParser::repeatHelper(const std::wstring title, Vocabulary vocabulary) {
  // Repeats with an end are the more specific reading, so they go first.
  if (repeatUntilRecognize(title, vocabulary)) return true;
  if (matchRepeatList(*this, title, vocabulary)) return true;
  if (matchRepeatLastDay(*this, title, vocabulary)) return true;
  if (matchRepeatEvery(*this, title, vocabulary)) return true;
  if (matchRepeatOneWord(*this, title, vocabulary)) return true;
  return matchOfficialWorkDays(*this, title);
}

int NLPNativeTitleParser::findInterval(std::wstring title, Vocabulary vocabulary) {
  PatternMatch match;
  if (!keptPattern(vocabulary, PatternCase::Insensitive, [&] {
         return repeatIntervalPattern(vocabulary);
       }).search(title, match)) {
    return 1;
  }
  const std::wstring word = match[2].str();
  if (word.empty()) return 1;
  // "every other ..." is read in English in every language.
  if (word.find(L"other") != std::wstring::npos) return 2;
  const int interval = matchEnglishNum(word, vocabulary);
  return interval == 0 ? 1 : interval;
}

void clearClock(std::tm* record) {
  record->tm_sec = 0;
  record->tm_min = 0;
  record->tm_hour = 0;
}

void storeRepeat(NLPNativeTitleParser& parser, const StringRRule& rule, const std::wstring& text, std::tm* record) {
  parser.parserDueDate.recognizeStrings.push_back(text);
  parser.parserDueDate.repeatFlag = rule.toIcal();
  parser.parserDueDate.repeatRule = rule;
  parser.parserDueDate.startDate = timePointFromTM(*record);
}

}  // namespace nlpdate
