// Digit patterns and dividers: the same text in every language.
#include "vocabulary/keys.h"
#include "vocabulary/tables/tables.h"

namespace nlpdate {

void addSharedValues(VocabularyTable& vocabulary) {
  vocabulary[TWO_DIGITAL] = L"\\d{0,2}";
  vocabulary[FOUR_YEAR_DIGITAL] = L"\\d{4}";
  vocabulary[FOUR_OR_TWO_YEAR_DIGITAL] = L"\\d{4}|\\d{2}";
  vocabulary[THREE_DIGITAL] = L"\\d{0,3}";
  vocabulary[MINUTES_DIGITAL] = L"[0-5]?[0-9]|60";
  vocabulary[HOUR_OF_DAY_DIGITAL] = L"2[0-4]|[0-1]?[0-9]";
  vocabulary[DAY_OF_MONTH_DIGITAL] = L"3[0-1]|[0-2]?[0-9]";
  vocabulary[MONTH_OF_YEAR_DIGITAL] = L"1[0-2]|0?[1-9]";
  vocabulary[DATE_DIVIDER] = L"/|-";
  vocabulary[TIME_DIVIDER] = L":|：|\\.";
}

}  // namespace nlpdate
