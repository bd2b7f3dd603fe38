// Repeats with an end through the whole parse of a title.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

TEST(RepeatUntilFlow, ForWeeks) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T10:00:00", "stretch every day for 2 weeks"),
            R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240321",)"
            R"("recognizeStrings":["every day for 2 weeks"],"startDate":"2024-03-08T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}

TEST(RepeatUntilFlow, FromMorningTomorrowToFriday) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T10:00:00", "every morning from tomorrow to friday"),
            R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1;UNTIL=20240315",)"
            R"("recognizeStrings":["every morning from tomorrow to friday"],"startDate":"2024-03-09T09:00:00",)"
            R"("dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})");
}

TEST(RepeatUntilFlow, StartAndEndUntilComesLast) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T10:00:00", "every second tuesday end in 2 months"),
            R"({"repeatFlag":"RRULE:FREQ=MONTHLY;INTERVAL=1;BYDAY=2TU;UNTIL=20240511",)"
            R"("recognizeStrings":["every second tuesday end in 2 months"],"startDate":"2024-03-12T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}

TEST(RepeatUntilFlow, ForMarkerWithoutFitFallsThroughToOtherRepeats) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T10:00:00", "every day for lunch"),
            R"({"repeatFlag":"RRULE:FREQ=DAILY;INTERVAL=1","recognizeStrings":["every day "],)"
            R"("startDate":"2024-03-08T00:00:00","dueDate":"","reminder":[],"isAllDay":true})");
}
