// Writes the fuzz starting corpus and a dictionary:
//   - every benchmark title, under its language and a spread of settings;
//   - titles strung together from the vocabulary words of each language;
//   - long titles of words, digits and dividers around the 512-unit limit.
// Usage: fuzz_make_corpus TITLES_FILE OUT_DIR DICT_FILE
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "fuzz_input.h"
#include "vocabulary_words.h"

namespace {

using nlpdate::fuzz::encodeHeader;
using nlpdate::fuzz::Lcg;
using nlpdate::fuzz::vocabularyWords;

int languageIndex(const std::string& code) {
  for (int i = 0; i < nlpdate::fuzz::kLanguageCount; ++i) {
    if (code == nlpdate::fuzz::kLanguages[i]) return i;
  }
  return 0;
}

const std::vector<std::string>& fillers() {
  static const std::vector<std::string> pieces = {
      "1",  "2",  "3",   "12", "31",  "2024", "9:30", "10:00", "23:59", "@",  ":",   "-",  "/",   ".",
      ",",  "~",  "to",  "(",  ")",   "[",    "]",    "\"",    "'",     "，", "：", "１", "２３", "😀"};
  return pieces;
}

class CorpusWriter {
 public:
  explicit CorpusWriter(std::filesystem::path dir) : dir_(std::move(dir)) {
    std::filesystem::create_directories(dir_);
  }
  void write(const std::string& header, const std::string& title) {
    char name[32];
    std::snprintf(name, sizeof name, "gen-%05d", count_++);
    std::ofstream(dir_ / name, std::ios::binary) << header << title;
  }
  int count() const { return count_; }

 private:
  std::filesystem::path dir_;
  int count_ = 0;
};

void writeBenchTitles(const std::string& path, CorpusWriter& out) {
  std::ifstream in(path);
  std::string line;
  int row = 0;
  while (std::getline(in, line)) {
    const std::size_t tab = line.find('\t');
    if (line.empty() || line[0] == '#' || tab == std::string::npos) continue;
    const int language = languageIndex(line.substr(0, tab));
    out.write(encodeHeader(language, row % 2 == 0, row % 3 == 0, 1 + row % 7, row % 5 == 0), line.substr(tab + 1));
    ++row;
  }
}

std::string wordTitle(const std::vector<std::string>& words, Lcg& random, std::size_t pieces) {
  std::string title;
  for (std::size_t i = 0; i < pieces; ++i) {
    if (!title.empty()) title += random.below(4) == 0 ? "" : " ";
    title += random.below(3) == 0 ? fillers()[random.below(fillers().size())] : words[random.below(words.size())];
  }
  return title;
}

void writeVocabularyTitles(CorpusWriter& out, std::set<std::string>& dictionary) {
  Lcg random{2024};
  for (int language = 0; language < nlpdate::fuzz::kLanguageCount; ++language) {
    const std::vector<std::string> words = vocabularyWords(nlpdate::fuzz::kLanguages[language]);
    dictionary.insert(words.begin(), words.end());
    for (int i = 0; i < 40; ++i) {
      out.write(encodeHeader(language, i % 2 == 0, i % 3 == 0, 1 + i % 7, i % 4 == 0),
                wordTitle(words, random, 2 + random.below(6)));
    }
    // Long ones, near and past the length limit (counted in code points).
    for (int i = 0; i < 4; ++i) {
      std::string title;
      while (nlpdate::utf8ToWide(title).size() < 500 + 10 * static_cast<std::size_t>(i)) {
        title += wordTitle(words, random, 3) + " ";
      }
      out.write(encodeHeader(language, i % 2 == 0, i % 2 == 1, 2, false), title);
    }
  }
}

void writeLongDigitTitles(CorpusWriter& out) {
  const char* const dividers[] = {"-", "/", ".", ":", " ", "~"};
  for (int d = 0; d < 6; ++d) {
    for (std::size_t length : {511u, 512u, 513u, 600u}) {
      std::string title;
      for (int i = 0; title.size() < length; ++i) title += (i % 3 == 2) ? dividers[d] : std::to_string(i % 10);
      title.resize(length);
      out.write(encodeHeader(d % nlpdate::fuzz::kLanguageCount, true, d % 2 == 0, 1, false), title);
    }
  }
}

void writeDictionary(const std::string& path, const std::set<std::string>& words) {
  std::ofstream out(path, std::ios::binary);
  for (const std::string& word : words) {
    if (word.empty() || word.size() > 64) continue;
    out << '"';
    for (unsigned char c : word) {
      if (c == '"' || c == '\\' || c < 0x20 || c >= 0x7F) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02X", c);
        out << escaped;
      } else {
        out << c;
      }
    }
    out << "\"\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: fuzz_make_corpus TITLES_FILE OUT_DIR DICT_FILE\n";
    return 2;
  }
  CorpusWriter out(argv[2]);
  std::set<std::string> dictionary;
  writeBenchTitles(argv[1], out);
  writeVocabularyTitles(out, dictionary);
  writeLongDigitTitles(out);
  writeDictionary(argv[3], dictionary);
  std::cout << "wrote " << out.count() << " inputs and " << dictionary.size() << " dictionary words\n";
  return 0;
}
