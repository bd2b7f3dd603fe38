/*
 * nlpdate lunar calendar: conversion between Gregorian dates and the Chinese
 * lunisolar calendar for the lunar years 1888 to 2111, by two bit-packed
 * tables and plain integer arithmetic.
 *
 * Every function exists twice with the same behaviour:
 *   - as an unmangled C export (GetBitInt, SolarToInt, ...) on the plain
 *     structs Solar and Lunar below, usable from C and any host;
 *   - with C++ linkage in namespace nlpdate, on nlpdate::Solar and
 *     nlpdate::Lunar, for the parser.
 *
 * Gregorian dates from 1888-02-12 (lunar 1888-01-01) to 2111-12-31 convert
 * both ways. An invalid month or day is computed through, unchecked; a year
 * outside the tables (before 1887 or after 2111) gives an all-zero record
 * instead of reading past them, and GetBitInt reads bits outside a 31-bit
 * word as zero.
 *
 *   Solar day = {10, 2, 2024};           // day, month, year
 *   Lunar lunar = SolarToLunar(day);     // {false, 1, 1, 2024}
 *   Solar back = LunarToSolar(lunar);    // {10, 2, 2024}
 */
#ifndef NLPDATE_LUNAR_H
#define NLPDATE_LUNAR_H

#ifdef __cplusplus
#include <cstdint>
#else
#include <stdbool.h>
#include <stdint.h>
#endif

/* Number of entries of each table: 1887 as a base entry, then 1888 to 2111. */
#define NLPDATE_LUNAR_TABLE_SIZE 225
/* The year stored at index 0; the entry of year Y is at index Y - 1887. */
#define NLPDATE_LUNAR_BASE_YEAR 1887

/* A Gregorian date; month 1 to 12. */
typedef struct Solar {
  int32_t solarDay;
  int32_t solarMonth;
  int32_t solarYear;
} Solar;

/* A lunar date; isLeap marks the leap month of that lunar year. */
typedef struct Lunar {
  bool isLeap;
  int32_t lunarDay;
  int32_t lunarMonth;
  int32_t lunarYear;
} Lunar;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Per lunar year: bits 13 to 16 the month after which the leap month stands
 * (0 for none); bits 12 down to 0 the month lengths in order, leap month in
 * its place, 1 for 30 days and 0 for 29.
 */
extern const int32_t lunar_month_days[NLPDATE_LUNAR_TABLE_SIZE];
/* Per lunar year: the Gregorian date of its first day, year << 9 | month << 5 | day. */
extern const int32_t solar_1_1[NLPDATE_LUNAR_TABLE_SIZE];

/* The `length` bits of `data` starting at bit `shift`. */
int GetBitInt(int data, int length, int shift);
/* A day number of a Gregorian date: consecutive days have consecutive numbers. */
int64_t SolarToInt(int y, int m, int d);
/* The Gregorian date of a day number from SolarToInt. */
Solar SolarFromInt(int64_t g);
/* The Gregorian date of a lunar date. */
Solar LunarToSolar(Lunar lunar);
/* The lunar date of a Gregorian date. */
Lunar SolarToLunar(Solar solar);

#ifdef __cplusplus
} /* extern "C" */

namespace nlpdate {

// Records of their own, apart from the C ones, so that an unqualified call
// inside the parser never finds the C export by argument lookup.
struct Solar {
  std::int32_t solarDay;
  std::int32_t solarMonth;
  std::int32_t solarYear;
};

struct Lunar {
  bool isLeap;
  std::int32_t lunarDay;
  std::int32_t lunarMonth;
  std::int32_t lunarYear;
};

extern const std::int32_t lunar_month_days[NLPDATE_LUNAR_TABLE_SIZE];
extern const std::int32_t solar_1_1[NLPDATE_LUNAR_TABLE_SIZE];

int GetBitInt(int data, int length, int shift);
std::int64_t SolarToInt(int y, int m, int d);
Solar SolarFromInt(std::int64_t g);
Solar LunarToSolar(Lunar lunar);
Lunar SolarToLunar(Solar solar);

}  // namespace nlpdate
#endif /* __cplusplus */

#endif /* NLPDATE_LUNAR_H */
