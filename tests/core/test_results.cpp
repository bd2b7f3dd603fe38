// The records recognisers hand around, and the JSON text of the result.
#include <gtest/gtest.h>

#include "core/results.h"
#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::narrow;
using testing::ScopedTZ;
using testing::wide;

const char* const kEmptyJson =
    "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
    "\"isAllDay\":true}";

TimePoint at(const std::string& local) { return timePointFromSeconds(localSeconds(local)); }

TEST(RecognizeDateTest, ConstructorWithStartOnly) {
  TMPtr start = newTM();
  NLPRecognizeDate found(L"tomorrow", 7, OptTM(start));
  EXPECT_EQ(found.getRecognizeStringStartPosition(), 7);
  ASSERT_TRUE(found.getStartCal().has_value());
  EXPECT_EQ(found.getStartCal()->get(), start.get());
  EXPECT_FALSE(found.getEndCal().has_value());
  EXPECT_EQ(found.getRecogString(), std::list<std::wstring>({L"tomorrow"}));
  EXPECT_TRUE(found.getReminder().empty());
  EXPECT_FALSE(found.getDuration().has_value());
}

TEST(RecognizeDateTest, ConstructorWithStartAndEnd) {
  TMPtr start = newTM();
  TMPtr end = newTM();
  NLPRecognizeDate range(L"from 9 to 10", 0, OptTM(start), OptTM(end));
  EXPECT_EQ(range.getStartCal()->get(), start.get());
  EXPECT_EQ(range.getEndCal()->get(), end.get());
}

TEST(RecognizeDateTest, ConstructorWithDuration) {
  const std::optional<NLPMorvaneDuration> threeDays = NLPMorvaneDuration(0, 0, 0, 3, 0, 0, 0, true);
  NLPRecognizeDate offset(L"in 3 days", 4, threeDays);
  EXPECT_FALSE(offset.getStartCal().has_value());
  EXPECT_FALSE(offset.getEndCal().has_value());
  ASSERT_TRUE(offset.getDuration().has_value());
  EXPECT_EQ(narrow(offset.getDuration()->getResult()), "TRIGGER:P3D");
  EXPECT_EQ(offset.getRecogString(), std::list<std::wstring>({L"in 3 days"}));
}

TEST(RecognizeDateTest, SettersAndStringList) {
  NLPRecognizeDate found(L"at 9", 2, OptTM());
  found.setRecognizeStringStartPosition(11);
  EXPECT_EQ(found.getRecognizeStringStartPosition(), 11);
  found.addRecogString(L"pm");
  EXPECT_EQ(found.getRecogString(), std::list<std::wstring>({L"at 9", L"pm"}));
  std::list<std::wstring> copy = found.getRecogString();
  copy.clear();
  EXPECT_EQ(found.getRecogString().size(), 2u);
  found.clearRecogStrings();
  EXPECT_TRUE(found.getRecogString().empty());
  found.setReminder(L"TRIGGER:-PT0S");
  EXPECT_EQ(found.getReminder(), L"TRIGGER:-PT0S");
  found.setDuration(NLPMorvaneDuration(0, 0, 0, 0, 0, 30, 0, false));
  EXPECT_EQ(narrow(found.getDuration()->getResult()), "TRIGGER:-PT30M");
  TMPtr start = newTM();
  found.setStartCal(start);
  EXPECT_EQ(found.getStartCal()->get(), start.get());
}

TEST(RepeatResultTest, HoldsItsTwoFields) {
  TMPtr date = newTM();
  NLPRepeatResult result(OptTM(date), true);
  EXPECT_EQ(result.repeatDate->get(), date.get());
  EXPECT_TRUE(result.dateInRule);
  NLPRepeatResult none(std::nullopt, false);
  EXPECT_FALSE(none.repeatDate.has_value());
  EXPECT_FALSE(none.dateInRule);
}

TEST(DueDateJsonTest, NothingRecognised) {
  NLPParserDueDate record;
  EXPECT_EQ(narrow(record.toString()), kEmptyJson);
}

TEST(DueDateJsonTest, FullExample) {
  ScopedTZ zone("UTC");
  NLPParserDueDate record;
  record.repeatFlag = L"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO";
  record.recognizeStrings = {L"every monday", L"at 9am"};
  record.startDate = at("2024-03-11T09:00:00");
  record.reminder = {L"TRIGGER:-PT0S"};
  record.isAllDay = false;
  EXPECT_EQ(narrow(record.toString()),
            "{\"repeatFlag\":\"RRULE:FREQ=WEEKLY;WKST=MO;INTERVAL=1;BYDAY=MO\",\"recognizeStrings\":[\"every "
            "monday\",\"at 9am\"],\"startDate\":\"2024-03-11T09:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-"
            "PT0S\"],\"isAllDay\":false}");
}

TEST(DueDateJsonTest, EmptyValuesAreEmptyStringsNotNull) {
  ScopedTZ zone("UTC");
  NLPParserDueDate record;
  record.dueDate = at("2024-03-12T18:00:00");
  const std::string json = narrow(record.toString());
  EXPECT_EQ(json,
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"2024-03-12T18:00:00\","
            "\"reminder\":[],\"isAllDay\":true}");
  EXPECT_EQ(json.find("null"), std::string::npos);
}

TEST(DueDateJsonTest, RemindersSortedAndUniqueInTheRecordToo) {
  NLPParserDueDate record;
  record.reminder = {L"TRIGGER:-PT30M", L"TRIGGER:-PT0S", L"TRIGGER:-P1D", L"TRIGGER:-PT0S"};
  EXPECT_EQ(narrow(record.toString()),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":["
            "\"TRIGGER:-P1D\",\"TRIGGER:-PT0S\",\"TRIGGER:-PT30M\"],\"isAllDay\":true}");
  EXPECT_EQ(record.reminder, std::list<std::wstring>({L"TRIGGER:-P1D", L"TRIGGER:-PT0S", L"TRIGGER:-PT30M"}));
}

TEST(DueDateJsonTest, TwoEqualRemindersComeOutOnce) {
  NLPParserDueDate record;
  record.reminder = {L"TRIGGER:-PT0S", L"TRIGGER:-PT0S"};
  EXPECT_EQ(narrow(record.toString()),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":["
            "\"TRIGGER:-PT0S\"],\"isAllDay\":true}");
}

TEST(DueDateJsonTest, RecognisedStringsKeepOrderAndDuplicates) {
  NLPParserDueDate record;
  record.addAllRecogStr({L"b", L"a"});
  record.addAllRecogStr({L"a"});
  EXPECT_EQ(record.recognizeStrings, std::list<std::wstring>({L"b", L"a", L"a"}));
  EXPECT_EQ(narrow(record.toString()),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"b\",\"a\",\"a\"],\"startDate\":\"\",\"dueDate\":\"\","
            "\"reminder\":[],\"isAllDay\":true}");
}

TEST(DueDateJsonTest, QuoteAndBackslashGoOutUnescaped) {
  NLPParserDueDate record;
  record.recognizeStrings = {L"say \"hi\"", L"a\\b"};
  EXPECT_EQ(narrow(record.toString()),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"say \"hi\"\",\"a\\b\"],\"startDate\":\"\",\"dueDate\":\"\","
            "\"reminder\":[],\"isAllDay\":true}");
}

TEST(DueDateJsonTest, NonAsciiTextGoesOutAsItIs) {
  NLPParserDueDate record;
  record.recognizeStrings = {wide("明天下午3点"), wide("завтра")};
  EXPECT_EQ(narrow(record.toString()),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"明天下午3点\",\"завтра\"],\"startDate\":\"\",\"dueDate\":\"\","
            "\"reminder\":[],\"isAllDay\":true}");
}

TEST(DueDateJsonTest, ThreeDigitYearAndPaddedFields) {
  ScopedTZ zone("UTC");
  std::tm record{};
  record.tm_year = 999 - 1900;
  record.tm_mon = 0;
  record.tm_mday = 2;
  record.tm_hour = 3;
  record.tm_min = 4;
  record.tm_sec = 5;
  EXPECT_EQ(narrow(formatDateText(timePointFromTM(record))), "999-01-02T03:04:05");
  NLPParserDueDate due;
  due.startDate = timePointFromTM(record);
  EXPECT_EQ(narrow(due.toString()),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"999-01-02T03:04:05\",\"dueDate\":\"\","
            "\"reminder\":[],\"isAllDay\":true}");
}

TEST(DueDateJsonTest, DateTextIsLocalAndTruncatesFractions) {
  ScopedTZ zone("Asia/Tokyo");
  const TimePoint point = timePointFromSeconds(1709892000) + std::chrono::microseconds(999999);
  EXPECT_EQ(narrow(formatDateText(point)), "2024-03-08T19:00:00");
  EXPECT_EQ(narrow(formatDateText(at("2024-12-31T23:59:59"))), "2024-12-31T23:59:59");
}

TEST(DueDateJsonTest, SecondCallGivesTheSameText) {
  ScopedTZ zone("UTC");
  NLPParserDueDate record;
  record.recognizeStrings = {L"tomorrow"};
  record.startDate = at("2024-03-09T00:00:00");
  record.dueDate = at("2024-03-10T00:00:00");
  record.reminder = {L"TRIGGER:-PT5M", L"TRIGGER:-P1D", L"TRIGGER:-PT5M"};
  record.isAllDay = true;
  const std::wstring first = record.toString();
  EXPECT_EQ(record.toString(), first);
  EXPECT_EQ(narrow(first),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"tomorrow\"],\"startDate\":\"2024-03-09T00:00:00\","
            "\"dueDate\":\"2024-03-10T00:00:00\",\"reminder\":[\"TRIGGER:-P1D\",\"TRIGGER:-PT5M\"],\"isAllDay\":true}");
}

TEST(DueDateJsonTest, NotWrittenFieldsStayOutOfTheText) {
  NLPParserDueDate record;
  StringRRule rule;
  rule.setFreq(NLPFrequency::DAILY);
  rule.setInterval(1);
  record.repeatRule = rule;
  record.pendingOffset = NLPMorvaneDuration(0, 0, 0, 1, 0, 0, 0, true);
  EXPECT_EQ(narrow(record.toString()), kEmptyJson);
}

}  // namespace
}  // namespace nlpdate
