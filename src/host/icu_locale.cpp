// What the facade needs of ICU: Unicode lower-casing and the locale's
// short date order.
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>

#include <memory>

#include "nlpdate/nlpdate.h"

namespace nlpdate {

std::string NLPNativeParser::lowercase(const std::string& utf8) {
  utf8ToWide(utf8);  // refuse invalid text before ICU would paper over it
  icu::UnicodeString text = icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), utf8.size()));
  text.toLower(icu::Locale::getRoot());  // full, locale-neutral case mapping
  std::string out;
  text.toUTF8String(out);
  return out;
}

bool NLPNativeParser::isUSOrUKDateFormat() {
  std::unique_ptr<icu::DateFormat> format(
      icu::DateFormat::createDateInstance(icu::DateFormat::kShort, icu::Locale::getDefault()));
  auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get());
  if (!simple) return false;
  icu::UnicodeString pattern;
  simple->toPattern(pattern);
  // Not found reads as the largest position, as on the platforms this mirrors.
  const auto position = [&](char16_t letter) {
    int32_t at = pattern.indexOf(letter);
    return at < 0 ? static_cast<uint32_t>(INT32_MAX) : static_cast<uint32_t>(at);
  };
  return position(u'M') < position(u'd');
}

}  // namespace nlpdate
