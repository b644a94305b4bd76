#pragma once

#include "tarnmodel/search/OVNoteSearchToken.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The search string as it is compiled: without white space at its ends, without control and format characters (but
/// U+200D), separators of lines and paragraphs as blanks. Line feeds and tabs go without a trace: the words on both
/// sides become one.
std::string cleanedSearchString(std::string_view string);

/// The quoted phrases of a cleaned search string in their order, then its tags in theirs.
std::vector<OVNoteSearchToken> tokensOfSearchString(std::string_view cleaned, bool ocr);

/// Gives for a location what `OVNoteSearchToken::tokenForLocation` gives, in a few steps however many tokens there are.
///
/// Borrows the list: tokens of phrases in the order of their locations, then those of tags. Neither kind overlaps
/// itself.
class TokenIndex {
public:
    explicit TokenIndex(std::vector<OVNoteSearchToken>& tokens);
    OVNoteSearchToken* tokenForLocation(std::uint64_t location) const;

private:
    std::vector<OVNoteSearchToken>& tokens_;
    std::size_t firstOfSecondKind_;
};

/// Turns one search string into the text of a predicate.
///
/// Time and memory grow with the length of the string. Use once.
///
///     std::string text = SearchCompiler("apple -pear", false).predicateText();
class SearchCompiler {
public:
    SearchCompiler(std::string_view searchString, bool ocr);

    /// One flat text of clauses and joins, to be parsed; empty when the string asks for nothing.
    std::string predicateText();

private:
    void takeWord(const std::string& word);
    void takeFreeWord(std::string_view word);
    void takeToken(OVNoteSearchToken& token);
    void join();
    void applySwitches();

    std::string cleaned_;
    bool ocr_;
    std::string result_;
    std::string_view conjunction_;
    bool andNext_ = true;
    bool titleOnly_ = false;
    bool ocrOnly_ = false;
};

} // namespace tarn
