// Numeric dates through the whole parse of a title.
#include <gtest/gtest.h>

#include "support/test_support.h"

using namespace nlpdate;
using namespace nlpdate::testing;

namespace {

std::string parseWithOrder(const std::string& now, const std::string& title, bool monthFirst) {
  NLPNativeTitleParser parser = parserAt(now);
  parser.setIsUsOrUkDateFormat(monthFirst);
  return narrow(parser.parse(wide(title), L"", L"en"));
}

}  // namespace

// The leading "\b" of the pattern already holds at the end of "rent", so the match, and the
// recognised text, start with the blank; recognised strings keep their white space.
TEST(NumericDateFlow, DayFirstPayRent) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseWithOrder("2024-03-08T10:00:00", "Pay rent 31/12/2024", false),
            R"({"repeatFlag":"","recognizeStrings":[" 31/12/2024"],"startDate":"2024-12-31T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}

TEST(NumericDateFlow, MonthFirstPayRentCarriesOver) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseWithOrder("2024-03-08T10:00:00", "Pay rent 31/12/2024", true),
            R"({"repeatFlag":"","recognizeStrings":[" 31/12/2024"],"startDate":"2026-07-12T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}

TEST(NumericDateFlow, BracketedDateAtTheEnd) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseWithOrder("2024-03-08T10:00:00", "pay (31/12/2024)", false),
            R"j({"repeatFlag":"","recognizeStrings":["(31/12/2024)"],"startDate":"2024-12-31T00:00:00",)j"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}

TEST(NumericDateFlow, EndOfMonth) {
  ScopedTZ zone("UTC");
  EXPECT_EQ(parseAt("2024-02-10T10:00:00", "report end of month"),
            R"({"repeatFlag":"","recognizeStrings":["end of month"],"startDate":"2024-02-29T00:00:00",)"
            R"("dueDate":"","reminder":[],"isAllDay":true})");
}
