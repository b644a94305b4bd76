#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tests/support/StoreFixture.h"

#include <filesystem>
#include <memory>
#include <string>

namespace tarn {

/// A store with a password in it that is unlocked, and a manager that protects by it with as little work as can be.
/// Decrypted copies lie below the folder of the world.
class ProtectedStore : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        std::filesystem::create_directories(scratchFolder());
        world_.setRuntimeDirectory(runtimeFolder());
        std::filesystem::create_directories(runtimeFolder());
        serve(context());
        password_ = &newPassword("correct horse");
        save();
    }
    void TearDown() override
    {
        manager_.reset();
        StoreFixture::TearDown();
    }

    std::filesystem::path scratchFolder() const { return filesRoot() / "scratch"; }
    std::filesystem::path runtimeFolder() const { return filesRoot() / "run"; }
    OVEncryptionOptions options() const
    {
        OVEncryptionOptions options;
        options.cost = {1, 8};
        options.scratchDirectory = [folder = scratchFolder()] { return folder; };
        return options;
    }
    /// Has a new manager serve the context, with nothing unlocked.
    void serve(NSManagedObjectContext& served)
    {
        manager_.reset();
        manager_ = std::make_unique<OVEncryptionCoreManager>(served, options());
    }
    OVPassword& newPassword(std::string_view word)
    {
        auto& record = insert<OVPassword>();
        NSError error;
        EXPECT_TRUE(manager_->setPassword(record, word, std::nullopt, &error)) << error;
        return record;
    }
    OVEncryptionCoreManager& manager() { return *manager_; }
    OVPassword& password() { return *password_; }
    void lock() { manager_->lock(); }
    void unlock()
    {
        NSError error;
        EXPECT_TRUE(manager_->unlock(*password_, "correct horse", &error)) << error;
    }
    template <typename Record> Record& protect(Record& record)
    {
        NSError error;
        EXPECT_TRUE(manager_->addEncryptionToObject(record, *password_, &error)) << error;
        return record;
    }
    OVNote& protectedNote(std::string_view text) { return protect(note(text)); }

private:
    std::unique_ptr<OVEncryptionCoreManager> manager_;
    OVPassword* password_ = nullptr;
};

} // namespace tarn
