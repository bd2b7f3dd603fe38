// libFuzzer entry: one title through the host facade, with the language and a
// few settings taken from the first two bytes of the input.
//
// Input layout:
//   byte 0  language: en, zh_CN, ja, ru, fr, ko, pt or an unknown code (low 3 bits)
//   byte 1  bit 0 is24Hour, bit 1 monthFirst, bits 2-4 firstWeekday (1..7, 0 -> 1),
//           bit 5 a base date is handed in
//   rest    the title, as UTF-8 (or not: invalid text must be refused cleanly)
//
// Invalid UTF-8 throws InvalidUtf8Error, which is the one exception the facade
// may let out; anything else escaping, or a result that is neither "" nor a
// JSON object of the result keys, stops the run.
//
// With NLPDATE_FUZZ_STRICT=1 in the environment an empty answer stops the run
// too: parse gives "" only when something inside threw, which is worth a look
// even though the contract allows it.
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

#include "fuzz_input.h"
#include "nlpdate/nlpdate.h"

namespace {
bool strictEmpty = false;
}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  const char* strict = std::getenv("NLPDATE_FUZZ_STRICT");
  strictEmpty = strict != nullptr && std::string(strict) == "1";
  // Every run sees the same zone, so a finding replays anywhere.
  setenv("TZ", "UTC", 1);
  tzset();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const nlpdate::fuzz::FuzzCase input = nlpdate::fuzz::readFuzzCase(data, size);
  auto settings = std::make_shared<nlpdate::fuzz::FuzzSettings>(input);

  nlpdate::NLPNativeParser parser;
  parser.setDataSource(settings);
  parser.setFixedNow(nlpdate::fuzz::kFixedNow);
  std::string json;
  try {
    json = parser.parse(input.title, input.baseDate);
  } catch (const nlpdate::InvalidUtf8Error&) {
    return 0;
  }
  if (!nlpdate::fuzz::hasResultShape(json) || (strictEmpty && json.empty())) std::abort();
  return 0;
}
