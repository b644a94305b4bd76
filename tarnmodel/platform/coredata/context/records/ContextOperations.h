#pragma once

namespace tarn {

class NSManagedObject;
class RowStore;

/// What the parts of a context ask of the whole.
class ContextOperations {
public:
    /// Where its rows lie. Raises `NSInternalInconsistencyException` when the context has no store.
    virtual RowStore& store() const = 0;
    /// Fills a fault. Raises `NSInternalInconsistencyException` when its row cannot be read.
    virtual void fire(const NSManagedObject& object) = 0;
    /// Reads the record's row and sets again, at next use; at once where unsaved changes stay on top.
    virtual void readAgain(NSManagedObject& object) = 0;
    /// Observers hear of what changed at the end of the pass.
    virtual void scheduleProcessing() = 0;

protected:
    ~ContextOperations() = default;
};

} // namespace tarn
