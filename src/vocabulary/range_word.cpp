#include "vocabulary/range_word.h"

#include "vocabulary/derived.h"
#include "vocabulary/keys.h"

namespace nlpdate {

const std::wstring& getDurationFlag(const Vocabulary& vocabulary) {
  return keptFor(vocabulary, [&]() -> std::wstring {
    const auto found = vocabulary.find(DURATION_FLAG);
    const std::wstring extra = found == vocabulary.end() || found->second.empty() ? L"" : L"|" + found->second;
    return L"\\s*(-|~|～|到|至|—|to|until" + extra + L")\\s*";
  });
}

}  // namespace nlpdate
