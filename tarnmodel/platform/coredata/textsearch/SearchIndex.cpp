#include "tarnmodel/platform/coredata/textsearch/SearchIndex.h"

#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"
#include "tarnmodel/platform/predicate/StringTest.h"

namespace tarn {

namespace {

/// More of them hardly leave out another row.
constexpr std::size_t kMostGrams = 48;

} // namespace

SearchIndex::SearchIndex(const StoreSchema& schema)
{
    for (const auto& table : schema.tables()) {
        for (const auto& signature : table->signatures) {
            mirrors_.push_back(std::make_unique<SignatureMirror>(*signature));
            byAttribute_.emplace(signature->attribute, mirrors_.back().get());
        }
    }
}

SignatureMirror* SearchIndex::mirror(const NSAttributeDescription& attribute) const
{
    const auto found = byAttribute_.find(&attribute);
    return found == byAttribute_.end() ? nullptr : found->second;
}

PrimaryKeySetPtr SearchIndexReader::rowsThatMayMatch(const NSAttributeDescription& attribute, const StringTest& test)
{
    SignatureMirror* mirror = index_.mirror(attribute);
    const auto literal = test.foldedLiteral();
    if (!mirror || !literal)
        return nullptr;
    auto question = std::make_pair(&attribute, std::string(*literal));
    const auto known = answers_.find(question);
    if (known != answers_.end())
        return known->second;
    if (answers_.size() >= kMostQuestions)
        return nullptr;
    PrimaryKeySetPtr answer = mirror->rowsWithGrams(connection_, gramHashesOfNeedle(*literal, kMostGrams));
    answers_.emplace(std::move(question), answer);
    return answer;
}

std::size_t SearchIndexReader::rowCount(const NSAttributeDescription& attribute) const
{
    const SignatureMirror* mirror = index_.mirror(attribute);
    return mirror ? mirror->rowCount() : 0;
}

} // namespace tarn
