#include "words/month_patterns.h"

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/text_kit.h"
#include "words/piece_fill.h"

namespace nlpdate {

namespace {

const wchar_t* const kPlainMonths =
    LR"~(«JANUARY»|«FEBRUARY»|«marchWord»|«APRIL»|«MAY»|«JUNE»|«JULY»|«AUGUST»|«SEPTEMBER»|«OCTOBER»|«NOVEMBER»|«DECEMBER»)~";
const wchar_t* const kDecemberFirstMonths =
    LR"~(«DECEMBER»|«NOVEMBER»|«OCTOBER»|«JANUARY»|«FEBRUARY»|«marchWord»|«APRIL»|«MAY»|«JUNE»|«JULY»|«AUGUST»|«SEPTEMBER»)~";
const wchar_t* const kMainMonths =
    LR"~(«JANUARY»|«FEBRUARY»|«marchWord»|«aprilWord»|«mayWord»|«JUNE»|«JULY»|«AUGUST»|«SEPTEMBER»|«OCTOBER»|«addWordBorderInStartAndEnd(NOVEMBER)»|«DECEMBER»)~";
const wchar_t* const kFrenchApril = LR"~(avril|april)~";
const wchar_t* const kEnglishApril = LR"~(april(?:$|\s)|apr(?:$|\s))~";

const wchar_t* const kDayTime =
    LR"~((3[0-1]|[0-2]?[0-9])\s*(«DAY_END»)?\s*(«plainMonths»)\s*,?\s*((2[0-4]|[0-1]?[0-9])[«TIME_DIVIDER»]([0-5]?[0-9]|60)))~";
const wchar_t* const kTimeDay =
    LR"~(((2[0-4]|[0-1]?[0-9])[«TIME_DIVIDER»]([0-5]?[0-9]|60))\s*,?\s*(«DAY_END»)?\s*(«plainMonths»)\s*(3[0-1]|[0-2]?[0-9]))~";
const wchar_t* const kMain =
    LR"~(()(«addWordBorderInStartAndEnd(ON_BY)»)?\s*((\s?(3[0-1]|[0-2]?[0-9]|«MIDDLE»))(«DAY_END»)?\s*(?:«OF»)?\s*)?(«mainMonths»)(\s?(3[0-1]|[0-2]?[0-9]))?(«DAY_END»)?,?( *(\d{4}))?)~";
const wchar_t* const kOrdinalDay = LR"~((\(|\b)(«ON_BY»)?\s*((\s?(3[0-1]|[0-2]?[0-9]))(«DAY_END»)))~";
const wchar_t* const kDayFirst = LR"~(\s?(3[0-1]|[0-2]?[0-9])\s*(«decemberFirstMonths»)\s*,?\s*(\d{4})?)~";
const wchar_t* const kStartWithDay =
    LR"~(()(«ON_BY»)?\s*((\s?(3[0-1]|[0-2]?[0-9]|«MIDDLE»))(«DAY_END»)?\s*(?:«OF»)?\s*)?(«plainMonths»)(())?()?,?( *(\d+))?(a|p)?)~";
const wchar_t* const kStartWithMonth =
    LR"~(()()?\s*((\s?())()?\s*(?:«OF»)?\s*)?(«decemberFirstMonths»)(\s?(3[0-1]|[0-2]?[0-9]))?(«DAY_END»)?,?( *(\d{4}))?)~";

PatternPieces monthWords(const Vocabulary& vocabulary) {
  bool isPt = isVocabularyLanguage(vocabulary, L"pt");
  return {{L"JANUARY", vocabulary[JANUARY]},
          {L"FEBRUARY", vocabulary[FEBRUARY]},
          {L"marchWord", addWordBorderInStartAndEnd(vocabulary[MARCH], isPt)},
          {L"APRIL", vocabulary[APRIL]},
          {L"MAY", vocabulary[MAY]},
          {L"JUNE", vocabulary[JUNE]},
          {L"JULY", vocabulary[JULY]},
          {L"AUGUST", vocabulary[AUGUST]},
          {L"SEPTEMBER", vocabulary[SEPTEMBER]},
          {L"OCTOBER", vocabulary[OCTOBER]},
          {L"NOVEMBER", vocabulary[NOVEMBER]},
          {L"DECEMBER", vocabulary[DECEMBER]}};
}

// Russian and Korean month words take no border at their end.
std::wstring borderedMonthList(const wchar_t* list, const Vocabulary& vocabulary) {
  std::wstring text = fillPieces(list, monthWords(vocabulary));
  bool plain = isVocabularyLanguage(vocabulary, L"ru") || isVocabularyLanguage(vocabulary, L"ko");
  return plain ? text : addWordBorderInEndWithOutReg(text);
}

std::wstring aprilWord(const Vocabulary& vocabulary) {
  if (isVocabularyLanguage(vocabulary, L"fr")) return kFrenchApril;
  if (isVocabularyLanguage(vocabulary, L"en")) return kEnglishApril;
  if (isVocabularyLanguage(vocabulary, L"ru")) return addWordBorderInEnd(vocabulary[APRIL]);
  return addWordBorderInStartAndEnd(vocabulary[APRIL], false);
}

std::wstring mainMonths(const Vocabulary& vocabulary) {
  bool isFr = isVocabularyLanguage(vocabulary, L"fr");
  PatternPieces pieces = monthWords(vocabulary);
  pieces[L"aprilWord"] = aprilWord(vocabulary);
  pieces[L"mayWord"] = isFr ? addWordBorderInStartAndEnd(vocabulary[MAY]) : vocabulary[MAY];
  pieces[L"addWordBorderInStartAndEnd(NOVEMBER)"] = addWordBorderInStartAndEnd(vocabulary[NOVEMBER]);
  std::wstring text = fillPieces(kMainMonths, pieces);
  bool plain = isVocabularyLanguage(vocabulary, L"ru") || isVocabularyLanguage(vocabulary, L"ko") || isFr;
  return plain ? text : addWordBorderInEndWithOutReg(text);
}

}  // namespace

bool isVocabularyLanguage(const Vocabulary& vocabulary, const wchar_t* code) {
  return vocabulary[LOCAL].find(code) != std::wstring::npos;
}

const std::wstring& getEnMonthWords(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring { return L"(" + mainMonths(vocabulary) + L")"; });
}

const WordGuard& monthWordGuard(const Vocabulary& vocabulary) {
  return keptWordGuard(vocabulary, [&] { return getEnMonthWords(vocabulary); });
}

const std::wstring& getEnMonthRecognition(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kMain, {{L"addWordBorderInStartAndEnd(ON_BY)", addWordBorderInStartAndEnd(vocabulary[ON_BY])},
                              {L"MIDDLE", vocabulary[MIDDLE]},
                              {L"DAY_END", vocabulary[DAY_END]},
                              {L"OF", vocabulary[OF]},
                              {L"mainMonths", mainMonths(vocabulary)}});
  });
}

const std::wstring& getEnMonthRecognitionStartWithMonth(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kStartWithMonth, {{L"OF", vocabulary[OF]},
                                        {L"decemberFirstMonths", borderedMonthList(kDecemberFirstMonths, vocabulary)},
                                        {L"DAY_END", vocabulary[DAY_END]}});
  });
}

const std::wstring& getEnMonthRecognitionStartWithDay(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kStartWithDay, {{L"ON_BY", vocabulary[ON_BY]},
                                      {L"MIDDLE", vocabulary[MIDDLE]},
                                      {L"DAY_END", vocabulary[DAY_END]},
                                      {L"OF", vocabulary[OF]},
                                      {L"plainMonths", borderedMonthList(kPlainMonths, vocabulary)}});
  });
}

const std::wstring& getEnMonthDayTimePattern(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kDayTime, {{L"DAY_END", vocabulary[DAY_END]},
                                 {L"plainMonths", borderedMonthList(kPlainMonths, vocabulary)},
                                 {L"TIME_DIVIDER", vocabulary[TIME_DIVIDER]}});
  });
}

const std::wstring& getEnMonthTimeDayPattern(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kTimeDay, {{L"DAY_END", vocabulary[DAY_END]},
                                 {L"plainMonths", borderedMonthList(kPlainMonths, vocabulary)},
                                 {L"TIME_DIVIDER", vocabulary[TIME_DIVIDER]}});
  });
}

const std::wstring& getEnMonthOrdinalDayPattern(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kOrdinalDay, {{L"ON_BY", vocabulary[ON_BY]}, {L"DAY_END", vocabulary[DAY_END]}});
  });
}

const std::wstring& getEnMonthDayFirstPattern(Vocabulary vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    return fillPieces(kDayFirst, {{L"decemberFirstMonths", borderedMonthList(kDecemberFirstMonths, vocabulary)}});
  });
}

}  // namespace nlpdate
