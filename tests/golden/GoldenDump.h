#pragma once

#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tests/support/StoreFixture.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tarn {

/// Writes the records of a store as a dump of a store of an older version of the model.
class GoldenDump {
public:
    /// `version` is 1 or 2, of which `model` is the model.
    GoldenDump(TestStore& store, int version, std::shared_ptr<const NSManagedObjectModel> model);

    void write(std::ostream& output);

private:
    /// The literals of a row, by column.
    using Row = std::vector<std::string>;

    void writeStatements(bool tables);
    void writeRows(const std::string& table, const std::vector<std::string>& columns, const std::vector<Row>& rows);
    void writeMetadata();
    void writeKeys();
    void writeTable(const StoreTable& table);
    void writeLargeTable(const StoreTable& table);
    void writeJoin(const JoinTable& join);
    void writeSignatures(const SignatureTable& signature);
    std::vector<const NSManagedObject*> recordsOf(const StoreTable& table);
    Value valueOf(const NSManagedObject& record, const StoreColumn& column) const;
    std::string literalOf(const NSManagedObject& record, const StoreColumn& column) const;
    std::string shadowOf(const NSManagedObject& record, const StoreColumn& column) const;

    TestStore& store_;
    int version_;
    std::shared_ptr<const NSManagedObjectModel> model_;
    StoreSchema schema_;
    std::ostream* output_ = nullptr;
};

} // namespace tarn
