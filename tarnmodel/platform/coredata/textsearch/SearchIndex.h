#pragma once

#include "tarnmodel/platform/coredata/textsearch/SignatureMirror.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace tarn {

class SQLiteConnection;
class StringTest;

/// The signatures of a store in memory, attribute by attribute. Any thread.
class SearchIndex {
public:
    /// Reads nothing yet. The schema outlives it.
    explicit SearchIndex(const StoreSchema& schema);

    /// Null for an attribute without signatures.
    SignatureMirror* mirror(const NSAttributeDescription& attribute) const;
    const std::vector<std::unique_ptr<SignatureMirror>>& mirrors() const noexcept { return mirrors_; }

private:
    std::vector<std::unique_ptr<SignatureMirror>> mirrors_;
    std::map<const NSAttributeDescription*, SignatureMirror*> byAttribute_;
};

/// What the index says during one transaction, each question asked once. One thread.
class SearchIndexReader {
public:
    SearchIndexReader(const SearchIndex& index, SQLiteConnection& connection) : index_(index), connection_(connection)
    { }

    /// The rows of the attribute's table that the test may hold for; null when nothing is known.
    PrimaryKeySetPtr rowsThatMayMatch(const NSAttributeDescription& attribute, const StringTest& test);
    /// Rows with that attribute; 0 when it has no signatures or was not asked for.
    std::size_t rowCount(const NSAttributeDescription& attribute) const;
    const SearchIndex& index() const noexcept { return index_; }

private:
    /// A question looks through all signatures; a search of very many words asks for the first of them only.
    static constexpr std::size_t kMostQuestions = 48;

    const SearchIndex& index_;
    SQLiteConnection& connection_;
    std::map<std::pair<const NSAttributeDescription*, std::string>, PrimaryKeySetPtr> answers_;
};

} // namespace tarn
