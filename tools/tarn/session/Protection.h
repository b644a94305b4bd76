#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVPassword.h"
#include "tools/tarn/arguments/PasswordSource.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// Passwords of one store, for one command: what is locked is unlocked with what the command's source of passwords
/// tells, which may take a while; so it is done before the store is locked for writing.
///
/// A store without passwords costs one look.
class Protection {
public:
    /// `whileAsking` runs what waits for somebody to type, with the store given back meanwhile.
    Protection(NSManagedObjectContext& context, std::shared_ptr<PasswordSource> source,
        std::function<void(const std::function<void()>&)> whileAsking);

    /// Whether the store has passwords. What is protected is then locked until it is unlocked.
    bool hasPasswords() const noexcept { return manager_ != nullptr; }
    /// Made when it is needed first: with the session where the store has passwords.
    OVEncryptionCoreManager& manager();
    PasswordSource& source() noexcept { return *source_; }
    /// By the time of their making; borrowed from the context.
    std::vector<OVPassword*> passwords() const;
    /// A password for something new: that of the file, else one that is typed. Raises `CommandFailure` where there is
    /// neither.
    ClearPassword newPassword();
    /// One that is typed, whatever the file says; the store is nobody's meanwhile.
    ClearPassword typedNewPassword();
    /// How much work passwords that are set from now on take; before anything is unlocked.
    void setCost(const OVKeyDerivationCost& cost);

    /// Unlocks notes and their attachments as far as there is a way to their passwords; the rest stays locked. Raises
    /// `CommandFailure` when a password is wrong, and for a note that no password makes readable: it is damaged, or of
    /// a later version.
    void unlock(const std::vector<OVNote*>& notes);
    /// Unlocks what a password protects. Raises `CommandFailure` (locked) where there is no way to it.
    void unlock(OVPassword& password);
    /// Unlocks all passwords: by the file, else by whoever sits at the terminal, who may leave some out.
    void unlockAll();
    /// Unlocks all that the file of passwords opens; asks nobody. Raises `CommandFailure` where it opens nothing.
    void unlockByFile();

private:
    void unlockRecord(const OVEncryptableObject& object, OVPassword* password, const OVNote& note);
    bool tryUnlock(OVPassword& password, const std::string& question);

    NSManagedObjectContext& context_;
    std::shared_ptr<PasswordSource> source_;
    std::function<void(const std::function<void()>&)> whileAsking_;
    OVKeyDerivationCost cost_;
    std::unique_ptr<OVEncryptionCoreManager> manager_;
};

/// How people know a password: its hint, else when and where it was made.
std::string nameOfPassword(const OVPassword& password);
/// "what: description", with the exit code that the error stands for.
CommandFailure failureForEncryptionError(const std::string& what, const NSError& error);

} // namespace tarn
