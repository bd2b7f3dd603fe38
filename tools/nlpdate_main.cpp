// nlpdate: the command-line face of the library.
#include <unistd.h>

#include <functional>
#include <iostream>
#include <map>
#include <vector>

#include "cli_modes.h"

namespace {

using nlpdate::cli::Settings;
using nlpdate::cli::UsageError;

const char* const kHelp =
    "Usage: nlpdate [options] TITLE...\n"
    "       nlpdate [options] --batch < lines.jsonl\n"
    "\n"
    "Reads the date, time, range, repetition and reminders out of each task\n"
    "title and prints one JSON line per title:\n"
    "  {\"repeatFlag\":...,\"recognizeStrings\":[...],\"startDate\":...,\n"
    "   \"dueDate\":...,\"reminder\":[...],\"isAllDay\":...}\n"
    "\n"
    "Options:\n"
    "  --lang CODE            language of the titles (default en): en, zh_CN, ja,\n"
    "                         ru, fr, ko, pt; an unknown code reads as English\n"
    "  --tz ZONE              IANA time zone (default: the process's zone)\n"
    "  --now YYYY-MM-DDTHH:MM:SS   fix the current local time\n"
    "  --base YYYY-MM-DDTHH:MM:SS  the base date the titles are relative to\n"
    "  --first-weekday N      first day of the week, 1 = Sunday ... 7 = Saturday\n"
    "  --12h | --24h          the user's clock (default 24-hour)\n"
    "  --month-first | --day-first  order of numeric dates (default: the locale's;\n"
    "                         month first in batch mode)\n"
    "  --morning HH:MM        what \"morning\" means (default 09:00)\n"
    "  --afternoon HH:MM      (default 13:00)\n"
    "  --evening HH:MM        (default 17:00)\n"
    "  --night HH:MM          (default 20:00)\n"
    "  --holidays TEXT|@FILE  official days off and work days,\n"
    "                         {\"20240101\":2,\"20240204\":1}; 1 marks a work day\n"
    "  --japan-holidays TEXT|@FILE  Japanese holidays, {\"元日\":20240101}\n"
    "  --pretty               for people: the title with its recognised parts\n"
    "                         marked, then labelled lines\n"
    "  --batch                read JSON Lines from standard input, one object per\n"
    "                         line with \"title\" and optional \"lang\", \"tz\", \"now\",\n"
    "                         \"base\", \"firstWeekday\", \"is24Hour\", \"monthFirst\",\n"
    "                         \"morning\", \"afternoon\", \"evening\", \"night\",\n"
    "                         \"holidays\", \"japanHolidays\"; writes one line per\n"
    "                         input line, {\"error\":...} for a line it cannot use\n"
    "  --help                 show this text\n"
    "  --version              show the version\n"
    "\n"
    "Exit status: 0 on success, 2 for a bad option or value, a bad holiday text,\n"
    "or any unusable batch line.\n";

struct Options {
  Settings settings;
  bool pretty = false;
  bool batch = false;
  std::vector<std::string> titles;
};

std::string takeValue(const std::vector<std::string>& args, size_t& index) {
  const std::string& option = args[index];
  if (index + 1 >= args.size()) throw UsageError(option + ": missing value");
  return args[++index];
}

using ValueSetter = std::function<void(Options&, const std::string&, const std::string&)>;

const std::map<std::string, ValueSetter>& valueOptions() {
  using namespace nlpdate::cli;
  static const std::map<std::string, ValueSetter> table = {
      {"--lang", [](Options& o, const std::string&, const std::string& v) { o.settings.language = v; }},
      {"--tz", [](Options& o, const std::string& n, const std::string& v) { checkZone(v, n), o.settings.zone = v; }},
      {"--now", [](Options& o, const std::string& n, const std::string& v) { checkLocalTime(v, n), o.settings.now = v; }},
      {"--base",
       [](Options& o, const std::string& n, const std::string& v) { checkLocalTime(v, n), o.settings.base = v; }},
      {"--first-weekday",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.weekStart = parseWeekday(v, n); }},
      {"--morning",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.morning = parseHourMinute(v, n); }},
      {"--afternoon",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.afternoon = parseHourMinute(v, n); }},
      {"--evening",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.evening = parseHourMinute(v, n); }},
      {"--night",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.night = parseHourMinute(v, n); }},
      {"--holidays",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.holidays = readTextOrFile(v, n); }},
      {"--japan-holidays",
       [](Options& o, const std::string& n, const std::string& v) { o.settings.japanHolidays = readTextOrFile(v, n); }},
  };
  return table;
}

// Returns false when the run is already answered (--help, --version).
bool readOptions(const std::vector<std::string>& args, Options& options) {
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    auto setter = valueOptions().find(arg);
    if (setter != valueOptions().end()) {
      std::string value = takeValue(args, i);
      setter->second(options, arg, value);
    } else if (arg == "--12h" || arg == "--24h") {
      options.settings.clock24 = arg == "--24h";
    } else if (arg == "--month-first" || arg == "--day-first") {
      options.settings.monthFirstOrder = arg == "--month-first";
    } else if (arg == "--pretty") {
      options.pretty = true;
    } else if (arg == "--batch") {
      options.batch = true;
    } else if (arg == "--help" || arg == "-h") {
      std::cout << kHelp;
      return false;
    } else if (arg == "--version") {
      std::cout << "nlpdate " << NLPDATE_VERSION << "\n";
      return false;
    } else if (arg == "--") {
      options.titles.insert(options.titles.end(), args.begin() + static_cast<long>(i) + 1, args.end());
      break;
    } else if (arg.size() > 1 && arg[0] == '-') {
      throw UsageError(arg + ": unknown option (see --help)");
    } else {
      options.titles.push_back(arg);
    }
  }
  if (options.batch && !options.titles.empty()) throw UsageError("--batch: titles come from standard input");
  if (!options.batch && options.titles.empty()) throw UsageError("no title given (see --help)");
  return true;
}

int runTitles(const Options& options) {
  nlpdate::cli::ZoneScope zone(options.settings.zone);
  const bool colour = isatty(STDOUT_FILENO) != 0;
  for (const std::string& title : options.titles) {
    const nlpdate::ParseResult result = nlpdate::cli::parseWith(options.settings, title);
    if (options.pretty) {
      nlpdate::cli::printPretty(std::cout, title, result, colour);
    } else {
      std::cout << nlpdate::cli::jsonLine(result) << "\n";
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  try {
    if (!readOptions(std::vector<std::string>(argv + 1, argv + argc), options)) return 0;
    if (options.batch) return nlpdate::cli::runBatch(std::cin, std::cout, options.settings) ? 0 : 2;
    return runTitles(options);
  } catch (const std::exception& error) {
    std::cout.flush();
    std::cerr << "nlpdate: " << error.what() << "\n";
    return 2;
  }
}
