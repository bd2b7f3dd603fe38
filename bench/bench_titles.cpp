// Time per title over a corpus of realistic task titles in every language,
// through the facade as a host calls it. Run: build/bin/nlpdate_bench
// (add --benchmark_filter=ParseLanguage/ru to time one language).
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

#include "nlpdate/nlpdate.h"

namespace {

struct Title {
  std::string language;
  std::string text;
};

const std::vector<Title>& corpus() {
  static const std::vector<Title> titles = [] {
    std::vector<Title> loaded;
    std::ifstream file(NLPDATE_BENCH_CORPUS);
    std::string line;
    while (std::getline(file, line)) {
      size_t tab = line.find('\t');
      if (line.empty() || line[0] == '#' || tab == std::string::npos) continue;
      loaded.push_back({line.substr(0, tab), line.substr(tab + 1)});
    }
    return loaded;
  }();
  return titles;
}

std::vector<Title> titlesOf(const std::string& language) {
  std::vector<Title> picked;
  for (const Title& title : corpus()) {
    if (title.language == language) picked.push_back(title);
  }
  return picked;
}

class Language : public nlpdate::NLPNativeParserDataSource {
 public:
  std::string code = "en";
  std::string preferredLanguage() const override { return code; }
  std::optional<bool> monthFirst() const override { return true; }
};

// One iteration parses every given title once; the counter gives time per title.
void parseAll(benchmark::State& state, const std::vector<Title>& titles) {
  if (titles.empty()) {
    state.SkipWithError("no titles: is the corpus file there?");
    return;
  }
  auto language = std::make_shared<Language>();
  nlpdate::NLPNativeParser parser;
  parser.setDataSource(language);
  parser.setFixedNow(1709892000);  // 2024-03-08T10:00:00Z
  size_t parsed = 0;
  for (auto _ : state) {
    for (const Title& title : titles) {
      language->code = title.language;
      benchmark::DoNotOptimize(parser.parse(title.text));
    }
    parsed += titles.size();
  }
  state.counters["titles"] = static_cast<double>(titles.size());
  state.counters["time_per_title"] =
      benchmark::Counter(static_cast<double>(parsed), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_ParseCorpus(benchmark::State& state) { parseAll(state, corpus()); }
BENCHMARK(BM_ParseCorpus)->Unit(benchmark::kMillisecond);

void BM_ParseLanguage(benchmark::State& state, const std::string& language) { parseAll(state, titlesOf(language)); }
BENCHMARK_CAPTURE(BM_ParseLanguage, en, std::string("en"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ParseLanguage, zh_CN, std::string("zh_CN"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ParseLanguage, ja, std::string("ja"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ParseLanguage, ru, std::string("ru"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ParseLanguage, fr, std::string("fr"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ParseLanguage, ko, std::string("ko"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ParseLanguage, pt, std::string("pt"))->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
