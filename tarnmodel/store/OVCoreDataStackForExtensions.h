#pragma once

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/store/OVCoreDataStack.h"

namespace tarn {

/// The stack of an extension: a process of its own that writes into the application's store.
///
/// Each save of its main context also records what it saves, for the application (`OVExternalChanges`) and for
/// synchronisation (`OVChange`), in the same transaction. It never migrates. Confined to the main queue, like its base.
///
///     NSError error;
///     auto stack = OVCoreDataStackForExtensions::initStackOutputError(&error);
class OVCoreDataStackForExtensions : public OVCoreDataStack {
public:
    /// A stack that is ready. Null and an error when the store needs migration (domain "OVCoreDataStackForExtensions",
    /// code 1; the file was not touched), or cannot be opened.
    static std::unique_ptr<OVCoreDataStackForExtensions> initStackOutputError(NSError* error = nullptr);
    /// Always null: an extension holds its own stack.
    static OVCoreDataStackForExtensions* sharedStack() noexcept { return nullptr; }

    /// Does nothing: the stack is set up already.
    void setupStackWithDelegate(OVCoreDataStackDelegate* delegate) override;
    /// Does nothing: the application migrates.
    void migrate() override;

    /// Begins to record saves; done already when the stack is made.
    void setupObserver();
    /// Ends it.
    void tearDownObservers();
    /// Active while saves are recorded.
    const NSNotificationSubscription& saveObserver() const noexcept { return saveObserver_; }

private:
    OVCoreDataStackForExtensions();

    NSNotificationSubscription saveObserver_;
};

} // namespace tarn
