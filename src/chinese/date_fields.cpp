// Setting year, month and day of a calendar record from the texts that the
// date patterns capture; each leaves the record normalised.
#include <string>

#include "core/title_parser.h"

namespace nlpdate {

namespace {

const wchar_t* const kNextWord = L"明";
const wchar_t* const kNextMonthShort = L"下";
const wchar_t* const kNextMonthLong = L"下个";

// Two-digit years: up to 89 in this century, from 90 in the last one.
int fullYear(int value) {
  if (value < -99 || value > 99) return value;
  return value < 90 ? value + 2000 : value + 1900;
}

}  // namespace

void NLPNativeTitleParser::setYear(std::wstring year, TMPtr cal) {
  if (year.empty()) {
    if (isBeforeToday(cal.get())) cal->tm_year += 1;
  } else if (year.find(kNextWord) != std::wstring::npos) {
    cal->tm_year += 1;
  } else if (year.size() < 9) {
    cal->tm_year = fullYear(std::stoi(year)) - 1900;
  } else {
    cal->tm_year = 2021 - 1900;  // a run of nine digits or more is no year; the fixed value is kept
  }
  mkTM(cal.get());
}

void NLPNativeTitleParser::setMonth(std::wstring month, TMPtr cal) {
  if (month.empty()) {
    // A day already passed in this month means the next month.
    if (getDefaultTM()->tm_mday > cal->tm_mday) {
      cal->tm_mon += 1;
      mkTM(cal.get());
    }
    return;
  }
  if (month == kNextMonthShort || month == kNextMonthLong) {
    cal->tm_mon += 1;
    return;
  }
  int monthIndex = translateNum(month) - 1;
  int day = cal->tm_mday;
  cal->tm_mon = monthIndex;
  mkTM(cal.get());
  if (cal->tm_mday != day) {
    // The day does not exist in that month: take its first day instead.
    cal->tm_mday = 1;
    cal->tm_mon = monthIndex;
    mkTM(cal.get());
  }
}

void NLPNativeTitleParser::setDayOfMonth(std::wstring day, TMPtr cal) {
  cal->tm_mday = day.empty() ? 1 : translateNum(day);
  mkTM(cal.get());
}

}  // namespace nlpdate
