#pragma once

#include "tarnmodel/platform/coredata/IdentifiedObject.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace tarn {

class RowGraph;

/// One consistent state of a store, row by row. What fails throws a `StoreFailure`.
class RowReader {
public:
    virtual ~RowReader() = default;
    virtual const StoreIdentity& storeIdentity() const = 0;
    /// None when there is no such row.
    virtual std::optional<StoreRow> readRow(
        const NSEntityDescription& entity, std::int64_t key, RowContents contents) const = 0;
    /// As `RowStore::relatedKeys` says.
    virtual std::vector<RelatedKey> readRelatedKeys(
        const NSRelationshipDescription& relationship, std::int64_t key) const = 0;
};

/// A row seen as an object, with which a store evaluates predicates by itself. Reads what it lacks. Owned by its graph.
class RowObject final : public IdentifiedObject {
public:
    RowObject(RowGraph& graph, StoreRow row) : graph_(graph), row_(std::move(row)) { }

    NSManagedObjectID identifyingObjectID() const override;
    Value storedValueForKey(std::string_view key) const override;

private:
    Value attributeValue(const NSAttributeDescription& attribute) const;
    Value relatedValue(const NSRelationshipDescription& relationship) const;

    RowGraph& graph_;
    mutable StoreRow row_;
};

/// The row objects that evaluations have met, by identity, over one state of a store. One thread.
///
///     RowGraph graph(reader);
///     bool hit = evaluator.evaluate(graph.objectForRow(std::move(row)));
class RowGraph {
public:
    explicit RowGraph(const RowReader& reader) : reader_(reader) { }

    /// Valid until `clear`.
    const RowObject& objectForRow(StoreRow row);
    /// Null when there is no such row.
    const RowObject* object(const NSEntityDescription& entity, std::int64_t key);
    /// Forgets all objects when they have become many. Between two evaluations.
    void trim();

    const RowReader& reader() const noexcept { return reader_; }

private:
    const RowReader& reader_;
    std::unordered_map<NSManagedObjectID, std::unique_ptr<RowObject>> objects_;
};

} // namespace tarn
