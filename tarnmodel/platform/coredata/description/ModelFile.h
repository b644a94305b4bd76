#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What is wrong with a model file, and where: "entity "OVNote", attribute "title": unknown type "text"".
class ModelError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The declarations of a model file as they are written: well-formed one by one, not yet tied to each other.
struct ModelFile {
    struct Attribute {
        std::string name;
        std::string documentation;
        NSAttributeType type = NSAttributeType::String;
        Value defaultValue;
        bool optional = true;
        bool large = false;
        bool indexed = false;
        bool folded = false;
        bool substringIndexed = false;
        bool flagIndexed = false;
        bool leadsGroup = false;
        PropertyGroup group = PropertyGroup::None;
        std::string companion;
    };
    struct Relationship {
        std::string name;
        std::string documentation;
        std::string destination;
        std::string inverse;
        NSDeleteRule deleteRule = NSDeleteRule::Nullify;
        bool toMany = false;
        bool optional = true;
        PropertyGroup group = PropertyGroup::None;
        bool column = false; ///< of a one-to-one pair: this end has the foreign key
        bool owner = false;  ///< of a many-to-many pair: this end writes the join rows
    };
    struct Entity {
        std::string name;
        std::string documentation;
        std::string parent;
        bool abstract = false;
        std::vector<Attribute> attributes;
        std::vector<Relationship> relationships;
        std::vector<IndexDescription> indexes;
    };

    std::string version;
    std::vector<Entity> entities;
};

/// Reads the JSON text of a model file; comments are allowed in it. Throws `ModelError` that names the place.
ModelFile parseModelFile(std::string_view text);

} // namespace tarn
