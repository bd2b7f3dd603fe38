// Examples as data: every *.jsonl file beside this one holds rows of
// (settings, title, expected JSON), one JSON object a line, and this one
// parameterised test runs each file through the CLI's batch mode and compares
// each answer byte for byte. A row is a batch input line (title, lang, tz, now,
// base, firstWeekday, is24Hour, monthFirst, morning, afternoon, evening,
// night, holidays, japanHolidays) plus "expect", the JSON object the parser
// must print, and an optional "note". Lines that are empty or start with '#'
// are skipped. The batch tool ignores the keys it does not know.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "support/test_support.h"

namespace nlpdate::testing {
namespace {

using nlohmann::ordered_json;

struct CorpusRow {
  std::string file;  // stem, e.g. "zh"
  int line = 0;      // 1-based line in the file
  std::string input;
  std::string expected;
  std::string note;
};

std::vector<std::string> corpusFiles() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(NLPDATE_CORPUS_DIR)) {
    if (entry.path().extension() == ".jsonl") files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<CorpusRow> loadRows() {
  std::vector<CorpusRow> rows;
  for (const std::string& path : corpusFiles()) {
    std::ifstream in(path);
    std::string text;
    int number = 0;
    while (std::getline(in, text)) {
      ++number;
      if (text.empty() || text[0] == '#') continue;
      CorpusRow row;
      row.file = std::filesystem::path(path).stem().string();
      row.line = number;
      const ordered_json parsed = ordered_json::parse(text, nullptr, false);
      if (parsed.is_discarded() || !parsed.is_object() || !parsed.contains("expect")) {
        row.input = text;
        row.expected = "<row is not a JSON object with \"expect\">";
      } else {
        ordered_json input = parsed;
        input.erase("expect");
        input.erase("note");
        row.input = input.dump();
        row.expected = parsed.at("expect").dump();
        if (parsed.contains("note")) row.note = parsed.at("note").get<std::string>();
      }
      rows.push_back(row);
    }
  }
  return rows;
}

// One batch run per file; answers by line number of the file.
const std::map<int, std::string>& answersOf(const std::string& file) {
  static std::map<std::string, std::map<int, std::string>> cache;
  auto found = cache.find(file);
  if (found != cache.end()) return found->second;
  std::vector<CorpusRow> rows;
  std::string input;
  for (const CorpusRow& row : loadRows()) {
    if (row.file != file) continue;
    rows.push_back(row);
    input += row.input + "\n";
  }
  const CliResult result = runCli({"--batch"}, input);
  std::istringstream lines(result.out);
  std::map<int, std::string>& answers = cache[file];
  std::string line;
  for (const CorpusRow& row : rows) answers[row.line] = std::getline(lines, line) ? line : "<no answer line>";
  return answers;
}

void PrintTo(const CorpusRow& row, std::ostream* out) { *out << row.file << ".jsonl:" << row.line << " " << row.input; }

class Corpus : public ::testing::TestWithParam<CorpusRow> {};

TEST_P(Corpus, AnswerMatchesTheRow) {
  const CorpusRow& row = GetParam();
  EXPECT_EQ(answersOf(row.file).at(row.line), row.expected)
      << row.file << ".jsonl line " << row.line << (row.note.empty() ? "" : " (" + row.note + ")") << "\n  input: "
      << row.input;
}

std::string rowName(const ::testing::TestParamInfo<CorpusRow>& info) {
  std::string name = info.param.file + "_line" + std::to_string(info.param.line);
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(Rows, Corpus, ::testing::ValuesIn(loadRows()), rowName);

}  // namespace
}  // namespace nlpdate::testing
