#include "vocabulary/number_words.h"

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"

namespace nlpdate {

const std::wstring& numberWordAlternation(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    const std::wstring* keys[] = {&ONE,      &TWO,      &THREE,      &FOUR,       &FIVE,         &SIX,
                                  &SEVEN,    &EIGHT,    &NINE,       &TEN,        &ELEVEN,       &TWELVE,
                                  &THIRTEEN, &FOURTEEN, &FIFTEEN,    &SIXTEEN,    &SEVENTEEN,    &EIGHTEEN,
                                  &NINETEEN, &TWENTY,   &TWENTY_ONE, &TWENTY_TWO, &TWENTY_THREE, &TWENTY_FOUR};
    std::wstring words;
    for (const std::wstring* key : keys) words += (key == keys[0] ? L"" : L"|") + vocabulary[*key];
    return words;
  });
}

}  // namespace nlpdate
