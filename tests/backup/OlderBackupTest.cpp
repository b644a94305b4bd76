#include "tests/backup/BackupFixture.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tests/support/GoldenStore.h"

#include <sstream>

namespace tarn {
namespace {

/// Backups of stores of older versions of the model.
class OlderBackup : public BackupFixture, public testing::WithParamInterface<std::string_view> {
protected:
    /// A link that a migration finds in a text gets an identifier that is new each time, and the date of then.
    static std::map<std::string, std::string> comparable(const std::map<std::string, std::string>& contents)
    {
        std::map<std::string, std::string> result;
        for (const auto& [name, text] : contents) {
            if (GetParam() != "Model" || !name.starts_with("OVNoteBackLink")) {
                result[name] = text;
                continue;
            }
            std::istringstream lines(text);
            std::string rest;
            for (std::string line; std::getline(lines, line);)
                if (!line.starts_with("uniqueIdentifier=") && !line.starts_with("modificationDate="))
                    rest += line + "\n";
            result["link: " + rest] += rest;
        }
        return result;
    }
};

TEST_P(OlderBackup, BecomesWhatTheMigratedStoreIs)
{
    const auto golden = place() / "golden.sqlite";
    makeGoldenStore(golden, GetParam());
    NSError error;
    const auto manifest = StoreBackup(golden).writeToURL(archive(), {}, &error);
    ASSERT_TRUE(manifest) << error;
    EXPECT_EQ(manifest->modelVersion, GetParam());

    TestStore& other = otherStore();
    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.restored, manifest->noteCount());

    ASSERT_TRUE(bringForward(golden, &error)) << error;
    const auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
    ASSERT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, golden, {}, &error)) << error;
    const auto migrated = contextOn(coordinator);
    auto expected = comparable(contentsOfStore(*migrated));
    auto restored = comparable(contentsOfStore(other.context()));
    EXPECT_GT(expected.size(), 100U);
    for (auto& [name, text] : expected) {
        // Their bytes are nowhere.
        if (const auto at = text.find("downloaded=true"); at != std::string::npos)
            text.replace(at, 15, "downloaded=false");
        ASSERT_EQ(restored[name], text) << name;
    }
    EXPECT_EQ(restored.size(), expected.size());
}

TEST_P(OlderBackup, IsRefusedWhereNothingBringsItForward)
{
    const auto golden = place() / "golden.sqlite";
    makeGoldenStore(golden, GetParam());
    ASSERT_TRUE(StoreBackup(golden).writeToURL(archive()));
    EXPECT_EQ(errorOfRestore(otherStore()).code(), BackupErrorNoPath);
    EXPECT_TRUE(contentsOfStore(otherStore().context()).empty());
}

INSTANTIATE_TEST_SUITE_P(Versions, OlderBackup, testing::Values("Model", "Model 2"),
    [](const auto& version) { return version.param == "Model" ? "Model1" : "Model2"; });

} // namespace
} // namespace tarn
