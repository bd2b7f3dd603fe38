// The host facade: settings from a data source, UTF-8 in and out, date text.
#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <atomic>
#include <thread>
#include <vector>

#include "nlpdate/nlpdate.h"
#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::ScopedTZ;

const char* const kEmptyJson =
    "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
    "\"isAllDay\":true}";
const long long kNow = 1709892000;  // 2024-03-08T10:00:00Z

// Counts every setting read, and can hand out a holiday text that cannot be used.
class CountingSource : public NLPNativeParserDataSource {
 public:
  mutable std::atomic<int> reads{0};
  std::optional<std::string> holidays;
  int firstWeekday() const override { return ++reads, 2; }
  std::string preferredLanguage() const override { return ++reads, "ru"; }
  std::optional<std::string> holidayInfosJSONString() const override { return ++reads, holidays; }
  std::optional<bool> monthFirst() const override { return ++reads, true; }
};

NLPNativeParser fixedParser() {
  NLPNativeParser parser;
  parser.setFixedNow(kNow);
  return parser;
}

TEST(FacadeTest, NullTitleGivesEmptyTextAndReadsNoSetting) {
  auto source = std::make_shared<CountingSource>();
  NLPNativeParser parser = fixedParser();
  parser.setDataSource(source);
  EXPECT_EQ(parser.parse(static_cast<const char*>(nullptr)), "");
  EXPECT_EQ(parser.parse(nullptr, Clock::now()), "");
  EXPECT_EQ(source->reads.load(), 0);
}

TEST(FacadeTest, CStringTitleIsParsed) {
  ScopedTZ zone("UTC");
  NLPNativeParser parser = fixedParser();
  EXPECT_EQ(parser.parse("call mom"), kEmptyJson);
  const char* title = "call mom";
  EXPECT_EQ(parser.parse(title), parser.parse(std::string(title)));
}

TEST(FacadeTest, LiveDataSourceIsRead) {
  ScopedTZ zone("UTC");
  auto source = std::make_shared<CountingSource>();
  NLPNativeParser parser = fixedParser();
  parser.setDataSource(source);
  EXPECT_EQ(parser.parse("call mom"), kEmptyJson);
  EXPECT_GE(source->reads.load(), 4);
  EXPECT_EQ(parser.dataSource().lock(), source);
}

TEST(FacadeTest, NoDataSourceMeansTheClassDefaults) {
  NLPNativeParser parser;
  EXPECT_EQ(parser.firstWeekday(), 1);
  EXPECT_EQ(parser.morningHour(), 9);
  EXPECT_EQ(parser.morningMinute(), 0);
  EXPECT_EQ(parser.afternoonHour(), 13);
  EXPECT_EQ(parser.afternoonMinute(), 0);
  EXPECT_EQ(parser.eveningHour(), 17);
  EXPECT_EQ(parser.eveningMinute(), 0);
  EXPECT_EQ(parser.nightHour(), 20);
  EXPECT_EQ(parser.nightMinute(), 0);
  EXPECT_TRUE(parser.is24Hour());
  EXPECT_FALSE(parser.holidayInfosJSONString().has_value());
  EXPECT_FALSE(parser.japanHolidayInfosJSONString().has_value());
  EXPECT_EQ(parser.preferredLanguage(), "en");
  EXPECT_TRUE(parser.dataSource().expired());
  ScopedTZ zone("UTC");
  parser.setFixedNow(kNow);
  EXPECT_EQ(parser.parse("call mom"), kEmptyJson);
}

TEST(FacadeTest, ReleasedDataSourceReadsAsNone) {
  ScopedTZ zone("UTC");
  auto source = std::make_shared<CountingSource>();
  source->holidays = std::string("\xff");  // would throw if it were read
  NLPNativeParser parser = fixedParser();
  parser.setDataSource(source);
  EXPECT_THROW(parser.parse("call mom"), InvalidUtf8Error);
  const int readsBefore = source->reads.load();
  std::weak_ptr<CountingSource> watch = source;
  source.reset();
  EXPECT_TRUE(watch.expired());
  EXPECT_TRUE(parser.dataSource().expired());
  EXPECT_EQ(parser.parse("call mom"), kEmptyJson);
  EXPECT_GT(readsBefore, 0);
}

TEST(FacadeTest, BaseDateIsAcceptedAndNilBaseDateIsEmpty) {
  ScopedTZ zone("UTC");
  NLPNativeParser parser = fixedParser();
  EXPECT_EQ(parser.parse("call mom", Clock::from_time_t(kNow)), kEmptyJson);
  EXPECT_EQ(parser.parse("call mom", std::nullopt), kEmptyJson);
}

TEST(FacadeTest, FixedNowZeroGoesBackToTheClock) {
  NLPNativeParser parser;
  EXPECT_FALSE(parser.fixedNow().has_value());
  parser.setFixedNow(kNow);
  ASSERT_TRUE(parser.fixedNow().has_value());
  EXPECT_EQ(*parser.fixedNow(), kNow);
  parser.setFixedNow(0);
  EXPECT_FALSE(parser.fixedNow().has_value());
  parser.setFixedNow(kNow);
  parser.setFixedNow(std::nullopt);
  EXPECT_FALSE(parser.fixedNow().has_value());
}

TEST(FacadeTest, SharedInstanceIsOneObject) {
  EXPECT_EQ(&NLPNativeParser::sharedInstance(), &NLPNativeParser::sharedInstance());
}

// ---- lower-casing and UTF-8 ---------------------------------------------------------------------

TEST(FacadeTextTest, LowerCasing) {
  EXPECT_EQ(NLPNativeParser::lowercase("ЗАВТРА"), "завтра");
  EXPECT_EQ(NLPNativeParser::lowercase("Call Mom TOMORROW at 9AM"), "call mom tomorrow at 9am");
  EXPECT_EQ(NLPNativeParser::lowercase("DEMAIN À 9H"), "demain à 9h");
  EXPECT_EQ(NLPNativeParser::lowercase("明天 ＡＢＣ"), "明天 ａｂｃ");
  EXPECT_EQ(NLPNativeParser::lowercase(""), "");
}

class Russian : public NLPNativeParserDataSource {
 public:
  std::string preferredLanguage() const override { return "ru"; }
};

TEST(FacadeTextTest, UpperCaseTitleComesBackLowerCase) {
  ScopedTZ zone("UTC");
  auto russian = std::make_shared<Russian>();
  NLPNativeParser parser = fixedParser();
  parser.setDataSource(russian);
  EXPECT_EQ(parser.parse("ЗАВТРА"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"завтра\"],\"startDate\":\"2024-03-09T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
  NLPNativeParser english = fixedParser();
  EXPECT_EQ(english.parse("Remind Me: TOMORROW"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"tomorrow\",\"remind me\"],\"startDate\":\"2024-03-09T00:"
            "00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":true}");
}

TEST(FacadeTextTest, InvalidUtf8IsRefusedWithAClearMessage) {
  NLPNativeParser parser = fixedParser();
  try {
    parser.parse(std::string("call \xc3("));
    FAIL() << "no exception";
  } catch (const InvalidUtf8Error& error) {
    EXPECT_STREQ(error.what(), "invalid UTF-8 at byte 6: bad continuation byte");
  }
  EXPECT_THROW(parser.parse(std::string("\xff")), InvalidUtf8Error);
  EXPECT_THROW(NLPNativeParser::lowercase(std::string("\xe6\x98")), InvalidUtf8Error);
}

class BrokenLanguage : public NLPNativeParserDataSource {
 public:
  std::string preferredLanguage() const override { return "e\xa0n"; }
};

TEST(FacadeTextTest, InvalidLanguageCodeIsRefused) {
  auto source = std::make_shared<BrokenLanguage>();
  NLPNativeParser parser = fixedParser();
  parser.setDataSource(source);
  try {
    parser.parse("call mom");
    FAIL() << "no exception";
  } catch (const InvalidUtf8Error& error) {
    EXPECT_STREQ(error.what(), "invalid UTF-8 at byte 1: bad lead byte");
  }
}

TEST(FacadeTextTest, InvalidHolidayTextIsRefused) {
  auto source = std::make_shared<CountingSource>();
  source->holidays = std::string("{\"2024\xc0\x80\":2}");
  NLPNativeParser parser = fixedParser();
  parser.setDataSource(source);
  try {
    parser.parse("call mom");
    FAIL() << "no exception";
  } catch (const InvalidUtf8Error& error) {
    EXPECT_STREQ(error.what(), "invalid UTF-8 at byte 6: overlong form");
  }
}

TEST(FacadeTextTest, Utf8RoundTrip) {
  const std::string text = "a é 明 😀 \xf4\x8f\xbf\xbf";
  const std::wstring wideText = utf8ToWide(text);
  ASSERT_EQ(wideText.size(), 9u);
  EXPECT_EQ(static_cast<unsigned long>(wideText[2]), 0xE9ul);
  EXPECT_EQ(static_cast<unsigned long>(wideText[4]), 0x660Eul);
  EXPECT_EQ(static_cast<unsigned long>(wideText[6]), 0x1F600ul);
  EXPECT_EQ(static_cast<unsigned long>(wideText[8]), 0x10FFFFul);
  EXPECT_EQ(wideToUtf8(wideText), text);
}

TEST(FacadeTextTest, StrictDecoding) {
  const std::pair<std::string, std::string> bad[] = {
      {"\x80", "invalid UTF-8 at byte 0: bad lead byte"},
      {"ab\xc3", "invalid UTF-8 at byte 2: sequence cut short"},
      {"\xe0\x80\xaf", "invalid UTF-8 at byte 0: overlong form"},
      {"\xed\xa0\x80", "invalid UTF-8 at byte 0: surrogate code point"},
      {"\xf4\x90\x80\x80", "invalid UTF-8 at byte 0: code point above U+10FFFF"},
      {"\xf8\x88\x80\x80\x80", "invalid UTF-8 at byte 0: bad lead byte"}};
  for (const auto& [text, message] : bad) {
    try {
      utf8ToWide(text);
      ADD_FAILURE() << "accepted " << message;
    } catch (const InvalidUtf8Error& error) {
      EXPECT_EQ(std::string(error.what()), message);
    }
  }
}

// ---- date text -------------------------------------------------------------------------------------

TEST(FacadeDateTest, EmptyTextIsNone) { EXPECT_FALSE(NLPNativeParser::dateFromString("").has_value()); }

TEST(FacadeDateTest, TextInLocalTime) {
  ScopedTZ zone("Asia/Tokyo");
  EXPECT_EQ(NLPNativeParser::stringFromDate(Clock::from_time_t(kNow)), "2024-03-08T19:00:00");
  auto date = NLPNativeParser::dateFromString("2024-03-08T19:00:00");
  ASSERT_TRUE(date.has_value());
  EXPECT_EQ(Clock::to_time_t(*date), kNow);
}

TEST(FacadeDateTest, RoundTripAndPaddedFields) {
  ScopedTZ zone("UTC");
  const auto date = Clock::from_time_t(localSeconds("2024-01-02T03:04:05"));
  EXPECT_EQ(NLPNativeParser::stringFromDate(date), "2024-01-02T03:04:05");
  EXPECT_EQ(NLPNativeParser::dateFromString("2024-01-02T03:04:05"), date);
}

TEST(FacadeDateTest, TextThatDoesNotReadIsNone) {
  EXPECT_FALSE(NLPNativeParser::dateFromString("next week").has_value());
  EXPECT_FALSE(NLPNativeParser::dateFromString("2024-03-08").has_value());
  EXPECT_FALSE(NLPNativeParser::dateFromString("2024-13-08T10:00:00").has_value());
  EXPECT_FALSE(NLPNativeParser::dateFromString("2024-03-08T10:00:00Z").has_value());
}

// ---- month-before-day from the locale ------------------------------------------------------------------

class DefaultLocale {
 public:
  explicit DefaultLocale(const char* name) : previous(icu::Locale::getDefault()) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(name), status);
  }
  ~DefaultLocale() {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(previous, status);
  }

 private:
  icu::Locale previous;
};

TEST(FacadeLocaleTest, UnitedStatesWritesMonthFirst) {
  DefaultLocale locale("en_US");
  EXPECT_TRUE(NLPNativeParser::isUSOrUKDateFormat());
}

TEST(FacadeLocaleTest, BritainAndGermanyWriteDayFirst) {
  {
    DefaultLocale locale("en_GB");
    EXPECT_FALSE(NLPNativeParser::isUSOrUKDateFormat());
  }
  {
    DefaultLocale locale("de_DE");
    EXPECT_FALSE(NLPNativeParser::isUSOrUKDateFormat());
  }
}

TEST(FacadeLocaleTest, YearFirstLocaleStillHasMonthBeforeDay) {
  DefaultLocale locale("ja_JP");
  EXPECT_TRUE(NLPNativeParser::isUSOrUKDateFormat());
}

// ---- threads ---------------------------------------------------------------------------------------------

TEST(FacadeThreadsTest, ManyThreadsGiveTheSameAnswers) {
  ScopedTZ zone("UTC");
  const std::vector<std::string> titles = {"call mom",           "buy milk tomorrow at 9am", "明天下午3点开会",
                                           "завтра в 10 утра", "every monday standup",     "réunion demain à 14h",
                                           "remind me to pay rent", ""};
  NLPNativeParser parser = fixedParser();
  std::vector<std::string> expected;
  for (const std::string& title : titles) expected.push_back(parser.parse(title));

  constexpr int kThreads = 8;
  constexpr int kRounds = 5;
  std::vector<std::vector<std::string>> answers(kThreads);
  std::vector<std::thread> workers;
  for (int t = 0; t < kThreads; ++t) {
    workers.emplace_back([&, t] {
      for (int round = 0; round < kRounds; ++round) {
        for (const std::string& title : titles) answers[t].push_back(parser.parse(title));
      }
    });
  }
  for (std::thread& worker : workers) worker.join();
  for (int t = 0; t < kThreads; ++t) {
    ASSERT_EQ(answers[t].size(), titles.size() * kRounds);
    for (size_t i = 0; i < answers[t].size(); ++i) EXPECT_EQ(answers[t][i], expected[i % titles.size()]);
  }
}

}  // namespace
}  // namespace nlpdate
