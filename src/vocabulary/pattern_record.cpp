#include "vocabulary/pattern_record.h"

#include <cstdlib>
#include <fstream>
#include <mutex>

#include "nlpdate/nlpdate.h"
#include "vocabulary/pattern_engine.h"

namespace nlpdate {

namespace {

std::string escape(const std::wstring& text) {
  std::string out;
  for (char c : wideToUtf8(text)) {
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '\t': out += "\\t"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      default: out += c;
    }
  }
  return out;
}

std::wstring unescape(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      out += text[i];
      continue;
    }
    const char next = text[++i];
    out += next == 't' ? '\t' : next == 'n' ? '\n' : next == 'r' ? '\r' : next;
  }
  return utf8ToWide(out);
}

}  // namespace

std::string recordLine(char operation, bool insensitive, size_t from, const std::wstring& pattern,
                       const std::wstring& subject) {
  return std::string(1, operation) + "\t" + (insensitive ? "i" : "s") + "\t" + std::to_string(from) + "\t" +
         escape(pattern) + "\t" + escape(subject);
}

bool readRecordLine(const std::string& line, char& operation, bool& insensitive, size_t& from, std::wstring& pattern,
                    std::wstring& subject) {
  size_t tabs[4];
  size_t at = 0;
  for (size_t& tab : tabs) {
    tab = line.find('\t', at);
    if (tab == std::string::npos) return false;
    at = tab + 1;
  }
  if (tabs[0] != 1) return false;
  operation = line[0];
  insensitive = line.compare(tabs[0] + 1, tabs[1] - tabs[0] - 1, "i") == 0;
  from = std::strtoul(line.c_str() + tabs[1] + 1, nullptr, 10);
  try {
    pattern = unescape(line.substr(tabs[2] + 1, tabs[3] - tabs[2] - 1));
    subject = unescape(line.substr(tabs[3] + 1));
  } catch (const std::exception&) {
    return false;
  }
  return true;
}

#ifdef NLPDATE_RECORD_PATTERNS
void recordPatternOperation(const CompiledPattern& pattern, char operation, size_t from, const std::wstring& subject) {
  static std::mutex lock;
  static std::ofstream* log = [] {
    const char* path = std::getenv("NLPDATE_PATTERN_LOG");
    return path != nullptr ? new std::ofstream(path, std::ios::app) : nullptr;
  }();
  if (log == nullptr) return;
  const std::string line =
      recordLine(operation, pattern.caseMode() == PatternCase::Insensitive, from, pattern.text(), subject);
  std::lock_guard<std::mutex> guard(lock);
  *log << line << '\n';
  log->flush();
}
#else
void recordPatternOperation(const CompiledPattern&, char, size_t, const std::wstring&) {}
#endif

}  // namespace nlpdate
