#include "tarnmodel/encryption/manager/VerifiedRecords.h"

#include <algorithm>
#include <utility>

namespace tarn {
namespace {

constexpr std::size_t kMostRecords = 8;
/// The latest one is kept whatever its length.
constexpr std::size_t kMostBytes = std::size_t{8} << 20;

} // namespace

VerifiedRecords::Record VerifiedRecords::find(const NSData& data, RecordKind kind, std::string_view identifier)
{
    std::lock_guard lock(mutex_);
    const auto found = std::ranges::find_if(records_, [&](const Record& record) {
        return record->kind() == kind && record->identifier() == identifier && record->data() == data;
    });
    return found == records_.end() ? nullptr : *found;
}

void VerifiedRecords::add(Record record)
{
    std::lock_guard lock(mutex_);
    bytes_ += record->data().length();
    records_.push_front(std::move(record));
    while (records_.size() > kMostRecords || (records_.size() > 1 && bytes_ > kMostBytes)) {
        bytes_ -= records_.back()->data().length();
        records_.pop_back();
    }
}

void VerifiedRecords::clear()
{
    std::deque<Record> gone;
    std::lock_guard lock(mutex_);
    std::swap(gone, records_);
    bytes_ = 0;
}

} // namespace tarn
