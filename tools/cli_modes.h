// The three ways the tool answers: one JSON line per title, a labelled view
// for people, and JSON Lines in, one answer line per input line out.
#pragma once

#include <iosfwd>
#include <string>

#include "cli_settings.h"

namespace nlpdate::cli {

// The answer as one line of strict JSON, built with a JSON writer: the keys and
// values of the parser's text, with quotes, backslashes and control characters
// escaped, so that every answer is one valid line. A failed parse gives an error object.
std::string jsonLine(const ParseResult& result);

// Prints the title with its recognised parts marked, then labelled lines;
// control characters show as escapes (\t, \n, \u001b).
void printPretty(std::ostream& out, const std::string& title, const ParseResult& result, bool colour);

// Reads JSON Lines from `in`; returns true when every line could be used.
bool runBatch(std::istream& in, std::ostream& out, const Settings& defaults);

}  // namespace nlpdate::cli
