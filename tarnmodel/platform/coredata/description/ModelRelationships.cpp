#include "tarnmodel/platform/coredata/description/ModelReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

namespace tarn {
namespace {

[[noreturn]] void failAt(const std::string& place, std::string_view what)
{
    throw ModelError(fmt::format("{}: {}", place, what));
}

} // namespace

void ModelReader::tieRelationships()
{
    std::map<const NSRelationshipDescription*, const ModelFile::Relationship*> declarations;
    for (auto [declared, made] : relationships_) {
        declarations.emplace(made, declared);
        made->destination_ = entity(declared->destination);
    }
    for (auto [declared, made] : relationships_) {
        const std::string& declaring = made->declaringEntity().name();
        const std::string place = fmt::format("entity \"{}\", relationship \"{}\"", declaring, made->name_);
        if (!made->destination_)
            failAt(place, fmt::format("unknown destination \"{}\"", declared->destination));
        const NSRelationshipDescription* inverse = made->destination_->relationshipNamed(declared->inverse);
        if (!inverse || inverse == made)
            failAt(place,
                fmt::format("\"{}\" has no other relationship \"{}\"", declared->destination, declared->inverse));
        const ModelFile::Relationship& back = *declarations.at(inverse);
        const bool mutual = back.inverse == made->name_ && back.destination == declaring
            && &inverse->declaringEntity() == made->destination_;
        if (!mutual)
            failAt(place, fmt::format("\"{}\" is not its inverse in turn", declared->inverse));
        made->inverse_ = inverse;
        setStorage(*made, *declared, back, place);
    }
}

void ModelReader::setStorage(NSRelationshipDescription& relationship, const ModelFile::Relationship& declared,
    const ModelFile::Relationship& inverse, const std::string& place)
{
    const bool oneToOne = !declared.toMany && !inverse.toMany;
    const bool manyToMany = declared.toMany && inverse.toMany;
    if (oneToOne && declared.column == inverse.column)
        failAt(place, "exactly one end of a one-to-one pair has the column");
    if (!oneToOne && declared.column)
        failAt(place, "\"column\" is for one-to-one pairs only");
    if (manyToMany && declared.owner == inverse.owner)
        failAt(place, "exactly one end of a many-to-many pair is the owner");
    if (!manyToMany && declared.owner)
        failAt(place, "\"owner\" is for many-to-many pairs only");

    relationship.ownsJoinTable_ = declared.owner;
    if (manyToMany)
        relationship.storage_ = RelationshipStorage::JoinTable;
    else if (declared.toMany || (oneToOne && !declared.column))
        relationship.storage_ = RelationshipStorage::InverseColumn;
    else
        relationship.storage_ = RelationshipStorage::Column;
}

} // namespace tarn
