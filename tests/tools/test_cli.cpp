// The command-line tool end to end, run as a child process.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::runCli;

const std::string kEmptyLine =
    "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
    "\"isAllDay\":true}";
const std::vector<std::string> kFixed = {"--now", "2024-03-08T10:00:00", "--tz", "UTC"};

std::vector<std::string> fixed(std::vector<std::string> more) {
  std::vector<std::string> args = kFixed;
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

// A file that lives as long as the object.
class TempFile {
 public:
  explicit TempFile(const std::string& content) {
    char name[] = "/tmp/nlpdate-cli-test-XXXXXX";
    const int fd = mkstemp(name);
    path = name;
    if (fd >= 0) close(fd);
    std::ofstream(path, std::ios::binary) << content;
  }
  ~TempFile() { std::remove(path.c_str()); }
  std::string path;
};

// ---- single mode --------------------------------------------------------------------------------

TEST(CliSingleTest, PlainTitleGivesTheExactLine) {
  auto result = runCli(fixed({"call mom"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n");
  EXPECT_EQ(result.err, "");
}

TEST(CliSingleTest, SeveralTitlesGiveSeveralLinesInOrder) {
  auto result = runCli(fixed({"call mom", "water the plants", "--", "--not-an-option"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n" + kEmptyLine + "\n" + kEmptyLine + "\n");
}

TEST(CliSingleTest, UnknownLanguageIsNotAnError) {
  auto result = runCli(fixed({"--lang", "xx", "call mom"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n");
}

TEST(CliSingleTest, InvalidUtf8TitleIsRefused) {
  auto result = runCli(fixed({"call \xff mom"}));
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "nlpdate: invalid UTF-8 at byte 5: bad lead byte\n");
}

TEST(CliSingleTest, PrettyOutputHasLabelledLines) {
  auto result = runCli(fixed({"--pretty", "call mom"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "call mom\n"
            "  repeat:    -\n"
            "  start:     -\n"
            "  end:       -\n"
            "  reminders: -\n"
            "  all-day:   yes\n");
}

TEST(CliSingleTest, PrettyOutputMarksRecognisedPartsWithBracketsWhenNotATerminal) {
  auto result = runCli(fixed({"--pretty", "Buy milk tomorrow"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "Buy milk [tomorrow]\n"
            "  repeat:    -\n"
            "  start:     2024-03-09T00:00:00\n"
            "  end:       -\n"
            "  reminders: -\n"
            "  all-day:   yes\n");
  EXPECT_EQ(result.out.find('\x1b'), std::string::npos);
}

TEST(CliSingleTest, PrettyOutputGivesNeighbouringPartsBracketsOfTheirOwn) {
  auto result = runCli(fixed({"--pretty", "Lunch with Ann tomorrow at 1pm"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "Lunch with Ann [tomorrow ][at 1pm]\n"
            "  repeat:    -\n"
            "  start:     2024-03-09T13:00:00\n"
            "  end:       -\n"
            "  reminders: TRIGGER:-PT0S\n"
            "  all-day:   no\n");
}

TEST(CliSingleTest, HelpAndVersion) {
  auto help = runCli({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.out.rfind("Usage: nlpdate [options] TITLE...\n", 0), 0u);
  EXPECT_NE(help.out.find("--batch"), std::string::npos);
  EXPECT_NE(help.out.find("--holidays TEXT|@FILE"), std::string::npos);
  auto version = runCli({"--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out, std::string("nlpdate ") + NLPDATE_VERSION + "\n");
}

// ---- bad options and values --------------------------------------------------------------------------

struct BadOption {
  std::vector<std::string> args;
  std::string message;
};

TEST(CliOptionsTest, EachBadOptionOrValueIsNamed) {
  const BadOption cases[] = {
      {{"--frobnicate", "x"}, "nlpdate: --frobnicate: unknown option (see --help)\n"},
      {{"--lang"}, "nlpdate: --lang: missing value\n"},
      {{"--tz", "Mars/Olympus", "x"}, "nlpdate: --tz: unknown time zone 'Mars/Olympus'\n"},
      {{"--tz", "../../etc/passwd", "x"}, "nlpdate: --tz: unknown time zone '../../etc/passwd'\n"},
      {{"--now", "2024-03-08", "x"}, "nlpdate: --now: expected YYYY-MM-DDTHH:MM:SS, got '2024-03-08'\n"},
      {{"--now", "2024-13-08T10:00:00", "x"}, "nlpdate: --now: date or time out of range: '2024-13-08T10:00:00'\n"},
      {{"--base", "tomorrow", "x"}, "nlpdate: --base: expected YYYY-MM-DDTHH:MM:SS, got 'tomorrow'\n"},
      {{"--first-weekday", "8", "x"},
       "nlpdate: --first-weekday: expected a number from 1 (Sunday) to 7 (Saturday), got '8'\n"},
      {{"--first-weekday", "0", "x"},
       "nlpdate: --first-weekday: expected a number from 1 (Sunday) to 7 (Saturday), got '0'\n"},
      {{"--morning", "25:00", "x"}, "nlpdate: --morning: time out of range: '25:00'\n"},
      {{"--afternoon", "1pm", "x"}, "nlpdate: --afternoon: expected HH:MM, got '1pm'\n"},
      {{"--evening", "18:60", "x"}, "nlpdate: --evening: time out of range: '18:60'\n"},
      {{"--night", "", "x"}, "nlpdate: --night: expected HH:MM, got ''\n"},
      {{"--holidays", "@/nonexistent/holidays.json", "x"},
       "nlpdate: --holidays: cannot read file '/nonexistent/holidays.json'\n"},
      {{"--japan-holidays", "@/nonexistent/jp.json", "x"},
       "nlpdate: --japan-holidays: cannot read file '/nonexistent/jp.json'\n"},
      {{}, "nlpdate: no title given (see --help)\n"},
      {{"--batch", "x"}, "nlpdate: --batch: titles come from standard input\n"},
  };
  for (const BadOption& bad : cases) {
    auto result = runCli(bad.args);
    EXPECT_EQ(result.status, 2) << bad.message;
    EXPECT_EQ(result.err, bad.message);
    EXPECT_EQ(result.out, "") << bad.message;
  }
}

TEST(CliOptionsTest, GoodValuesAreAccepted) {
  auto result = runCli(fixed({"--base", "2024-03-01T08:00:00", "--first-weekday", "2", "--12h", "--day-first",
                              "--morning", "07:30", "--afternoon", "14:00", "--evening", "18:00", "--night", "21:15",
                              "--lang", "fr", "appeler maman"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n");
}

// ---- numeric date order from the user's locale --------------------------------------------------------

// The start date of each answer line; the recognised text itself belongs to the date recogniser.
std::string startDates(const std::string& out) {
  std::string dates;
  const std::string key = "\"startDate\":\"";
  for (size_t at = out.find(key); at != std::string::npos; at = out.find(key, at + 1)) {
    dates += out.substr(at + key.size(), 10) + " ";
  }
  return dates;
}

// The locale variables of the test's own environment must not decide for the child.
std::string localeEnvironment(const std::string& settings) {
  return "-u LC_ALL -u LC_MESSAGES -u LANGUAGE TZ=UTC " + settings;
}

// The date that "pay 04/05/2024" gets under these locale variables and options.
std::string numericDateUnder(const std::string& locale, std::vector<std::string> options = {}) {
  options.push_back("pay 04/05/2024");
  auto result = runCli(fixed(options), "", localeEnvironment(locale));
  EXPECT_EQ(result.status, 0) << result.err;
  return startDates(result.out);
}

TEST(CliLocaleTest, UnitedStatesReadsMonthFirst) {
  EXPECT_EQ(numericDateUnder("LANG=en_US.UTF-8"), "2024-04-05 ");
}

TEST(CliLocaleTest, BritainAndGermanyReadDayFirst) {
  EXPECT_EQ(numericDateUnder("LANG=en_GB.UTF-8"), "2024-05-04 ");
  EXPECT_EQ(numericDateUnder("LANG=de_DE.UTF-8"), "2024-05-04 ");
}

TEST(CliLocaleTest, LcAllWinsOverLang) {
  EXPECT_EQ(numericDateUnder("LANG=en_US.UTF-8 LC_ALL=en_GB.UTF-8"), "2024-05-04 ");
  EXPECT_EQ(numericDateUnder("LANG=en_GB.UTF-8 LC_ALL=en_US.UTF-8"), "2024-04-05 ");
}

TEST(CliLocaleTest, OptionWinsOverLocale) {
  EXPECT_EQ(numericDateUnder("LANG=en_GB.UTF-8", {"--month-first"}), "2024-04-05 ");
  EXPECT_EQ(numericDateUnder("LANG=en_US.UTF-8", {"--day-first"}), "2024-05-04 ");
}

TEST(CliLocaleTest, BatchReadsMonthFirstUnlessTold) {
  auto result = runCli({"--batch"},
                       "{\"title\":\"pay 04/05/2024\",\"tz\":\"UTC\",\"now\":\"2024-03-08T10:00:00\"}\n"
                       "{\"title\":\"pay 04/05/2024\",\"tz\":\"UTC\",\"now\":\"2024-03-08T10:00:00\","
                       "\"monthFirst\":false}\n",
                       localeEnvironment("LANG=en_GB.UTF-8"));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(startDates(result.out), "2024-04-05 2024-05-04 ");
}

// ---- holidays -------------------------------------------------------------------------------------------

TEST(CliHolidaysTest, HolidayTextFromAFile) {
  TempFile holidays("{\"20240101\":2,\"20240204\":1}");
  TempFile japan("{\"元日\":20240101}");
  auto result =
      runCli(fixed({"--holidays", "@" + holidays.path, "--japan-holidays", "@" + japan.path, "call mom"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n");
  EXPECT_EQ(result.err, "");
}

TEST(CliHolidaysTest, HolidayTextInline) {
  auto result = runCli(fixed({"--holidays", "{\"20240101\":2}", "call mom"}));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n");
}

TEST(CliHolidaysTest, BadHolidayTextGivesStatusTwo) {
  auto result = runCli(fixed({"--holidays", "{\"20240101\":}", "call mom"}));
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err.rfind("nlpdate: ", 0), 0u);
  EXPECT_NE(result.err.find("20240101"), std::string::npos) << result.err;
}

TEST(CliHolidaysTest, BadHolidayTextInBatchGivesAnErrorLine) {
  auto result = runCli({"--batch"},
                       "{\"title\":\"call mom\",\"tz\":\"UTC\",\"now\":\"2024-03-08T10:00:00\"}\n"
                       "{\"title\":\"call mom\",\"holidays\":\"{\\\"20240101\\\":}\"}\n"
                       "{\"title\":\"call mom\",\"tz\":\"UTC\",\"now\":\"2024-03-08T10:00:00\"}\n");
  EXPECT_EQ(result.status, 2);
  const size_t first = result.out.find('\n');
  const size_t second = result.out.find('\n', first + 1);
  ASSERT_NE(second, std::string::npos) << result.out;
  EXPECT_EQ(result.out.substr(0, first), kEmptyLine);
  const std::string middle = result.out.substr(first + 1, second - first - 1);
  EXPECT_EQ(middle.rfind("{\"error\":\"", 0), 0u) << middle;
  EXPECT_NE(middle.find("20240101"), std::string::npos) << middle;
  EXPECT_EQ(result.out.substr(second + 1), kEmptyLine + "\n");
}

// ---- batch ----------------------------------------------------------------------------------------------

TEST(CliBatchTest, GoodLinesOneAnswerEach) {
  auto result = runCli({"--batch"},
                       "{\"title\":\"call mom\",\"tz\":\"UTC\",\"now\":\"2024-03-08T10:00:00\"}\n"
                       "{\"title\":\"water plants\",\"lang\":\"fr\",\"tz\":\"Europe/Paris\",\"firstWeekday\":2,"
                       "\"is24Hour\":false,\"monthFirst\":false,\"morning\":\"08:00\",\"afternoon\":\"14:00\","
                       "\"evening\":\"18:00\",\"night\":\"21:00\",\"base\":\"2024-03-01T08:00:00\"}\r\n");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, kEmptyLine + "\n" + kEmptyLine + "\n");
  EXPECT_EQ(result.err, "");
}

TEST(CliBatchTest, BrokenLinesAnswerInPlaceAndEveryLineIsAnswered) {
  auto result = runCli({"--batch"},
                       "{\"title\":\"call mom\",\"tz\":\"UTC\"}\n"
                       "not json\n"
                       "{\"lang\":\"en\"}\n"
                       "{\"title\":5}\n"
                       "{\"title\":\"x\",\"tz\":\"Mars/Base\"}\n"
                       "{\"title\":\"x\",\"firstWeekday\":9}\n"
                       "{\"title\":\"x\",\"is24Hour\":\"yes\"}\n"
                       "{\"title\":\"x\",\"morning\":\"9\"}\n"
                       "{\"title\":\"x\",\"now\":\"2024-02-30\"}\n"
                       "[1,2]\n"
                       "{\"title\":\"last one\",\"tz\":\"UTC\"}\n");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, kEmptyLine + "\n" +
                            "{\"error\":\"not a JSON text\"}\n"
                            "{\"error\":\"title: missing\"}\n"
                            "{\"error\":\"title: expected a string\"}\n"
                            "{\"error\":\"tz: unknown time zone 'Mars/Base'\"}\n"
                            "{\"error\":\"firstWeekday: expected an integer from 1 to 7\"}\n"
                            "{\"error\":\"is24Hour: expected true or false\"}\n"
                            "{\"error\":\"morning: expected HH:MM, got '9'\"}\n"
                            "{\"error\":\"now: expected YYYY-MM-DDTHH:MM:SS, got '2024-02-30'\"}\n"
                            "{\"error\":\"expected a JSON object\"}\n" +
                            kEmptyLine + "\n");
}

TEST(CliBatchTest, EmptyInputIsNoError) {
  auto result = runCli({"--batch"}, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "");
}

TEST(CliBatchTest, LineSettingsDoNotLeakIntoTheNextLine) {
  auto result = runCli({"--batch", "--tz", "UTC", "--now", "2024-03-08T10:00:00"},
                       "{\"title\":\"buy milk tomorrow\",\"tz\":\"Asia/Tokyo\",\"now\":\"2024-03-09T23:30:00\"}\n"
                       "{\"title\":\"buy milk tomorrow\"}\n");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"tomorrow\"],\"startDate\":\"2024-03-10T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}\n"
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"tomorrow\"],\"startDate\":\"2024-03-09T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}\n");
}

}  // namespace
}  // namespace nlpdate
