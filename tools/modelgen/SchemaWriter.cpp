#include "tools/modelgen/SchemaWriter.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tools/modelgen/GeneratedNames.h"

#include <fmt/format.h>

#include <array>

namespace tarn::modelgen {
namespace {

// By NSAttributeType.
constexpr std::array<std::string_view, 7> kTypeNames{
    "flag", "16-bit number", "64-bit number", "floating-point number", "string", "date", "data"};
// By NSDeleteRule.
constexpr std::array<std::string_view, 4> kDeleteRules{
    "nothing", "taken out of it", "deleted too", "refuses while there are any"};

std::string groupNote(const NSPropertyDescription& property)
{
    return std::string(property.leadsGroup() ? "leads the " : "")
        + (property.group() == PropertyGroup::Text ? "text group" : "encryption group");
}

std::string attributeNotes(const NSAttributeDescription& attribute)
{
    std::string notes;
    auto add = [&](std::string_view note) { notes += fmt::format("{}{}", notes.empty() ? "" : ", ", note); };
    if (attribute.isLarge())
        add("large");
    if (attribute.isIndexed())
        add("indexed");
    if (attribute.isFolded())
        add("indexed folded");
    if (attribute.isSubstringIndexed())
        add("signature");
    if (!attribute.companion().empty())
        add(fmt::format("dated by `{}`", attribute.companion()));
    if (attribute.group() != PropertyGroup::None)
        add(groupNote(attribute));
    return notes;
}

std::string attributeTable(const NSEntityDescription& entity)
{
    if (ownAttributes(entity).empty())
        return "\nNo attributes of its own.\n";
    std::string text = "\n| Attribute | Type | Meaning | Kept |\n|---|---|---|---|\n";
    for (const NSAttributeDescription* attribute : ownAttributes(entity))
        text += fmt::format("| `{}` | {} | {} | {} |\n", attribute->name(),
            kTypeNames[static_cast<std::size_t>(attribute->type())], attribute->documentation(),
            attributeNotes(*attribute));
    return text;
}

std::string relationshipKeeping(const NSRelationshipDescription& relationship)
{
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    std::string place;
    switch (relationship.storage()) {
    case RelationshipStorage::Column:
        place = "column";
        break;
    case RelationshipStorage::InverseColumn:
        place = fmt::format("column of `{}`", inverse.declaringEntity().name());
        break;
    case RelationshipStorage::JoinTable: {
        const NSRelationshipDescription& owner = relationship.ownsJoinTable() ? relationship : inverse;
        place = fmt::format("join rows of `{}.{}`", owner.declaringEntity().name(), owner.name());
        break;
    }
    }
    return relationship.group() == PropertyGroup::None ? place : place + ", " + groupNote(relationship);
}

std::string relationshipTable(const NSEntityDescription& entity)
{
    if (ownRelationships(entity).empty())
        return "";
    std::string text
        = "\n| Relationship | To | Meaning | When this record goes, the other is | Kept |\n|---|---|---|---|---|\n";
    for (const NSRelationshipDescription* relationship : ownRelationships(entity))
        text += fmt::format("| `{}` | {} `{}`, inverse `{}` | {} | {} | {} |\n", relationship->name(),
            relationship->isToMany() ? "many" : "one", relationship->destinationEntity().name(),
            relationship->inverseRelationship().name(), relationship->documentation(),
            kDeleteRules[static_cast<std::size_t>(relationship->deleteRule())], relationshipKeeping(*relationship));
    return text;
}

/// A CREATE TABLE statement broken before each column.
std::string oneColumnALine(std::string_view statement)
{
    std::string text;
    int depth = 0;
    for (std::size_t position = 0; position < statement.size(); ++position) {
        const char character = statement[position];
        depth += character == '(' ? 1 : character == ')' ? -1 : 0;
        text += character;
        const bool opens = character == '(' && depth == 1;
        const bool separates = character == ',' && depth == 1;
        if (opens || separates)
            text += "\n  ";
        if (separates && position + 1 < statement.size() && statement[position + 1] == ' ')
            ++position;
    }
    return text;
}

std::string indexList(const NSEntityDescription& entity)
{
    std::string text;
    for (const IndexDescription& index : entity.indexes()) {
        std::string columns;
        for (const IndexDescription::Column& column : index.columns)
            columns += fmt::format(
                "{}`{}`{}", columns.empty() ? "" : ", ", column.property, column.descending ? " descending" : "");
        text += fmt::format("\nIndex over {}.\n", columns);
    }
    return text;
}

/// The statements as they run, one column a line.
std::string statements(const NSManagedObjectModel& model)
{
    const StoreSchema schema(model);
    std::string text;
    for (const std::string& statement : schema.creationStatements()) {
        if (!text.empty() && statement.starts_with("CREATE TABLE"))
            text += '\n';
        text += (statement.starts_with("CREATE TABLE") ? oneColumnALine(statement) : statement) + ";\n";
    }
    return text;
}

} // namespace

std::string schemaDocument(const NSManagedObjectModel& model)
{
    std::string text = fmt::format(R"(# Records of the store

Written from the model "{}" by `schemagen`; do not edit, but build the target `schema_document`.

- *large*: kept apart from the row and read when first asked for.
- *indexed*: for `==` and `IN`; *indexed folded*: for `==[cd]` and `BEGINSWITH[cd]`; *signature*: for `CONTAINS[cd]`.
- *dated by*: that date says when the attribute was last set.
- *text group*: belongs to a note's text; *encryption group*: what is encrypted, and what it can be read with. A merge takes a whole group
  from one side: from the only one that changed what *leads* it, else from the one that the merge policy prefers. An attribute and the
  date that dates it go together likewise.
- Flags start as false and numbers as 0; everything else starts empty, and everything may be empty.
)",
        model.versionIdentifier());
    for (const NSEntityDescription* entity : model.entities()) {
        text += fmt::format("\n## {}\n\n{}\n", entity->name(), entity->documentation());
        if (const NSEntityDescription* parent = entity->superentity())
            text += fmt::format("A kind of `{}`, with all that it has.\n", parent->name());
        if (entity->isAbstract())
            text += "Abstract: what is made is one of its kinds.\n";
        text += attributeTable(*entity) + relationshipTable(*entity) + indexList(*entity);
    }
    text += "\n## Tables\n\nHow the records lie in SQLite, as a new store is made:\n\n```sql\n";
    return text + statements(model) + "```\n";
}

} // namespace tarn::modelgen
