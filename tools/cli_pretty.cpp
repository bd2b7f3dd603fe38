#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "cli_modes.h"

namespace nlpdate::cli {

namespace {
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
    out.push_back(shown[i]);
    if (owner[i] >= 0 && (i + 1 == shown.size() || owner[i + 1] != owner[i])) out += close;
  }
  return out;
}

std::string orNone(const std::string& text) { return text.empty() ? "-" : text; }
}  // namespace

void printPretty(std::ostream& out, const std::string& title, const std::string& json, bool colour) {
  if (json.empty()) {
    out << title << "\n  (the parser failed on this title)\n";
    return;
  }
  nlohmann::json parsed = nlohmann::json::parse(json, nullptr, false);
  if (parsed.is_discarded()) {  // recognised text with a quote makes the JSON unreadable
    out << title << "\n  " << json << "\n";
    return;
  }
  std::vector<std::string> parts = parsed["recognizeStrings"].get<std::vector<std::string>>();
  std::vector<std::string> reminders = parsed["reminder"].get<std::vector<std::string>>();
  std::string reminderText;
  for (const std::string& reminder : reminders) reminderText += (reminderText.empty() ? "" : ", ") + reminder;
  out << highlight(title, parts, colour) << "\n"
      << "  repeat:    " << orNone(parsed["repeatFlag"].get<std::string>()) << "\n"
      << "  start:     " << orNone(parsed["startDate"].get<std::string>()) << "\n"
      << "  end:       " << orNone(parsed["dueDate"].get<std::string>()) << "\n"
      << "  reminders: " << orNone(reminderText) << "\n"
      << "  all-day:   " << (parsed["isAllDay"].get<bool>() ? "yes" : "no") << "\n";
}

}  // namespace nlpdate::cli
