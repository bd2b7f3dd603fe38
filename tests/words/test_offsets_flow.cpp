// Offsets and advance reminders through the whole parse flow.
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace nlpdate::testing {
namespace {

constexpr const char* WED = "2024-03-06T10:00:00";

class OffsetFlow : public ::testing::Test {
 protected:
  ScopedTZ zone{"UTC"};
};

TEST_F(OffsetFlow, DaysAreAddedToTheAllDayStart) {
  EXPECT_EQ(parseAt(WED, "call mom in 3 days"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"in 3 days\"],\"startDate\":\"2024-03-09T00:00:00\","
            "\"dueDate\":\"\",\"reminder\":[],\"isAllDay\":true}");
}

TEST_F(OffsetFlow, HoursAndMinutesGiveATimedStart) {
  EXPECT_EQ(parseAt(WED, "call mom in 2 hours 30 minutes"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"in 2 hours 30 minutes\"],"
            "\"startDate\":\"2024-03-06T12:30:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
  EXPECT_EQ(parseAt(WED, "call mom in half an hour"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"in half an hour\"],"
            "\"startDate\":\"2024-03-06T10:30:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],"
            "\"isAllDay\":false}");
}

TEST_F(OffsetFlow, AdvanceReminderAloneStartsNow) {
  EXPECT_EQ(parseAt(WED, "submit report remind me 10 minutes early"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"remind me 10 minutes early\",\"remind me\"],"
            "\"startDate\":\"2024-03-06T10:00:00\",\"dueDate\":\"\","
            "\"reminder\":[\"TRIGGER:-PT0S\",\"TRIGGER:-PT10M\"],\"isAllDay\":false}");
}

TEST_F(OffsetFlow, ThreeFreeWordsBeforeEarlyFindNothing) {
  EXPECT_EQ(parseAt(WED, "submit report remind me a bit early"),
            "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
            "\"isAllDay\":true}");
}

}  // namespace
}  // namespace nlpdate::testing
