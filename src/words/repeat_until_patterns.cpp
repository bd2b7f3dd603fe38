#include "words/repeat_until_patterns.h"

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

const wchar_t* const kWeekdays = LR"~(«MONDAY»|«TUESDAY»|«WEDNESDAY»|«THURSDAY»|«FRIDAY»|«SATURDAY»|«SUNDAY»)~";
const wchar_t* const kMonths =
    LR"~(«JANUARY»|«FEBRUARY»|«MARCH»|«APRIL»|«MAY»|«JUNE»|«JULY»|«AUGUST»|«SEPTEMBER»|«OCTOBER»|«NOVEMBER»|«DECEMBER»)~";
const wchar_t* const kDateName = LR"~(((«TODAY»|«TOMORROW»)|(«WEEKDAYS»)))~";
const wchar_t* const kDateDay = LR"~(((«DAY_OF_MONTH_DIGITAL»)(«DAY_END»)?))~";
const wchar_t* const kDateMonth = LR"~((«MONTHS»))~";
// Every part optional, so that day-month, month-day and a bare weekday all fit.
const wchar_t* const kDate = LR"~(«DATE_DAY»?\s*«DATE_MONTH»?\s*«DATE_DAY»?\s*«DATE_NAME»?\s*)~";

const wchar_t* const kFrom =
    LR"~((«EVERY»)\s+(((«DAY»|«MORNING»|«AFTERNOON»|«NOON»|«EVENING»|«NIGHT»|«WEEK»|«MONTH»|«YEAR»)\s+«FROM»\s+«DATE»\s*(«DURATION_FLAG»)?\s?«DATE»)))~";
const wchar_t* const kFor =
    LR"~((«EVERY»)\s+(«DAY»|«MORNING»|«AFTERNOON»|«NOON»|«EVENING»|«NIGHT»|«WEEK»|«MONTH»)\s+«FOR»\s+(\d{0,2})\s+((«WEEK»)|(«MONTH»))(s?|\b))~";
const wchar_t* const kStartEnd =
    LR"~((«EVERY»)\s+(«FIRST»|«SECOND»|«THIRD»|«FOURTH»|«FIFTH»|«LAST»)?\s*((«WEEKDAYS»)?|((«DAY_OF_MONTH_DIGITAL»)\s*(«DAY_END»)?))\s+((«START»)\s+«DATE»)?\s*((«END»)\s*(«ON»\s*(«DATE»)|(«IN_WORD»\s*((\d{0,2})\s+((«WEEK»)|(«MONTH»)|(«YEAR»))))))?)~";

PatternPieces vocabularyPieces(const Vocabulary& v) {
  return {{L"MONDAY", v[MONDAY]},
          {L"TUESDAY", v[TUESDAY]},
          {L"WEDNESDAY", v[WEDNESDAY]},
          {L"THURSDAY", v[THURSDAY]},
          {L"FRIDAY", v[FRIDAY]},
          {L"SATURDAY", v[SATURDAY]},
          {L"SUNDAY", v[SUNDAY]},
          {L"JANUARY", v[JANUARY]},
          {L"FEBRUARY", v[FEBRUARY]},
          {L"MARCH", v[MARCH]},
          {L"APRIL", v[APRIL]},
          {L"MAY", v[MAY]},
          {L"JUNE", v[JUNE]},
          {L"JULY", v[JULY]},
          {L"AUGUST", v[AUGUST]},
          {L"SEPTEMBER", v[SEPTEMBER]},
          {L"OCTOBER", v[OCTOBER]},
          {L"NOVEMBER", v[NOVEMBER]},
          {L"DECEMBER", v[DECEMBER]},
          {L"TODAY", v[TODAY]},
          {L"TOMORROW", v[TOMORROW]},
          {L"DAY_OF_MONTH_DIGITAL", v[DAY_OF_MONTH_DIGITAL]},
          {L"DAY_END", v[DAY_END]},
          {L"EVERY", v[EVERY]},
          {L"DAY", v[DAY]},
          {L"MORNING", v[MORNING]},
          {L"AFTERNOON", v[AFTERNOON]},
          {L"NOON", v[NOON]},
          {L"EVENING", v[EVENING]},
          {L"NIGHT", v[NIGHT]},
          {L"WEEK", v[WEEK]},
          {L"MONTH", v[MONTH]},
          {L"YEAR", v[YEAR]},
          {L"FROM", v[FROM]},
          {L"FOR", v[FOR]},
          {L"DURATION_FLAG", v[DURATION_FLAG]},
          {L"FIRST", v[FIRST]},
          {L"SECOND", v[SECOND]},
          {L"THIRD", v[THIRD]},
          {L"FOURTH", v[FOURTH]},
          {L"FIFTH", v[FIFTH]},
          {L"LAST", v[LAST]},
          {L"START", v[START]},
          {L"END", v[END]},
          {L"ON", v[ON]},
          {L"IN_WORD", v[IN_WORD]}};
}

// The vocabulary values with the composed pieces on top: weekday and month
// lists, and the optional date that the patterns use twice.
const PatternPieces& untilPieces(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> PatternPieces {
    PatternPieces pieces = vocabularyPieces(vocabulary);
    pieces[L"WEEKDAYS"] = fillPieces(kWeekdays, pieces);
    pieces[L"MONTHS"] = fillPieces(kMonths, pieces);
    pieces[L"DATE_NAME"] = fillPieces(kDateName, pieces);
    pieces[L"DATE_DAY"] = fillPieces(kDateDay, pieces);
    pieces[L"DATE_MONTH"] = fillPieces(kDateMonth, pieces);
    pieces[L"DATE"] = fillPieces(kDate, pieces);
    return pieces;
  });
}

}  // namespace

const std::wstring& repeatFromPattern(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring { return fillPieces(kFrom, untilPieces(vocabulary)); });
}

const std::wstring& repeatForPattern(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring { return fillPieces(kFor, untilPieces(vocabulary)); });
}

const std::wstring& repeatStartEndPattern(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring { return fillPieces(kStartEnd, untilPieces(vocabulary)); });
}

}  // namespace nlpdate
