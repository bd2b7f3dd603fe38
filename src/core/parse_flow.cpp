// The road of one title: base date, length limit, clean-up, choice of the
// recogniser family, and the finishing of the result record into JSON.
#include "core/parse_flow.h"

#include <exception>

#include "core/title_parser.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"
#include "vocabulary/text_kit.h"
#include "vocabulary/translation.h"

namespace nlpdate {

namespace {

bool isChineseCodePoint(wchar_t unit) {
  const unsigned long cp = static_cast<unsigned long>(unit);
  return (cp >= 0x3400 && cp <= 0x4DBF) || (cp >= 0x4E00 && cp <= 0x9FFF) || (cp >= 0x20000 && cp <= 0x2A6DF) ||
         (cp >= 0x2A700 && cp <= 0x2B73F) || (cp >= 0x2B740 && cp <= 0x2B81F) || (cp >= 0x2B820 && cp <= 0x2CEAF) ||
         (cp >= 0x2CEB0 && cp <= 0x2EBEF);
}

bool contains(const std::wstring& text, const wchar_t* part) { return text.find(part) != std::wstring::npos; }

}  // namespace

void cutTitleToLimit(std::wstring& title) {
  if (title.size() > kTitleLimit) title.resize(kTitleLimit);
}

bool holdsChineseCodePoint(const std::wstring& text) {
  for (wchar_t unit : text) {
    if (unit == 0x2019 || unit == 0x3002) continue;  // apostrophe and ideographic full stop are not Chinese
    if (isChineseCodePoint(unit)) return true;
  }
  return false;
}

bool runsChineseFirst(const std::wstring& title, const std::wstring& language) {
  // Substring tests on purpose: "zh_CN", "zh-Hant", "en_GB" all pass.
  if (!contains(language, L"zh") && !contains(language, L"en")) return false;
  const std::wstring testCopy = compiledOnce([] { return compilePattern(L"，"); }).replaceAll(title, L"");
  return holdsChineseCodePoint(testCopy);
}

std::wstring cleanRecognizedString(std::wstring entry) {
  if (!entry.empty() && entry[0] == L',') entry.erase(0, 1);
  // A trailing comma goes only when it is the first comma.
  const size_t comma = entry.find(L',');
  if (comma != std::wstring::npos && comma == entry.size() - 1) entry.erase(entry.size() - 1);
  // Full-width commas at both ends lose only the leading one.
  const size_t lastWide = entry.rfind(L'，');
  const size_t firstWide = entry.find(L'，');
  if (lastWide != std::wstring::npos && lastWide == entry.size() - 1 && firstWide == 0) entry.erase(0, 1);
  return entry;
}

bool isAllDayFromReminders(const std::list<std::wstring>& reminders) {
  if (reminders.empty()) return true;  // a date with no time has no reminder
  bool allDay = false;
  for (const std::wstring& entry : reminders) {
    if (containStr(entry, L"Y") || containStr(entry, L"W") || containStr(entry, L"D")) {
      allDay = true;
      continue;
    }
    if (containStr(entry, L"H") || containStr(entry, L"S")) return false;
    // Minutes only: the entries before decide.
  }
  return allDay;
}

std::wstring NLPNativeTitleParser::parse(std::wstring title, std::wstring baseDateText, std::wstring language) {
  OptTime base;
  try {
    if (!baseDateText.empty()) base = readBaseDate(baseDateText);
    return parseTitle(std::move(title), base, std::move(language));
  } catch (...) {
    return std::wstring();
  }
}

OptTime NLPNativeTitleParser::readBaseDate(const std::wstring& text) {
  PatternMatch match;
  const Pattern pattern =
      compilePattern(L"(\\d{4})-(\\d{1,2})-(\\d{1,2})T(2[0-4]|[0-1]?[0-9]):([0-5]?[0-9]):(\\d{1,2})");
  if (!pattern.search(text, match)) return std::nullopt;  // unreadable reads as none
  TMPtr record = getDefaultTM();                          // the daylight flag stays that of now
  record->tm_year = translateNum(match[1].str()) - 1900;
  record->tm_mon = translateNum(match[2].str()) - 1;
  record->tm_mday = translateNum(match[3].str());
  record->tm_hour = translateNum(match[4].str());
  record->tm_min = translateNum(match[5].str());
  record->tm_sec = translateNum(match[6].str());
  return timePointFromSeconds(static_cast<long long>(std::mktime(record.get())));
}

std::wstring NLPNativeTitleParser::parseTitle(std::wstring title, OptTime base, std::wstring language) {
  cutTitleToLimit(title);
  deleteWebUrl(title);
  deleteNumber(title);
  deleteSerialNumber(title);
  baseDate = base;

  Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(language);
  const bool isFrench = contains(language, L"fr");
  if (runsChineseFirst(title, language)) {
    initHolidaySeasonMap(L"");
    if (!chineseDateRecognition(title, base, vocabulary)) {
      englishDateRecognition(title, base, vocabulary, isFrench, language);
    }
  } else {
    // The holiday season table is deliberately left empty on this road.
    if (!englishDateRecognition(title, base, vocabulary, isFrench, language)) {
      chineseDateRecognition(title, base, vocabulary);
    }
  }
  return finishResult(title);
}

std::wstring NLPNativeTitleParser::finishResult(const std::wstring& title) {
  cleanRecognizedStrings();
  applyPendingOffset();
  dropEndNotAfterStart();
  computeIsAllDay();
  if (parserDueDate.startDate) addReminderRequest(title);
  lastTexts = parserDueDate.texts();
  std::wstring json = parserDueDate.toString();
  clearResult();
  return json;
}

void NLPNativeTitleParser::cleanRecognizedStrings() {
  for (std::wstring& entry : parserDueDate.recognizeStrings) entry = cleanRecognizedString(entry);
}

void NLPNativeTitleParser::applyPendingOffset() {
  if (!parserDueDate.pendingOffset) return;
  const NLPMorvaneDuration offset = *parserDueDate.pendingOffset;
  if (!offset.isIsPositive()) {
    parserDueDate.reminder.push_back(offset.getResult());
    return;
  }
  // Only calendar units apply here; clock offsets were resolved by the recognisers.
  TMPtr record = parserDueDate.startDate ? tmFromTimePoint(*parserDueDate.startDate) : getDefaultTM();
  record->tm_year += offset.getYears();
  record->tm_mon += offset.getMonths();
  record->tm_mday += offset.getDays() + 7 * offset.getWeeks();
  mkTM(record.get());
  parserDueDate.startDate = timePointFromTM(*record);
}

void NLPNativeTitleParser::dropEndNotAfterStart() {
  if (!parserDueDate.startDate || !parserDueDate.dueDate) return;
  TMPtr start = tmFromTimePoint(*parserDueDate.startDate);
  TMPtr due = tmFromTimePoint(*parserDueDate.dueDate);
  if (std::mktime(start.get()) >= std::mktime(due.get())) parserDueDate.dueDate.reset();
}

void NLPNativeTitleParser::computeIsAllDay() { parserDueDate.isAllDay = isAllDayFromReminders(parserDueDate.reminder); }

void NLPNativeTitleParser::addReminderRequest(const std::wstring& title) {
  const std::vector<Pattern>& requests = compiledOnce([] {
    return compileEach({L"reminds? me", L"提醒我"}, PatternCase::Insensitive);
  });
  for (const Pattern& request : requests) {
    PatternMatch match;
    if (request.search(title, match)) {
      parserDueDate.reminder.push_back(ON_TIME);
      parserDueDate.recognizeStrings.push_back(match.str(0));
      return;
    }
  }
}

void NLPNativeTitleParser::clearResult() {
  parserDueDate.repeatFlag.clear();
  parserDueDate.repeatRule.reset();
  parserDueDate.startDate.reset();
  parserDueDate.dueDate.reset();
  parserDueDate.pendingOffset.reset();
  parserDueDate.isAllDay = false;
  parserDueDate.recognizeStrings.clear();
  parserDueDate.reminder.clear();
}

}  // namespace nlpdate
