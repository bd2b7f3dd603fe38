// Vocabulary key constants: one process-wide text per key. Recognisers read
// vocabulary[MORNING], never the key's text itself.
#pragma once

#include <string>

#include "values/duration.h"  // ON_TIME belongs to the same family

namespace nlpdate {

extern const std::wstring LOCAL;
extern const std::wstring TWENTY_FOUR_HOUR_FLAG;
extern const std::wstring TWO_DIGITAL;
extern const std::wstring FOUR_YEAR_DIGITAL;
extern const std::wstring FOUR_OR_TWO_YEAR_DIGITAL;
extern const std::wstring THREE_DIGITAL;
extern const std::wstring MINUTES_DIGITAL;
extern const std::wstring HOUR_OF_DAY_DIGITAL;
extern const std::wstring DAY_OF_MONTH_DIGITAL;
extern const std::wstring MONTH_OF_YEAR_DIGITAL;
extern const std::wstring DAY_END;
extern const std::wstring REMIND_ME;
extern const std::wstring MORNING;
extern const std::wstring AFTERNOON;
extern const std::wstring EVENING;
extern const std::wstring NIGHT;
extern const std::wstring NOON;
extern const std::wstring BREAKFAST;
extern const std::wstring LUNCH;
extern const std::wstring SUPPER;
extern const std::wstring BRUNCH;
extern const std::wstring TONIGHT;
extern const std::wstring MIDNIGHT;
extern const std::wstring MINUTE;
extern const std::wstring HOUR;
extern const std::wstring DAY;
extern const std::wstring WEEK;
extern const std::wstring MONTH;
extern const std::wstring YEAR;
extern const std::wstring DAILY;
extern const std::wstring EVERYDAY;
extern const std::wstring WEEKLY;
extern const std::wstring MONTHLY;
extern const std::wstring YEARLY;
extern const std::wstring YESTERDAY;
extern const std::wstring TODAY;
extern const std::wstring TOMORROW;
extern const std::wstring DAY_AFTER_TOMORROW;
extern const std::wstring MONDAY;
extern const std::wstring TUESDAY;
extern const std::wstring WEDNESDAY;
extern const std::wstring THURSDAY;
extern const std::wstring FRIDAY;
extern const std::wstring SATURDAY;
extern const std::wstring SUNDAY;
extern const std::wstring WEEKEND;
extern const std::wstring WEEKDAY;
extern const std::wstring WORKDAY;
extern const std::wstring WORKING;
extern const std::wstring JANUARY;
extern const std::wstring FEBRUARY;
extern const std::wstring MARCH;
extern const std::wstring APRIL;
extern const std::wstring MAY;
extern const std::wstring JUNE;
extern const std::wstring JULY;
extern const std::wstring AUGUST;
extern const std::wstring SEPTEMBER;
extern const std::wstring OCTOBER;
extern const std::wstring NOVEMBER;
extern const std::wstring DECEMBER;
extern const std::wstring FIRST;
extern const std::wstring SECOND;
extern const std::wstring THIRD;
extern const std::wstring FOURTH;
extern const std::wstring FIFTH;
extern const std::wstring LAST;
extern const std::wstring LAST_DAY_OF;
extern const std::wstring DAY_OF;
extern const std::wstring AT_THE_BEGINNING_OF;
extern const std::wstring ONE;
extern const std::wstring TWO;
extern const std::wstring THREE;
extern const std::wstring FOUR;
extern const std::wstring FIVE;
extern const std::wstring SIX;
extern const std::wstring SEVEN;
extern const std::wstring EIGHT;
extern const std::wstring NINE;
extern const std::wstring TEN;
extern const std::wstring ELEVEN;
extern const std::wstring TWELVE;
extern const std::wstring THIRTEEN;
extern const std::wstring FOURTEEN;
extern const std::wstring FIFTEEN;
extern const std::wstring SIXTEEN;
extern const std::wstring SEVENTEEN;
extern const std::wstring EIGHTEEN;
extern const std::wstring NINETEEN;
extern const std::wstring TWENTY;
extern const std::wstring TWENTY_ONE;
extern const std::wstring TWENTY_TWO;
extern const std::wstring TWENTY_THREE;
extern const std::wstring TWENTY_FOUR;
extern const std::wstring EVERY;
extern const std::wstring OF;
extern const std::wstring IN_WORD;
extern const std::wstring AFTER;
extern const std::wstring IN_WEEKS;
extern const std::wstring IN_MONTHS;
extern const std::wstring IN_YEARS;
extern const std::wstring AM;
extern const std::wstring PM;
extern const std::wstring AM_PM;
extern const std::wstring DATE_DIVIDER;
extern const std::wstring TIME_DIVIDER;
extern const std::wstring ON_BY;
extern const std::wstring MIDDLE;
extern const std::wstring ON_AT;
extern const std::wstring ON;
extern const std::wstring AT;
extern const std::wstring HALF_A;
extern const std::wstring A;
extern const std::wstring LATER;
extern const std::wstring EARLY;
extern const std::wstring NEXT;
extern const std::wstring THIS;
extern const std::wstring CLOCK;
extern const std::wstring DURATION_FLAG;
extern const std::wstring REMINDER;
extern const std::wstring UNTIL;
extern const std::wstring START;
extern const std::wstring END;
extern const std::wstring END_OF_MONTH;
extern const std::wstring FROM;
extern const std::wstring FOR;
extern const std::wstring AND;

// Every key, in its order of definition.
extern const std::wstring* const ALL_KEYS[127];

}  // namespace nlpdate
