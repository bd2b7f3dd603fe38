// Time per title over a corpus of realistic task titles in every language,
// through the facade as a host calls it. Run: build/bin/nlpdate_bench
// (add --benchmark_filter=ParseLanguage/ru to time one language).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
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

// Latency per title: each title of the language parsed on its own (after one
// warm-up parse that compiles its patterns), reported as median and p99 in µs.
void latencies(benchmark::State& state, const std::vector<Title>& titles) {
  if (titles.empty()) {
    state.SkipWithError("no titles");
    return;
  }
  auto language = std::make_shared<Language>();
  nlpdate::NLPNativeParser parser;
  parser.setDataSource(language);
  parser.setFixedNow(1709892000);
  std::vector<double> micros;
  double worst = 0;
  for (auto _ : state) {
    micros.clear();
    for (const Title& title : titles) {
      language->code = title.language;
      benchmark::DoNotOptimize(parser.parse(title.text));  // warm-up: patterns compiled once per process
      const auto start = std::chrono::steady_clock::now();
      benchmark::DoNotOptimize(parser.parse(title.text));
      const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
      micros.push_back(took.count());
    }
  }
  std::sort(micros.begin(), micros.end());
  worst = micros.back();
  state.counters["median_us"] = micros[micros.size() / 2];
  state.counters["p99_us"] = micros[std::min(micros.size() - 1, micros.size() * 99 / 100)];
  state.counters["max_us"] = worst;
}

// Titles made to make a backtracking pattern work hard, cut at 512 code units as the parser cuts them.
std::vector<Title> adversarial() {
  std::vector<Title> titles;
  const std::string kinds[] = {"a" + std::string(510, ' ') + "b",
                               std::string(512, '1'),
                               std::string(512, ','),
                               [] {
                                 std::string t;
                                 while (t.size() < 500) t += "next ";
                                 return t;
                               }(),
                               [] {
                                 std::string t;
                                 for (int i = 0; i < 170; ++i) t += "三";
                                 return t;
                               }(),
                               [] {
                                 std::string t;
                                 while (t.size() < 480) t += "明天 3 , at ";
                                 return t;
                               }()};
  for (const char* language : {"en", "zh_CN", "ja", "ru", "fr", "ko", "pt"}) {
    for (const std::string& kind : kinds) titles.push_back({language, kind});
  }
  return titles;
}

void BM_Latency(benchmark::State& state, const std::string& language) { latencies(state, titlesOf(language)); }
void BM_Adversarial(benchmark::State& state) { latencies(state, adversarial()); }

void BM_LatencyAll(benchmark::State& state) { latencies(state, corpus()); }
BENCHMARK(BM_LatencyAll)->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, en, std::string("en"))->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, zh_CN, std::string("zh_CN"))->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, ja, std::string("ja"))->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, ru, std::string("ru"))->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, fr, std::string("fr"))->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, ko, std::string("ko"))->Iterations(3);
BENCHMARK_CAPTURE(BM_Latency, pt, std::string("pt"))->Iterations(3);
BENCHMARK(BM_Adversarial)->Iterations(1)->Unit(benchmark::kMillisecond);

// Like the tests, the benchmark fixes the zone (UTC unless TZ is given). With
// TZ unset, glibc reads the zone file's status again on every mktime, which
// costs about a sixth of a parse; hosts that care should set TZ.
int main(int argc, char** argv) {
  setenv("TZ", getenv("TZ") ? getenv("TZ") : "UTC", 1);
  tzset();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
