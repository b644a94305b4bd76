#pragma once

#include <string_view>

namespace tarn {

class NSError;

/// Errors of the object store.
inline constexpr std::string_view TarnStoreErrorDomain = "TarnStore";
enum StoreErrorCode : long {
    StoreErrorGeneric = 1,
    StoreErrorBusy = 5, ///< another process held the lock for too long
    StoreErrorReadOnly = 8,
    StoreErrorIO = 10,
    StoreErrorCorrupt = 11,
    StoreErrorFull = 13,
    StoreErrorCannotOpen = 14,
    StoreErrorNotAStore = 26,        ///< the file is no store at all
    StoreErrorIncompatible = 134100, ///< the store was written with another version of the model
    StoreErrorReplaced = 134101,     ///< "the store was replaced; open it again"
    StoreErrorMergeConflict = 133020,
    StoreErrorValidation = 1560,
    StoreErrorDeleteDenied = 1600,
    StoreErrorInvalidModel = 134020,
};

/// The error that an exception under way stands for. Call inside a catch block.
NSError errorOfCurrentException();

} // namespace tarn
