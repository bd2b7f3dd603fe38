// The main month pattern: a month with an optional day before or behind it
// and an optional year. Two numbers around the month are settled by a second
// look at the title.
#include "vocabulary/derived.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "words/month_patterns.h"
#include "words/month_steps.h"

namespace nlpdate {

namespace {

// A year written with fewer than four digits lies in this century.
void applyYearText(NLPNativeTitleParser& parser, std::tm* record, const std::wstring& yearText) {
  std::wstring digits = yearText;
  int year = parser.translateNum(trim(digits));
  if (yearText.size() < 4) year += 2000;
  record->tm_year = year - 1900;
}

// The state the second look may change.
struct MainReading {
  TMPtr record;
  std::wstring text;
  std::wstring yearText;
};

// "12 March 15" reads 15 as a year, "12 March 8p" reads 8 as a time that the
// time stage must still see; Korean puts the month first.
void secondLook(NLPNativeTitleParser& parser, const std::wstring& title, const Vocabulary& vocabulary,
                MainReading& reading) {
  const bool isKo = isVocabularyLanguage(vocabulary, L"ko");
  const Pattern& pattern = keptPattern(vocabulary, PatternCase::Insensitive, [&] {
    return isKo ? getEnMonthRecognitionStartWithMonth(vocabulary) : getEnMonthRecognitionStartWithDay(vocabulary);
  });
  PatternMatch look;
  if (!pattern.search(title, look)) return;
  if (!look[13].str().empty()) {
    rreplace(reading.text, look[12].str(), L"");
    return;
  }
  reading.yearText = look[12].str();
  if (!reading.yearText.empty()) {
    applyYearText(parser, reading.record.get(), reading.yearText);
    reading.text = look[0].str();
    return;
  }
  if (!isKo) return;
  reading.record = parser.getEnMonthCalendar(look[7].str(), vocabulary);
  if (!look[9].str().empty()) reading.record->tm_mday = parser.translateNum(look[9].str());
  reading.text = look[0].str();
}

// A month alone keeps today's day in the present month and the 1st in any other.
void readMonthOnly(NLPNativeTitleParser& parser, std::tm* record) {
  TMPtr now = parser.getDefaultTM();
  if (record->tm_year == now->tm_year && record->tm_mon == now->tm_mon) return;
  record->tm_mday = 1;
}

}  // namespace

NLPRecognizeDate readMainMonthDate(NLPNativeTitleParser& parser, const std::wstring& title, const PatternMatch& match,
                                   const Vocabulary& vocabulary) {
  MainReading reading{parser.getEnMonthCalendar(match[7].str(), vocabulary), match[0].str(), match[12].str()};
  if (!reading.yearText.empty()) applyYearText(parser, reading.record.get(), reading.yearText);
  std::wstring dayBefore = match[5].str();
  std::wstring dayBehind = match[9].str();
  if (!dayBefore.empty()) {
    reading.record->tm_mday = parser.translateNum(dayBefore);
    if (!dayBehind.empty()) secondLook(parser, title, vocabulary, reading);
  } else if (!dayBehind.empty()) {
    reading.record->tm_mday = parser.translateNum(dayBehind);
  } else {
    readMonthOnly(parser, reading.record.get());
  }
  // A date with no year that has passed means next year.
  if (reading.yearText.empty() && parser.isBeforeToday(reading.record.get())) reading.record->tm_year += 1;
  reading.record->tm_hour = 0;
  reading.record->tm_min = 0;
  reading.record->tm_sec = 0;
  parser.parserDueDate.startDate.reset();
  return NLPRecognizeDate(reading.text, static_cast<long>(match.position(0)), reading.record);
}

}  // namespace nlpdate
