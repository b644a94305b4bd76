#pragma once

#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"

#include <memory>
#include <string_view>

namespace tarn {

/// The policies that are registered by name. Any thread.
class MigrationPolicies {
public:
    /// A policy, and which passes it has its own way of.
    struct Made {
        std::unique_ptr<NSEntityMigrationPolicy> policy;
        NSEntityMigrationPolicy::Passes passes;
    };
    /// `NSEntityMigrationPolicy` itself for an empty name. Throws a `StoreFailure` for one that nobody registered.
    static Made make(std::string_view name);

private:
    friend class NSEntityMigrationPolicy;
    static void add(
        std::string_view name, NSEntityMigrationPolicy::Maker maker, NSEntityMigrationPolicy::Passes passes);
};

} // namespace tarn
