// Strict JSON for hosts that need it: the parser's own text leaves recognised
// strings as they are, so a tab or a quote in a title would break a JSON
// reader. This writes the same keys in the same order with every string escaped.
#include <cstdio>

#include "nlpdate/nlpdate.h"

namespace nlpdate {

namespace {

void appendEscaped(std::string& out, const std::string& text) {
  out += '"';
  for (size_t i = 0; i < text.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\b': out += "\\b"; break;
      case '\f': out += "\\f"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default:
        if (c < 0x20 || c == 0x7f) {
          char buffer[8];
          std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
          out += buffer;
        } else if (c == 0xe2 && i + 2 < text.size() && static_cast<unsigned char>(text[i + 1]) == 0x80 &&
                   (static_cast<unsigned char>(text[i + 2]) == 0xa8 ||
                    static_cast<unsigned char>(text[i + 2]) == 0xa9)) {
          // U+2028 and U+2029 are valid JSON but end lines in JavaScript and some readers.
          out += static_cast<unsigned char>(text[i + 2]) == 0xa8 ? "\\u2028" : "\\u2029";
          i += 2;
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  out += '"';
}

void appendList(std::string& out, const std::vector<std::string>& texts) {
  out += '[';
  for (size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) out += ',';
    appendEscaped(out, texts[i]);
  }
  out += ']';
}

}  // namespace

std::string ParseResult::toJson() const {
  if (!ok) return std::string();
  std::string out = "{\"repeatFlag\":";
  appendEscaped(out, repeatFlag);
  out += ",\"recognizeStrings\":";
  appendList(out, recognizeStrings);
  out += ",\"startDate\":";
  appendEscaped(out, startDate);
  out += ",\"dueDate\":";
  appendEscaped(out, dueDate);
  out += ",\"reminder\":";
  appendList(out, reminder);
  out += ",\"isAllDay\":";
  out += isAllDay ? "true" : "false";
  out += '}';
  return out;
}

}  // namespace nlpdate
