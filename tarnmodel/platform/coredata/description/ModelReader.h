#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/description/ModelFile.h"

#include <memory>
#include <string>
#include <string_view>

namespace tarn {

/// Builds a model from the declarations of its file: ties entities, parents and inverses together and checks them.
///
///     auto model = ModelReader::read(parseModelFile(text));
class ModelReader {
public:
    /// Throws `ModelError` that names the place.
    static std::shared_ptr<NSManagedObjectModel> read(const ModelFile& file);

private:
    explicit ModelReader(const ModelFile& file);

    // Entities and properties (ModelReader.cpp)
    void makeEntities();
    void tieParents();
    void makeProperties();
    void collectProperties(NSEntityDescription& entity);
    void checkColumnNames() const;
    void checkCompanions() const;
    void addIndexes();
    void setMasks();
    void setMergeGroups(NSEntityDescription& entity) const;
    static void noteAttribute(NSEntityDescription& entity, const NSAttributeDescription& attribute);
    static void noteRelationship(NSEntityDescription& entity, const NSRelationshipDescription& relationship);
    NSAttributeDescription& makeAttribute(const ModelFile::Attribute& declared, const NSEntityDescription& entity);
    NSRelationshipDescription& makeRelationship(
        const ModelFile::Relationship& declared, const NSEntityDescription& entity);
    NSEntityDescription* entity(std::string_view name) const;

    // Relationships (ModelRelationships.cpp)
    void tieRelationships();
    void setStorage(NSRelationshipDescription& relationship, const ModelFile::Relationship& declared,
        const ModelFile::Relationship& inverse, const std::string& place);

    // Hashes (ModelHashes.cpp)
    void setVersionHashes();

    const ModelFile& file_;
    std::shared_ptr<NSManagedObjectModel> model_;
    /// The relationships that the file declares, in its order, beside what was made of them.
    std::vector<std::pair<const ModelFile::Relationship*, NSRelationshipDescription*>> relationships_;
};

} // namespace tarn
