// Gregorian <-> Chinese lunisolar conversion over the two bit-packed tables.
// Invalid months and days are computed through; only a year outside the
// tables is refused (all-zero record), since reading past them is no answer.
#include "calendar/lunar.h"

namespace nlpdate {

namespace {
constexpr int kBaseYear = NLPDATE_LUNAR_BASE_YEAR;

// Length of month slot i (0 = first month) of a lunar year word.
int monthLength(int days, int slot) { return GetBitInt(days, 1, 12 - slot) == 1 ? 30 : 29; }

// The date packed in a solar_1_1 word.
Solar wordDate(int word) {
  return Solar{GetBitInt(word, 5, 0), GetBitInt(word, 4, 5), GetBitInt(word, 12, 9)};
}

int packDate(const Solar& solar) { return solar.solarYear << 9 | solar.solarMonth << 5 | solar.solarDay; }

bool inTables(int index) { return index >= 0 && index < NLPDATE_LUNAR_TABLE_SIZE; }
}  // namespace

int GetBitInt(int data, int length, int shift) {
  // Bits outside the word (a month slot past the thirteenth) read as zero.
  if (length <= 0 || shift < 0 || length + shift > 31) return 0;
  return (data & (((1 << length) - 1) << shift)) >> shift;
}

std::int64_t SolarToInt(int y, int m, int d) {
  // Years counted from March, so the leap day falls at the end of a year.
  const std::int64_t month = (m + 9) % 12;
  const std::int64_t year = y - month / 10;
  return 365 * year + year / 4 - year / 100 + year / 400 + (month * 306 + 5) / 10 + (d - 1);
}

Solar SolarFromInt(std::int64_t g) {
  std::int64_t y = (10000 * g + 14780) / 3652425;
  std::int64_t ddd = g - (365 * y + y / 4 - y / 100 + y / 400);
  if (ddd < 0) {
    y -= 1;
    ddd = g - (365 * y + y / 4 - y / 100 + y / 400);
  }
  const std::int64_t mi = (100 * ddd + 52) / 3060;
  Solar solar;
  solar.solarMonth = static_cast<std::int32_t>((mi + 2) % 12 + 1);
  solar.solarYear = static_cast<std::int32_t>(y + (mi + 2) / 12);
  solar.solarDay = static_cast<std::int32_t>(ddd - (mi * 306 + 5) / 10 + 1);
  return solar;
}

Solar LunarToSolar(Lunar lunar) {
  const int index = lunar.lunarYear - kBaseYear;
  if (!inTables(index)) return Solar{0, 0, 0};
  const int days = lunar_month_days[index];
  const int leap = GetBitInt(days, 4, 13);
  int months;
  if (lunar.isLeap) {
    months = leap;
  } else if (lunar.lunarMonth <= leap || leap == 0) {
    months = lunar.lunarMonth - 1;
  } else {
    months = lunar.lunarMonth;  // the leap month stands before this one
  }
  std::int64_t offset = 0;
  for (int i = 0; i < months; ++i) offset += monthLength(days, i);
  offset += lunar.lunarDay;
  const Solar newYear = wordDate(solar_1_1[index]);
  return SolarFromInt(SolarToInt(newYear.solarYear, newYear.solarMonth, newYear.solarDay) + offset - 1);
}

Lunar SolarToLunar(Solar solar) {
  int index = solar.solarYear - kBaseYear;
  if (!inTables(index)) return Lunar{false, 0, 0, 0};
  if (solar_1_1[index] > packDate(solar)) index -= 1;  // before that lunar new year
  if (!inTables(index)) return Lunar{false, 0, 0, 0};
  const Solar newYear = wordDate(solar_1_1[index]);
  std::int64_t offset = SolarToInt(solar.solarYear, solar.solarMonth, solar.solarDay) -
                        SolarToInt(newYear.solarYear, newYear.solarMonth, newYear.solarDay) + 1;
  const int days = lunar_month_days[index];
  const int leap = GetBitInt(days, 4, 13);
  int month = 1;
  for (int i = 0; i <= 12; ++i) {
    const int length = monthLength(days, i);
    if (offset <= length) break;
    month += 1;
    offset -= length;
  }
  Lunar lunar{false, static_cast<std::int32_t>(offset), month, index + kBaseYear};
  if (leap != 0 && month > leap) {
    lunar.lunarMonth = month - 1;
    lunar.isLeap = month == leap + 1;
  }
  return lunar;
}

}  // namespace nlpdate

// The host exports: same behaviour, plain C records.
namespace {
Solar toC(const nlpdate::Solar& solar) { return Solar{solar.solarDay, solar.solarMonth, solar.solarYear}; }
nlpdate::Solar fromC(const Solar& solar) { return nlpdate::Solar{solar.solarDay, solar.solarMonth, solar.solarYear}; }
Lunar toC(const nlpdate::Lunar& lunar) { return Lunar{lunar.isLeap, lunar.lunarDay, lunar.lunarMonth, lunar.lunarYear}; }
nlpdate::Lunar fromC(const Lunar& lunar) {
  return nlpdate::Lunar{lunar.isLeap, lunar.lunarDay, lunar.lunarMonth, lunar.lunarYear};
}
}  // namespace

extern "C" {
int GetBitInt(int data, int length, int shift) { return nlpdate::GetBitInt(data, length, shift); }
int64_t SolarToInt(int y, int m, int d) { return nlpdate::SolarToInt(y, m, d); }
Solar SolarFromInt(int64_t g) { return toC(nlpdate::SolarFromInt(g)); }
Solar LunarToSolar(Lunar lunar) { return toC(nlpdate::LunarToSolar(fromC(lunar))); }
Lunar SolarToLunar(Solar solar) { return toC(nlpdate::SolarToLunar(fromC(solar))); }
}
