// The road of one title: base date, length limit, family order, and the
// finishing of the result record.
#include <gtest/gtest.h>

#include "core/parse_flow.h"
#include "support/test_support.h"

namespace nlpdate {
namespace {

using testing::localSeconds;
using testing::narrow;
using testing::parseAt;
using testing::parserAt;
using testing::ScopedTZ;
using testing::wide;

const char* const kNow = "2024-03-08T10:00:00";
const char* const kEmptyJson =
    "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
    "\"isAllDay\":true}";

TimePoint at(const std::string& local) { return timePointFromSeconds(localSeconds(local)); }

std::string json(const std::string& prefix, const std::string& start, const std::string& due,
                 const std::string& reminders, bool allDay) {
  return "{\"repeatFlag\":\"\",\"recognizeStrings\":[" + prefix + "],\"startDate\":\"" + start + "\",\"dueDate\":\"" +
         due + "\",\"reminder\":[" + reminders + "],\"isAllDay\":" + (allDay ? "true" : "false") + "}";
}

// ---- whole flow ---------------------------------------------------------------------------

TEST(ParseFlowTest, PlainTitleGivesTheEmptyResult) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "call mom"), kEmptyJson);
}

TEST(ParseFlowTest, EmptyTitleIsNoFailure) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, ""), kEmptyJson);
  EXPECT_EQ(parseAt(kNow, "", "zh_CN"), kEmptyJson);
}

TEST(ParseFlowTest, RemindMeWithoutADateIsNotListed) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "remind me to call mom"), kEmptyJson);
  EXPECT_EQ(parseAt(kNow, "提醒我打电话", "zh_CN"), kEmptyJson);
}

TEST(ParseFlowTest, UnknownLanguageIsNoFailure) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "call mom", "xx"), kEmptyJson);
  EXPECT_EQ(parseAt(kNow, "call mom", ""), kEmptyJson);
}

TEST(ParseFlowTest, ResultIsClearedAfterAParse) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parse(L"call mom", L"", L"en");
  EXPECT_FALSE(parser.parserDueDate.isAllDay);
  EXPECT_TRUE(parser.parserDueDate.recognizeStrings.empty());
  EXPECT_FALSE(parser.parserDueDate.startDate.has_value());
  // A second title on the same object starts clean.
  EXPECT_EQ(narrow(parser.parse(L"call mom", L"", L"en")), kEmptyJson);
}

// ---- base date ------------------------------------------------------------------------------

TEST(BaseDateTest, OutOfRangeDayIsNormalisedToMarch) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  OptTime base = parser.readBaseDate(L"2024-02-30T10:00:00");
  ASSERT_TRUE(base.has_value());
  EXPECT_EQ(narrow(formatDateText(*base)), "2024-03-01T10:00:00");
}

TEST(BaseDateTest, ParseStoresTheNormalisedBaseDate) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_EQ(narrow(parser.parse(L"call mom", L"2024-02-30T10:00:00", L"en")), kEmptyJson);
  ASSERT_TRUE(parser.baseDate.has_value());
  EXPECT_EQ(secondsOf(*parser.baseDate), localSeconds("2024-03-01T10:00:00"));
}

TEST(BaseDateTest, UnreadableTextIsLikeNoBaseDate) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_FALSE(parser.readBaseDate(L"next week").has_value());
  EXPECT_FALSE(parser.readBaseDate(L"2024-03-08 10:00:00").has_value());
  EXPECT_FALSE(parser.readBaseDate(L"24-03-08T10:00:00").has_value());
  EXPECT_EQ(narrow(parser.parse(L"call mom", L"next week", L"en")), kEmptyJson);
  EXPECT_FALSE(parser.baseDate.has_value());
  EXPECT_EQ(parseAt(kNow, "call mom", "en", "next week"), parseAt(kNow, "call mom", "en", ""));
}

TEST(BaseDateTest, SearchIgnoresTextAroundAndShortFields) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  OptTime around = parser.readBaseDate(L"due 2024-03-08T09:05:07+00:00 local");
  ASSERT_TRUE(around.has_value());
  EXPECT_EQ(narrow(formatDateText(*around)), "2024-03-08T09:05:07");
  OptTime shortFields = parser.readBaseDate(L"2024-3-8T9:5:7");
  ASSERT_TRUE(shortFields.has_value());
  EXPECT_EQ(narrow(formatDateText(*shortFields)), "2024-03-08T09:05:07");
}

TEST(BaseDateTest, HourTwentyFourRollsToTheNextDay) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  OptTime base = parser.readBaseDate(L"2024-03-08T24:00:00");
  ASSERT_TRUE(base.has_value());
  EXPECT_EQ(narrow(formatDateText(*base)), "2024-03-09T00:00:00");
}

TEST(BaseDateTest, DaylightFlagIsThatOfNow) {
  ScopedTZ zone("America/New_York");
  // Now is in standard time, so a summer base date is read as standard time: one hour later on the clock.
  NLPNativeTitleParser winter = parserAt(kNow);
  OptTime summer = winter.readBaseDate(L"2024-07-01T10:00:00");
  ASSERT_TRUE(summer.has_value());
  EXPECT_EQ(narrow(formatDateText(*summer)), "2024-07-01T11:00:00");
  NLPNativeTitleParser july = parserAt("2024-07-15T10:00:00");
  OptTime same = july.readBaseDate(L"2024-07-01T10:00:00");
  ASSERT_TRUE(same.has_value());
  EXPECT_EQ(narrow(formatDateText(*same)), "2024-07-01T10:00:00");
}

// ---- length limit ---------------------------------------------------------------------------

TEST(TitleLimitTest, FiveHundredTwelveUnitsStay) {
  std::wstring title(512, L'x');
  cutTitleToLimit(title);
  EXPECT_EQ(title.size(), 512u);
  std::wstring longer(513, L'x');
  longer.back() = L'y';
  cutTitleToLimit(longer);
  EXPECT_EQ(longer, std::wstring(512, L'x'));
  std::wstring shortTitle = L"call mom";
  cutTitleToLimit(shortTitle);
  EXPECT_EQ(shortTitle, L"call mom");
}

TEST(TitleLimitTest, NothingPastTheLimitIsSeen) {
  ScopedTZ zone("UTC");
  // A date at the front makes the reminder request visible; it searches the cut title.
  const std::wstring date = L"tomorrow ";
  const std::wstring request = L"remind me";
  const std::wstring fits = date + std::wstring(512 - date.size() - request.size(), L'x') + request;
  const std::wstring over = date + L"x" + fits.substr(date.size());
  ASSERT_EQ(fits.size(), 512u);

  NLPNativeTitleParser parser = parserAt(kNow);
  EXPECT_EQ(narrow(parser.parseTitle(fits, std::nullopt, L"en")),
            json("\"tomorrow \",\"remind me\"", "2024-03-09T00:00:00", "", "\"TRIGGER:-PT0S\"", true));

  NLPNativeTitleParser cut = parserAt(kNow);
  EXPECT_EQ(narrow(cut.parseTitle(over, std::nullopt, L"en")),
            json("\"tomorrow \"", "2024-03-09T00:00:00", "", "", true));
}

TEST(TitleLimitTest, RecognisersSeeOnlyTheCutTitle) {
  ScopedTZ zone("UTC");
  const std::string date = " tomorrow";
  EXPECT_EQ(parseAt(kNow, std::string(512 - date.size(), 'x') + date),
            json("\"tomorrow\"", "2024-03-09T00:00:00", "", "", true));
  // One unit more and the last letter of the date falls past the limit.
  EXPECT_EQ(parseAt(kNow, std::string(513 - date.size(), 'x') + date), kEmptyJson);
}

TEST(ParseFlowTest, RemindMeWithADateEndToEnd) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "remind me to call mom tomorrow"),
            json("\"tomorrow\",\"remind me\"", "2024-03-09T00:00:00", "", "\"TRIGGER:-PT0S\"", true));
}

TEST(ParseFlowTest, OffsetEndToEnd) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt(kNow, "in 3 days call back"), json("\"in 3 days\"", "2024-03-11T00:00:00", "", "", true));
}

// ---- family order -----------------------------------------------------------------------------

TEST(FamilyOrderTest, LanguageGate) {
  EXPECT_FALSE(runsChineseFirst(wide("明天开会"), L"ko"));
  EXPECT_FALSE(runsChineseFirst(wide("明天开会"), L"ja"));
  EXPECT_FALSE(runsChineseFirst(wide("明天开会"), L"de"));
  EXPECT_TRUE(runsChineseFirst(wide("明天开会"), L"zh_CN"));
  EXPECT_TRUE(runsChineseFirst(wide("明天开会"), L"zh-Hant"));
  EXPECT_TRUE(runsChineseFirst(wide("明天开会"), L"en"));
  EXPECT_TRUE(runsChineseFirst(wide("明天开会"), L"en_GB"));
  EXPECT_TRUE(runsChineseFirst(wide("明天开会"), L"xen"));
}

// Only the Chinese-first road fills the holiday season table, so the table shows which road a title took.
bool tookChineseRoad(const std::string& title, const std::wstring& language) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parse(wide(title), L"", language);
  return !parser.holidaySeasonMap.empty();
}

TEST(FamilyOrderTest, RoadTakenByParse) {
  EXPECT_TRUE(tookChineseRoad("明天开会", L"zh_CN"));
  EXPECT_TRUE(tookChineseRoad("明日のかいぎ", L"en"));
  EXPECT_FALSE(tookChineseRoad("明天开会", L"ko"));
  EXPECT_FALSE(tookChineseRoad("meeting tomorrow", L"zh_CN"));
  EXPECT_FALSE(tookChineseRoad("abc，def", L"zh"));
  EXPECT_FALSE(tookChineseRoad("あしたのかいぎ", L"en"));
}

TEST(FamilyOrderTest, LatinTitleRunsWordsFirstEvenForChinese) {
  EXPECT_FALSE(runsChineseFirst(L"meeting tomorrow", L"zh_CN"));
  EXPECT_FALSE(runsChineseFirst(L"", L"zh_CN"));
}

TEST(FamilyOrderTest, FullWidthCommaIsNotChinese) {
  EXPECT_FALSE(runsChineseFirst(wide("abc，def，"), L"zh"));
  EXPECT_FALSE(runsChineseFirst(wide("，"), L"zh"));
  EXPECT_TRUE(runsChineseFirst(wide("abc，def，中"), L"zh"));
}

TEST(FamilyOrderTest, KanaHangulAndPunctuationAreNotChinese) {
  EXPECT_FALSE(runsChineseFirst(wide("あしたのかいぎ"), L"en"));
  EXPECT_TRUE(runsChineseFirst(wide("明日のかいぎ"), L"en"));
  EXPECT_FALSE(runsChineseFirst(wide("내일 회의"), L"en"));
  EXPECT_FALSE(runsChineseFirst(wide("、。「」"), L"zh"));
  EXPECT_FALSE(runsChineseFirst(std::wstring(1, static_cast<wchar_t>(0xF900)), L"zh"));  // compatibility ideograph
  EXPECT_FALSE(runsChineseFirst(std::wstring(1, static_cast<wchar_t>(0x2019)), L"zh"));
}

TEST(FamilyOrderTest, RangeEndsAreIncluded) {
  const std::pair<unsigned long, bool> units[] = {
      {0x33FF, false}, {0x3400, true},  {0x4DBF, true},  {0x4DC0, false}, {0x4DFF, false}, {0x4E00, true},
      {0x9FFF, true},  {0xA000, false}, {0x1FFFF, false}, {0x20000, true}, {0x2A6DF, true}, {0x2A6E0, false},
      {0x2A700, true}, {0x2B73F, true}, {0x2B740, true}, {0x2B81F, true}, {0x2B820, true}, {0x2CEAF, true},
      {0x2CEB0, true}, {0x2EBEF, true}, {0x2EBF0, false}};
  for (const auto& [unit, chinese] : units) {
    EXPECT_EQ(holdsChineseCodePoint(std::wstring(1, static_cast<wchar_t>(unit))), chinese) << std::hex << unit;
  }
}

// ---- cleaning the recognised strings -------------------------------------------------------------

TEST(CleanRecognizedTest, LeadingCommaGoes) { EXPECT_EQ(cleanRecognizedString(L",at 9am"), L"at 9am"); }

TEST(CleanRecognizedTest, TrailingCommaGoesOnlyWhenItIsTheFirst) {
  EXPECT_EQ(cleanRecognizedString(L"at 9am,"), L"at 9am");
  EXPECT_EQ(cleanRecognizedString(L"a,b,"), L"a,b,");
  EXPECT_EQ(cleanRecognizedString(L",a,"), L"a");
  EXPECT_EQ(cleanRecognizedString(L",,"), L"");
  EXPECT_EQ(cleanRecognizedString(L","), L"");
  EXPECT_EQ(cleanRecognizedString(L""), L"");
}

TEST(CleanRecognizedTest, FullWidthCommasLoseOnlyTheLeadingOne) {
  EXPECT_EQ(cleanRecognizedString(wide("，abc，")), wide("abc，"));
  EXPECT_EQ(cleanRecognizedString(wide("，")), L"");
  EXPECT_EQ(cleanRecognizedString(wide("abc，")), wide("abc，"));
  EXPECT_EQ(cleanRecognizedString(wide("，abc")), wide("，abc"));
}

TEST(CleanRecognizedTest, ListKeepsLengthOrderAndEmptyEntries) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.recognizeStrings = {L",at 9am", L",", L"a,b,", wide("，明天，")};
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("\"at 9am\",\"\",\"a,b,\",\"明天，\"", "", "", "", true));
}

// ---- isAllDay ------------------------------------------------------------------------------------

TEST(AllDayTest, FromReminderTexts) {
  using List = std::list<std::wstring>;
  EXPECT_TRUE(isAllDayFromReminders(List{}));
  EXPECT_FALSE(isAllDayFromReminders(List{L"TRIGGER:-PT0S"}));
  EXPECT_TRUE(isAllDayFromReminders(List{L"TRIGGER:-P1D"}));
  EXPECT_FALSE(isAllDayFromReminders(List{L"TRIGGER:-PT30M"}));
  EXPECT_TRUE(isAllDayFromReminders(List{L"TRIGGER:-P1DT9H"}));
  EXPECT_TRUE(isAllDayFromReminders(List{L"TRIGGER:-P1W"}));
  EXPECT_TRUE(isAllDayFromReminders(List{L"TRIGGER:P1Y"}));
  EXPECT_FALSE(isAllDayFromReminders(List{L"TRIGGER:-P1D", L"TRIGGER:-PT0S"}));
  EXPECT_TRUE(isAllDayFromReminders(List{L"TRIGGER:-P1D", L"TRIGGER:-PT30M"}));
  EXPECT_FALSE(isAllDayFromReminders(List{L"TRIGGER:-PT1H", L"TRIGGER:-P1D"}));
  EXPECT_TRUE(isAllDayFromReminders(List{L"TRIGGER:-PT30M", L"TRIGGER:-P2D"}));
}

TEST(AllDayTest, ComputedBeforeSorting) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  // Sorted, -PT0S would come last; in the order found, -P1D comes last and wins.
  parser.parserDueDate.reminder = {L"TRIGGER:-PT30M", L"TRIGGER:-P1D"};
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "", "", "\"TRIGGER:-P1D\",\"TRIGGER:-PT30M\"", true));
}

// ---- end after start ------------------------------------------------------------------------------

TEST(EndAfterStartTest, EqualEndIsDropped) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T09:00:00");
  parser.parserDueDate.dueDate = at("2024-03-09T09:00:00");
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-09T09:00:00", "", "", true));
}

TEST(EndAfterStartTest, EarlierEndIsDroppedLaterEndKept) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T09:00:00");
  parser.parserDueDate.dueDate = at("2024-03-09T08:00:00");
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-09T09:00:00", "", "", true));
  parser.parserDueDate.startDate = at("2024-03-09T09:00:00");
  parser.parserDueDate.dueDate = at("2024-03-09T09:00:01");
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-09T09:00:00", "2024-03-09T09:00:01", "", true));
}

TEST(EndAfterStartTest, ComparedInWholeSeconds) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T09:00:00");
  parser.parserDueDate.dueDate = at("2024-03-09T09:00:00") + std::chrono::microseconds(400000);
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-09T09:00:00", "", "", true));
}

TEST(EndAfterStartTest, EndWithoutStartStays) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.dueDate = at("2024-03-01T09:00:00");
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "", "2024-03-01T09:00:00", "", true));
}

// ---- pending offset ----------------------------------------------------------------------------------

TEST(PendingOffsetTest, PositiveWithoutStartDateCountsFromNow) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 3, 0, 0, 0, true);
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-11T10:00:00", "", "", true));
}

TEST(PendingOffsetTest, PositiveWithStartDateMovesIt) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-01-31T09:30:00");
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(1, 1, 2, 3, 0, 0, 0, true);
  // 2025-02-31 + 17 days = 2025-03-20
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2025-03-20T09:30:00", "", "", true));
}

TEST(PendingOffsetTest, ClockUnitsAreNotApplied) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T09:30:00");
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 0, 5, 30, 10, true);
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-09T09:30:00", "", "", true));
}

TEST(PendingOffsetTest, NegativeBecomesAReminderWithOrWithoutStart) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 0, 0, 30, 0, false);
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "", "", "\"TRIGGER:-PT30M\"", false));
  parser.parserDueDate.startDate = at("2024-03-09T09:30:00");
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 1, 0, 0, 0, false);
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-09T09:30:00", "", "\"TRIGGER:-P1D\"", true));
}

TEST(PendingOffsetTest, DaylightFlagOfTheStartStaysThroughTheDayWalk) {
  ScopedTZ zone("America/New_York");
  NLPNativeTitleParser parser = parserAt(kNow);  // standard time
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 1, 0, 0, 0, 0, true);
  // The record keeps now's standard-time flag while its day moves into summer time: 10:00 standard is 11:00.
  EXPECT_EQ(narrow(parser.finishResult(L"")), json("", "2024-03-15T11:00:00", "", "", true));
}

// ---- reminder request ----------------------------------------------------------------------------------

TEST(ReminderRequestTest, RemindMeWithADate) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T00:00:00");
  parser.parserDueDate.recognizeStrings = {L"tomorrow"};
  // isAllDay keeps the value computed before the request.
  EXPECT_EQ(narrow(parser.finishResult(L"remind me to pay rent tomorrow")),
            json("\"tomorrow\",\"remind me\"", "2024-03-09T00:00:00", "", "\"TRIGGER:-PT0S\"", true));
}

TEST(ReminderRequestTest, CaseInsensitiveAndOnlyTheFirstMatch) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T00:00:00");
  EXPECT_EQ(narrow(parser.finishResult(wide("Reminds Me, remind me, 提醒我"))),
            json("\"Reminds Me\"", "2024-03-09T00:00:00", "", "\"TRIGGER:-PT0S\"", true));
}

TEST(ReminderRequestTest, ChineseRequest) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.startDate = at("2024-03-09T15:00:00");
  parser.parserDueDate.reminder = {L"TRIGGER:-PT0S"};
  EXPECT_EQ(narrow(parser.finishResult(wide("明天下午3点提醒我交房租"))),
            json("\"提醒我\"", "2024-03-09T15:00:00", "", "\"TRIGGER:-PT0S\"", false));
}

TEST(ReminderRequestTest, NoStartDateNoRequest) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.dueDate = at("2024-03-09T15:00:00");
  EXPECT_EQ(narrow(parser.finishResult(L"remind me")), json("", "", "2024-03-09T15:00:00", "", true));
}

TEST(ReminderRequestTest, StartDateFromAPositiveOffsetCounts) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.parserDueDate.pendingOffset = NLPMorvaneDuration(0, 0, 0, 1, 0, 0, 0, true);
  EXPECT_EQ(narrow(parser.finishResult(L"remind me")),
            json("\"remind me\"", "2024-03-09T10:00:00", "", "\"TRIGGER:-PT0S\"", true));
}

// ---- clearing --------------------------------------------------------------------------------------------

TEST(ClearResultTest, EveryResultFieldIsCleared) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt(kNow);
  NLPParserDueDate& due = parser.parserDueDate;
  due.repeatFlag = L"RRULE:FREQ=DAILY;INTERVAL=1";
  due.repeatRule = StringRRule();
  due.startDate = at("2024-03-09T00:00:00");
  due.dueDate = at("2024-03-10T00:00:00");
  due.reminder = {L"TRIGGER:-PT0S"};
  due.recognizeStrings = {L"daily"};
  due.pendingOffset = NLPMorvaneDuration(0, 0, 0, 0, 0, 5, 0, false);
  EXPECT_EQ(narrow(parser.finishResult(L"")),
            "{\"repeatFlag\":\"RRULE:FREQ=DAILY;INTERVAL=1\",\"recognizeStrings\":[\"daily\"],\"startDate\":\"2024-"
            "03-09T00:00:00\",\"dueDate\":\"2024-03-10T00:00:00\",\"reminder\":[\"TRIGGER:-PT0S\",\"TRIGGER:-PT5M\"],"
            "\"isAllDay\":false}");
  EXPECT_TRUE(due.repeatFlag.empty());
  EXPECT_FALSE(due.repeatRule.has_value());
  EXPECT_FALSE(due.startDate.has_value());
  EXPECT_FALSE(due.dueDate.has_value());
  EXPECT_FALSE(due.pendingOffset.has_value());
  EXPECT_TRUE(due.reminder.empty());
  EXPECT_TRUE(due.recognizeStrings.empty());
  EXPECT_FALSE(due.isAllDay);
  EXPECT_EQ(narrow(parser.finishResult(L"")), kEmptyJson);
}

}  // namespace
}  // namespace nlpdate
