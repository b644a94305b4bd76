#pragma once

#include "tests/platform/coredata/StoreFixture.h"

#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Documents with labels and pictures, some of them without title, body or caption, all from one seed.
struct RandomDocuments {
    std::function<std::string(std::size_t words)> text;
    std::vector<std::string> labels;
    std::int64_t documents = 0;
    std::int64_t pictures = 0;
    std::int64_t joins = 0; ///< of a document and a label, some of them twice
};

/// The same rows in both stores, which are empty.
void insertAtRandom(
    const RandomDocuments& wanted, std::mt19937_64& random, const OpenStore& sql, const OpenStore& memory);

/// The expression by which a quoted word is searched for.
std::string wholeWordPattern(std::string_view word);
/// What the search field makes of a word, quoted or not, with attachments or without.
NSPredicate wordPredicate(const std::string& word, bool isQuoted, bool looksIntoAttachments);

} // namespace tarn
