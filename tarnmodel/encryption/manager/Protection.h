#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/encryption/manager/Vault.h"

#include <functional>
#include <vector>

namespace tarn {

/// Protects a note with its attachments, or one attachment, or takes that back: all of it or nothing.
///
/// All that can be told before is told before. The attachments come first, one by one, since their files may fail; the
/// note's own field cannot. When a file fails, those before it get back what they had, out of what was made of it: the
/// clear file out of the sealed one, or the reverse.
class Protection {
public:
    using Vault = OVEncryptionCoreManager::Vault;
    explicit Protection(Vault& vault) : vault_(vault) { }

    // False and an error when all is as it was.
    bool add(OVEncryptableObject& object, OVEncryptingPassword& password, NSError* error);
    bool addNewFile(OVEncryptableNoteFile& file, const std::filesystem::path& contents, OVEncryptingPassword& password,
        NSError* error);
    bool remove(OVEncryptableObject& object, NSError* error);

private:
    /// An attachment that has to change. Its key is not kept meanwhile: a note may have more of them than there is room
    /// for keys.
    struct Step {
        OVEncryptableNoteFile* file = nullptr;
        OVEncryptionState before;
    };
    using Go = bool (Protection::*)(const Step& step, NSError* error);
    bool isProtectedBy(OVEncryptableObject& object, const OVEncryptingPassword& password, NSError* error) const;
    bool takeUnprotected(const std::vector<OVEncryptableNoteFile*>& files, NSError* error);
    bool takeProtected(const std::vector<OVEncryptableNoteFile*>& files, NSError* error);
    bool inOrder(Go go, Go back, NSError* error);

    bool protectFile(const Step& step, NSError* error);
    bool protectFileWith(const std::filesystem::path& contents, const Step& step, NSError* error);
    bool unprotectFile(const Step& step, NSError* error);
    Vault::Record recordOfFile(const Step& step, NSError* error) const;
    bool protectNote(OVEncryptableNote& note, NSError* error);
    Vault::Record sealed(const ClearFields& fields, RecordKind kind, NSError* error) const;
    OVEncryptionState protectedState(const Vault::Record& record) const;

    Vault& vault_;
    std::optional<MasterKey> masterKey_;       ///< where something is to be protected
    OVEncryptingPassword* password_ = nullptr; ///< of that key
    std::vector<Step> steps_;
};

} // namespace tarn
