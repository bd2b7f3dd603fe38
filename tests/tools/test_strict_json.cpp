// Every line the tool prints is strict JSON, whatever the title holds: tabs,
// newlines, quotes, backslashes, other control characters and U+2028 inside
// or next to recognised phrases; and in batch mode one answer per input line.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "nlpdate/nlpdate.h"
#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;
using nlohmann::json;

namespace {

const char* const kNow = "2024-03-08T10:00:00";

std::vector<std::string> specialTitles() {
  return {"tomorrow\tat noon", "tomorrow\nat 5pm", "tomorrow\rat 5pm", "\"tomorrow\" at 5pm", "tomorrow \\ at 5pm",
          "tomorrow\x01 at 5pm", "tomorrow\x1f at 5pm", "tomorrow\u2028at 5pm", "call \"mom\"\ttomorrow",
          "明天\t下午3点", "at 5pm\x7f", "tomorrow\u2029"};
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) out.push_back(line);
  return out;
}

std::string batchLine(const std::string& title) {
  return json{{"title", title}, {"now", kNow}, {"tz", "UTC"}}.dump();
}

}  // namespace

TEST(StrictJson, SingleTitleLinesAreValidJson) {
  for (const std::string& title : specialTitles()) {
    const CliResult result = runCli({"--now", kNow, "--tz", "UTC", title});
    const std::vector<std::string> out = lines(result.out);
    ASSERT_EQ(out.size(), 1u) << title;
    const json parsed = json::parse(out[0], nullptr, false);
    ASSERT_FALSE(parsed.is_discarded()) << out[0];
    EXPECT_EQ(parsed.size(), 6u);
  }
}

TEST(StrictJson, TabInsideARecognisedPhraseIsEscaped) {
  const CliResult result = runCli({"--now", kNow, "--tz", "UTC", "tomorrow\tat noon"});
  EXPECT_EQ(result.out,
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at noon\",\"tomorrow\\t\"],\"startDate\":\"2024-03-09T12:00:00\","
            "\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}\n");
}

TEST(StrictJson, BatchGivesOneValidLinePerInputLine) {
  std::string input;
  std::vector<std::string> titles;
  for (int i = 0; i < 100; ++i) {
    const std::vector<std::string> special = specialTitles();
    titles.push_back(special[i % special.size()] + " #" + std::to_string(i));
    input += batchLine(titles.back()) + "\n";
  }
  const CliResult result = runCli({"--batch"}, input);
  const std::vector<std::string> out = lines(result.out);
  ASSERT_EQ(out.size(), 100u);
  for (size_t i = 0; i < out.size(); ++i) {
    const json parsed = json::parse(out[i], nullptr, false);
    ASSERT_FALSE(parsed.is_discarded()) << i << ": " << out[i];
    ASSERT_TRUE(parsed.contains("recognizeStrings")) << out[i];
  }
  // Alignment: a title whose answer differs from its neighbours' lands on its own line.
  const std::string mixed = batchLine("tomorrow\nat 5pm") + "\n" + batchLine("call mom") + "\n" +
                            batchLine("next friday") + "\n";
  const std::vector<std::string> three = lines(runCli({"--batch"}, mixed).out);
  ASSERT_EQ(three.size(), 3u);
  EXPECT_EQ(three[1], "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
                      "\"isAllDay\":true}");
  EXPECT_NE(three[2].find("2024-03-15"), std::string::npos);
}

TEST(StrictJson, OrdinaryTitlesKeepTheParsersTextByteForByte) {
  ScopedTZ zone("UTC");
  NLPNativeParser parser;
  parser.setFixedNow(localSeconds(kNow));
  for (const char* title : {"buy milk tomorrow at 9am", "call mom", "every monday", "明天下午3点开会", "réunion lundi 14h"}) {
    const std::string raw = parser.parse(title);
    const ParseResult result = parser.parseResult(title);
    EXPECT_EQ(result.toJson(), raw) << title;
    const CliResult cli = runCli({"--now", kNow, "--tz", "UTC", title});
    EXPECT_EQ(cli.out, raw + "\n") << title;
  }
}

TEST(StrictJson, LibraryStrictTextEscapesWhatTheRawTextLeaves) {
  ParseResult result;
  result.ok = true;
  result.recognizeStrings = {"a\u2028b", "\"q\"", "back\\slash", "tab\t", "bell\x07"};
  result.startDate = "2024-03-09T12:00:00";
  result.isAllDay = false;
  const std::string strict = result.toJson();
  EXPECT_EQ(strict,
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"a\\u2028b\",\"\\\"q\\\"\",\"back\\\\slash\",\"tab\\t\","
            "\"bell\\u0007\"],\"startDate\":\"2024-03-09T12:00:00\",\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":false}");
  const json parsed = json::parse(strict, nullptr, false);
  ASSERT_FALSE(parsed.is_discarded());
  EXPECT_EQ(parsed["recognizeStrings"][0].get<std::string>(), "a\u2028b");
  ParseResult failed;
  EXPECT_EQ(failed.toJson(), "");
}

TEST(StrictJson, PrettyShowsControlCharactersVisibly) {
  const CliResult result = runCli({"--pretty", "--now", kNow, "--tz", "UTC", "tomorrow\tat noon\x01"});
  EXPECT_EQ(lines(result.out).at(0), "[tomorrow\\t][at noon]\\u0001");
}
