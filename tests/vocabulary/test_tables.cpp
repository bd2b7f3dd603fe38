// The six language vocabularies: choice by language code, entry sets, every
// value (by hash), and literal checks of the values users rely on as written.
#include <gtest/gtest.h>

#include <cstdint>
#include <cwctype>
#include <string>
#include <utility>
#include <vector>

#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

using testing::ScopedTZ;

struct NamedKey {
  std::wstring text;
  const char* name;
};

// All 127 key constants with their identifiers, in definition order. Built at
// call time: the constants live in another translation unit.
std::vector<NamedKey> allKeys() {
#define K(key) \
  NamedKey { key, #key }
  return {
      K(LOCAL),
      K(TWENTY_FOUR_HOUR_FLAG),
      K(TWO_DIGITAL),
      K(FOUR_YEAR_DIGITAL),
      K(FOUR_OR_TWO_YEAR_DIGITAL),
      K(THREE_DIGITAL),
      K(MINUTES_DIGITAL),
      K(HOUR_OF_DAY_DIGITAL),
      K(DAY_OF_MONTH_DIGITAL),
      K(MONTH_OF_YEAR_DIGITAL),
      K(DAY_END),
      K(REMIND_ME),
      K(MORNING),
      K(AFTERNOON),
      K(EVENING),
      K(NIGHT),
      K(NOON),
      K(BREAKFAST),
      K(LUNCH),
      K(SUPPER),
      K(BRUNCH),
      K(TONIGHT),
      K(MIDNIGHT),
      K(MINUTE),
      K(HOUR),
      K(DAY),
      K(WEEK),
      K(MONTH),
      K(YEAR),
      K(DAILY),
      K(EVERYDAY),
      K(WEEKLY),
      K(MONTHLY),
      K(YEARLY),
      K(YESTERDAY),
      K(TODAY),
      K(TOMORROW),
      K(DAY_AFTER_TOMORROW),
      K(MONDAY),
      K(TUESDAY),
      K(WEDNESDAY),
      K(THURSDAY),
      K(FRIDAY),
      K(SATURDAY),
      K(SUNDAY),
      K(WEEKEND),
      K(WEEKDAY),
      K(WORKDAY),
      K(WORKING),
      K(JANUARY),
      K(FEBRUARY),
      K(MARCH),
      K(APRIL),
      K(MAY),
      K(JUNE),
      K(JULY),
      K(AUGUST),
      K(SEPTEMBER),
      K(OCTOBER),
      K(NOVEMBER),
      K(DECEMBER),
      K(FIRST),
      K(SECOND),
      K(THIRD),
      K(FOURTH),
      K(FIFTH),
      K(LAST),
      K(LAST_DAY_OF),
      K(DAY_OF),
      K(AT_THE_BEGINNING_OF),
      K(ONE),
      K(TWO),
      K(THREE),
      K(FOUR),
      K(FIVE),
      K(SIX),
      K(SEVEN),
      K(EIGHT),
      K(NINE),
      K(TEN),
      K(ELEVEN),
      K(TWELVE),
      K(THIRTEEN),
      K(FOURTEEN),
      K(FIFTEEN),
      K(SIXTEEN),
      K(SEVENTEEN),
      K(EIGHTEEN),
      K(NINETEEN),
      K(TWENTY),
      K(TWENTY_ONE),
      K(TWENTY_TWO),
      K(TWENTY_THREE),
      K(TWENTY_FOUR),
      K(EVERY),
      K(OF),
      K(IN_WORD),
      K(AFTER),
      K(IN_WEEKS),
      K(IN_MONTHS),
      K(IN_YEARS),
      K(AM),
      K(PM),
      K(AM_PM),
      K(DATE_DIVIDER),
      K(TIME_DIVIDER),
      K(ON_BY),
      K(MIDDLE),
      K(ON_AT),
      K(ON),
      K(AT),
      K(HALF_A),
      K(A),
      K(LATER),
      K(EARLY),
      K(NEXT),
      K(THIS),
      K(CLOCK),
      K(DURATION_FLAG),
      K(REMINDER),
      K(UNTIL),
      K(START),
      K(END),
      K(END_OF_MONTH),
      K(FROM),
      K(FOR),
      K(AND),
  };
#undef K
}

bool neverInAMap(const std::wstring& key) { return key == IN_WEEKS || key == IN_MONTHS || key == IN_YEARS; }

// FNV-1a (64 bit) over the entries in map order: each code unit as four
// little-endian bytes, each key and each value closed by a zero unit.
std::uint64_t vocabularyHash(const Vocabulary& vocabulary) {
  std::uint64_t hash = 0xcbf29ce484222325ull;
  auto feedUnit = [&hash](std::uint32_t unit) {
    for (int shift = 0; shift < 32; shift += 8) {
      hash ^= (unit >> shift) & 0xffu;
      hash *= 0x100000001b3ull;
    }
  };
  auto feedText = [&feedUnit](const std::wstring& text) {
    for (wchar_t unit : text) feedUnit(static_cast<std::uint32_t>(unit));
    feedUnit(0);
  };
  for (const auto& [key, value] : vocabulary) {
    feedText(key);
    feedText(value);
  }
  return hash;
}

std::size_t valueUnits(const Vocabulary& vocabulary) {
  std::size_t units = 0;
  for (const auto& entry : vocabulary) units += entry.second.size();
  return units;
}

const std::vector<std::wstring>& languages() {
  static const std::vector<std::wstring> codes{L"en", L"ja", L"ru", L"fr", L"ko", L"pt"};
  return codes;
}

class VocabularyTables : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
  static Vocabulary of(const std::wstring& code) { return NLPTranslation::getTransKeyToValue(code); }
};

// ---- key constants --------------------------------------------------------

TEST_F(VocabularyTables, KeyTextsAreLowerCaseNamesWithThreeExceptions) {
  const auto keys = allKeys();
  ASSERT_EQ(keys.size(), 127u);
  for (const auto& key : keys) {
    std::string name = key.name;
    std::wstring expected(name.begin(), name.end());
    if (name == "IN_WORD") {
      expected = L"in";
    } else if (name == "START") {
      expected = L"star";
    } else if (name != "DAY_AFTER_TOMORROW") {
      for (auto& unit : expected) unit = static_cast<wchar_t>(std::towlower(unit));
    }
    EXPECT_EQ(key.text, expected) << name;
  }
  EXPECT_EQ(IN_WORD, L"in");
  EXPECT_EQ(START, L"star");
  EXPECT_EQ(DAY_AFTER_TOMORROW, L"DAY_AFTER_TOMORROW");
  EXPECT_EQ(ON_TIME, L"TRIGGER:-PT0S");
}

// ---- choice of the map ----------------------------------------------------

TEST_F(VocabularyTables, PlainCodesPickTheirOwnMap) {
  for (const auto& code : languages()) EXPECT_EQ(of(code)[LOCAL], code) << testing::narrow(code);
}

TEST_F(VocabularyTables, RegionalPortugueseIsPortuguese) { EXPECT_EQ(of(L"pt-BR")[LOCAL], L"pt"); }

TEST_F(VocabularyTables, ChineseRunsOnEnglish) {
  EXPECT_EQ(of(L"zh_CN")[LOCAL], L"en");
  EXPECT_EQ(of(L"zh")[LOCAL], L"en");
  EXPECT_EQ(of(L"zh-Hant")[LOCAL], L"en");
  EXPECT_EQ(of(L"zh_CN"), of(L"en"));
}

TEST_F(VocabularyTables, EmptyCodeIsEnglish) { EXPECT_EQ(of(L"")[LOCAL], L"en"); }

TEST_F(VocabularyTables, JapaneseIsTestedFirst) {
  EXPECT_EQ(of(L"ja_RU")[LOCAL], L"ja");
  EXPECT_EQ(of(L"ru-ja")[LOCAL], L"ja");
}

TEST_F(VocabularyTables, LaterTestsFollowTheirOrder) {
  EXPECT_EQ(of(L"fr_ru")[LOCAL], L"ru");  // "ru" before "fr"
  EXPECT_EQ(of(L"ko-fr")[LOCAL], L"fr");  // "fr" before "ko"
  EXPECT_EQ(of(L"pt-ko")[LOCAL], L"ko");  // "ko" before "pt"
  EXPECT_EQ(of(L"ninja")[LOCAL], L"ja");  // any substring counts
}

TEST_F(VocabularyTables, UpperCaseCodesAreEnglish) {
  EXPECT_EQ(of(L"EN")[LOCAL], L"en");
  EXPECT_EQ(of(L"JA")[LOCAL], L"en");
  EXPECT_EQ(of(L"RU")[LOCAL], L"en");
  EXPECT_EQ(of(L"PT-br")[LOCAL], L"en");
}

TEST_F(VocabularyTables, ChangingACopyLeavesTheLanguageAlone) {
  Vocabulary first = of(L"fr");
  first.set(MORNING, L"changed");
  first.erase(EVENING);
  Vocabulary second = of(L"fr");
  EXPECT_EQ(second[MORNING], L"Matin|morning");
  EXPECT_EQ(second[EVENING], L"soir|evening");
}

// ---- entries --------------------------------------------------------------

TEST_F(VocabularyTables, EveryMapHas124Entries) {
  for (const auto& code : languages()) EXPECT_EQ(of(code).size(), 124u) << testing::narrow(code);
}

TEST_F(VocabularyTables, EveryMapHasAllKeysButTheThreeInKeys) {
  for (const auto& code : languages()) {
    const Vocabulary vocabulary = of(code);
    for (const auto& key : allKeys()) {
      EXPECT_EQ(vocabulary.count(key.text), neverInAMap(key.text) ? 0u : 1u)
          << testing::narrow(code) << " " << key.name;
    }
  }
}

TEST_F(VocabularyTables, InWeeksReadsEmptyInEveryMap) {
  for (const auto& code : languages()) {
    const Vocabulary vocabulary = of(code);
    EXPECT_EQ(vocabulary[IN_WEEKS], L"") << testing::narrow(code);
    EXPECT_EQ(vocabulary[IN_MONTHS], L"") << testing::narrow(code);
    EXPECT_EQ(vocabulary[IN_YEARS], L"") << testing::narrow(code);
    EXPECT_EQ(vocabulary.size(), 124u);  // reading adds nothing
    EXPECT_EQ(of(code).size(), 124u);
  }
}

TEST_F(VocabularyTables, NoValueIsEmpty) {
  for (const auto& code : languages()) {
    for (const auto& [key, value] : of(code))
      EXPECT_FALSE(value.empty()) << testing::narrow(code) << " " << testing::narrow(key);
  }
}

TEST_F(VocabularyTables, SharedValuesAreTheSameInAllMaps) {
  const std::vector<std::pair<std::wstring, std::wstring>> shared{
      {TWO_DIGITAL, L"\\d{0,2}"},
      {FOUR_YEAR_DIGITAL, L"\\d{4}"},
      {FOUR_OR_TWO_YEAR_DIGITAL, L"\\d{4}|\\d{2}"},
      {THREE_DIGITAL, L"\\d{0,3}"},
      {MINUTES_DIGITAL, L"[0-5]?[0-9]|60"},
      {HOUR_OF_DAY_DIGITAL, L"2[0-4]|[0-1]?[0-9]"},
      {DAY_OF_MONTH_DIGITAL, L"3[0-1]|[0-2]?[0-9]"},
      {MONTH_OF_YEAR_DIGITAL, L"1[0-2]|0?[1-9]"},
      {DATE_DIVIDER, L"/|-"},
      {TIME_DIVIDER, L":|\uFF1A|\\."},
  };
  for (const auto& code : languages()) {
    Vocabulary vocabulary = of(code);
    for (const auto& [key, value] : shared)
      EXPECT_EQ(vocabulary[key], value) << testing::narrow(code) << " " << testing::narrow(key);
  }
}

// Every key and every value, to the code unit.
TEST_F(VocabularyTables, EveryValueMatchesItsHash) {
  struct Expected {
    std::wstring code;
    std::uint64_t hash;
    std::size_t units;
  };
  const std::vector<Expected> expected{
      {L"en", 0xe50cf30e6e3a41adull, 1310}, {L"ja", 0xcfbd9c1e2fbad393ull, 1773}, {L"ru", 0xd3ba0c3d8ff55886ull, 8100},
      {L"fr", 0x8f7f7273b4cf4d54ull, 2286}, {L"ko", 0x86d7be9a27ec3a8ull, 1711},  {L"pt", 0xcef6fba0aa747aacull, 2693},
  };
  for (const auto& entry : expected) {
    const Vocabulary vocabulary = of(entry.code);
    EXPECT_EQ(valueUnits(vocabulary), entry.units) << testing::narrow(entry.code);
    EXPECT_EQ(vocabularyHash(vocabulary), entry.hash) << testing::narrow(entry.code);
  }
}

TEST_F(VocabularyTables, HashSeesASingleUnitChange) {
  Vocabulary vocabulary = of(L"en");
  const std::uint64_t before = vocabularyHash(vocabulary);
  vocabulary.set(THURSDAY, L"thursday|thursday|thurs|thur|thu");
  EXPECT_NE(vocabularyHash(vocabulary), before);
}

// ---- literal checks, oddities first ---------------------------------------

TEST_F(VocabularyTables, EnglishValues) {
  Vocabulary en = of(L"en");
  EXPECT_EQ(en[THURSDAY], L"thursday|thurday|thurs|thur|thu");
  EXPECT_EQ(en[AND], L"\u0438|,|&|and");  // Cyrillic letter first
  EXPECT_EQ(en[AND], L"и|,|&|and");
  EXPECT_EQ(en[L"star"], L"starting|start");  // START's key text is "star"
  EXPECT_EQ(en[START], L"starting|start");
  EXPECT_EQ(en[MONDAY], L"monday|mon\\b");
  EXPECT_EQ(en[SEPTEMBER], L"september|sept|\\bsep\\b");
  EXPECT_EQ(en[L"DAY_AFTER_TOMORROW"], L"the day after tomorrow");
  EXPECT_EQ(en[TWENTY_FOUR_HOUR_FLAG], L"@|at|\uFF1A|:");
  EXPECT_EQ(en[DURATION_FLAG], L"-|~|\uFF5E|to|until");
  EXPECT_EQ(en[CLOCK], L"clock|o'clock");
  EXPECT_EQ(en[AM], L"a\\.m\\.|am\\.|am\\b|a\\.|a");
  EXPECT_EQ(en[L"in"], L"in");
  EXPECT_EQ(en[AFTER], L"in|after");
}

TEST_F(VocabularyTables, JapaneseValues) {
  Vocabulary ja = of(L"ja");
  EXPECT_EQ(ja[END], L"終わり|お仕舞い|starting|end");
  EXPECT_EQ(ja[START], L"はじめる|スタート|start");
  EXPECT_EQ(ja[THIRTEEN], L"十三|1\uFF13|thirteen");  // half-width 1, full-width 3
  EXPECT_EQ(ja[TEN], L"十|10|ten");
  EXPECT_EQ(ja[YEAR], L"年|年間|years|year|yrs|yr");
  EXPECT_EQ(ja[DURATION_FLAG], L"-|~|～|から|まで|to|until");
  EXPECT_EQ(ja[AND], L",|&|と|and");
  EXPECT_EQ(ja[TONIGHT], L"tonight");
  EXPECT_EQ(ja[DAY_AFTER_TOMORROW], L"the day after tomorrow");
  EXPECT_EQ(ja[SEPTEMBER], L"九月|september|sept|\\bsep\\b");
}

TEST_F(VocabularyTables, RussianValues) {
  Vocabulary ru = of(L"ru");
  EXPECT_EQ(ru[TWENTY_FOUR],
            L"двадцатью четырём|двадцатью четырем|двадцати четырёх|двадцати четырех|двадцать четыре|ttwenty four");
  EXPECT_EQ(ru[OCTOBER],
            L"октябрями|октябрём|октябрей|октябрям|октябрях|октябрем|октябре|октябри|октября|октябрю|октябрь|окт|oct");
  EXPECT_EQ(ru[AND], L"и|И|,|&|and");
  EXPECT_EQ(ru[TWENTY_FOUR_HOUR_FLAG], L"в|@|at|：|:");
  EXPECT_EQ(ru[AM_PM], L"a\\.m\\.|am\\.|am\\b|a\\.|a|p\\.m\\.|pm\\.|pm\\b|p\\.|p");
  EXPECT_EQ(ru[DURATION_FLAG], L"не|до|-|~|～|to|until");
  EXPECT_EQ(ru[LATER], L"через 5 минут|через 5 мин|потом|later");
  EXPECT_EQ(ru[MAY], L"маем|мая|маю|мае|май|may");
  EXPECT_NE(ru[TOMORROW].find(L"|завтра|Завтра|"), std::wstring::npos);
  EXPECT_NE(ru[SEPTEMBER].find(L"|\\bсен\\b|"), std::wstring::npos);
}

TEST_F(VocabularyTables, FrenchValues) {
  Vocabulary fr = of(L"fr");
  EXPECT_EQ(fr[LATER], L"plus trad|later");
  EXPECT_EQ(fr[DURATION_FLAG], L"-|~|～|jusqu'àil | -|~|～|to|until");  // blanks around " | " match
  EXPECT_EQ(fr[TODAY], L"aujourd'hui| ajd|today|tod|td");               // leading blank in " ajd"
  EXPECT_EQ(fr[MORNING], L"Matin|morning");
  EXPECT_EQ(fr[SEPTEMBER], L"september|sept|\\bsep\\b");
  EXPECT_EQ(fr[UNTIL], L"jusqu'à|until|to");
  EXPECT_EQ(fr[AND], L",|&|et|,|&|and");
  EXPECT_EQ(fr[SIX], L"six|six");
  EXPECT_EQ(fr[CLOCK], L"heure|clock|o'clock|h");
  EXPECT_EQ(fr[PM], L"à l'après midi|p\\.m\\.|pm\\.|pm\\b|p\\.|p");
}

TEST_F(VocabularyTables, KoreanValues) {
  Vocabulary ko = of(L"ko");
  EXPECT_EQ(ko[AND], L"\u0438|,|&|and");
  EXPECT_EQ(ko[SIXTEEN], L"열여섯sixteen");  // no bar between the two words
  EXPECT_EQ(ko[MONDAY], L"월요일|월요일\\b|monday|mon\\b");
  EXPECT_EQ(ko[DAY_END], L"일에|일|st\\.?|ed\\.?|rd\\.?|th\\.?|nd\\.?");
  EXPECT_EQ(ko[DAY_AFTER_TOMORROW], L"모레|the day after tomorrow");
  EXPECT_EQ(ko[YEAR], L"년|년|년|years|year|yrs|yr");
  EXPECT_EQ(ko[EARLY], L"일찍|예상보다 일찍|전에|미리|early|earlier|before|in advance");
  EXPECT_EQ(ko[FOR], L"을 위해|for");
}

TEST_F(VocabularyTables, PortugueseValues) {
  Vocabulary pt = of(L"pt");
  EXPECT_EQ(pt[AND], L"e|&|и|,|&|and");
  EXPECT_EQ(pt[FIRST], L"primeiro|primeira|1.|first|1st");
  EXPECT_EQ(pt[DAY], L"dias|dia|days|day");
  EXPECT_EQ(pt[MINUTE], L"minutos|minutos|mins|min|minutes|minute|mins|min");
  EXPECT_EQ(pt[WORKING], L"workings|working");
  EXPECT_EQ(pt[DURATION_FLAG], L"-|para|até|ate|-|~|～|to|until");
  EXPECT_EQ(pt[MORNING], L"manhã|manha|morning");
  EXPECT_EQ(pt[START], L"começando|comecando|começa|comeca|início|inicio|starting|start");
  EXPECT_EQ(pt[TWENTY_FOUR], L"vinte e quatro|twenty four");
}

}  // namespace
}  // namespace nlpdate

namespace nlpdate {
namespace {

TEST(SharedVocabulary, ALanguageIsBuiltOnceAndSharedBySerial) {
  EXPECT_EQ(NLPTranslation::getTransKeyToValue(L"fr").serial(), NLPTranslation::getTransKeyToValue(L"fr-CA").serial());
  EXPECT_NE(NLPTranslation::getTransKeyToValue(L"fr").serial(), NLPTranslation::getTransKeyToValue(L"en").serial());
}

TEST(SharedVocabulary, AChangeGivesANewSerialAndLeavesOtherCopies) {
  const Vocabulary french = NLPTranslation::getTransKeyToValue(L"fr");
  Vocabulary copy = french;
  EXPECT_EQ(copy.serial(), french.serial());
  copy.set(MORNING, L"aube");
  EXPECT_NE(copy.serial(), french.serial());
  EXPECT_EQ(copy[MORNING], L"aube");
  EXPECT_EQ(french[MORNING], L"Matin|morning");
  const std::uint64_t afterSet = copy.serial();
  copy.erase(MORNING);
  EXPECT_NE(copy.serial(), afterSet);
  EXPECT_EQ(copy[MORNING], L"");
  EXPECT_EQ(copy.count(MORNING), 0u);
}

TEST(SharedVocabulary, AnEmptyVocabularyReadsEmptyEverywhere) {
  const Vocabulary none;
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none[MORNING], L"");
  EXPECT_EQ(none.size(), 0u);
}

}  // namespace
}  // namespace nlpdate
