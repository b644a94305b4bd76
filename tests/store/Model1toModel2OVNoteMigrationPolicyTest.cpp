#include "tarnmodel/store/Model1toModel2OVNoteMigrationPolicy.h"

#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/store/MigrationPolicies.h"
#include "tests/store/PolicyProbe.h"
#include "tests/store/StoreRows.h"
#include "tests/support/GoldenStore.h"

#include <algorithm>

namespace tarn {
namespace {

/// What came to the policies of a test, of which the object store makes its own.
struct SeenByVersion2 {
    std::vector<NSManagedObjectID> notes;
    std::vector<std::string> modelVersions;
};
SeenByVersion2 seenByVersion2;

class ProbeOfVersion2 : public Model1toModel2OVNoteMigrationPolicy {
public:
    Value valueOfFunction(std::string_view, std::span<const Value>, const NSEntityMapping&) override
    {
        return Value(NSData::fromText("no title"));
    }

protected:
    void migrateNote(MigrationRecord& note) override
    {
        seenByVersion2.notes.push_back(note.objectID());
        seenByVersion2.modelVersions.push_back(note.entity().model().versionIdentifier());
        note.setValueForKey("lastEditingDevice", "the hook");
        Model1toModel2OVNoteMigrationPolicy::migrateNote(note);
    }
};

/// Makes a note of its own before the one that is inherited.
class ProbeOfTwoNotes : public ProbeOfVersion2 {
public:
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        const NSManagedObjectID first = manager.insertDestinationInstance(mapping, "OVNote", source).objectID();
        if (!ProbeOfVersion2::createDestinationInstancesForSourceInstance(source, mapping, manager, error))
            return false;
        const auto made = manager.destinationInstancesForEntityMappingNamed(mapping.name(), source.objectID());
        EXPECT_EQ(made.size(), 2U);
        EXPECT_EQ(made.front(), first);
        EXPECT_EQ(seenByVersion2.notes.back(), made.back());
        return true;
    }
};

class PolicyOfVersion2 : public PolicyProbe {
protected:
    PolicyOfVersion2() : PolicyProbe("Model", "Model 2")
    {
        registerMigrationPolicies();
        NSEntityMigrationPolicy::registerClass<ProbeOfVersion2>("ProbeOfVersion2");
        NSEntityMigrationPolicy::registerClass<ProbeOfTwoNotes>("ProbeOfTwoNotes");
        seenByVersion2 = {};
        makeGoldenStore(source_, "Model");
    }
    void usePolicy(std::string_view name) { replace("\"Model1toModel2OVNoteMigrationPolicy\"", name); }
};

TEST_F(PolicyOfVersion2, HandsOverEachNoteThatIsMade)
{
    usePolicy("\"ProbeOfVersion2\"");
    NSError error;
    ASSERT_TRUE(migrate(&error)) << error;

    const StoreRows before = StoreRows::ofFile(source_);
    const StoreRows after = StoreRows::ofFile(destination_);
    EXPECT_EQ(seenByVersion2.notes.size(), before.tables.at("OVNote").size());
    EXPECT_TRUE(
        std::ranges::all_of(seenByVersion2.modelVersions, [](const auto& version) { return version == "Model 2"; }));
    for (const auto& [key, row] : after.tables.at("OVNote"))
        EXPECT_EQ(row.at("lastEditingDevice"), "'the hook") << key;
}

TEST_F(PolicyOfVersion2, HandsOverTheLastOneOfSeveral)
{
    usePolicy("\"ProbeOfTwoNotes\"");
    NSError error;
    ASSERT_TRUE(migrate(&error)) << error;
    EXPECT_EQ(seenByVersion2.notes.size(), StoreRows::ofFile(source_).tables.at("OVNote").size());
    EXPECT_EQ(StoreRows::ofFile(destination_).tables.at("OVNote").size(), 2 * seenByVersion2.notes.size());
}

TEST_F(PolicyOfVersion2, HandsOverNothingThatCouldNotBeMade)
{
    usePolicy("\"ProbeOfVersion2\"");
    replace(R"json({"name": "shownInTodayWidget", "value": "$default"})json",
        R"json({"name": "shownInTodayWidget", "value": "$default"},
           {"name": "title", "value": "FUNCTION($entityPolicy, 'title')"})json");
    NSError error;
    EXPECT_FALSE(migrate(&error));
    EXPECT_TRUE(seenByVersion2.notes.empty());
    EXPECT_FALSE(std::filesystem::exists(destination_));
}

} // namespace
} // namespace tarn
