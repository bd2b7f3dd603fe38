// Values kept per vocabulary (keptFor, keptPattern) and guarded patterns: a
// kept value is built once per vocabulary and variant, and a guard never
// changes what the pattern finds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/translation.h"
#include "words/month_patterns.h"
#include "words/named_days.h"
#include "words/weekdays.h"

namespace nlpdate {
namespace {

int builds = 0;

const std::wstring& morningTwice(const Vocabulary& vocabulary, std::uint64_t variant) {
  return keptFor(
      vocabulary,
      [&]() -> std::wstring {
        ++builds;
        return vocabulary[MORNING] + L"|" + vocabulary[MORNING] + std::to_wstring(variant);
      },
      variant);
}

TEST(KeptValues, BuiltOncePerVocabularyAndVariant) {
  builds = 0;
  const Vocabulary french = NLPTranslation::getTransKeyToValue(L"fr");
  EXPECT_EQ(morningTwice(french, 0), L"Matin|morning|Matin|morning0");
  EXPECT_EQ(morningTwice(french, 0), L"Matin|morning|Matin|morning0");
  EXPECT_EQ(builds, 1);
  EXPECT_EQ(morningTwice(french, 7), L"Matin|morning|Matin|morning7");
  EXPECT_EQ(builds, 2);
  EXPECT_EQ(morningTwice(NLPTranslation::getTransKeyToValue(L"fr-CA"), 0), L"Matin|morning|Matin|morning0");
  EXPECT_EQ(builds, 2);  // same language, same table
}

TEST(KeptValues, AChangedVocabularyIsBuiltAfresh) {
  builds = 0;
  Vocabulary changed = NLPTranslation::getTransKeyToValue(L"en");
  EXPECT_EQ(morningTwice(changed, 0), L"morning|morning0");
  changed.set(MORNING, L"dawn");
  EXPECT_EQ(morningTwice(changed, 0), L"dawn|dawn0");
  EXPECT_EQ(builds, 2);
}

TEST(KeptValues, KeptPatternsAreTheSameCompiledPattern) {
  const Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");
  auto evening = [&]() -> const Pattern& {
    return keptPattern(english, PatternCase::Insensitive, [&] { return L"\\b(" + english[EVENING] + L")\\b"; });
  };
  EXPECT_EQ(evening().compiled(), evening().compiled());
  PatternMatch match;
  const std::wstring title = L"call mum this EVENING";
  ASSERT_TRUE(evening().search(title, match));
  EXPECT_EQ(match.str(1), L"EVENING");
  EXPECT_EQ(match.position(1), 14);
}

// Every title, every language: the guarded search finds what the whole pattern finds.
void expectSameAsWhole(const GuardedPattern& guarded, const std::vector<std::wstring>& titles) {
  for (const std::wstring& title : titles) {
    PatternMatch viaGuard;
    PatternMatch whole;
    const bool found = guarded.search(title, viaGuard);
    ASSERT_EQ(found, guarded.full.search(title, whole));
    ASSERT_EQ(viaGuard.size(), whole.size());
    for (size_t group = 0; group < whole.size(); ++group) {
      EXPECT_EQ(viaGuard.position(group), whole.position(group));
      EXPECT_EQ(viaGuard.str(group), whole.str(group));
    }
  }
}

const std::vector<std::wstring>& guardTitles() {
  // Titles with every weekday and month word of every language are added below.
  static const std::vector<std::wstring> titles = {L"",
                                                   L"   ",
                                                   L"a" + std::wstring(510, L' ') + L"b",
                                                   L"meeting next monday at 3pm",
                                                   L"lunch on Fri",
                                                   L"every week on tuesday",
                                                   L"weekend trip",
                                                   L"réunion lundi 14h",
                                                   L"встреча в понедельник",
                                                   L"月曜日に会議",
                                                   L"월요일 회의",
                                                   L"reunião segunda-feira",
                                                   L"3 march 2025",
                                                   L"due 12 December",
                                                   L"janvier prochain",
                                                   L"15 марта",
                                                   L"mid june",
                                                   L"by the 3rd",
                                                   L"pay rent 1st of every month",
                                                   L"monthly",
                                                   L"sun",
                                                   L"Sunday!",
                                                   L"no date here",
                                                   L"SUN.",
                                                   L"(mon)",
                                                   L"tuesday-ish",
                                                   L"a wed b",
                                                   L"ÉTÉ",
                                                   L"été",
                                                   L"Mercredi",
                                                   L"MARDI 3",
                                                   L"sábado",
                                                   L"SÁBADO",
                                                   L"в среду",
                                                   L"В СРЕДУ"};
  return titles;
}

// Each word of the vocabulary, alone, upper-cased and inside a sentence.
std::vector<std::wstring> wordTitles(const Vocabulary& vocabulary, std::initializer_list<const std::wstring*> keys) {
  std::vector<std::wstring> titles = guardTitles();
  for (const std::wstring* key : keys) {
    std::wstring value = vocabulary[*key];
    size_t begin = 0;
    while (begin <= value.size()) {
      const size_t bar = std::min(value.find(L'|', begin), value.size());
      const std::wstring word = value.substr(begin, bar - begin);
      std::wstring upper = word;
      for (wchar_t& unit : upper) unit = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(unit)));
      titles.insert(titles.end(), {word, upper, L"see you " + word + L" at 3", L"x" + word + L"y"});
      begin = bar + 1;
    }
  }
  return titles;
}

TEST(GuardedPatterns, WeekdayGuardNeverChangesAMatch) {
  for (const wchar_t* code : {L"en", L"fr", L"ru", L"ja", L"ko", L"pt"}) {
    const Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(code);
    const GuardedPattern guarded =
        GuardedPattern::of(getDayOfWeekWords(vocabulary), getDayOfWeekRecog(vocabulary), PatternCase::Insensitive);
    expectSameAsWhole(guarded, wordTitles(vocabulary, {&SUNDAY, &MONDAY, &TUESDAY, &WEDNESDAY, &THURSDAY, &FRIDAY,
                                                       &SATURDAY, &WEEKEND, &WEEK, &NEXT, &LAST, &THIS}));
  }
}

TEST(GuardedPatterns, MonthGuardNeverChangesAMatch) {
  for (const wchar_t* code : {L"en", L"fr", L"ru", L"ja", L"ko", L"pt"}) {
    const Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(code);
    const GuardedPattern guarded =
        GuardedPattern::of(getEnMonthWords(vocabulary), getEnMonthRecognition(vocabulary), PatternCase::Insensitive);
    expectSameAsWhole(guarded, wordTitles(vocabulary, {&JANUARY, &FEBRUARY, &MARCH, &APRIL, &MAY, &JUNE, &JULY, &AUGUST,
                                                       &SEPTEMBER, &OCTOBER, &NOVEMBER, &DECEMBER}));
  }
}

TEST(GuardedPatterns, NamedDayGuardNeverChangesAMatch) {
  for (const wchar_t* code : {L"en", L"fr", L"ru", L"ja", L"ko", L"pt"}) {
    const Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(code);
    const GuardedPattern guarded = GuardedPattern::of(getSpecialDayWords(vocabulary),
                                                      getSpecialDayRecognition(vocabulary), PatternCase::Insensitive);
    EXPECT_TRUE(guarded.words.usable());
    expectSameAsWhole(guarded, wordTitles(vocabulary, {&YESTERDAY, &TODAY, &TOMORROW, &DAY_AFTER_TOMORROW, &TONIGHT}));
  }
}

TEST(GuardedPatterns, ClockFormsOfNumberWordsNeverChangeAMatch) {
  NLPNativeTitleParser parser = testing::parserAt("2024-03-08T10:00:00");
  for (const wchar_t* code : {L"en", L"fr", L"ru", L"ja", L"ko", L"pt"}) {
    const Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(code);
    const std::vector<GuardedPattern>& forms = parser.enTimePatterns(vocabulary);
    ASSERT_EQ(forms.size(), 5u);
    EXPECT_FALSE(forms[0].words.usable());
    EXPECT_TRUE(forms[3].words.usable());
    EXPECT_TRUE(forms[4].words.usable());
    std::vector<std::wstring> titles =
        wordTitles(vocabulary, {&ONE, &TWO, &THREE, &TEN, &ELEVEN, &TWELVE, &TWENTY_ONE, &TWENTY_FOUR});
    for (const wchar_t* extra : {L"at seven pm", L"SEVEN AM", L"eleven o'clock", L"at 7pm", L"call at 19:30"}) {
      titles.push_back(extra);
    }
    for (const GuardedPattern& form : forms) expectSameAsWhole(form, titles);
  }
}

TEST(GuardedPatterns, AGuardThatFindsNothingLeavesAnEmptyMatch) {
  const GuardedPattern guarded = GuardedPattern::of(L"(zebra)", L"(\\w+) (zebra)", PatternCase::Sensitive);
  EXPECT_TRUE(guarded.words.usable());
  const std::wstring title = L"a horse";
  PatternMatch match;
  EXPECT_FALSE(guarded.search(title, match));
  EXPECT_TRUE(match.empty());
  const std::wstring other = L"a zebra";
  ASSERT_TRUE(guarded.search(other, match));
  EXPECT_EQ(match.str(1), L"a");
  EXPECT_EQ(match.str(2), L"zebra");
}

}  // namespace
}  // namespace nlpdate
