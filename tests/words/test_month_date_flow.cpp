// Month-name dates through the whole parse of a title.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

TEST(MonthDateFlow, MiddleOfMonth) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-08T10:00:00", "mid march review"),
            R"({"repeatFlag":"","recognizeStrings":["mid march"],"startDate":"2024-03-15T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}

TEST(MonthDateFlow, DateWithClockTime) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-03-12T10:00:00", "12 mar 9:30"),
            R"({"repeatFlag":"","recognizeStrings":["12 mar 9:30"],"startDate":"2024-03-12T21:30:00",)"
            R"("dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})");
}

TEST(MonthDateFlow, TimeDigitsAfterMonthGoToTheTimeStage) {
  ScopedTZ zone("UTC");
  // The time stage reads "8pm" once the month text is cut; it lists its text first. The month
  // text keeps the blank its pattern took after it.
  EXPECT_EQ(parseAt("2024-03-08T10:00:00", "12 march 8pm"),
            R"({"repeatFlag":"","recognizeStrings":["8pm","12 march "],"startDate":"2024-03-12T20:00:00",)"
            R"("dueDate":"","reminder":["TRIGGER:-PT0S"],"isAllDay":false})");
}

TEST(MonthDateFlow, MonthAloneLaterInTheYear) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-05-10T10:00:00", "march"),
            R"({"repeatFlag":"","recognizeStrings":["march"],"startDate":"2025-03-01T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}
