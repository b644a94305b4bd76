#pragma once

#include <map>
#include <mutex>
#include <string>

namespace tarn {

class SQLiteConnection;
struct SQLText;

/// Whether a SELECT gives so many rows that collecting and sorting them costs more than to look at rows one by one
/// until a list is full.
bool givesManyRows(SQLiteConnection& connection, const SQLText& select);

/// Remembers which flags many rows have: to count a few thousand entries of an index takes longer than many a fetch.
/// An answer is used for some fetches, then asked for again; an old one costs time, never rows. Any thread.
class FlagStatistics {
public:
    /// `select` gives the rows; it has an argument at most, the value of the flag.
    bool contains(SQLiteConnection& connection, const SQLText& select);

private:
    struct Answer {
        bool isCommon = false;
        int usesLeft = 0;
    };
    std::mutex mutex_;
    std::map<std::string, Answer> answers_;
};

} // namespace tarn
