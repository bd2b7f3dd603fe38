// Advance reminders in the word languages: "remind me 10 minutes early".

#include "core/title_parser.h"
#include "vocabulary/derived.h"
#include "vocabulary/keys.h"
#include "vocabulary/pattern_kit.h"

namespace nlpdate {

std::wstring NLPNativeTitleParser::matchEnAdvanceTime(std::wstring title, Vocabulary vocabulary) {
  const Vocabulary& v = vocabulary;
  PatternMatch match;
  const Pattern& amount = keptPattern(v, PatternCase::Insensitive, [&] {
    return L"(" + v[REMINDER] + L")\\s+(\\S+ )?(\\d{1,2}|" + v[HALF_A] + L"|" + v[A] + L")\\s+(" + v[MINUTE] + L"|" +
           v[HOUR] + L"|" + v[DAY] + L"|" + v[WEEK] + L")\\s+(" + v[EARLY] + L")";
  });
  if (amount.search(title, match)) {
    std::optional<NLPMorvaneDuration> offset = getDuration(match[3].str(), match[4].str(), vocabulary);
    if (offset) parserDueDate.pendingOffset = offset;
    parserDueDate.recognizeStrings.push_back(match[0].str());
    return match[0].str();
  }

  // A reminder word, one or two words of any kind, then the early word: the
  // user named no usable amount, so the default of five minutes applies.
  const Pattern& vague = keptPattern(v, PatternCase::Insensitive,
                                     [&] { return L"(" + v[REMINDER] + L")\\s+(\\S+ ){1,2}(" + v[EARLY] + L")"; });
  if (vague.search(title, match)) {
    parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 0, 0, 5, 0, false);
    parserDueDate.recognizeStrings.push_back(match[0].str());
    return match[0].str();
  }
  return L"";
}

}  // namespace nlpdate
