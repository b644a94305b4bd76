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
    bool remove(OVEncryptableObject& object, NSError* error);

private:
    struct Step {
        OVEncryptableNoteFile* file = nullptr;
        OVEncryptionState before;
        Vault::Record record; ///< of the attachment while it is protected
        ClearFields fields;
    };
    bool isProtectedBy(OVEncryptableObject& object, const OVEncryptingPassword& password, NSError* error) const;
    bool takeUnprotected(
        const std::vector<OVEncryptableNoteFile*>& files, const OVEncryptingPassword& password, NSError* error);
    bool takeProtected(const std::vector<OVEncryptableNoteFile*>& files, NSError* error);
    bool inOrder(bool (Protection::*go)(Step&, NSError*), bool (Protection::*back)(Step&, NSError*), NSError* error);

    bool protectFile(Step& step, NSError* error);
    bool unprotectFile(Step& step, NSError* error);
    bool protectAgain(Step& step, NSError* error);
    bool protectNote(OVEncryptableNote& note, const Vault::Record& record);
    static OVEncryptionState protectedState(const Vault::Record& record, OVEncryptingPassword& password);

    Vault& vault_;
    std::optional<MasterKey> masterKey_;
    OVEncryptingPassword* password_ = nullptr;
    std::vector<Step> steps_; ///< one for each attachment that has to change
};

} // namespace tarn
