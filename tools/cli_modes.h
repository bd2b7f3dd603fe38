// The three ways the tool answers: one JSON line per title, a labelled view
// for people, and JSON Lines in, one answer line per input line out.
#pragma once

#include <iosfwd>
#include <string>

#include "cli_settings.h"

namespace nlpdate::cli {

// Prints the title with its recognised parts marked, then labelled lines.
void printPretty(std::ostream& out, const std::string& title, const std::string& json, bool colour);

// Reads JSON Lines from `in`; returns true when every line could be used.
bool runBatch(std::istream& in, std::ostream& out, const Settings& defaults);

}  // namespace nlpdate::cli
