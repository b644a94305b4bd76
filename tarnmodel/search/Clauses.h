#pragma once

#include <string>
#include <string_view>

namespace tarn {

// The clauses of a compiled search in their canonical form, without parentheses around. `ocr` is whether the recognised
// text of attachments is looked at as well.

/// Notes that contain the word, protected ones in their title.
std::string freeTextClause(std::string_view word, bool ocr);
/// The same for a phrase that stood in quotes.
std::string quotedPhraseClause(std::string_view phrase, bool ocr);
/// Notes in which the word stands between characters that belong to no word.
std::string quotedWordClause(std::string_view word, bool ocr);
/// Notes with a tag of this name, and notes without.
std::string tagClause(std::string_view name);
std::string negatedTagClause(std::string_view name);
/// Notes with a tag whose path contains this.
std::string subtagPathClause(std::string_view path);
/// Notes with a tag whose path contains the name, but none whose path goes on below it.
std::string tagWithoutSubtagsClause(std::string_view name);

} // namespace tarn
