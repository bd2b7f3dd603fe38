// Lunar conversions: the tables, the day numbers and both directions.
#include <gtest/gtest.h>

#include <cstring>

#include "calendar/lunar.h"

namespace nlpdate {
namespace {

constexpr int kFirstYear = 1888;
constexpr int kLastYear = 2111;

int entryOf(int year) { return year - NLPDATE_LUNAR_BASE_YEAR; }

Solar solar(int year, int month, int day) { return Solar{day, month, year}; }

Solar newYearOf(int year) {
  const int word = solar_1_1[entryOf(year)];
  return solar(word >> 9, (word >> 5) & 0xF, word & 0x1F);
}

::testing::AssertionResult sameSolar(const Solar& got, const Solar& want) {
  if (got.solarYear == want.solarYear && got.solarMonth == want.solarMonth && got.solarDay == want.solarDay) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << got.solarYear << "-" << got.solarMonth << "-" << got.solarDay
                                       << " != " << want.solarYear << "-" << want.solarMonth << "-"
                                       << want.solarDay;
}

::testing::AssertionResult sameLunar(const Lunar& got, const Lunar& want) {
  if (got.isLeap == want.isLeap && got.lunarYear == want.lunarYear && got.lunarMonth == want.lunarMonth &&
      got.lunarDay == want.lunarDay) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << got.lunarYear << "/" << (got.isLeap ? "leap " : "") << got.lunarMonth
                                       << "/" << got.lunarDay << " != " << want.lunarYear << "/"
                                       << (want.isLeap ? "leap " : "") << want.lunarMonth << "/" << want.lunarDay;
}

// Days of a lunar year: twelve months, thirteen with a leap month.
int yearLength(int year) {
  const int days = lunar_month_days[entryOf(year)];
  const int months = GetBitInt(days, 4, 13) == 0 ? 12 : 13;
  int total = 0;
  for (int i = 0; i < months; ++i) total += GetBitInt(days, 1, 12 - i) ? 30 : 29;
  return total;
}

TEST(LunarTables, TellingRows) {
  EXPECT_EQ(lunar_month_days[entryOf(2023)], 0x49B5);
  EXPECT_EQ(solar_1_1[entryOf(2023)], 0xFCE36);
  EXPECT_EQ(lunar_month_days[entryOf(2024)], 0x96C);
  EXPECT_EQ(solar_1_1[entryOf(2024)], 0xFD04A);
  EXPECT_EQ(GetBitInt(lunar_month_days[entryOf(2023)], 4, 13), 2);
  EXPECT_EQ(GetBitInt(lunar_month_days[entryOf(2024)], 4, 13), 0);
  EXPECT_TRUE(sameSolar(newYearOf(2023), solar(2023, 1, 22)));
  EXPECT_TRUE(sameSolar(newYearOf(2024), solar(2024, 2, 10)));
}

TEST(LunarTables, FirstAndLastRows) {
  EXPECT_EQ(lunar_month_days[0], 0);
  EXPECT_EQ(solar_1_1[0], 0);
  EXPECT_EQ(lunar_month_days[entryOf(1888)], 0x1694);
  EXPECT_EQ(solar_1_1[entryOf(1888)], 0xEC04C);
  EXPECT_EQ(lunar_month_days[entryOf(kLastYear)], 0x15AC);
  EXPECT_EQ(solar_1_1[entryOf(kLastYear)], 0x107E48);
  EXPECT_TRUE(sameSolar(newYearOf(1888), solar(1888, 2, 12)));
  EXPECT_TRUE(sameSolar(newYearOf(kLastYear), solar(2111, 2, 8)));
}

// Each year's months, added up, reach exactly the next year's new year.
TEST(LunarTables, YearLengthsMeetNextNewYear) {
  for (int year = kFirstYear; year < kLastYear; ++year) {
    const Solar start = newYearOf(year);
    const Solar next = newYearOf(year + 1);
    EXPECT_EQ(SolarToInt(next.solarYear, next.solarMonth, next.solarDay) -
                  SolarToInt(start.solarYear, start.solarMonth, start.solarDay),
              yearLength(year))
        << year;
  }
}

TEST(LunarTables, NewYearOfEveryYear) {
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    const Solar start = newYearOf(year);
    EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{false, 1, 1, year}), start)) << year;
    EXPECT_EQ(start.solarYear, year);
    EXPECT_TRUE(sameLunar(SolarToLunar(start), Lunar{false, 1, 1, year})) << year;
  }
}

TEST(LunarTables, CExportCopiesAreEqual) {
  EXPECT_EQ(std::memcmp(::lunar_month_days, lunar_month_days, sizeof lunar_month_days), 0);
  EXPECT_EQ(std::memcmp(::solar_1_1, solar_1_1, sizeof solar_1_1), 0);
  EXPECT_NE(static_cast<const void*>(::solar_1_1), static_cast<const void*>(solar_1_1));
}

TEST(LunarBits, GetBitInt) {
  EXPECT_EQ(GetBitInt(0x49B5, 4, 13), 2);
  EXPECT_EQ(GetBitInt(0x49B5, 1, 12), 0);
  EXPECT_EQ(GetBitInt(0x49B5, 1, 11), 1);
  EXPECT_EQ(GetBitInt(0xFD04A, 12, 9), 2024);
  EXPECT_EQ(GetBitInt(0xFD04A, 4, 5), 2);
  EXPECT_EQ(GetBitInt(0xFD04A, 5, 0), 10);
}

TEST(LunarDayNumbers, LeapDayCounts) {
  EXPECT_EQ(SolarToInt(2000, 3, 1) - SolarToInt(2000, 2, 28), 2);
  EXPECT_EQ(SolarToInt(1900, 3, 1) - SolarToInt(1900, 2, 28), 1);
  EXPECT_EQ(SolarToInt(2024, 1, 1) - SolarToInt(2023, 1, 1), 365);
  EXPECT_EQ(SolarToInt(2025, 1, 1) - SolarToInt(2024, 1, 1), 366);
  EXPECT_EQ(SolarToInt(2000, 1, 1), 730425);
}

TEST(LunarDayNumbers, FromIntInvertsToInt) {
  EXPECT_TRUE(sameSolar(SolarFromInt(SolarToInt(2000, 2, 29)), solar(2000, 2, 29)));
  EXPECT_TRUE(sameSolar(SolarFromInt(SolarToInt(2023, 12, 31)), solar(2023, 12, 31)));
  EXPECT_TRUE(sameSolar(SolarFromInt(SolarToInt(2024, 3, 1)), solar(2024, 3, 1)));
  EXPECT_TRUE(sameSolar(SolarFromInt(730425), solar(2000, 1, 1)));
}

TEST(LunarConversion, NewYear2024AndItsEve) {
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(2024, 2, 10)), Lunar{false, 1, 1, 2024}));
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(2024, 2, 9)), Lunar{false, 30, 12, 2023}));
}

TEST(LunarConversion, LeapMonthOf2023) {
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{true, 1, 2, 2023}), solar(2023, 3, 22)));
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{false, 1, 2, 2023}), solar(2023, 2, 20)));
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(2023, 3, 22)), Lunar{true, 1, 2, 2023}));
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(2023, 3, 21)), Lunar{false, 30, 2, 2023}));
  // The month after the leap month counts it in.
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{false, 1, 3, 2023}), solar(2023, 4, 20)));
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(2023, 4, 20)), Lunar{false, 1, 3, 2023}));
}

TEST(LunarConversion, InvalidDayIsComputedThrough) {
  // Month 1 of 2024 has 29 days; day 31 runs on into the next month.
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{false, 31, 1, 2024}), solar(2024, 3, 11)));
  // A leap flag in a year without one reads the month count as 0.
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{true, 1, 5, 2024}), solar(2024, 2, 10)));
}

TEST(LunarConversion, YearsOutsideTheTablesGiveAnAllZeroRecord) {
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(2112, 6, 1)), Lunar{false, 0, 0, 0}));
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(1886, 6, 1)), Lunar{false, 0, 0, 0}));
  EXPECT_TRUE(sameLunar(SolarToLunar(solar(-5, 1, 1)), Lunar{false, 0, 0, 0}));
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{false, 1, 1, 2112}), Solar{0, 0, 0}));
  EXPECT_TRUE(sameSolar(LunarToSolar(Lunar{false, 1, 1, 1800}), Solar{0, 0, 0}));
  const ::Lunar exported = ::SolarToLunar(::Solar{1, 1, 3000});
  EXPECT_EQ(exported.lunarYear, 0);
  EXPECT_EQ(exported.lunarMonth, 0);
  // The last covered day still converts.
  EXPECT_TRUE(sameSolar(LunarToSolar(SolarToLunar(solar(2111, 12, 31))), solar(2111, 12, 31)));
}

TEST(LunarConversion, MonthPastTheThirteenthIsComputedThroughAsShortMonths) {
  // Slots past the word read as no-bit, so 29-day months: month 15 of 2024 is 14 slots on.
  const Solar month15 = LunarToSolar(Lunar{false, 1, 15, 2024});
  const Solar month14 = LunarToSolar(Lunar{false, 1, 14, 2024});
  EXPECT_EQ(SolarToInt(month15.solarYear, month15.solarMonth, month15.solarDay) -
                SolarToInt(month14.solarYear, month14.solarMonth, month14.solarDay),
            29);
  EXPECT_EQ(GetBitInt(0x49B5, 1, -2), 0);
  EXPECT_EQ(GetBitInt(0x49B5, 4, 30), 0);
}

TEST(LunarConversion, CExportsBehaveTheSame) {
  const ::Lunar lunar = ::SolarToLunar(::Solar{22, 3, 2023});
  EXPECT_TRUE(lunar.isLeap);
  EXPECT_EQ(lunar.lunarDay, 1);
  EXPECT_EQ(lunar.lunarMonth, 2);
  EXPECT_EQ(lunar.lunarYear, 2023);
  const ::Solar back = ::LunarToSolar(::Lunar{false, 30, 12, 2023});
  EXPECT_EQ(back.solarDay, 9);
  EXPECT_EQ(back.solarMonth, 2);
  EXPECT_EQ(back.solarYear, 2024);
  EXPECT_EQ(::GetBitInt(0x49B5, 4, 13), 2);
  EXPECT_EQ(::SolarToInt(2000, 3, 1) - ::SolarToInt(2000, 2, 28), 2);
  const ::Solar fromInt = ::SolarFromInt(730425);
  EXPECT_EQ(fromInt.solarYear, 2000);
  EXPECT_EQ(fromInt.solarMonth, 1);
  EXPECT_EQ(fromInt.solarDay, 1);
}

// Walks every Gregorian day the tables cover: SolarToLunar then LunarToSolar
// gives the day back, and the lunar dates advance one day at a time.
TEST(LunarConversion, RoundTripEveryCoveredDay) {
  const std::int64_t first = SolarToInt(1888, 2, 12);
  const std::int64_t last = SolarToInt(2111, 12, 31);
  Lunar previous = SolarToLunar(SolarFromInt(first));
  ASSERT_TRUE(sameLunar(previous, Lunar{false, 1, 1, 1888}));
  long checked = 0;
  for (std::int64_t day = first; day <= last; ++day) {
    const Solar date = SolarFromInt(day);
    ASSERT_EQ(SolarToInt(date.solarYear, date.solarMonth, date.solarDay), day);
    const Lunar lunar = SolarToLunar(date);
    ASSERT_TRUE(sameSolar(LunarToSolar(lunar), date));
    if (day != first) {
      const bool nextDay = lunar.lunarDay == previous.lunarDay + 1 && lunar.lunarMonth == previous.lunarMonth &&
                           lunar.isLeap == previous.isLeap && lunar.lunarYear == previous.lunarYear;
      ASSERT_TRUE(nextDay || lunar.lunarDay == 1) << date.solarYear << "-" << date.solarMonth << "-" << date.solarDay;
      ASSERT_TRUE(nextDay || previous.lunarDay == 29 || previous.lunarDay == 30);
    }
    previous = lunar;
    ++checked;
  }
  EXPECT_EQ(checked, 81772);
  EXPECT_TRUE(sameLunar(previous, SolarToLunar(solar(2111, 12, 31))));
}

}  // namespace
}  // namespace nlpdate
