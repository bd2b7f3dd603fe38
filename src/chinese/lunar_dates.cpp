// Lunar dates in a Chinese title (农历八月十五, 腊月二十三, 三月廿五, 大年三十) and
// named festivals (中秋节, 国庆节, 除夕, 母亲节). A lunar date without a year is
// the next one that lies ahead; a lunar date also completes a repeat rule
// already set with its lunar month and day.
#include <algorithm>
#include <string>

#include "calendar/lunar.h"
#include "core/calendar_ops.h"
#include "core/title_parser.h"
#include "vocabulary/pattern_kit.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

const wchar_t* const kNewYearPattern =
    L"(农历|老历|旧历)?((\\d{2,4})[年|\\s])?(农历|老历|旧历)?大年(三十|二十九|十五|十四|十三|十二|十一|十|初十|初九|"
    L"初八|初七|初六|"
    L"初五|初四|初三|初二|初一)";
constexpr int kNewYearYearGroup = 3;
constexpr int kNewYearDayGroup = 5;

const wchar_t* const kLunarMonths = L"十二|十一|十|九|八|七|六|五|四|三|二|一";
const wchar_t* const kLunarMonthWords = L"正|寒|冬|腊";
const wchar_t* const kLunarDays =
    L"三十|卅十|三十一|卅十一|二十九|廿十九|廿九|二十八|廿十八|廿八|二十七|廿十七|廿七|二十六|廿十六|廿六|二十五|"
    L"廿十五|廿五|二十四|"
    L"廿十四|廿四|二十三|廿十三|廿三|二十二|廿十二|廿二|二十一|廿十一|廿一|廿十|二十|十九|十八|十七|十六|十五|十四|"
    L"十三|十二|十一|十|"
    L"初十|九|初九|初八|八|初七|七|初六|六|初五|五|初四|四|初三|三|初二|二|初一|一";

const wchar_t* const kLunarPatterns[] = {
    L"((\\d{2,4})[年|\\s])?(农历|老历|旧历)((\\d{2,4})[年|\\s])?(\\d{1,2}|«LM»|«LW»)(月)(\\d{1,2}|«LD»)?[日号]?",
    L"((\\d{2,4})[年|\\s])?()(())(\\d{1,2}|«LM»)([月|\\s])(卅十|卅十一|廿十九|廿九|廿十八|廿八|廿十七|廿七|廿六|廿十五|"
    L"廿五|廿十四|"
    L"廿四|廿十三|廿三|廿十二|廿二|廿十一|廿一|廿十|初十|初九|初八|初七|初六|初五|初四|初三|初二|初一)[日号]?",
    L"((\\d{2,4})[年|\\s])?()(())(«LW»)(月)(\\d{1,2}|«LD»)?[日号]?",
};
constexpr int kYearGroup = 2;
constexpr int kSecondYearGroup = 5;
constexpr int kMonthGroup = 6;
constexpr int kDayGroup = 8;

const wchar_t* const kHolidayPrefix = L"((\\(|\\b)(\\d{2,4})[年|\\s])?\\s*";
const wchar_t* const kHolidayNames =
    L"(元旦|情人节|妇女节|愚人节|劳动节|儿童节|建党节|建军节|教师节|国庆节|万圣夜|平安夜|圣诞节|清明节|除夕|春节|"
    L"元宵节|端午节|七夕|中元节|"
    L"中秋节|重阳节|腊八节|北方小年|南方小年|小年|母亲节|父亲节|感恩节)";
constexpr int kHolidayYearGroup = 3;
constexpr int kHolidayNameGroup = 4;

// The year a lunar text names: empty means "from last year on", two digits this century; -1 for none.
int lunarYearOf(const std::wstring& text, int currentYear) {
  switch (text.size()) {
    case 0:
      return currentYear - 1;
    case 2:
      return std::stoi(text) + 2000;
    case 4:
      return std::stoi(text);
    default:
      return -1;
  }
}

void setSolarDate(std::tm* cal, const Solar& solar) {
  cal->tm_year = solar.solarYear - 1900;
  cal->tm_mon = solar.solarMonth - 1;
  cal->tm_mday = solar.solarDay;
}

}  // namespace

const std::vector<std::wstring>& NLPNativeTitleParser::getLunarPattern() {
  static const std::vector<std::wstring> patterns = [] {
    const PatternPieces pieces = {{L"LM", kLunarMonths}, {L"LW", kLunarMonthWords}, {L"LD", kLunarDays}};
    std::vector<std::wstring> filled;
    for (const wchar_t* pattern : kLunarPatterns) filled.push_back(fillPieces(pattern, pieces));
    return filled;
  }();
  return patterns;
}

// The solar date of a lunar day; without a written year the first of last year, this
// year and next year that is not yet past (a lunar date early in the solar year may
// belong to the lunar year begun before).
void NLPNativeTitleParser::placeLunarDate(std::tm* cal, int year, int month, int day, bool yearWritten) {
  const int attempts = yearWritten ? 1 : 3;
  for (int attempt = 0; attempt < attempts; ++attempt) {
    setSolarDate(cal, LunarToSolar(Lunar{false, day, month, year + attempt}));
    cal->tm_hour = 0;
    cal->tm_min = 0;
    cal->tm_sec = 0;
    mkTM(cal);
    if (!isBeforeToday(cal)) break;
  }
}

void NLPNativeTitleParser::extendRuleWithLunarDate(int month, int day) {
  if (parserDueDate.repeatFlag.empty()) return;
  parserDueDate.repeatFlag += L";BYMONTH=" + std::to_wstring(month) + L";BYMONTHDAY=" + std::to_wstring(day);
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchNewYearDay(const std::wstring& title) {
  PatternMatch match;
  if (!compiledOnce([&] { return compilePattern(kNewYearPattern); }).search(title, match)) return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  const std::wstring yearText = match.str(kNewYearYearGroup);
  const int year = lunarYearOf(yearText, getDefaultTM()->tm_year + 1900);
  if (year < 0) return std::nullopt;
  const int day = translateNum(match.str(kNewYearDayGroup));
  const int month = day == 29 || day == 30 ? 12 : 1;  // 大年三十 is the eve in the twelfth month
  placeLunarDate(cal.get(), year, month, day, !yearText.empty());
  extendRuleWithLunarDate(month, day);
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(cal));
}

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchLunar(std::wstring title) {
  if (auto newYear = matchNewYearDay(title)) return newYear;
  PatternMatch match;
  bool found = false;
  for (const Pattern& pattern : compiledOnce([this] { return compileEach(getLunarPattern()); })) {
    if ((found = pattern.search(title, match))) break;
  }
  if (!found) return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  const std::wstring yearText = match.str(kYearGroup).empty() ? match.str(kSecondYearGroup) : match.str(kYearGroup);
  const int year = lunarYearOf(yearText, getDefaultTM()->tm_year + 1900);
  if (year < 0) return std::nullopt;
  const int month = translateNum(match.str(kMonthGroup));
  int day = translateNum(match.str(kDayGroup));
  if (match.str(kDayGroup).empty()) {
    TMPtr now = getDefaultTM();
    const Lunar today = SolarToLunar(Solar{now->tm_mday, now->tm_mon + 1, now->tm_year + 1900});
    day = month == today.lunarMonth ? today.lunarDay : 1;
  }
  placeLunarDate(cal.get(), year, month, day, !yearText.empty());
  extendRuleWithLunarDate(month, day);
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(cal));
}

std::wstring NLPNativeTitleParser::getHolidayDateRecognition() { return kHolidayNames; }

std::optional<NLPRecognizeDate> NLPNativeTitleParser::matchHoliday(std::wstring title) {
  PatternMatch match;
  if (!compiledOnce([&] {
         return compilePattern(kHolidayPrefix + getHolidayDateRecognition(), PatternCase::Insensitive);
       }).search(title, match)) {
    return std::nullopt;
  }
  const std::wstring year = match.str(kHolidayYearGroup);
  if (year.size() == 3) return std::nullopt;
  TMPtr cal = getDefaultTM();
  setTMToDefaultTime(cal.get());
  const std::wstring name = match.str(kHolidayNameGroup);
  const auto entry = holidaySeasonMap.find(name);
  if (entry != holidaySeasonMap.end()) {
    cal->tm_year = entry->second / 10000 - 1900;
    cal->tm_mon = entry->second % 10000 / 100 - 1;
    cal->tm_mday = entry->second % 100;
    mkTM(cal.get());
  }  // a name missing from the table keeps the default date: kept as it is
  const std::list<std::wstring> lunar = getLunarHolidays();
  const bool isLunar = std::find(lunar.begin(), lunar.end(), name) != lunar.end();
  if (!isLunar) {
    if (!year.empty()) {
      setYear(year, cal);
    } else if (isBeforeToday(cal.get())) {
      cal->tm_year += 1;
      mkTM(cal.get());
    }
  }
  return NLPRecognizeDate(match.str(0), match.position(0), OptTM(cal));
}

}  // namespace nlpdate
