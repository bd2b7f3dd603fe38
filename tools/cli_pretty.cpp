#include <cstdio>
#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "cli_modes.h"

namespace nlpdate::cli {

namespace {
// Control characters as escapes, so that a tab or a newline in a title stays visible on one line.
std::string visible(const std::string& text) {
  std::string out;
  for (unsigned char c : text) {
    switch (c) {
      case '\t': out += "\\t"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      default:
        if (c < 0x20 || c == 0x7f) {
          char buffer[8];
          std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
          out += buffer;
        } else {
          out.push_back(static_cast<char>(c));
        }
    }
  }
  return out;
}

// Marks every place where a recognised string occurs in the (lower-cased)
// title; neighbouring parts keep brackets of their own.
std::string highlight(const std::string& title, const std::vector<std::string>& parts, bool colour) {
  const std::string lowered = NLPNativeParser::lowercase(title);
  const std::string& shown = lowered.size() == title.size() ? title : lowered;
  std::vector<int> owner(lowered.size(), -1);
  for (size_t index = 0; index < parts.size(); ++index) {
    const std::string& part = parts[index];
    if (part.empty()) continue;
    for (size_t at = lowered.find(part); at != std::string::npos; at = lowered.find(part, at + part.size())) {
      for (size_t i = at; i < at + part.size(); ++i) owner[i] = static_cast<int>(index);
    }
  }
  const std::string open = colour ? "\x1b[1;33m" : "[";
  const std::string close = colour ? "\x1b[0m" : "]";
  std::string out;
  for (size_t i = 0; i < shown.size(); ++i) {
    if (owner[i] >= 0 && (i == 0 || owner[i - 1] != owner[i])) out += open;
    out += visible(std::string(1, shown[i]));
    if (owner[i] >= 0 && (i + 1 == shown.size() || owner[i + 1] != owner[i])) out += close;
  }
  return out;
}

std::string orNone(const std::string& text) { return text.empty() ? "-" : text; }

}  // namespace

std::string jsonLine(const ParseResult& result) {
  using nlohmann::ordered_json;
  if (!result.ok) return ordered_json{{"error", "the parser failed on this title"}}.dump();
  ordered_json line;
  line["repeatFlag"] = result.repeatFlag;
  line["recognizeStrings"] = result.recognizeStrings;
  line["startDate"] = result.startDate;
  line["dueDate"] = result.dueDate;
  line["reminder"] = result.reminder;
  line["isAllDay"] = result.isAllDay;
  return line.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

void printPretty(std::ostream& out, const std::string& title, const ParseResult& result, bool colour) {
  if (!result.ok) {
    out << visible(title) << "\n  (the parser failed on this title)\n";
    return;
  }
  std::string reminderText;
  for (const std::string& reminder : result.reminder) reminderText += (reminderText.empty() ? "" : ", ") + reminder;
  out << highlight(title, result.recognizeStrings, colour) << "\n"
      << "  repeat:    " << orNone(result.repeatFlag) << "\n"
      << "  start:     " << orNone(result.startDate) << "\n"
      << "  end:       " << orNone(result.dueDate) << "\n"
      << "  reminders: " << orNone(reminderText) << "\n"
      << "  all-day:   " << (result.isAllDay ? "yes" : "no") << "\n";
}

}  // namespace nlpdate::cli
