#include "vocabulary/keys.h"

namespace nlpdate {

// Three texts differ from their names and are kept as they are: "in", "star"
// and the upper-case DAY_AFTER_TOMORROW.
const std::wstring LOCAL = L"local";
const std::wstring TWENTY_FOUR_HOUR_FLAG = L"twenty_four_hour_flag";
const std::wstring TWO_DIGITAL = L"two_digital";
const std::wstring FOUR_YEAR_DIGITAL = L"four_year_digital";
const std::wstring FOUR_OR_TWO_YEAR_DIGITAL = L"four_or_two_year_digital";
const std::wstring THREE_DIGITAL = L"three_digital";
const std::wstring MINUTES_DIGITAL = L"minutes_digital";
const std::wstring HOUR_OF_DAY_DIGITAL = L"hour_of_day_digital";
const std::wstring DAY_OF_MONTH_DIGITAL = L"day_of_month_digital";
const std::wstring MONTH_OF_YEAR_DIGITAL = L"month_of_year_digital";
const std::wstring DAY_END = L"day_end";
const std::wstring REMIND_ME = L"remind_me";
const std::wstring MORNING = L"morning";
const std::wstring AFTERNOON = L"afternoon";
const std::wstring EVENING = L"evening";
const std::wstring NIGHT = L"night";
const std::wstring NOON = L"noon";
const std::wstring BREAKFAST = L"breakfast";
const std::wstring LUNCH = L"lunch";
const std::wstring SUPPER = L"supper";
const std::wstring BRUNCH = L"brunch";
const std::wstring TONIGHT = L"tonight";
const std::wstring MIDNIGHT = L"midnight";
const std::wstring MINUTE = L"minute";
const std::wstring HOUR = L"hour";
const std::wstring DAY = L"day";
const std::wstring WEEK = L"week";
const std::wstring MONTH = L"month";
const std::wstring YEAR = L"year";
const std::wstring DAILY = L"daily";
const std::wstring EVERYDAY = L"everyday";
const std::wstring WEEKLY = L"weekly";
const std::wstring MONTHLY = L"monthly";
const std::wstring YEARLY = L"yearly";
const std::wstring YESTERDAY = L"yesterday";
const std::wstring TODAY = L"today";
const std::wstring TOMORROW = L"tomorrow";
const std::wstring DAY_AFTER_TOMORROW = L"DAY_AFTER_TOMORROW";
const std::wstring MONDAY = L"monday";
const std::wstring TUESDAY = L"tuesday";
const std::wstring WEDNESDAY = L"wednesday";
const std::wstring THURSDAY = L"thursday";
const std::wstring FRIDAY = L"friday";
const std::wstring SATURDAY = L"saturday";
const std::wstring SUNDAY = L"sunday";
const std::wstring WEEKEND = L"weekend";
const std::wstring WEEKDAY = L"weekday";
const std::wstring WORKDAY = L"workday";
const std::wstring WORKING = L"working";
const std::wstring JANUARY = L"january";
const std::wstring FEBRUARY = L"february";
const std::wstring MARCH = L"march";
const std::wstring APRIL = L"april";
const std::wstring MAY = L"may";
const std::wstring JUNE = L"june";
const std::wstring JULY = L"july";
const std::wstring AUGUST = L"august";
const std::wstring SEPTEMBER = L"september";
const std::wstring OCTOBER = L"october";
const std::wstring NOVEMBER = L"november";
const std::wstring DECEMBER = L"december";
const std::wstring FIRST = L"first";
const std::wstring SECOND = L"second";
const std::wstring THIRD = L"third";
const std::wstring FOURTH = L"fourth";
const std::wstring FIFTH = L"fifth";
const std::wstring LAST = L"last";
const std::wstring LAST_DAY_OF = L"last_day_of";
const std::wstring DAY_OF = L"day_of";
const std::wstring AT_THE_BEGINNING_OF = L"at_the_beginning_of";
const std::wstring ONE = L"one";
const std::wstring TWO = L"two";
const std::wstring THREE = L"three";
const std::wstring FOUR = L"four";
const std::wstring FIVE = L"five";
const std::wstring SIX = L"six";
const std::wstring SEVEN = L"seven";
const std::wstring EIGHT = L"eight";
const std::wstring NINE = L"nine";
const std::wstring TEN = L"ten";
const std::wstring ELEVEN = L"eleven";
const std::wstring TWELVE = L"twelve";
const std::wstring THIRTEEN = L"thirteen";
const std::wstring FOURTEEN = L"fourteen";
const std::wstring FIFTEEN = L"fifteen";
const std::wstring SIXTEEN = L"sixteen";
const std::wstring SEVENTEEN = L"seventeen";
const std::wstring EIGHTEEN = L"eighteen";
const std::wstring NINETEEN = L"nineteen";
const std::wstring TWENTY = L"twenty";
const std::wstring TWENTY_ONE = L"twenty_one";
const std::wstring TWENTY_TWO = L"twenty_two";
const std::wstring TWENTY_THREE = L"twenty_three";
const std::wstring TWENTY_FOUR = L"twenty_four";
const std::wstring EVERY = L"every";
const std::wstring OF = L"of";
const std::wstring IN_WORD = L"in";
const std::wstring AFTER = L"after";
const std::wstring IN_WEEKS = L"in_weeks";
const std::wstring IN_MONTHS = L"in_months";
const std::wstring IN_YEARS = L"in_years";
const std::wstring AM = L"am";
const std::wstring PM = L"pm";
const std::wstring AM_PM = L"am_pm";
const std::wstring DATE_DIVIDER = L"date_divider";
const std::wstring TIME_DIVIDER = L"time_divider";
const std::wstring ON_BY = L"on_by";
const std::wstring MIDDLE = L"middle";
const std::wstring ON_AT = L"on_at";
const std::wstring ON = L"on";
const std::wstring AT = L"at";
const std::wstring HALF_A = L"half_a";
const std::wstring A = L"a";
const std::wstring LATER = L"later";
const std::wstring EARLY = L"early";
const std::wstring NEXT = L"next";
const std::wstring THIS = L"this";
const std::wstring CLOCK = L"clock";
const std::wstring DURATION_FLAG = L"duration_flag";
const std::wstring REMINDER = L"reminder";
const std::wstring UNTIL = L"until";
const std::wstring START = L"star";
const std::wstring END = L"end";
const std::wstring END_OF_MONTH = L"end_of_month";
const std::wstring FROM = L"from";
const std::wstring FOR = L"for";
const std::wstring AND = L"and";

const std::wstring* const ALL_KEYS[127] = {
    &LOCAL,
    &TWENTY_FOUR_HOUR_FLAG,
    &TWO_DIGITAL,
    &FOUR_YEAR_DIGITAL,
    &FOUR_OR_TWO_YEAR_DIGITAL,
    &THREE_DIGITAL,
    &MINUTES_DIGITAL,
    &HOUR_OF_DAY_DIGITAL,
    &DAY_OF_MONTH_DIGITAL,
    &MONTH_OF_YEAR_DIGITAL,
    &DAY_END,
    &REMIND_ME,
    &MORNING,
    &AFTERNOON,
    &EVENING,
    &NIGHT,
    &NOON,
    &BREAKFAST,
    &LUNCH,
    &SUPPER,
    &BRUNCH,
    &TONIGHT,
    &MIDNIGHT,
    &MINUTE,
    &HOUR,
    &DAY,
    &WEEK,
    &MONTH,
    &YEAR,
    &DAILY,
    &EVERYDAY,
    &WEEKLY,
    &MONTHLY,
    &YEARLY,
    &YESTERDAY,
    &TODAY,
    &TOMORROW,
    &DAY_AFTER_TOMORROW,
    &MONDAY,
    &TUESDAY,
    &WEDNESDAY,
    &THURSDAY,
    &FRIDAY,
    &SATURDAY,
    &SUNDAY,
    &WEEKEND,
    &WEEKDAY,
    &WORKDAY,
    &WORKING,
    &JANUARY,
    &FEBRUARY,
    &MARCH,
    &APRIL,
    &MAY,
    &JUNE,
    &JULY,
    &AUGUST,
    &SEPTEMBER,
    &OCTOBER,
    &NOVEMBER,
    &DECEMBER,
    &FIRST,
    &SECOND,
    &THIRD,
    &FOURTH,
    &FIFTH,
    &LAST,
    &LAST_DAY_OF,
    &DAY_OF,
    &AT_THE_BEGINNING_OF,
    &ONE,
    &TWO,
    &THREE,
    &FOUR,
    &FIVE,
    &SIX,
    &SEVEN,
    &EIGHT,
    &NINE,
    &TEN,
    &ELEVEN,
    &TWELVE,
    &THIRTEEN,
    &FOURTEEN,
    &FIFTEEN,
    &SIXTEEN,
    &SEVENTEEN,
    &EIGHTEEN,
    &NINETEEN,
    &TWENTY,
    &TWENTY_ONE,
    &TWENTY_TWO,
    &TWENTY_THREE,
    &TWENTY_FOUR,
    &EVERY,
    &OF,
    &IN_WORD,
    &AFTER,
    &IN_WEEKS,
    &IN_MONTHS,
    &IN_YEARS,
    &AM,
    &PM,
    &AM_PM,
    &DATE_DIVIDER,
    &TIME_DIVIDER,
    &ON_BY,
    &MIDDLE,
    &ON_AT,
    &ON,
    &AT,
    &HALF_A,
    &A,
    &LATER,
    &EARLY,
    &NEXT,
    &THIS,
    &CLOCK,
    &DURATION_FLAG,
    &REMINDER,
    &UNTIL,
    &START,
    &END,
    &END_OF_MONTH,
    &FROM,
    &FOR,
    &AND,
};

}  // namespace nlpdate
