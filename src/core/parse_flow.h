// Pieces of the road of one title that do not need the parser object:
// the length limit, the choice of the recogniser family, and the small
// rules that finish the result record.
#pragma once

#include <cstddef>
#include <list>
#include <string>

namespace nlpdate {

// The one defence against the cost of the many patterns: nothing past this
// many code units is ever looked at.
constexpr std::size_t kTitleLimit = 512;

// Cuts the title to its first kTitleLimit code units.
void cutTitleToLimit(std::wstring& title);

// Whether the text holds a code point of the CJK ideograph blocks (kana,
// Hangul, compatibility ideographs and CJK punctuation do not count).
bool holdsChineseCodePoint(const std::wstring& text);

// Whether the Chinese family runs before the word-language family: only for
// a language code containing "zh" or "en", and then only when the title,
// with its full-width commas removed, holds a Chinese code point.
bool runsChineseFirst(const std::wstring& title, const std::wstring& language);

// One recognised string with its stray leading and trailing commas taken
// off; the asymmetric rules are the ones hosts have always seen.
std::wstring cleanRecognizedString(std::wstring entry);

// isAllDay from the reminder texts, read in their present order.
bool isAllDayFromReminders(const std::list<std::wstring>& reminders);

}  // namespace nlpdate
