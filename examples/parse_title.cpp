// Parses a few titles the way a task app would: a data source with the
// user's settings, a fixed "now" so the output is the same on every run.
#include <iostream>
#include <memory>

#include "nlpdate/nlpdate.h"

class UserSettings : public nlpdate::NLPNativeParserDataSource {
 public:
  int firstWeekday() const override { return 2; }  // weeks start on Monday
  bool is24Hour() const override { return false; }
  std::string preferredLanguage() const override { return "en"; }
  std::optional<bool> monthFirst() const override { return true; }
};

int main() {
  auto settings = std::make_shared<UserSettings>();
  nlpdate::NLPNativeParser parser;
  parser.setDataSource(settings);
  parser.setFixedNow(1709892000);  // 2024-03-08 10:00:00 UTC

  for (const char* title : {"Lunch with Ann tomorrow at 1pm", "call mom", "Standup every weekday at 9:30"}) {
    std::cout << title << "\n  " << parser.parse(title) << "\n";
  }
  try {
    parser.parse("\xff broken");
  } catch (const nlpdate::InvalidUtf8Error& error) {
    std::cout << "refused: " << error.what() << "\n";
  }
  return 0;
}
