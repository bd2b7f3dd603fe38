// Holiday data. The movable dates are the published ones, kept as data and
// not derived from the lunar tables; "小年" shares the southern table.
#include "calendar/holiday_tables.h"

namespace nlpdate {

namespace {
// 母亲节
constexpr int kTable0[kMovableHolidayDates] = {20340514, 20330508, 20320509, 20310511, 20300512, 20290513, 20280514, 20270509, 20260510, 20250511, 20240512};
// 父亲节
constexpr int kTable1[kMovableHolidayDates] = {20340618, 20330619, 20320620, 20310615, 20300616, 20290617, 20280618, 20270620, 20260621, 20250615, 20240616};
// 感恩节
constexpr int kTable2[kMovableHolidayDates] = {20341123, 20331124, 20321125, 20311127, 20301128, 20291122, 20281123, 20271125, 20261126, 20251127, 20241128};
// 清明节
constexpr int kTable3[kMovableHolidayDates] = {20330404, 20320404, 20310405, 20300405, 20290404, 20280404, 20270405, 20260405, 20250404, 20240404, 20230405};
// 除夕
constexpr int kTable4[kMovableHolidayDates] = {20330130, 20320210, 20310122, 20300202, 20290212, 20280125, 20270205, 20260216, 20250128, 20240209, 20230121};
// 春节
constexpr int kTable5[kMovableHolidayDates] = {20330131, 20320211, 20310123, 20300203, 20290213, 20280126, 20270206, 20260217, 20250129, 20240210, 20230122};
// 元宵节
constexpr int kTable6[kMovableHolidayDates] = {20330214, 20320225, 20310206, 20300217, 20290227, 20280209, 20270220, 20260303, 20250212, 20240224, 20230205};
// 端午节
constexpr int kTable7[kMovableHolidayDates] = {20330601, 20320612, 20310624, 20300605, 20290616, 20280528, 20270609, 20260619, 20250531, 20240610, 20230622};
// 七夕
constexpr int kTable8[kMovableHolidayDates] = {20330801, 20320812, 20310824, 20300805, 20290816, 20280826, 20270808, 20260819, 20250829, 20240810, 20230822};
// 中元节
constexpr int kTable9[kMovableHolidayDates] = {20330809, 20320820, 20310901, 20300813, 20290824, 20280903, 20270816, 20260827, 20250906, 20240818, 20230830};
// 中秋节
constexpr int kTable10[kMovableHolidayDates] = {20330908, 20320919, 20311001, 20300912, 20290922, 20281003, 20270915, 20260925, 20251006, 20240917, 20230929};
// 重阳节
constexpr int kTable11[kMovableHolidayDates] = {20331001, 20321012, 20311024, 20301005, 20291016, 20281026, 20271008, 20261018, 20251029, 20241011, 20231023};
// 腊八节
constexpr int kTable12[kMovableHolidayDates] = {20340127, 20330108, 20320120, 20310101, 20300111, 20290122, 20280104, 20270115, 20260126, 20250107, 20240118};
// 北方小年
constexpr int kTable13[kMovableHolidayDates] = {20340211, 20330123, 20320204, 20310116, 20300126, 20290206, 20280119, 20270130, 20260210, 20250122, 20240202};
// 南方小年
constexpr int kTable14[kMovableHolidayDates] = {20340212, 20330124, 20320205, 20310117, 20300127, 20290207, 20280120, 20270131, 20260211, 20250123, 20240203};
}  // namespace

const std::vector<FixedHoliday>& fixedHolidays() {
  static const std::vector<FixedHoliday> table = {
      {L"元旦", 1, 1},
      {L"情人节", 2, 14},
      {L"妇女节", 3, 8},
      {L"愚人节", 4, 1},
      {L"劳动节", 5, 1},
      {L"儿童节", 6, 1},
      {L"建党节", 7, 1},
      {L"建军节", 8, 1},
      {L"教师节", 9, 10},
      {L"国庆节", 10, 1},
      {L"万圣夜", 10, 31},
      {L"平安夜", 12, 24},
      {L"圣诞节", 12, 25},
  };
  return table;
}

const std::vector<MovableHoliday>& movableHolidays() {
  static const std::vector<MovableHoliday> table = {
      {L"母亲节", kTable0, 20240512},
      {L"父亲节", kTable1, 20240616},
      {L"感恩节", kTable2, 20241128},
      {L"清明节", kTable3, 20240404},
      {L"除夕", kTable4, 20240209},
      {L"春节", kTable5, 20240210},
      {L"元宵节", kTable6, 20240224},
      {L"端午节", kTable7, 20240610},
      {L"七夕", kTable8, 20240810},
      {L"中元节", kTable9, 20240818},
      {L"中秋节", kTable10, 20240917},
      {L"重阳节", kTable11, 20241011},
      {L"腊八节", kTable12, 20240118},
      {L"北方小年", kTable13, 20240202},
      {L"南方小年", kTable14, 20240203},
      {L"小年", kTable14, 20240203},
  };
  return table;
}

const std::list<std::wstring>& lunarHolidayNames() {
  static const std::list<std::wstring> names = {L"清明节", L"除夕", L"春节", L"元宵节", L"端午节", L"七夕", L"中元节", L"中秋节", L"重阳节", L"腊八节", L"北方小年", L"南方小年", L"小年", L"母亲节", L"父亲节", L"感恩节"};
  return names;
}

}  // namespace nlpdate
