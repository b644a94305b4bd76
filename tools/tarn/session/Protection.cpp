#include "tools/tarn/session/Protection.h"

#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

struct EncryptionErrorMeaning {
    long code;
    ExitCode exitCode;
};

constexpr std::array kMeanings{
    EncryptionErrorMeaning{OVEncryptionErrorWrongPassword, ExitCode::Locked},
    EncryptionErrorMeaning{OVEncryptionErrorLocked, ExitCode::Locked},
    EncryptionErrorMeaning{OVEncryptionErrorDamaged, ExitCode::Corrupt},
    EncryptionErrorMeaning{OVEncryptionErrorTooMuchWork, ExitCode::Corrupt},
    EncryptionErrorMeaning{OVEncryptionErrorUnknownVersion, ExitCode::NeedsMigration},
    EncryptionErrorMeaning{OVEncryptionErrorNotAPassword, ExitCode::Usage},
    EncryptionErrorMeaning{OVEncryptionErrorFile, ExitCode::InputOutput},
};

ExitCode exitCodeForEncryptionError(const NSError& error)
{
    if (error.domain() != TarnEncryptionErrorDomain)
        return exitCodeForStoreError(error);
    const auto* const found = std::ranges::find(kMeanings, error.code(), &EncryptionErrorMeaning::code);
    return found == kMeanings.end() ? ExitCode::Failed : found->exitCode;
}

/// What only a password helps against.
bool isForWantOfPassword(const NSError& error)
{
    return error.domain() == TarnEncryptionErrorDomain
        && (error.code() == OVEncryptionErrorLocked || error.code() == OVEncryptionErrorWrongPassword);
}

} // namespace

CommandFailure failureForEncryptionError(const std::string& what, const NSError& error)
{
    return {exitCodeForEncryptionError(error), what + ": " + singleLine(error.localizedDescription())};
}

std::string nameOfPassword(const OVPassword& password)
{
    const std::string identifier = password.uniqueIdentifier().value_or("").substr(0, 8);
    const std::string hint = OVEncryptionCoreManager::hint(password);
    return "the password " + identifier + (hint.empty() ? "" : " (hint: " + displayText(hint) + ")");
}

Protection::Protection(NSManagedObjectContext& context, std::shared_ptr<PasswordSource> source,
    std::function<void(const std::function<void()>&)> whileAsking)
    : context_(context), source_(std::move(source)), whileAsking_(std::move(whileAsking))
{
    if (!passwords().empty())
        manager();
}

OVEncryptionCoreManager& Protection::manager()
{
    if (!manager_)
        manager_ = std::make_unique<OVEncryptionCoreManager>(
            context_, OVEncryptionOptions{.cost = cost_, .timeLimit = std::chrono::seconds(0)});
    return *manager_;
}

ClearPassword Protection::newPassword()
{
    return source_->isFile() || !isSomebodyAtTheTerminal() ? source_->newPassword() : typedNewPassword();
}

ClearPassword Protection::typedNewPassword()
{
    std::optional<ClearPassword> typed;
    whileAsking_([&] { typed = newPasswordFromTerminal(); });
    return std::move(*typed);
}

void Protection::setCost(const OVKeyDerivationCost& cost)
{
    cost_ = cost;
    manager_.reset();
    manager();
}

std::vector<OVPassword*> Protection::passwords() const
{
    std::vector<OVPassword*> passwords = OVPassword::passwordsInManagedObjectContext(context_, std::nullopt);
    std::ranges::sort(passwords, {},
        [](const OVPassword* password) { return std::pair(password->creationDate(), password->uniqueIdentifier()); });
    return passwords;
}

bool Protection::tryUnlock(OVPassword& password, const std::string& question)
{
    if (manager().hasCachedPassword(password))
        return true;
    const auto isRight = [&](const ClearPassword& clear) {
        NSError error;
        if (manager().unlock(password, clear.text(), &error))
            return true;
        if (!isForWantOfPassword(error))
            throw failureForEncryptionError(nameOfPassword(password), error);
        return false;
    };
    bool isUnlocked = false;
    const auto ask
        = [&] { isUnlocked = source_->tryPasswords(password.uniqueIdentifier().value_or(""), question, isRight); };
    if (source_->isFile())
        ask();
    else
        whileAsking_(ask);
    return isUnlocked;
}

void Protection::unlock(OVPassword& password)
{
    if (!tryUnlock(password, "For " + nameOfPassword(password)))
        throw CommandFailure(ExitCode::Locked,
            nameOfPassword(password) + " is not known; name a file with --password-file whose first line is it");
}

void Protection::unlockRecord(const OVEncryptableObject& object, OVPassword* password, const OVNote& note)
{
    if (!manager().isObjectLocked(object))
        return;
    if (password) {
        const std::string hint = OVEncryptionCoreManager::hint(*password);
        const std::string name = displayText(nameOfNote(note));
        if (!tryUnlock(*password, "Password of " + name + (hint.empty() ? "" : ", hint: " + displayText(hint))))
            return;
    }
    const NSError reason = manager().reasonForLock(object);
    if (reason.code() != 0 && !isForWantOfPassword(reason))
        throw failureForEncryptionError(nameOfNote(note), reason);
}

void Protection::unlock(const std::vector<OVNote*>& notes)
{
    if (!manager_)
        return;
    for (const OVNote* note : notes) {
        unlockRecord(*note, note->password(), *note);
        for (const OVNoteFile* file : note->filesSet().allObjects())
            unlockRecord(*file, file->password(), *note);
    }
}

void Protection::unlockAll()
{
    if (!manager_ || source_->isFile())
        return unlockByFile();
    for (OVPassword* password : passwords())
        tryUnlock(*password, "For " + nameOfPassword(*password) + " (nothing: leave its notes out)");
}

void Protection::unlockByFile()
{
    if (!manager_ || !source_->isFile())
        return;
    bool isAnyRight = false;
    std::optional<CommandFailure> failure;
    for (OVPassword* password : passwords()) {
        try {
            isAnyRight = tryUnlock(*password, "") || isAnyRight;
        } catch (const CommandFailure& wrong) {
            if (wrong.code() != ExitCode::Locked)
                throw;
            failure = wrong;
        }
    }
    if (!isAnyRight && failure)
        throw CommandFailure(*failure);
}

} // namespace tarn
