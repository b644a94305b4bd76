#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A store of any version of the model, made where there is none, and one context on the main queue: records are read
/// and written by names alone. What fails fails the test.
///
///     PlainStore store(file, NSManagedObjectModel::modelWithContentsOfFile(modelFile));
///     store.insert("OVNote").setValueForKey("title", "Groceries");
///     store.save();
class PlainStore {
public:
    PlainStore(const std::filesystem::path& file, std::shared_ptr<const NSManagedObjectModel> model);
    /// Of an installed version of the model, "Model 2".
    PlainStore(const std::filesystem::path& file, std::string_view version);

    NSManagedObjectContext& context() { return context_; }
    NSManagedObject& insert(std::string_view entity);
    std::vector<NSManagedObject*> records(std::string_view entity);
    void save();
    /// What the store finds amiss in itself.
    std::vector<std::string> problems();

private:
    std::shared_ptr<const NSManagedObjectModel> model_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    NSManagedObjectContext context_;
};

/// The statements that would make the tables, indexes and triggers of a database anew, sorted.
std::vector<std::string> statementsOfSchema(const std::filesystem::path& database);

} // namespace tarn
