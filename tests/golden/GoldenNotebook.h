#pragma once

#include "tests/support/StoreFixture.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

/// Fills a store with the notes of somebody who used an older version of the model for years: whatever that version
/// knew occurs, and everything that follows from texts is what the library derives.
class GoldenNotebook {
public:
    /// `version` is 1 or 2.
    GoldenNotebook(TestStore& store, int version) : store_(store), version_(version) { }

    void write();

private:
    void writeTexts();
    void writeLinks();
    void writeTwins();
    void writeAttachments();
    void setStates();
    void setTags();
    void tieToServer();
    void pinInTags();
    void protect();
    OVNote& noteMadeAt(std::string_view text, std::int64_t secondsSince2015);

    TestStore& store_;
    int version_;
    std::vector<OVNote*> notes_; ///< the everyday ones
};

} // namespace tarn
