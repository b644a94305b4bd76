#pragma once

#include "tarnmodel/encryption/keys/EncryptionErrors.h"

#include <archive.h>
#include <archive_entry.h>

#include <memory>
#include <new>

namespace tarn {

/// One of libarchive's objects, given back at the end of the scope.
template <typename Object, auto make, auto release> class ArchiveObject {
public:
    ArchiveObject() : object_(make())
    {
        if (!object_)
            throw std::bad_alloc();
    }
    ~ArchiveObject() { release(object_); }
    ArchiveObject(const ArchiveObject&) = delete;
    ArchiveObject& operator=(const ArchiveObject&) = delete;
    Object* get() const noexcept { return object_; }

private:
    Object* object_;
};

using ArchiveWriter = ArchiveObject<archive, archive_write_new, archive_write_free>;
using ArchiveReader = ArchiveObject<archive, archive_read_new, archive_read_free>;
using ArchiveEntry = ArchiveObject<archive_entry, archive_entry_new, archive_entry_free>;

/// What libarchive says of its last failure; false.
inline bool failArchive(NSError* error, archive* reason)
{
    const char* const text = archive_error_string(reason);
    return failEncryption(error, OVEncryptionErrorFile, text ? text : "The folder cannot be read or written");
}

} // namespace tarn
