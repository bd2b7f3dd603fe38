#include "support/test_support.h"

#include "nlpdate/nlpdate.h"

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

namespace nlpdate::testing {

ScopedTZ::ScopedTZ(const char* zone) {
  const char* old = std::getenv("TZ");
  hadPrevious = old != nullptr;
  if (old) previous = old;
  setenv("TZ", zone, 1);
  tzset();
}

ScopedTZ::~ScopedTZ() {
  if (hadPrevious) {
    setenv("TZ", previous.c_str(), 1);
  } else {
    unsetenv("TZ");
  }
  tzset();
}

long localSeconds(const std::string& text) {
  std::tm record{};
  std::sscanf(text.c_str(), "%d-%d-%dT%d:%d:%d", &record.tm_year, &record.tm_mon, &record.tm_mday, &record.tm_hour,
              &record.tm_min, &record.tm_sec);
  record.tm_year -= 1900;
  record.tm_mon -= 1;
  record.tm_isdst = -1;
  return static_cast<long>(std::mktime(&record));
}

NLPNativeTitleParser parserAt(const std::string& now) {
  NLPNativeTitleParser parser;
  parser.setDefaultTimeSecond(localSeconds(now));
  return parser;
}

std::string parseAt(const std::string& now, const std::string& title, const std::string& language,
                    const std::string& baseDate) {
  NLPNativeTitleParser parser = parserAt(now);
  return narrow(parser.parse(wide(title), wide(baseDate), wide(language)));
}

// The library's own strict conversions; test texts are valid UTF-8.
std::wstring wide(const std::string& utf8) { return utf8ToWide(utf8); }

std::string narrow(const std::wstring& text) { return wideToUtf8(text); }

std::string tmText(const std::tm& record) {
  std::tm copy = record;
  std::time_t seconds = std::mktime(&copy);
  std::tm local{};
  localtime_r(&seconds, &local);
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02dT%02d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1,
                local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
  return buffer;
}

namespace {
std::string shellQuote(const std::string& text) {
  std::string out = "'";
  for (char c : text) {
    if (c == '\'') {
      out += "'\\''";
    } else {
      out.push_back(c);
    }
  }
  return out + "'";
}

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}
}  // namespace

CliResult runCli(const std::vector<std::string>& args, const std::string& input, const std::string& environment) {
  char dir[] = "/tmp/nlpdate-cli-XXXXXX";
  if (!mkdtemp(dir)) return {-1, "", "mkdtemp failed"};
  const std::string base = dir;
  {
    std::ofstream in(base + "/in", std::ios::binary);
    in << input;
  }
  std::string command = "env " + environment + " " + shellQuote(NLPDATE_CLI_PATH);
  for (const std::string& arg : args) command += " " + shellQuote(arg);
  command += " <" + base + "/in >" + base + "/out 2>" + base + "/err";
  int raw = std::system(command.c_str());
  CliResult result{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, readFile(base + "/out"), readFile(base + "/err")};
  std::remove((base + "/in").c_str());
  std::remove((base + "/out").c_str());
  std::remove((base + "/err").c_str());
  rmdir(dir);
  return result;
}

}  // namespace nlpdate::testing
