// Pattern texts of the month-name dates. The range recognisers share the main
// pattern, whose group numbers they read: 5 day before the month, 7 month,
// 9 day behind it, 12 year.
#pragma once

#include <string>

#include "core/types.h"
#include "vocabulary/word_guard.h"

namespace nlpdate {

const std::wstring& getEnMonthRecognition(Vocabulary vocabulary);
// The month words of the pattern above (one group): every match of it holds one.
const std::wstring& getEnMonthWords(const Vocabulary& vocabulary);
const WordGuard& monthWordGuard(const Vocabulary& vocabulary);
// Second looks when two numbers stand around the month.
const std::wstring& getEnMonthRecognitionStartWithMonth(Vocabulary vocabulary);
const std::wstring& getEnMonthRecognitionStartWithDay(Vocabulary vocabulary);

// The other patterns of matchEnMonth: day, month and clock time; clock time,
// month and day; a bare ordinal day; a day before a month of the languages
// that the main pattern's borders keep out.
const std::wstring& getEnMonthDayTimePattern(Vocabulary vocabulary);
const std::wstring& getEnMonthTimeDayPattern(Vocabulary vocabulary);
const std::wstring& getEnMonthOrdinalDayPattern(Vocabulary vocabulary);
const std::wstring& getEnMonthDayFirstPattern(Vocabulary vocabulary);

// Whether the vocabulary's language code holds the two letters.
bool isVocabularyLanguage(const Vocabulary& vocabulary, const wchar_t* code);

}  // namespace nlpdate
