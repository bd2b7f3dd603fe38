// A range recogniser's answer in test-friendly form: found text, position,
// start and end as local date texts, and the reminder it carries.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "support/test_support.h"
#include "vocabulary/translation.h"

namespace nlpdate::testing {

struct RangeFound {
  bool present = false;
  std::string text;
  long position = -1;
  std::string start;
  std::string end;
  std::string reminder;
};

using RangeCall = std::function<std::optional<NLPRecognizeDate>(NLPNativeTitleParser&, const std::wstring&,
                                                                const Vocabulary&)>;

inline RangeFound rangeOf(NLPNativeTitleParser& parser, const RangeCall& call, const std::string& title,
                          const std::string& language = "en") {
  const std::optional<NLPRecognizeDate> result =
      call(parser, wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  if (!result) return {};
  return {true,
          narrow(result->getRecogString().front()),
          result->getRecognizeStringStartPosition(),
          tmText(*result->getStartCal().value()),
          tmText(*result->getEndCal().value()),
          narrow(result->getReminder())};
}

}  // namespace nlpdate::testing
