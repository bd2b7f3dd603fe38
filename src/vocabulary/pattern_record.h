// Recording of every pattern operation, for the differential test of the two
// engines. Only builds configured with NLPDATE_RECORD_PATTERNS=ON record, into
// the file named by the environment variable NLPDATE_PATTERN_LOG; other builds
// read no environment and record nothing.
#pragma once

#include <string>

namespace nlpdate {

class CompiledPattern;

// 's' a search from `from`, 'w' a whole match, 'a' every match (find-all, replace, split).
void recordPatternOperation(const CompiledPattern& pattern, char operation, size_t from, const std::wstring& subject);

// One recorded line: operation, case flag, offset, pattern and subject, with
// backslash, tab and newline escaped so that a line holds one operation.
std::string recordLine(char operation, bool insensitive, size_t from, const std::wstring& pattern,
                       const std::wstring& subject);
// Reads a line back; false for a line that does not read.
bool readRecordLine(const std::string& line, char& operation, bool& insensitive, size_t& from, std::wstring& pattern,
                    std::wstring& subject);

}  // namespace nlpdate
