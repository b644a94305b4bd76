// Writes tests/cases/golden-stores: stores of the older versions of the model as SQL, by which migrations are tested.
//
//     cmake --build build/dev --target write_golden_stores
//     build/dev/tests/write_golden_stores FOLDER
//
// They were written once and are kept, since a store that somebody has does not change either. Each run writes the
// same, as long as the rules of deriving and folding stay the same.

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tests/golden/GoldenDump.h"
#include "tests/golden/GoldenNotebook.h"

#include <fstream>
#include <iostream>
#include <random>

namespace {

using namespace tarn;

/// A world without chance.
class GoldenWorld : public StillWorld {
public:
    explicit GoldenWorld(unsigned seed) : engine_(seed)
    {
        world_.setRandomBytes([this](std::span<std::byte> bytes) {
            for (std::byte& byte : bytes)
                byte = static_cast<std::byte>(engine_() & 0xFFU);
        });
    }

private:
    std::mt19937 engine_;
};

bool writeStore(int version, const std::string& name, const std::filesystem::path& folder)
{
    GoldenWorld world(static_cast<unsigned>(version));
    TestStore store(StoreType::InMemory);
    store.open();
    GoldenNotebook(store, version).write();
    store.save();
    std::ofstream output(folder / (name + ".sql"), std::ios::binary);
    const auto model = NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion(name));
    GoldenDump(store, version, model).write(output);
    for (const std::string& message : world.takeLog())
        std::cerr << message << '\n';
    return output.flush().good();
}

} // namespace

int main(int count, char** arguments)
{
    testing::InitGoogleTest();
    if (count != 2) {
        std::cerr << "write_golden_stores FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    return writeStore(1, "Model", folder) && writeStore(2, "Model 2", folder) && !testing::Test::HasFailure() ? 0 : 1;
}
