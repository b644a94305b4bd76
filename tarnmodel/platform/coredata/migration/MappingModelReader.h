#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace tarn {

class Declaration;

/// Builds a mapping model from its file: ties it to the two models and checks that nothing is forgotten.
class MappingModelReader {
public:
    /// The versions that the text of a file names, before anything else is read. Throws `ModelError`.
    static std::pair<std::string, std::string> versionsOf(std::string_view text);
    /// Throws `ModelError` that names the place.
    static std::shared_ptr<const NSMappingModel> read(
        std::string_view text, const NSManagedObjectModel& source, const NSManagedObjectModel& destination);

private:
    MappingModelReader(const NSManagedObjectModel& source, const NSManagedObjectModel& destination);

    void readVersions(Declaration& declaration);
    void readEntity(const nlohmann::json& json);
    void readProperties(Declaration& declaration);
    void readMappings(Declaration& declaration, std::string_view key, std::vector<NSPropertyMapping>& mappings);
    void complete(const Declaration& declaration);
    void completeAttributes(const Declaration& declaration, bool keepsUnmentioned);
    void completeRelationships(const Declaration& declaration, bool keepsUnmentioned);
    void checkAttribute(
        const Declaration& declaration, const NSAttributeDescription& attribute, const MappingExpression& expression);
    void checkRelationship(const Declaration& declaration, const NSRelationshipDescription& relationship,
        const MappingExpression& expression);
    void checkFunction(const Declaration& declaration, const MappingExpression& expression);
    void checkNothingIsLost(const Declaration& declaration) const;
    void checkEntities() const;
    void checkTargets() const;
    void checkTarget(const NSEntityMapping& mapping, const NSPropertyMapping& property) const;
    void checkKeeper(const NSEntityMapping& mapping, const NSPropertyMapping& property) const;

    const NSManagedObjectModel& source_;
    const NSManagedObjectModel& destination_;
    std::shared_ptr<NSMappingModel> model_;

    // Of the entity mapping in hand.
    std::unique_ptr<NSEntityMapping> mapping_;
    const NSEntityDescription* from_ = nullptr;
    const NSEntityDescription* to_ = nullptr;
    std::set<std::string, std::less<>> used_; ///< keys of the source that something was made of
    std::set<std::string, std::less<>> dropped_;
};

} // namespace tarn
