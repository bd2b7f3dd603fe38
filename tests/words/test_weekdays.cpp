// Weekdays in word-language titles: the pattern, the reading of the day word
// and the moves by the word in front of the day.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/keys.h"
#include "vocabulary/translation.h"
#include "words/weekdays.h"

namespace nlpdate {
namespace {

using testing::narrow;
using testing::parserAt;
using testing::ScopedTZ;
using testing::tmText;
using testing::wide;

// March 2024: Sun 3, Mon 4, Fri 8, Sat 9, Sun 10, Mon 11.
const char* const kFriday = "2024-03-08T10:00:00";

struct Found {
  bool present = false;
  std::string text;
  long position = -1;
  std::string start;
};

Found weekDayAt(const std::string& now, const std::string& title, const std::string& language = "en",
                WeekDay startDay = Sunday) {
  NLPNativeTitleParser parser = parserAt(now);
  parser.setStartDay(startDay);
  auto result = parser.matchEnWeekDay(wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  if (!result) return {};
  return {true, narrow(result->getRecogString().front()), result->getRecognizeStringStartPosition(),
          tmText(*result->getStartCal().value())};
}

Vocabulary english() { return NLPTranslation::getTransKeyToValue(L"en"); }

TEST(WeekdayMatchTest, TitleBeginningWithMondayRollsAWeekWhenPassed) {
  ScopedTZ zone("UTC");
  Found found = weekDayAt(kFriday, "monday meeting");
  ASSERT_TRUE(found.present);
  EXPECT_EQ(found.text, "monday ");
  EXPECT_EQ(found.position, 0);
  EXPECT_EQ(found.start, "2024-03-11T00:00:00");
}

TEST(WeekdayMatchTest, TitleBeginningWithComingDayStaysThisWeek) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(weekDayAt(kFriday, "saturday").start, "2024-03-09T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "friday").start, "2024-03-08T00:00:00");  // today is not before today
}

TEST(WeekdayMatchTest, MatchInsideTitleStartsAtTheWordBorderBeforeTheBlank) {
  ScopedTZ zone("UTC");
  Found found = weekDayAt(kFriday, "call mom monday");
  ASSERT_TRUE(found.present);
  EXPECT_EQ(found.text, " monday");
  EXPECT_EQ(found.position, 8);
  EXPECT_EQ(found.start, "2024-03-11T00:00:00");
}

TEST(WeekdayMatchTest, NextMondayIsAWeekBeyondThisWeeksMonday) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(weekDayAt(kFriday, "next monday").start, "2024-03-11T00:00:00");
  // On Sunday the 3rd, this week's Monday is still to come, yet "next" adds the week.
  EXPECT_EQ(weekDayAt("2024-03-03T10:00:00", "next monday").start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-03T10:00:00", "monday").start, "2024-03-04T00:00:00");
}

TEST(WeekdayMatchTest, LastFridayIsSevenDaysBeforeThisWeeksFriday) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(weekDayAt(kFriday, "last friday").start, "2024-03-01T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-09T10:00:00", "last friday").start, "2024-03-01T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-06T10:00:00", "last friday").start, "2024-03-01T00:00:00");
}

TEST(WeekdayMatchTest, OnRollsLikeABareDayAndThisDoesNot) {
  ScopedTZ zone("UTC");
  Found on = weekDayAt(kFriday, "on monday");
  EXPECT_EQ(on.text, "on monday");
  EXPECT_EQ(on.start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "by monday").start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "on saturday").start, "2024-03-09T00:00:00");
  Found thisMonday = weekDayAt(kFriday, "this monday");
  EXPECT_EQ(thisMonday.text, "this monday");
  EXPECT_EQ(thisMonday.start, "2024-03-04T00:00:00");
}

TEST(WeekdayMatchTest, WordAfterTheDayIsRecognisedButDoesNotMoveIt) {
  ScopedTZ zone("UTC");
  Found found = weekDayAt("2024-03-03T10:00:00", "monday next");
  EXPECT_EQ(found.text, "monday next");
  EXPECT_EQ(found.start, "2024-03-04T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "monday last").start, "2024-03-11T00:00:00");
}

TEST(WeekdayMatchTest, WeekAloneIsToday) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(weekDayAt(kFriday, "week").start, "2024-03-08T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "this week").start, "2024-03-08T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "next week").start, "2024-03-15T00:00:00");
}

TEST(WeekdayMatchTest, WeekendIsSaturdayExceptOnSunday) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(weekDayAt(kFriday, "weekend").start, "2024-03-09T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-10T10:00:00", "weekend").start, "2024-03-10T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-10T10:00:00", "weekend", "en", Monday).start, "2024-03-10T00:00:00");
}

TEST(WeekdayMatchTest, FirstWeekdayBoundsTheWeek) {
  ScopedTZ zone("UTC");
  const char* sunday = "2024-03-10T10:00:00";
  EXPECT_EQ(weekDayAt(sunday, "next saturday", "en", Sunday).start, "2024-03-23T00:00:00");
  EXPECT_EQ(weekDayAt(sunday, "next saturday", "en", Monday).start, "2024-03-16T00:00:00");
  EXPECT_EQ(weekDayAt(sunday, "next friday", "en", Monday).start, "2024-03-15T00:00:00");
  EXPECT_EQ(weekDayAt(sunday, "next friday", "en", Saturday).start, "2024-03-22T00:00:00");
  EXPECT_EQ(weekDayAt(sunday, "this monday", "en", Monday).start, "2024-03-04T00:00:00");
  EXPECT_EQ(weekDayAt(sunday, "this monday", "en", Sunday).start, "2024-03-11T00:00:00");
}

TEST(WeekdayMatchTest, NothingFoundGivesEmpty) {
  ScopedTZ zone("UTC");
  EXPECT_FALSE(weekDayAt(kFriday, "call mom").present);
  EXPECT_FALSE(weekDayAt(kFriday, "lemon tart").present);
}

TEST(WeekdayMatchTest, OtherLanguages) {
  ScopedTZ zone("UTC");
  Found ja = weekDayAt(kFriday, "月曜日に会議", "ja");
  EXPECT_EQ(ja.text, "月曜日");
  EXPECT_EQ(ja.position, 0);
  EXPECT_EQ(ja.start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "réunion lundi prochain", "fr").start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "prochain samedi", "fr").start, "2024-03-16T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "встреча в понедельник", "ru").start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "próximo domingo", "pt").start, "2024-03-10T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "segunda-feira", "pt").start, "2024-03-11T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "금요일", "ko").start, "2024-03-08T00:00:00");
}

TEST(WeekdayMatchTest, DaylightSavingWalkInNewYork) {
  ScopedTZ zone("America/New_York");  // clocks go forward on Sunday 2024-03-10 at 02:00
  EXPECT_EQ(weekDayAt(kFriday, "sunday").start, "2024-03-10T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "saturday").start, "2024-03-09T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-11T10:00:00", "friday").start, "2024-03-15T00:00:00");
  EXPECT_EQ(weekDayAt("2024-03-11T10:00:00", "sunday", "en", Monday).start, "2024-03-17T00:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "next sunday").start, "2024-03-10T00:00:00");
}

TEST(WeekdayMatchTest, DaylightFlagOfTheWalkStaysWithTheWeekMove) {
  // The seven days are added to a record that still carries the daylight
  // flag of the day it was normalised on, so a move across the change of
  // clocks comes out an hour off, in either direction.
  ScopedTZ zone("America/New_York");
  EXPECT_EQ(weekDayAt(kFriday, "monday").start, "2024-03-11T01:00:00");
  EXPECT_EQ(weekDayAt(kFriday, "next monday").start, "2024-03-11T01:00:00");
  EXPECT_EQ(weekDayAt("2024-03-11T10:00:00", "last friday").start, "2024-03-07T23:00:00");
  EXPECT_EQ(weekDayAt("2024-03-11T10:00:00", "this sunday").start, "2024-03-09T23:00:00");
}

TEST(TranslateDayOfWeekTest, DayWordsInEveryScript) {
  Vocabulary en = english();
  EXPECT_EQ(translateDayOfWeek(L"", Friday, en), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"Monday", Friday, en), Monday);
  EXPECT_EQ(translateDayOfWeek(L"tues", Friday, en), Tuesday);
  EXPECT_EQ(translateDayOfWeek(L"wednesday", Friday, en), Wednesday);
  EXPECT_EQ(translateDayOfWeek(L"thurs", Friday, en), Thursday);
  EXPECT_EQ(translateDayOfWeek(L"fri", Friday, en), Friday);
  EXPECT_EQ(translateDayOfWeek(L"saturday", Friday, en), Saturday);
  EXPECT_EQ(translateDayOfWeek(L"sun", Friday, en), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"周一", Friday, Vocabulary()), Monday);
  EXPECT_EQ(translateDayOfWeek(L"周3", Friday, Vocabulary()), Wednesday);
  EXPECT_EQ(translateDayOfWeek(L"星期六", Friday, Vocabulary()), Saturday);
  EXPECT_EQ(translateDayOfWeek(L"星期天", Friday, Vocabulary()), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"周日", Friday, Vocabulary()), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"lundi", Friday, NLPTranslation::getTransKeyToValue(L"fr")), Monday);
  EXPECT_EQ(translateDayOfWeek(L"пятницу", Friday, NLPTranslation::getTransKeyToValue(L"ru")), Friday);
  EXPECT_EQ(translateDayOfWeek(L"木曜日", Friday, NLPTranslation::getTransKeyToValue(L"ja")), Thursday);
}

TEST(TranslateDayOfWeekTest, WeekAndWeekendDependOnToday) {
  Vocabulary en = english();
  EXPECT_EQ(translateDayOfWeek(L"weekend", Friday, en), Saturday);
  EXPECT_EQ(translateDayOfWeek(L"weekend", Sunday, en), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"week", Wednesday, en), Wednesday);
  EXPECT_EQ(translateDayOfWeek(L"wk", Thursday, en), Thursday);
  EXPECT_EQ(translateDayOfWeek(L"semaine", Tuesday, NLPTranslation::getTransKeyToValue(L"fr")), Tuesday);
  // A tm_wday of 7 reads as Sunday, anything outside 0..7 as Monday.
  EXPECT_EQ(translateDayOfWeek(L"week", 7, en), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"week", 9, en), Monday);
  EXPECT_EQ(translateDayOfWeek(L"week", -1, en), Monday);
  EXPECT_EQ(translateDayOfWeek(L"weekend", 7, en), Sunday);
  EXPECT_EQ(translateDayOfWeek(L"xyz", Friday, en), Sunday);
}

TEST(DayOfWeekPatternTest, EnglishText) {
  Vocabulary en = english();
  const std::wstring pattern = getDayOfWeekRecog(en);
  EXPECT_EQ(pattern.rfind(L"(^|next|\\blast of|last|\\bthis|\\bon|\\bby|\\b)?\\s*(sunday|", 0), 0u);
  EXPECT_NE(pattern.find(L"|\\bmonday\\b|\\bmon\\b\\b|"), std::wstring::npos);
  EXPECT_NE(pattern.find(L"|weekends|weekend\\b|"), std::wstring::npos);
  const std::wstring tail = L")\\s*(\\bnext|\\blast of|last|\\bthis|\\b)?\\s*";
  EXPECT_EQ(pattern.substr(pattern.size() - tail.size()), tail);
}

TEST(DayOfWeekPatternTest, MondayBordersOnlyLatinWordsOutsideEnglish) {
  const std::wstring ja = getDayOfWeekRecog(NLPTranslation::getTransKeyToValue(L"ja"));
  EXPECT_NE(ja.find(L"|月曜日|月曜|\\bmonday\\b|"), std::wstring::npos);
}

TEST(WeekdayEndToEndTest, FullParse) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(testing::parseAt(kFriday, "call mom monday"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\" monday\"],\"startDate\":\"2024-03-11T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
  EXPECT_EQ(testing::parseAt(kFriday, "next friday at 5pm"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at 5pm\",\"next friday \"],"
            "\"startDate\":\"2024-03-15T17:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
}

TEST(WeekdayEndToEndTest, FirstWeekdaySettingReachesTheTimeMerge) {
  ScopedTZ zone("UTC");
  NLPNativeTitleParser parser = parserAt("2024-03-10T10:00:00");
  parser.setStartDay(2);  // host number 2: Monday
  EXPECT_EQ(narrow(parser.parse(L"next friday at 9am", L"", L"en")),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at 9am\",\"next friday \"],"
            "\"startDate\":\"2024-03-15T09:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
}

}  // namespace
}  // namespace nlpdate
