#include <gtest/gtest.h>

#include "vocabulary/keys.h"
#include "vocabulary/number_words.h"
#include "vocabulary/translation.h"

namespace nlpdate {
namespace {

TEST(NumberWords, EnglishHasTwentyFourAlternativesInOrder) {
  Vocabulary vocabulary = NLPTranslation::getTransKeyToValue(L"en");
  EXPECT_EQ(numberWordAlternation(vocabulary),
            L"one|two|three|four|five|six|seven|eight|nine|ten|eleven|twelve|thirteen|fourteen|fifteen|"
            L"sixteen|seventeen|eighteen|nineteen|twenty|twenty one|twenty two|twenty three|twenty four");
}

TEST(NumberWords, MissingWordsKeepTheirBars) {
  Vocabulary vocabulary;
  vocabulary.set(TWO, L"deux");
  vocabulary.set(TWENTY_FOUR, L"vingt-quatre");
  EXPECT_EQ(numberWordAlternation(vocabulary), L"|deux||||||||||||||||||||||vingt-quatre");
}

}  // namespace
}  // namespace nlpdate
