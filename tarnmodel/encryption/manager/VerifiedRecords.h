#pragma once

#include "tarnmodel/encryption/sealing/SealedRecord.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <string_view>

namespace tarn {

/// The records that were opened last: who asks whether a record is locked reads it next. Any thread.
class VerifiedRecords {
public:
    using Record = std::shared_ptr<const SealedRecord>;

    /// The same bytes of the same record, opened before; null when they were not.
    Record find(const NSData& data, RecordKind kind, std::string_view identifier);
    void add(Record record);
    /// Forgets all keys.
    void clear();

private:
    std::mutex mutex_;
    std::deque<Record> records_; ///< the latest first
    std::size_t bytes_ = 0;
};

} // namespace tarn
