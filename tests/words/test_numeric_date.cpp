// Dates written in digits: both field orders, the year rule, the relative
// phrases and the borders of the patterns.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "vocabulary/translation.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

class NumericDate : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};

  std::optional<NLPRecognizeDate> read(const std::string& now, const std::string& title, bool monthFirst,
                                       const std::string& language = "en") {
    NLPNativeTitleParser parser = parserAt(now);
    parser.setIsUsOrUkDateFormat(monthFirst);
    return parser.matchEnDate(wide(title), NLPTranslation::getTransKeyToValue(wide(language)));
  }

  static std::string start(const std::optional<NLPRecognizeDate>& result) {
    return tmText(*result->getStartCal().value());
  }
  static std::string text(const std::optional<NLPRecognizeDate>& result) {
    return narrow(result->getRecogString().front());
  }
};

const char* const kNow = "2024-03-08T10:00:00";

}  // namespace

TEST_F(NumericDate, DayFirstReadsDayThenMonth) {
  auto result = read(kNow, "pay rent 31/12/2024", false);
  ASSERT_TRUE(result);
  EXPECT_EQ(start(result), "2024-12-31T00:00:00");
  // The leading border holds at the end of "rent", so the blank before the date is part of the text.
  EXPECT_EQ(text(result), " 31/12/2024");
  EXPECT_EQ(result->getRecognizeStringStartPosition(), 8);
}

TEST_F(NumericDate, MonthFirstCarriesMonthThirtyOneIntoLaterYear) {
  auto result = read(kNow, "pay rent 31/12/2024", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(start(result), "2026-07-12T00:00:00");
}

TEST_F(NumericDate, RecordIsNotNormalisedBeforeItLeaves) {
  auto result = read(kNow, "31/12/2024", true);
  ASSERT_TRUE(result);
  const std::tm& record = *result->getStartCal().value();
  EXPECT_EQ(record.tm_mon, 30);
  EXPECT_EQ(record.tm_mday, 12);
  EXPECT_EQ(record.tm_year, 124);
}

TEST_F(NumericDate, DashAndPointAreAlikeWithFourDigitYear) {
  EXPECT_EQ(start(read(kNow, "1-2-2024", false)), "2024-02-01T00:00:00");
  EXPECT_EQ(start(read(kNow, "1.2.2024", false)), "2024-02-01T00:00:00");
  EXPECT_EQ(start(read(kNow, "1-2-2024", true)), "2024-01-02T00:00:00");
  EXPECT_EQ(start(read(kNow, "1.2.2024", true)), "2024-01-02T00:00:00");
}

TEST_F(NumericDate, PointIsNoDividerWithShortYear) {
  EXPECT_FALSE(read(kNow, "1.2.24", false));
  EXPECT_FALSE(read(kNow, "1.2.24", true));
}

TEST_F(NumericDate, ShortYearGetsTwentyInFront) {
  auto result = read(kNow, "12/31/24", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(start(result), "2024-12-31T00:00:00");
  EXPECT_EQ(text(result), "12/31/24");
  EXPECT_EQ(start(read(kNow, "31/12/24", false)), "2024-12-31T00:00:00");
}

TEST_F(NumericDate, ShortYearWithoutSecondDivider) {
  // The second divider may be missing before a two-digit year; a blank is no divider.
  EXPECT_EQ(start(read(kNow, "5/625", true)), "2025-05-06T00:00:00");
  EXPECT_EQ(start(read(kNow, "5/6 25", true)), "2024-05-06T00:00:00");
}

TEST_F(NumericDate, NoYearMonthFirstRollsWhenPassed) {
  EXPECT_EQ(start(read(kNow, "3/4", true)), "2025-03-04T00:00:00");
  EXPECT_EQ(start(read("2024-03-01T10:00:00", "3/4", true)), "2024-03-04T00:00:00");
}

TEST_F(NumericDate, NoYearDayFirstReadsAprilThird) {
  EXPECT_EQ(start(read(kNow, "3/4", false)), "2024-04-03T00:00:00");
  EXPECT_EQ(start(read("2024-04-04T08:00:00", "3/4", false)), "2025-04-03T00:00:00");
}

TEST_F(NumericDate, DateOfTodayDoesNotRoll) {
  EXPECT_EQ(start(read("2024-03-08T23:59:00", "3/8", true)), "2024-03-08T00:00:00");
  EXPECT_EQ(start(read("2024-03-08T23:59:00", "8/3", false)), "2024-03-08T00:00:00");
}

TEST_F(NumericDate, LastDayOfYearClock) {
  EXPECT_EQ(start(read("2024-12-31T18:00:00", "12/30", true)), "2025-12-30T00:00:00");
  EXPECT_EQ(start(read("2024-12-31T18:00:00", "12/31", true)), "2024-12-31T00:00:00");
  EXPECT_EQ(start(read("2024-12-31T18:00:00", "1/1", true)), "2025-01-01T00:00:00");
}

TEST_F(NumericDate, TrailingPointRefusesShortDate) {
  EXPECT_FALSE(read(kNow, "call 3/4.", true));
  EXPECT_FALSE(read(kNow, "call 4/3.", false));
}

TEST_F(NumericDate, TrailingPointLeavesShorterReading) {
  auto result = read(kNow, "1/2/3.", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "1/2/");
  EXPECT_EQ(start(result), "2025-01-02T00:00:00");
}

TEST_F(NumericDate, OnWordStaysInText) {
  auto result = read(kNow, "pay on 3/14 please", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "on 3/14 ");
  EXPECT_EQ(result->getRecognizeStringStartPosition(), 4);
  EXPECT_EQ(start(result), "2024-03-14T00:00:00");
}

TEST_F(NumericDate, BracketedDateReadsClosingBracketAsYear) {
  auto result = read(kNow, "pay (3/4)", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "(3/4)");
  EXPECT_EQ(result->getRecognizeStringStartPosition(), 4);
  const std::tm& record = *result->getStartCal().value();
  // ")" reads as 0, so the year is 0 and no roll happens.
  EXPECT_EQ(record.tm_year, -1900);
  EXPECT_EQ(record.tm_mon, 2);
  EXPECT_EQ(record.tm_mday, 4);
}

TEST_F(NumericDate, BracketedFullDateKeepsItsYear) {
  auto result = read(kNow, "(31/12/2024)", false);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "(31/12/2024)");
  EXPECT_EQ(start(result), "2024-12-31T00:00:00");
}

TEST_F(NumericDate, NextMonthIsItsFirstDay) {
  auto result = read(kNow, "review next month", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "next month");
  EXPECT_EQ(result->getRecognizeStringStartPosition(), 7);
  EXPECT_EQ(start(result), "2024-04-01T00:00:00");
  EXPECT_EQ(start(read("2024-12-15T09:00:00", "next month", false)), "2025-01-01T00:00:00");
}

TEST_F(NumericDate, NextYearIsJanuaryFirst) {
  EXPECT_EQ(start(read(kNow, "next year", true)), "2025-01-01T00:00:00");
  EXPECT_EQ(start(read("2024-12-31T23:00:00", "NEXT YEAR", true)), "2025-01-01T00:00:00");
}

TEST_F(NumericDate, EndOfMonthIsLastDayOfThisMonth) {
  EXPECT_EQ(start(read(kNow, "end of month", true)), "2024-03-31T00:00:00");
  EXPECT_EQ(start(read("2024-02-10T09:00:00", "end of the month", true)), "2024-02-29T00:00:00");
  auto today = read("2024-03-31T21:00:00", "report end of month", false);
  ASSERT_TRUE(today);
  EXPECT_EQ(text(today), "end of month");
  EXPECT_EQ(start(today), "2024-03-31T00:00:00");
}

TEST_F(NumericDate, FullYearFirst) {
  EXPECT_EQ(start(read(kNow, "2024-12-31", true)), "2024-12-31T00:00:00");
  EXPECT_EQ(start(read(kNow, "2024.12.31", false)), "2024-12-31T00:00:00");
  EXPECT_EQ(start(read(kNow, "2023/1/5", false)), "2023-01-05T00:00:00");
}

TEST_F(NumericDate, YearAndMonthWrittenTogether) {
  auto result = read(kNow, "202412-31", true);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "202412-31");
  EXPECT_EQ(start(result), "2024-12-31T00:00:00");
}

TEST_F(NumericDate, FourDigitDateInLongerDigitRunIsRefused) {
  // The closing group refuses "31/12/2024" inside "31/12/20245"; the search then finds
  // "12/2" with the four digits "0245" behind it.
  auto dayFirst = read(kNow, "31/12/20245", false);
  ASSERT_TRUE(dayFirst);
  EXPECT_EQ(text(dayFirst), "12/20245");
  EXPECT_EQ(start(dayFirst), "0245-02-12T00:00:00");
  auto monthFirst = read(kNow, "31/12/20245", true);
  ASSERT_TRUE(monthFirst);
  EXPECT_EQ(start(monthFirst), "0245-12-02T00:00:00");
  // "2024-12-31" is refused before the "45"; a two-digit year reading is what is left.
  auto yearFirst = read(kNow, "2024-12-3145", true);
  ASSERT_TRUE(yearFirst);
  EXPECT_EQ(text(yearFirst), "12-3145");
  EXPECT_EQ(start(yearFirst), "2045-12-31T00:00:00");
}

TEST_F(NumericDate, MonthThirteenCarriesOverWhicheverOrder) {
  EXPECT_EQ(start(read(kNow, "13/13/2024", true)), "2025-01-13T00:00:00");
  EXPECT_EQ(start(read(kNow, "13/13/2024", false)), "2025-01-13T00:00:00");
}

TEST_F(NumericDate, DayPastMonthEndCarriesOver) {
  EXPECT_EQ(start(read(kNow, "2/30/2024", true)), "2024-03-01T00:00:00");
}

TEST_F(NumericDate, NothingToRead) {
  EXPECT_FALSE(read(kNow, "call mom", true));
  EXPECT_FALSE(read(kNow, "", false));
}

TEST_F(NumericDate, BaseDateSetsTheDayBeforeTheRoll) {
  NLPNativeTitleParser parser = parserAt(kNow);
  parser.baseDate = timePointFromSeconds(localSeconds("2024-06-20T15:00:00"));
  auto result = parser.matchEnDate(L"next month", NLPTranslation::getTransKeyToValue(L"en"));
  ASSERT_TRUE(result);
  EXPECT_EQ(tmText(*result->getStartCal().value()), "2024-07-01T00:00:00");
}

TEST_F(NumericDate, OtherLanguagesShareTheDigits) {
  EXPECT_EQ(start(read(kNow, "оплатить 31/12/2024", false, "ru")), "2024-12-31T00:00:00");
  EXPECT_EQ(start(read(kNow, "payer 31-12-2024", false, "fr")), "2024-12-31T00:00:00");
}

// The word for next stands without brackets of its own, so with several values the
// alternation splits: an earlier value alone is a match with no unit, and the day stays.
TEST_F(NumericDate, NextWordOfSeveralValuesMatchesAlone) {
  auto portuguese = read(kNow, "relatório próximo mês", true, "pt");
  ASSERT_TRUE(portuguese);
  EXPECT_EQ(text(portuguese), "próximo");
  EXPECT_EQ(portuguese->getRecognizeStringStartPosition(), 10);
  EXPECT_EQ(start(portuguese), "2024-03-08T00:00:00");
  auto french = read(kNow, "rapport mois prochain", false, "fr");
  ASSERT_TRUE(french);
  EXPECT_EQ(text(french), "prochain");
  EXPECT_EQ(start(french), "2024-03-08T00:00:00");
  // The last value carries the unit behind it.
  auto english = read(kNow, "rapport next month", false, "fr");
  ASSERT_TRUE(english);
  EXPECT_EQ(text(english), "next month");
  EXPECT_EQ(start(english), "2024-04-01T00:00:00");
}

TEST_F(NumericDate, EndOfMonthInOtherLanguages) {
  auto french = read("2024-02-10T09:00:00", "rapport fin du mois", false, "fr");
  ASSERT_TRUE(french);
  EXPECT_EQ(text(french), "fin du mois");
  EXPECT_EQ(start(french), "2024-02-29T00:00:00");
  EXPECT_EQ(start(read(kNow, "relatório fim do mês", false, "pt")), "2024-03-31T00:00:00");
}

TEST_F(NumericDate, FullYearWithoutSecondDivider) {
  auto result = read(kNow, "31/122024", false);
  ASSERT_TRUE(result);
  EXPECT_EQ(text(result), "31/122024");
  EXPECT_EQ(start(result), "2024-12-31T00:00:00");
}

// The base date gives the year; the clock's today decides the roll, which adds one year only.
TEST_F(NumericDate, BaseDateYearAndOneRollOnly) {
  Vocabulary english = NLPTranslation::getTransKeyToValue(L"en");
  NLPNativeTitleParser later = parserAt(kNow);
  later.baseDate = timePointFromSeconds(localSeconds("2025-06-20T15:00:00"));
  auto ahead = later.matchEnDate(L"3/4", english);
  ASSERT_TRUE(ahead);
  EXPECT_EQ(tmText(*ahead->getStartCal().value()), "2025-03-04T00:00:00");
  NLPNativeTitleParser earlier = parserAt(kNow);
  earlier.baseDate = timePointFromSeconds(localSeconds("2023-06-20T15:00:00"));
  auto behind = earlier.matchEnDate(L"3/4", english);
  ASSERT_TRUE(behind);
  EXPECT_EQ(tmText(*behind->getStartCal().value()), "2024-03-04T00:00:00");
}
