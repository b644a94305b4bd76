#include "tarnmodel/store/Model2toModel3OVNoteMigrationPolicy.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/store/MigrationPolicies.h"
#include "tests/corvel/RandomMarkdown.h"
#include "tests/store/PolicyProbe.h"
#include "tests/store/StoreRows.h"
#include "tests/support/GoldenStore.h"

#include <array>
#include <map>
#include <set>

namespace tarn {
namespace {

// The function ----------------------------------------------------------------------------------------------------

class HasSourceCode : public testing::Test {
protected:
    Value of(const std::vector<Value>& arguments, std::string_view name = "hasSourceCode")
    {
        return policy_.valueOfFunction(name, arguments, mapping_);
    }
    bool ofText(std::string_view text) { return of({Value(text)}).asBool(); }
    static bool parserFindsIt(std::string_view text)
    {
        return CVKAST::fromMarkdown(text).textSummary().codeBlockCount > 0;
    }

    Model2toModel3OVNoteMigrationPolicy policy_;
    NSEntityMapping mapping_;
};

TEST_F(HasSourceCode, FindsFencedAndIndentedBlocks)
{
    EXPECT_TRUE(ofText("```\ncode\n```"));
    EXPECT_TRUE(ofText("# Title\n\n~~~~\ncode"));
    EXPECT_TRUE(ofText("# Title\n\n    code"));
    EXPECT_TRUE(ofText("\tcode"));
    EXPECT_TRUE(ofText("- item\n\n      code of the item"));
    EXPECT_TRUE(ofText(">     code"));
    EXPECT_TRUE(ofText(">\t\tcode"));
}

TEST_F(HasSourceCode, IsNotDeceived)
{
    EXPECT_FALSE(ofText(""));
    EXPECT_FALSE(ofText("`code` and ```code``` in a line"));
    EXPECT_FALSE(ofText("a paragraph\n    goes on"));
    EXPECT_FALSE(ofText("- one\n    - two\n        - three"));
    EXPECT_FALSE(ofText("a\tb    c"));
    EXPECT_FALSE(ofText("``\n~~\n   three blanks"));
}

TEST_F(HasSourceCode, IsFalseWithoutAText)
{
    EXPECT_EQ(of({Value()}), Value(false));
}

TEST_F(HasSourceCode, IsTheOnlyFunctionAndTakesATextAlone)
{
    EXPECT_THROW(of({Value("text")}, "hasSourcecode"), NSException);
    EXPECT_THROW(of({}), NSException);
    EXPECT_THROW(of({Value(1)}), NSException);
    EXPECT_THROW(of({Value("text"), Value("text")}), NSException);
}

// Texts that are not parsed must have no block of code; so what the parser says of any text is compared.
TEST_F(HasSourceCode, SaysWhatTheParserSaysOfRandomTexts)
{
    constexpr std::array<std::string_view, 26> kBlanksAndFences{" ", " ", "  ", "   ", "\t", "\n", "\n\n", "\r\n", "\r",
        "`", "``", "~", "~~", "`` `", ">", "> ", "- ", "-", "1. ", "1)", "x", "# ", "[a]: b\n", "<div>\n", "\xC2\xA0",
        "\\"};
    const std::array pieceLists{std::span<const std::string_view>(kBlanksAndFences), commonMarkPieces(), notePieces()};
    std::map<bool, std::size_t> counts;
    for (const auto& pieces : pieceLists) {
        RandomMarkdown random(20'261'122, pieces);
        for (std::size_t i = 0; i < fuzzCount(20'000); ++i) {
            const std::string text = random.text(14);
            ASSERT_EQ(ofText(text), parserFindsIt(text)) << testing::PrintToString(text);
            ++counts[parserFindsIt(text)];
        }
    }
    EXPECT_GT(counts[true], 1'000U);
    EXPECT_GT(counts[false], 1'000U);
}

// The hook --------------------------------------------------------------------------------------------------------

/// What came to the policies of a test, of which the object store makes its own.
struct SeenByVersion3 {
    std::size_t notes = 0;
    std::map<std::int64_t, std::size_t> tagsByNote;
    std::set<std::string> modelVersions;
};
SeenByVersion3 seenByVersion3;

class ProbeOfVersion3 : public Model2toModel3OVNoteMigrationPolicy {
protected:
    void migrateNote(MigrationRecord& note) override
    {
        ++seenByVersion3.notes;
        seenByVersion3.tagsByNote[note.objectID().key()] = note.relatedObjectIDs("tags").size();
        seenByVersion3.modelVersions.insert(note.entity().model().versionIdentifier());
        note.setValueForKey("lastEditingDevice", "the hook");
        Model2toModel3OVNoteMigrationPolicy::migrateNote(note);
    }
};

/// Asks for relationships of a mapping that is not there before those of the note's own.
class ProbeOfAFailure : public ProbeOfVersion3 {
public:
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        NSError failure;
        EXPECT_FALSE(ProbeOfVersion3::createRelationshipsForDestinationInstance(
            destination, NSEntityMapping(), manager, &failure));
        EXPECT_NE(failure, NSError()) << "what is inherited says why";
        return ProbeOfVersion3::createRelationshipsForDestinationInstance(destination, mapping, manager, error);
    }
};

class PolicyOfVersion3 : public PolicyProbe {
protected:
    PolicyOfVersion3() : PolicyProbe("Model 2", "Model 3")
    {
        registerMigrationPolicies();
        NSEntityMigrationPolicy::registerClass<ProbeOfVersion3>("ProbeOfVersion3");
        NSEntityMigrationPolicy::registerClass<ProbeOfAFailure>("ProbeOfAFailure");
        seenByVersion3 = {};
        makeGoldenStore(source_, "Model 2");
    }
};

TEST_F(PolicyOfVersion3, HandsOverEachNoteThatIsTiedToOthers)
{
    replace("\"Model2toModel3OVNoteMigrationPolicy\"", "\"ProbeOfVersion3\"");
    NSError error;
    ASSERT_TRUE(migrate(&error)) << error;

    const StoreRows before = StoreRows::ofFile(source_);
    const StoreRows after = StoreRows::ofFile(destination_);
    EXPECT_EQ(seenByVersion3.notes, before.tables.at("OVNote").size());
    EXPECT_EQ(seenByVersion3.modelVersions, std::set<std::string>{"Model 3"});
    for (const auto& [key, row] : after.tables.at("OVNote"))
        EXPECT_EQ(row.at("lastEditingDevice"), "'the hook") << key;
    std::map<std::int64_t, std::size_t> tagsByNote;
    for (const auto& [key, row] : after.tables.at("OVNote"))
        tagsByNote[key] = 0;
    for (const auto& [note, tag] : after.joins.at("OVNote_tags"))
        ++tagsByNote[note];
    EXPECT_EQ(seenByVersion3.tagsByNote, tagsByNote);
}

TEST_F(PolicyOfVersion3, HandsOverNotesThatCouldNotBeTiedToo)
{
    replace("\"Model2toModel3OVNoteMigrationPolicy\"", "\"ProbeOfAFailure\"");
    NSError error;
    ASSERT_TRUE(migrate(&error)) << error;
    EXPECT_EQ(seenByVersion3.notes, 2 * StoreRows::ofFile(source_).tables.at("OVNote").size());
}

} // namespace
} // namespace tarn
