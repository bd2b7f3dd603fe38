#include "core/results.h"

#include <set>

namespace nlpdate {

NLPRecognizeDate::NLPRecognizeDate(const std::wstring& text, long position, OptTM start)
    : recognizeStringStartPosition(position), startCal(std::move(start)), recogStrings{text} {}

NLPRecognizeDate::NLPRecognizeDate(const std::wstring& text, long position, OptTM start, OptTM end)
    : recognizeStringStartPosition(position), startCal(std::move(start)), endCal(std::move(end)), recogStrings{text} {}

NLPRecognizeDate::NLPRecognizeDate(const std::wstring& text, long position,
                                   std::optional<NLPMorvaneDuration> duration)
    : recognizeStringStartPosition(position), recogStrings{text}, duration(std::move(duration)) {}

void NLPParserDueDate::addAllRecogStr(const std::list<std::wstring>& strings) {
  for (const std::wstring& text : strings) recognizeStrings.push_back(text);
}

namespace {
// Two digits for values below ten; a negative value prints as "0-5", as it always has.
std::wstring formatMonthOrDay(int value) {
  std::wstring text = std::to_wstring(value);
  return value < 10 ? L"0" + text : text;
}

void appendQuotedOrEmpty(std::wstring& json, const std::wstring& text) {
  json += L"\"";
  json += text;
  json += L"\"";
}

void appendQuotedList(std::wstring& json, const std::list<std::wstring>& entries) {
  bool first = true;
  for (const std::wstring& entry : entries) {
    if (!first) json += L",";
    appendQuotedOrEmpty(json, entry);
    first = false;
  }
}

std::wstring optionalDateText(const OptTime& point) { return point ? formatDateText(*point) : std::wstring(); }
}  // namespace

std::wstring formatDateText(const TimePoint& point) {
  TMPtr local = tmFromTimePoint(point);
  return std::to_wstring(local->tm_year + 1900) + L"-" + formatMonthOrDay(local->tm_mon + 1) + L"-" +
         formatMonthOrDay(local->tm_mday) + L"T" + formatMonthOrDay(local->tm_hour) + L":" +
         formatMonthOrDay(local->tm_min) + L":" + formatMonthOrDay(local->tm_sec);
}

NLPParserDueDate::Texts NLPParserDueDate::texts() {
  std::set<std::wstring> unique(reminder.begin(), reminder.end());
  reminder.assign(unique.begin(), unique.end());
  return Texts{repeatFlag, recognizeStrings, optionalDateText(startDate), optionalDateText(dueDate), reminder, isAllDay};
}

std::wstring NLPParserDueDate::toString() {
  const Texts fields = texts();
  std::wstring json = L"{\"repeatFlag\":";
  appendQuotedOrEmpty(json, fields.repeatFlag);
  json += L",\"recognizeStrings\":[";
  appendQuotedList(json, fields.recognizeStrings);
  json += L"],\"startDate\":";
  appendQuotedOrEmpty(json, fields.startDate);
  json += L",\"dueDate\":";
  appendQuotedOrEmpty(json, fields.dueDate);
  json += L",\"reminder\":[";
  appendQuotedList(json, fields.reminder);
  json += L"],\"isAllDay\":";
  json += fields.isAllDay ? L"true" : L"false";
  json += L"}";
  return json;
}

}  // namespace nlpdate
