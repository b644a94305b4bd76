#include "tarnmodel/store/Model2toModel3OVNoteMigrationPolicy.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/foundation/text/ByteSearch.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <array>
#include <string>

namespace tarn {

namespace {

/// Every block of code has one of these: it is fenced, or indented by four columns of blanks, of which a tab may be
/// some.
constexpr std::array<std::string_view, 4> kSignsOfCode{"```", "~~~", "    ", "\t"};

/// Most texts have none of them and need not be parsed.
bool mayHaveSourceCode(std::string_view text)
{
    return std::ranges::any_of(kSignsOfCode, [&](std::string_view sign) { return containsBytes(text, sign); });
}

bool hasSourceCode(const std::string& text)
{
    return mayHaveSourceCode(text) && CVKAST::fromMarkdown(text).textSummary().codeBlockCount != 0;
}

} // namespace

bool Model2toModel3OVNoteMigrationPolicy::createRelationshipsForDestinationInstance(
    MigrationRecord& destination, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error)
{
    const bool created
        = NSEntityMigrationPolicy::createRelationshipsForDestinationInstance(destination, mapping, manager, error);
    migrateNote(destination);
    return created;
}

Value Model2toModel3OVNoteMigrationPolicy::valueOfFunction(
    std::string_view name, std::span<const Value> arguments, const NSEntityMapping& mapping)
{
    if (name != "hasSourceCode")
        return NSEntityMigrationPolicy::valueOfFunction(name, arguments, mapping);
    const bool takesIt = arguments.size() == 1 && (arguments[0].isNil() || arguments[0].kind() == Value::Kind::String);
    if (!takesIt)
        throw NSException(NSInvalidArgumentException, "hasSourceCode takes one text");
    return arguments[0].isNil() ? Value(false) : Value(hasSourceCode(arguments[0].asString()));
}

void Model2toModel3OVNoteMigrationPolicy::migrateNote(MigrationRecord& note)
{
    OVNote::migrateManagedObjectToVersion3(note);
}

} // namespace tarn
