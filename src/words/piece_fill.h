// Pattern texts are kept as written, with named pieces in «» that stand for
// vocabulary values or smaller patterns; this fills them in at call time.
#pragma once

#include <map>
#include <string>

namespace nlpdate {

using PatternPieces = std::map<std::wstring, std::wstring>;

// Replaces every «name» of text by pieces[name]. A name with no piece is a
// programming slip and throws std::logic_error, which parse turns into "".
std::wstring fillPieces(const std::wstring& text, const PatternPieces& pieces);

}  // namespace nlpdate
