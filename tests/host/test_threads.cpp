// Many threads at once: each parses the whole benchmark corpus with settings
// of its own, and every answer must equal the one a single thread gives.
#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <thread>
#include <vector>

#include "nlpdate/nlpdate.h"
#include "support/test_support.h"

namespace {

struct Title {
  std::string language;
  std::string text;
};

std::vector<Title> corpus() {
  std::vector<Title> titles;
  std::ifstream in(std::string(NLPDATE_SOURCE_DIR) + "/bench/titles.txt");
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    const size_t tab = line.find('\t');
    if (tab == std::string::npos) continue;
    titles.push_back({line.substr(0, tab), line.substr(tab + 1)});
  }
  return titles;
}

class ThreadSettings : public nlpdate::NLPNativeParserDataSource {
 public:
  ThreadSettings(int index, std::string language) : index_(index), language_(std::move(language)) {}
  int firstWeekday() const override { return 1 + index_ % 7; }
  bool is24Hour() const override { return index_ % 2 == 0; }
  int nightHour() const override { return 19 + index_ % 4; }
  std::optional<bool> monthFirst() const override { return index_ % 3 != 0; }
  std::optional<std::string> holidayInfosJSONString() const override {
    return index_ % 2 ? std::optional<std::string>("{\"20240311\":2}") : std::nullopt;
  }
  std::string preferredLanguage() const override { return language_; }

 private:
  int index_;
  std::string language_;
};

// The answers of one thread's settings over the corpus.
std::vector<std::string> answers(int index, const std::vector<Title>& titles) {
  std::vector<std::string> out;
  for (const Title& title : titles) {
    auto settings = std::make_shared<ThreadSettings>(index, title.language);
    nlpdate::NLPNativeParser parser;
    parser.setDataSource(settings);
    parser.setFixedNow(1709892000 + index * 86400L * 3);  // each thread a day of its own
    out.push_back(parser.parse(title.text));
  }
  return out;
}

}  // namespace

TEST(Threads, EightThreadsAgreeWithOneThread) {
  nlpdate::testing::ScopedTZ zone("Asia/Shanghai");
  const std::vector<Title> titles = corpus();
  ASSERT_GT(titles.size(), 200u);
  constexpr int kThreads = 8;
  std::vector<std::vector<std::string>> single;
  for (int i = 0; i < kThreads; ++i) single.push_back(answers(i, titles));
  std::vector<std::vector<std::string>> concurrent(kThreads);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([i, &titles, &concurrent] { concurrent[i] = answers(i, titles); });
  }
  for (std::thread& thread : threads) thread.join();
  for (int i = 0; i < kThreads; ++i) {
    ASSERT_EQ(concurrent[i].size(), titles.size());
    for (size_t t = 0; t < titles.size(); ++t) {
      EXPECT_EQ(concurrent[i][t], single[i][t]) << "thread " << i << ": " << titles[t].text;
    }
  }
}

TEST(Threads, SharedFacadeServesThreadsAtOnce) {
  nlpdate::testing::ScopedTZ zone("UTC");
  nlpdate::NLPNativeParser parser;
  parser.setFixedNow(1709892000);
  const std::string expected = parser.parse("buy milk tomorrow at 9am");
  std::vector<std::string> got(8);
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&, i] {
      for (int n = 0; n < 20; ++n) got[i] = parser.parse("buy milk tomorrow at 9am");
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::string& answer : got) EXPECT_EQ(answer, expected);
}
