#include "tarnmodel/notes/NotePredicates.h"

#include "tarnmodel/platform/predicate/NSPredicate.h"

namespace tarn {

namespace {

constexpr std::size_t kShortestBeginning = 8;
constexpr std::size_t kIdentifierLength = 36;

/// The text in upper case when it could be (the beginning of) an identifier, else "".
std::string beginningOfUUID(std::string_view text)
{
    if (text.size() < kShortestBeginning || text.size() > kIdentifierLength)
        return {};
    std::string beginning;
    for (const char character : text) {
        if (character >= 'a' && character <= 'f')
            beginning += static_cast<char>(character - 'a' + 'A');
        else if ((character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') || character == '-')
            beginning += character;
        else
            return {};
    }
    return beginning;
}

} // namespace

NSPredicate predicateForTitlesOrUUIDs(const std::vector<std::string>& titlesOrUUIDs)
{
    std::vector<NSPredicate> alternatives;
    alternatives.reserve(titlesOrUUIDs.size());
    for (const std::string& name : titlesOrUUIDs)
        alternatives.push_back(
            NSPredicate::predicateWithFormat("title ==[cd] %@ OR uniqueIdentifier == %@", name, name));
    return NSPredicate::orPredicateWithSubpredicates(alternatives);
}

std::optional<NSPredicate> predicateForBeginningOfUUID(std::string_view text)
{
    const std::string beginning = beginningOfUUID(text);
    if (beginning.empty())
        return std::nullopt;
    const bool isWhole = beginning.size() == kIdentifierLength; // which an index finds
    return NSPredicate::predicateWithFormat(
        isWhole ? "uniqueIdentifier == %@" : "uniqueIdentifier BEGINSWITH %@", beginning);
}

} // namespace tarn
