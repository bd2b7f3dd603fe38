// Helpers every test uses: a fixed time zone, a fixed clock, UTF-8 <-> wide
// text, and running the command-line tool.
#pragma once

#include <string>
#include <vector>

#include "core/title_parser.h"

namespace nlpdate::testing {

// Sets TZ for the lifetime of the object and restores the previous value.
class ScopedTZ {
 public:
  explicit ScopedTZ(const char* zone);
  ~ScopedTZ();
  ScopedTZ(const ScopedTZ&) = delete;
  ScopedTZ& operator=(const ScopedTZ&) = delete;

 private:
  std::string previous;
  bool hadPrevious;
};

// Seconds since the epoch of a local time "YYYY-MM-DDTHH:MM:SS" in the current TZ.
long localSeconds(const std::string& text);

// A parser whose clock is fixed at the local time "YYYY-MM-DDTHH:MM:SS".
NLPNativeTitleParser parserAt(const std::string& now);

// The JSON of one title, on a fresh parser with its clock fixed at `now`.
std::string parseAt(const std::string& now, const std::string& title, const std::string& language = "en",
                    const std::string& baseDate = "");

std::wstring wide(const std::string& utf8);
std::string narrow(const std::wstring& text);
// Local date text of a record, "YYYY-MM-DDTHH:MM:SS", after mktime.
std::string tmText(const std::tm& record);

struct CliResult {
  int status;
  std::string out;
  std::string err;
};
// Runs the CLI with the given arguments (shell-quoted here) and standard input.
CliResult runCli(const std::vector<std::string>& args, const std::string& input = "",
                 const std::string& environment = "TZ=UTC");

}  // namespace nlpdate::testing
