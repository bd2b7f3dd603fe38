// Reader of the host's holiday texts: a flat {key:number,...} list.
#pragma once

#include <map>
#include <string>

namespace nlpdate {

// Reads {"20240101":2,"20240204":1} into key -> number. Only "{", "}", ","
// and ":" mean anything: quotes and blanks around a key stay in the key, and
// the braces may be left out. Throws HolidayTextError for an entry without a
// number (or with one out of range), naming the entry.
std::map<std::wstring, int> readHolidayText(const std::wstring& text);

}  // namespace nlpdate
