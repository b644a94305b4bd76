#pragma once

#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tests/search/SearchCases.h"
#include "tests/support/StoreFixture.h"

#include <map>

namespace tarn {

/// The library of tests/cases/search-notes.cases in a store of its own. Making one takes a few milliseconds, so tests
/// that only read share it.
class SearchLibrary : private TestStore {
public:
    explicit SearchLibrary(StoreType type);

    /// The names of the notes that the predicate finds in the store, sorted.
    std::vector<std::string> hits(const std::optional<NSPredicate>& predicate);
    /// The names that a case file lists: "-", "all but ...", or a list; sorted.
    std::vector<std::string> namesInList(std::string_view list) const;
    using TestStore::problems;

private:
    void addNote(const SearchCase& block);
    void addDetails(OVNote& note, const SearchCase& block);

    std::map<std::string, OVNote*> notes_;
    std::map<std::string, std::string> namesByIdentifier_;
};

} // namespace tarn
