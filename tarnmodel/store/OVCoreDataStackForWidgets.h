#pragma once

#include "tarnmodel/store/OVCoreDataStack.h"

namespace tarn {

/// The stack of a widget: a process of its own that reads the application's store.
///
/// Its one context works on a private queue: use it through `performBlock`. The store refuses writes; a widget that
/// comes before the application makes an empty one. There is no scratch context, and it never migrates.
///
///     NSError error;
///     if (auto stack = OVCoreDataStackForWidgets::initStack(&error))
///         stack->managedObjectContext()->performBlock([&] { show(*stack->managedObjectContext()); });
class OVCoreDataStackForWidgets : public OVCoreDataStack {
public:
    /// A stack that is ready. Null and an error when the store needs migration (domain "OVCoreDataStackForWidgets",
    /// code 1; the file was not touched), or cannot be opened.
    static std::unique_ptr<OVCoreDataStackForWidgets> initStack(NSError* error = nullptr);
    /// Always null: a widget holds its own stack.
    static OVCoreDataStackForWidgets* sharedStack() noexcept { return nullptr; }

    /// Waits for what runs on the queue of its context.
    ~OVCoreDataStackForWidgets() override;

    // These do nothing: the stack is set up already, and the application migrates.
    void setupStackWithDelegate(OVCoreDataStackDelegate* delegate) override;
    void setupStack() override;
    void migrate() override;

    /// The parameters of every stack, but for reading.
    StoreOptions persistentStoreOptions() const override;

private:
    OVCoreDataStackForWidgets();
    bool makeMissingStore(NSError* error) const;
};

} // namespace tarn
