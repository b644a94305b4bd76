#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/diagnosis/DiagnosisFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class StoreDoctorTest : public DiagnosisFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, StoreDoctorTest, everyStore(), storeName);

TEST_P(StoreDoctorTest, FindsAnEmptyStoreSound)
{
    EXPECT_TRUE(examine().isSound());
    EXPECT_TRUE(repair().isEmpty());
}

TEST_P(StoreDoctorTest, CountsAllFindingsAndKeepsTheFirst)
{
    for (const char* text : {"# A", "# B", "# C"})
        note(text).setTitle("Wrong");
    const StoreExamination examination = examine(2);
    EXPECT_EQ(examination.resultOf(StoreCheck::Title).count, 3U);
    EXPECT_THAT(examination.resultOf(StoreCheck::Title).findings, SizeIs(2));
    EXPECT_THAT(examination.notesToDerive, SizeIs(3));
}

TEST_P(StoreDoctorTest, WalksOverMoreNotesThanItHoldsAtATime)
{
    for (int number = 0; number < 1001; ++number)
        note("# " + std::to_string(number)).setTitle("Wrong");
    EXPECT_EQ(examine().resultOf(StoreCheck::Title).count, 1001U);
    EXPECT_EQ(repair().notes, 1001U);
    EXPECT_TRUE(examine().isSound());
}

TEST_P(StoreDoctorTest, PassesOverNotesThatAreGoneOrProtectedMeanwhile)
{
    for (const char* text : {"# A", "# B", "# C"})
        note(text).setTitle("Wrong " + std::string(text));
    const StoreExamination examination = examine();
    noteCalled("Wrong # A").permanentlyDelete();
    noteCalled("Wrong # B").setEncryptedValue(true);
    save();
    NSError error;
    const auto repairs = StoreDoctor(context()).repair(examination, &error);
    ASSERT_TRUE(repairs) << error;
    EXPECT_EQ(repairs->notes, 1U);
    EXPECT_THAT(titlesOf(all<OVNote>()), testing::UnorderedElementsAre("Wrong # B", "C"));
}

TEST_P(StoreDoctorTest, RefusesAContextThatIsNotForItAlone)
{
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
    child.setParentContext(context());
    EXPECT_THROW(StoreDoctor doctor(child), NSException);
    note("# Unsaved");
    EXPECT_THROW(StoreDoctor doctor(context()), NSException);
    save();
    EXPECT_NO_THROW(StoreDoctor doctor(context()));
}

class StoreDoctorOnAFile : public DiagnosisFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, StoreDoctorOnAFile, testing::Values(StoreType::SQLite), storeName);

TEST_P(StoreDoctorOnAFile, FindsAndRepairsTheIndexOfTexts)
{
    note("# One\n\npears");
    note("# Two\n\nplums");
    reopen();
    runSQL("UPDATE OVNote_text_signature SET signature = NULL WHERE pk = 1");
    runSQL("UPDATE OVNote_text_signature SET signature = substr(signature, 1, 4) || x'00' WHERE pk = 2");
    const StoreExamination examination = examine();
    ASSERT_THAT(kindsOf(examination), ElementsAre(Kind::SearchIndexAmiss, Kind::SearchIndexAmiss));
    EXPECT_EQ(examination.resultOf(StoreCheck::SearchIndex).count, 2U);
    EXPECT_FALSE(findingsOf(examination).front().description.empty());
    EXPECT_TRUE(findingsOf(examination).front().isRepairable());
    const StoreRepairs repairs = repair();
    EXPECT_EQ(repairs.indexedTexts, 2U);
    EXPECT_EQ(repairs.notes, 0U);
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(StoreDoctorOnAFile, FindsADamagedFileAndDoesNotWriteToIt)
{
    note("# One").setSubtitle("Wrong");
    reopen();
    runSQL("UPDATE OVNote SET title_folded = 'other'");
    runSQL("UPDATE OVNote_text_signature SET signature = NULL");
    const StoreExamination examination = examine();
    EXPECT_TRUE(examination.fileIsDamaged());
    ASSERT_THAT(kindsOf(examination), ElementsAre(Kind::DamagedFile, Kind::WrongSubtitle))
        << "the index is not looked at";
    EXPECT_FALSE(findingsOf(examination).front().isRepairable());

    NSError error;
    EXPECT_FALSE(StoreDoctor(context()).repair(examination, &error));
    EXPECT_EQ(error.domain(), TarnStoreErrorDomain);
    EXPECT_EQ(error.code(), StoreErrorCorrupt);
    EXPECT_EQ(all<OVNote>().front()->subtitle(), "Wrong");
    runSQL("UPDATE OVNote SET title_folded = 'one'");
}

TEST_P(StoreDoctorOnAFile, KeepsNothingOfARepairThatCannotBeSaved)
{
    note("# One\n\nbody").setSubtitle("Wrong 1");
    note("# Two\n\nbody").setSubtitle("Wrong 2");
    const StoreExamination examination = examine();
    runSQL("CREATE UNIQUE INDEX refusing ON OVNote (subtitle)");
    StoreDoctor doctor(context());
    NSError error;
    EXPECT_FALSE(doctor.repair(examination, &error));
    EXPECT_NE(error, NSError());
    EXPECT_EQ(doctor.step(), StoreDoctor::Step::SavingRecords);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(noteCalled("One").subtitle(), "Wrong 1");
    EXPECT_EQ(noteCalled("Two").subtitle(), "Wrong 2");
    runSQL("DROP INDEX refusing");
}

TEST_P(StoreDoctorOnAFile, GivesTheErrorOfAStoreThatCannotBeRead)
{
    note("# One");
    save();
    reopen();
    runSQL("ALTER TABLE OVNote RENAME TO away");
    StoreDoctor doctor(context());
    NSError error;
    EXPECT_FALSE(doctor.examine(&error));
    EXPECT_NE(error, NSError());
    runSQL("ALTER TABLE away RENAME TO OVNote");
    EXPECT_TRUE(doctor.examine(&error)) << error;
}

} // namespace
} // namespace tarn
