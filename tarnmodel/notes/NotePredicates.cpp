#include "tarnmodel/notes/NotePredicates.h"

#include "tarnmodel/platform/predicate/NSPredicate.h"

namespace tarn {

NSPredicate predicateForTitlesOrUUIDs(const std::vector<std::string>& titlesOrUUIDs)
{
    std::vector<NSPredicate> alternatives;
    alternatives.reserve(titlesOrUUIDs.size());
    for (const std::string& name : titlesOrUUIDs)
        alternatives.push_back(
            NSPredicate::predicateWithFormat("title ==[cd] %@ OR uniqueIdentifier == %@", name, name));
    return NSPredicate::orPredicateWithSubpredicates(alternatives);
}

} // namespace tarn
