// What a recogniser hands its driver, what the Chinese repeat stage hands
// its driver, and the result of the whole title with its JSON text.
#pragma once

#include <list>
#include <optional>
#include <string>

#include "core/types.h"
#include "values/duration.h"
#include "values/rrule.h"

namespace nlpdate {

class NLPRecognizeDate {
 public:
  NLPRecognizeDate(const std::wstring& text, long position, OptTM start);
  NLPRecognizeDate(const std::wstring& text, long position, OptTM start, OptTM end);
  NLPRecognizeDate(const std::wstring& text, long position, std::optional<NLPMorvaneDuration> duration);

  long getRecognizeStringStartPosition() const { return recognizeStringStartPosition; }
  void setRecognizeStringStartPosition(long value) { recognizeStringStartPosition = value; }
  OptTM getStartCal() const { return startCal; }
  void setStartCal(OptTM value) { startCal = std::move(value); }
  OptTM getEndCal() const { return endCal; }
  void addRecogString(const std::wstring text) { recogStrings.push_back(text); }
  void clearRecogStrings() { recogStrings.clear(); }
  std::list<std::wstring> getRecogString() const { return recogStrings; }
  std::wstring getReminder() const { return reminder; }
  void setReminder(std::wstring value) { reminder = std::move(value); }
  void setDuration(const std::optional<NLPMorvaneDuration> value) { duration = value; }
  std::optional<NLPMorvaneDuration> getDuration() const { return duration; }

 private:
  long recognizeStringStartPosition;
  OptTM startCal;
  OptTM endCal;
  std::wstring reminder;
  std::list<std::wstring> recogStrings;
  std::optional<NLPMorvaneDuration> duration;
};

class NLPRepeatResult {
 public:
  NLPRepeatResult(OptTM repeatDate, bool dateInRule) : repeatDate(std::move(repeatDate)), dateInRule(dateInRule) {}
  OptTM repeatDate;
  bool dateInRule;
};

// The result of the title in hand; recognisers write its fields directly.
class NLPParserDueDate {
 public:
  std::wstring repeatFlag;
  std::optional<StringRRule> repeatRule;
  OptTime startDate;
  OptTime dueDate;
  std::list<std::wstring> reminder;
  std::list<std::wstring> recognizeStrings;
  std::optional<NLPMorvaneDuration> pendingOffset;
  bool isAllDay = true;

  void addAllRecogStr(const std::list<std::wstring>& strings);
  // The texts the JSON holds, field by field; sorts and de-duplicates `reminder` in place first.
  struct Texts {
    std::wstring repeatFlag;
    std::list<std::wstring> recognizeStrings;
    std::wstring startDate;
    std::wstring dueDate;
    std::list<std::wstring> reminder;
    bool isAllDay = true;
  };
  Texts texts();
  // The JSON text, fields in fixed order and nothing escaped. Sorts and
  // de-duplicates `reminder` in place first.
  std::wstring toString();
};

// "yyyy-MM-ddTHH:mm:ss" in local time, no zone, no fraction.
std::wstring formatDateText(const TimePoint& point);

}  // namespace nlpdate
