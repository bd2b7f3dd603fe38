// The Python module: nlpdate.parse gives a dict with datetime values,
// nlpdate.parse_json the strict JSON text. The parse itself runs without the
// interpreter lock, so threads of a Python program parse in parallel.
#include <pybind11/chrono.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <memory>
#include <optional>
#include <string>
#include <tuple>

#include "nlpdate/nlpdate.h"

namespace py = pybind11;

namespace {

using HourMinute = std::tuple<int, int>;

class ModuleSettings : public nlpdate::NLPNativeParserDataSource {
 public:
  std::string language = "en";
  int weekStart = 1;
  bool clock24 = true;
  std::optional<bool> monthFirstOrder;
  HourMinute parts[4] = {{9, 0}, {13, 0}, {17, 0}, {20, 0}};
  std::optional<std::string> holidays;
  std::optional<std::string> japanHolidays;

  int firstWeekday() const override { return weekStart; }
  int morningHour() const override { return std::get<0>(parts[0]); }
  int morningMinute() const override { return std::get<1>(parts[0]); }
  int afternoonHour() const override { return std::get<0>(parts[1]); }
  int afternoonMinute() const override { return std::get<1>(parts[1]); }
  int eveningHour() const override { return std::get<0>(parts[2]); }
  int eveningMinute() const override { return std::get<1>(parts[2]); }
  int nightHour() const override { return std::get<0>(parts[3]); }
  int nightMinute() const override { return std::get<1>(parts[3]); }
  bool is24Hour() const override { return clock24; }
  std::optional<std::string> holidayInfosJSONString() const override { return holidays; }
  std::optional<std::string> japanHolidayInfosJSONString() const override { return japanHolidays; }
  std::string preferredLanguage() const override { return language; }
  std::optional<bool> monthFirst() const override { return monthFirstOrder; }
};

// Errors of the input, all ValueError.
struct Errors {
  py::object invalidInput;
  py::object invalidUtf8;
  py::object holidayText;
  py::object parseFailed;
};
Errors& errors() {
  static Errors* held = new Errors();  // lives as long as the interpreter; never destroyed on exit
  return *held;
}

void checkHourMinute(const HourMinute& value, const char* name) {
  const auto [hour, minute] = value;
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59) {
    throw py::value_error(std::string(name) + ": expected (hour 0-23, minute 0-59)");
  }
}

// "YYYY-MM-DDTHH:MM:SS" text or a naive datetime (local time) as a time point.
std::optional<nlpdate::Clock::time_point> timeOf(const py::object& value, const char* name) {
  if (value.is_none()) return std::nullopt;
  if (py::isinstance<py::str>(value)) {
    auto point = nlpdate::NLPNativeParser::dateFromString(value.cast<std::string>());
    if (!point) throw py::value_error(std::string(name) + ": expected YYYY-MM-DDTHH:MM:SS");
    return point;
  }
  py::module_ datetime = py::module_::import("datetime");
  if (py::isinstance(value, datetime.attr("datetime"))) {
    const std::string text = value.attr("strftime")("%Y-%m-%dT%H:%M:%S").cast<std::string>();
    return nlpdate::NLPNativeParser::dateFromString(text);
  }
  throw py::type_error(std::string(name) + ": expected None, a str or a datetime");
}

struct Request {
  std::shared_ptr<ModuleSettings> settings = std::make_shared<ModuleSettings>();
  std::optional<nlpdate::Clock::time_point> now;
  std::optional<nlpdate::Clock::time_point> base;
};

Request requestOf(const std::string& lang, const py::object& now, const py::object& base, int firstWeekday,
                  bool hour24, std::optional<bool> monthFirst, HourMinute morning, HourMinute afternoon,
                  HourMinute evening, HourMinute night, std::optional<std::string> holidays,
                  std::optional<std::string> japanHolidays) {
  Request request;
  if (firstWeekday < 1 || firstWeekday > 7) throw py::value_error("first_weekday: expected 1 (Sunday) to 7");
  checkHourMinute(morning, "morning");
  checkHourMinute(afternoon, "afternoon");
  checkHourMinute(evening, "evening");
  checkHourMinute(night, "night");
  ModuleSettings& settings = *request.settings;
  settings.language = lang;
  settings.weekStart = firstWeekday;
  settings.clock24 = hour24;
  settings.monthFirstOrder = monthFirst;
  settings.parts[0] = morning;
  settings.parts[1] = afternoon;
  settings.parts[2] = evening;
  settings.parts[3] = night;
  settings.holidays = std::move(holidays);
  settings.japanHolidays = std::move(japanHolidays);
  request.now = timeOf(now, "now");
  request.base = timeOf(base, "base");
  return request;
}

nlpdate::ParseResult run(const std::string& title, const Request& request) {
  nlpdate::ParseResult result;
  std::string error;
  int kind = 0;
  {
    py::gil_scoped_release release;
    try {
      nlpdate::NLPNativeParser parser;
      parser.setDataSource(request.settings);
      if (request.now) {
        parser.setFixedNow(std::chrono::duration_cast<std::chrono::seconds>(request.now->time_since_epoch()).count());
      }
      result = parser.parseResult(title, request.base);
    } catch (const nlpdate::InvalidUtf8Error& e) {
      kind = 1;
      error = e.what();
    } catch (const nlpdate::HolidayTextError& e) {
      kind = 2;
      error = e.what();
    }
  }
  if (kind != 0) {
    PyErr_SetString((kind == 1 ? errors().invalidUtf8 : errors().holidayText).ptr(), error.c_str());
    throw py::error_already_set();
  }
  if (!result.ok) {
    PyErr_SetString(errors().parseFailed.ptr(), "the parser failed on this title");
    throw py::error_already_set();
  }
  return result;
}

py::object dateOrNone(const std::string& text) {
  if (text.empty()) return py::none();
  return py::module_::import("datetime").attr("datetime").attr("fromisoformat")(text);
}

#define NLPDATE_PARSE_ARGS                                                                                    \
  py::arg("title"), py::kw_only(), py::arg("lang") = "en", py::arg("now") = py::none(),                      \
      py::arg("base") = py::none(), py::arg("first_weekday") = 1, py::arg("hour24") = true,                  \
      py::arg("month_first") = py::none(), py::arg("morning") = HourMinute{9, 0},                            \
      py::arg("afternoon") = HourMinute{13, 0}, py::arg("evening") = HourMinute{17, 0},                      \
      py::arg("night") = HourMinute{20, 0}, py::arg("holidays") = py::none(), py::arg("japan_holidays") = py::none()

}  // namespace

PYBIND11_MODULE(nlpdate, module) {
  module.doc() =
      "Reads the date, time, range, repetition and reminders out of a task title.\n\n"
      "    >>> import nlpdate\n"
      "    >>> nlpdate.parse('Lunch with Ann tomorrow at 1pm', now='2024-03-08T10:00:00')['startDate']\n"
      "    datetime.datetime(2024, 3, 9, 13, 0)\n\n"
      "Dates are naive local times of the process's time zone (TZ).";
  py::object valueError = py::reinterpret_borrow<py::object>(PyExc_ValueError);
  errors().invalidInput = py::reinterpret_steal<py::object>(
      PyErr_NewExceptionWithDoc("nlpdate.InvalidInputError", "Input the parser refuses.", valueError.ptr(), nullptr));
  errors().invalidUtf8 = py::reinterpret_steal<py::object>(PyErr_NewExceptionWithDoc(
      "nlpdate.InvalidUtf8Error", "Text that is not valid UTF-8.", errors().invalidInput.ptr(), nullptr));
  errors().holidayText = py::reinterpret_steal<py::object>(PyErr_NewExceptionWithDoc(
      "nlpdate.HolidayTextError", "A holiday text with an entry that carries no number.",
      errors().invalidInput.ptr(), nullptr));
  errors().parseFailed = py::reinterpret_steal<py::object>(PyErr_NewExceptionWithDoc(
      "nlpdate.ParseFailedError", "The parser failed on this title.", errors().invalidInput.ptr(), nullptr));
  module.attr("InvalidInputError") = errors().invalidInput;
  module.attr("InvalidUtf8Error") = errors().invalidUtf8;
  module.attr("HolidayTextError") = errors().holidayText;
  module.attr("ParseFailedError") = errors().parseFailed;
  module.attr("__version__") = NLPDATE_VERSION;

  module.def(
      "parse",
      [](const std::string& title, const std::string& lang, const py::object& now, const py::object& base,
         int firstWeekday, bool hour24, std::optional<bool> monthFirst, HourMinute morning, HourMinute afternoon,
         HourMinute evening, HourMinute night, std::optional<std::string> holidays,
         std::optional<std::string> japanHolidays) {
        const Request request = requestOf(lang, now, base, firstWeekday, hour24, monthFirst, morning, afternoon,
                                          evening, night, std::move(holidays), std::move(japanHolidays));
        const nlpdate::ParseResult result = run(title, request);
        py::dict answer;
        answer["repeatFlag"] = result.repeatFlag;
        answer["recognizeStrings"] = result.recognizeStrings;
        answer["startDate"] = dateOrNone(result.startDate);
        answer["dueDate"] = dateOrNone(result.dueDate);
        answer["reminder"] = result.reminder;
        answer["isAllDay"] = result.isAllDay;
        return answer;
      },
      NLPDATE_PARSE_ARGS,
      "parse(title, *, lang='en', now=None, base=None, first_weekday=1, hour24=True, month_first=None,\n"
      "      morning=(9, 0), afternoon=(13, 0), evening=(17, 0), night=(20, 0), holidays=None,\n"
      "      japan_holidays=None) -> dict\n\n"
      "The answer for one title: repeatFlag (str), recognizeStrings (list of str), startDate and dueDate\n"
      "(datetime or None), reminder (list of str) and isAllDay (bool). now and base are None, a datetime\n"
      "or 'YYYY-MM-DDTHH:MM:SS'; first_weekday is 1 (Sunday) to 7; month_first None asks the locale;\n"
      "holidays is the official calendar text {\"20240101\":2,...}, japan_holidays {\"元日\":20240101,...}.\n"
      "Raises InvalidUtf8Error, HolidayTextError (both ValueError) for bad input.");
  module.def(
      "parse_json",
      [](const std::string& title, const std::string& lang, const py::object& now, const py::object& base,
         int firstWeekday, bool hour24, std::optional<bool> monthFirst, HourMinute morning, HourMinute afternoon,
         HourMinute evening, HourMinute night, std::optional<std::string> holidays,
         std::optional<std::string> japanHolidays) {
        const Request request = requestOf(lang, now, base, firstWeekday, hour24, monthFirst, morning, afternoon,
                                          evening, night, std::move(holidays), std::move(japanHolidays));
        return run(title, request).toJson();
      },
      NLPDATE_PARSE_ARGS,
      "parse_json(title, **settings) -> str\n\n"
      "The same answer as parse, as one strict JSON text with the keys in the fixed order.");
}
