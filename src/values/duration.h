// An offset in calendar and clock units with a sign, and its reminder
// trigger text ("TRIGGER:-PT30M" for thirty minutes before).
#pragma once

#include <string>

namespace nlpdate {

// The reminder at the moment of the task itself.
extern const std::wstring ON_TIME;

class NLPMorvaneDuration {
 public:
  NLPMorvaneDuration(int years, int months, int weeks, int days, int hours, int minutes, int seconds,
                     bool isPositive);

  bool isIsPositive() const { return isPositive; }
  int getYears() const { return years; }
  int getMonths() const { return months; }
  int getWeeks() const { return weeks; }
  int getDays() const { return days; }
  int getHours() const { return hours; }
  int getMinutes() const { return minutes; }
  int getSeconds() const { return seconds; }

  const std::wstring& getResult() const { return result; }
  // Computes the trigger text anew from the fields.
  std::wstring getResults() const;
  std::wstring toString() const { return getResults(); }

  // Adds to the minutes with no carry into hours, then rewrites the text.
  void addMinutes(int value);
  static bool hasValue(int value) { return value != 0; }

 private:
  bool isPositive;
  int years;
  int months;
  int weeks;
  int days;
  int hours;
  int minutes;
  int seconds;
  std::wstring result;
};

}  // namespace nlpdate
