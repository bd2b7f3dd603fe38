// UTF-8 <-> one wide character per code point, strict: overlong forms,
// surrogates, values above U+10FFFF and cut sequences are refused.
#include <string>

#include "nlpdate/nlpdate.h"

namespace nlpdate {

namespace {
[[noreturn]] void refuse(size_t offset, const char* why) {
  throw InvalidUtf8Error("invalid UTF-8 at byte " + std::to_string(offset) + ": " + why);
}
}  // namespace

std::wstring utf8ToWide(const std::string& utf8) {
  std::wstring out;
  out.reserve(utf8.size());
  const size_t size = utf8.size();
  for (size_t i = 0; i < size;) {
    const unsigned char lead = static_cast<unsigned char>(utf8[i]);
    int extra;
    unsigned long cp;
    unsigned long minimum;
    if (lead < 0x80) {
      out.push_back(static_cast<wchar_t>(lead));
      ++i;
      continue;
    } else if ((lead & 0xE0) == 0xC0) {
      extra = 1, cp = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
      extra = 2, cp = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
      extra = 3, cp = lead & 0x07, minimum = 0x10000;
    } else {
      refuse(i, "bad lead byte");
    }
    if (i + extra >= size) refuse(i, "sequence cut short");
    for (int k = 1; k <= extra; ++k) {
      const unsigned char next = static_cast<unsigned char>(utf8[i + k]);
      if ((next & 0xC0) != 0x80) refuse(i + k, "bad continuation byte");
      cp = (cp << 6) | (next & 0x3F);
    }
    if (cp < minimum) refuse(i, "overlong form");
    if (cp > 0x10FFFF) refuse(i, "code point above U+10FFFF");
    if (cp >= 0xD800 && cp <= 0xDFFF) refuse(i, "surrogate code point");
    out.push_back(static_cast<wchar_t>(cp));
    i += extra + 1;
  }
  return out;
}

std::string wideToUtf8(const std::wstring& text) {
  std::string out;
  out.reserve(text.size());
  for (wchar_t unit : text) {
    const unsigned long cp = static_cast<unsigned long>(unit);
    if (cp < 0x80) {
      out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
      out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
      out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
      out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
      out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
      out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
      out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
  }
  return out;
}

}  // namespace nlpdate
