#pragma once

#include <tarnmodel/TarnModel.h>

#include <iosfwd>
#include <string>

// The file of one record: the change tag on a line, then a line for each value: its key, a letter for its kind, the
// value.

namespace tarn::syncfolder {

void writeRecord(std::ostream& file, const CKRecord& record);
/// Throws `std::runtime_error` for anything that `writeRecord` has not written.
CKRecord readRecord(std::istream& file, const std::string& recordName);

} // namespace tarn::syncfolder
