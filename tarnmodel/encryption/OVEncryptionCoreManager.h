#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManagerProtocol.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObjectContext;

/// Name and reason of the exception that a guarded accessor raises on a locked record.
inline constexpr std::string_view OVInvalidAccessorException = "Invalid accessor";
inline constexpr std::string_view OVInvalidAccessorReason
    = "Called an encrypted accessor with Encryption Manager available and the object locked. Unlock the object using "
      "the "
      "Encryption Manager first, or use the primitive accessor (primitive accessors should be used in very special "
      "cases, "
      "so be fully aware of what you are doing).";

/// Domain of the errors below.
inline constexpr std::string_view TarnEncryptionErrorDomain = "TarnEncryptionKit";
/// What can be amiss with passwords and protected records. The numbers are kept.
enum OVEncryptionErrorCode : long {
    OVEncryptionErrorWrongPassword = 1,  ///< this is not the password
    OVEncryptionErrorDamaged = 2,        ///< the data was not written so, or belongs to another record
    OVEncryptionErrorUnknownVersion = 3, ///< a later version wrote it, or it is no such data at all
    OVEncryptionErrorLocked = 4,         ///< the password is not unlocked
    OVEncryptionErrorTooMuchWork = 5,    ///< the data asks for more time or memory than a password is worth
    OVEncryptionErrorOutOfMemory = 6,    ///< there is no memory for a key, or for deriving one
    OVEncryptionErrorFile = 7,           ///< the file is not here, or cannot be read or written
    OVEncryptionErrorNotAPassword = 8,   ///< the password is empty, too long, or no valid UTF-8
    OVEncryptionErrorStore = 9,          ///< the record could not be saved
    OVEncryptionErrorHasPassword = 10,   ///< the record has a password already, or another one protects it
};

/// A password was unlocked, or locked: by a call, the time limit or the end of its manager. `object` is the manager;
/// posted on the main queue, or at once where that is current.
inline constexpr std::string_view OVEncryptionCoreManagerDidUnlockNotification
    = "OVEncryptionCoreManagerDidUnlockNotification";
inline constexpr std::string_view OVEncryptionCoreManagerDidLockNotification
    = "OVEncryptionCoreManagerDidLockNotification";

/// How much work it takes to try a password, by Argon2id.
struct OVKeyDerivationCost {
    std::uint32_t passes = 3;                    ///< 1 to 10
    std::uint32_t memoryInKibibytes = 256 << 10; ///< 8 to 1,048,576; where that much cannot be had, 64 MiB are taken
};

/// How a manager works.
struct OVEncryptionOptions {
    OVKeyDerivationCost cost{}; ///< of passwords that are set or changed from now on
    std::chrono::seconds timeLimit
        = std::chrono::minutes(5); ///< how long a password stays unlocked unused; 0: for ever
    /// Where decrypted copies of files go that the user's folder in memory does not hold: a folder of the process's
    /// own for what can be made again. "TarnModel" in the user's cache folder until set. Any thread.
    std::function<std::filesystem::path()> scratchDirectory{};
};

/// What a password protects, by the keys that it is under; borrowed from the record's context.
struct OVObjectsByKey {
    std::vector<OVEncryptableObject*> underNewestKey;  ///< the one that new protection gets
    std::vector<OVEncryptableObject*> underFormerKeys; ///< what `reencrypt` is still to bring to it
};

/// Protects notes and attachments by passwords, and knows which manager serves which context.
///
/// A manager serves a context and the children of it. It keeps keys, not passwords: in memory that is locked, guarded
/// and wiped. Its operations are called on the queue of the record's context; what is unlocked is so for all contexts
/// that it serves.
///
///     OVEncryptionCoreManager manager(*stack.managedObjectContext());
///     OVPassword* password = OVPassword::insertInManagedObjectContext(context);
///     if (NSError error; !manager.setPassword(*password, "correct horse", std::nullopt, &error)) report(error);
///     manager.addEncryptionToObject(*note, *password, &error);
///     manager.lock();
class OVEncryptionCoreManager final : public OVEncryptionCoreManagerProtocol {
public:
    // Which manager serves which context. Any thread. Managers are borrowed: one that is destroyed serves no context
    // any more. ------------------------------------------------------------------------------------------------------
    /// The manager serving a context, or the nearest parent that has one; null when protection is not active there.
    static OVEncryptionCoreManagerProtocol* encryptionCoreManagerForManagedObjectContext(
        const NSManagedObjectContext& context);
    /// For managers that a host brings itself. Null ends the service. To be taken back before the context ends.
    static void setEncryptionCoreManager(
        OVEncryptionCoreManagerProtocol* manager, const NSManagedObjectContext& context);
    /// Runs the block at once, with no manager visible for the context: guarded accessors then read and write what is
    /// stored. Nests. Call on the context's queue.
    static void performInManagedObjectContext(
        const NSManagedObjectContext& context, const std::function<void()>& withoutEncryptionCoreManager);
    /// Whether attachments of protected notes can be protected. False until a host says otherwise, or makes a manager
    /// of this class.
    static bool isFileEncryptionEnabled() noexcept;
    static void setFileEncryptionEnabled(bool enabled) noexcept;
    /// The manager that has to be asked for a protected field; null when the stored value is to be used, because no
    /// manager serves the record's context or the record is not protected. Raises "Invalid accessor" when it is locked.
    static OVEncryptionCoreManagerProtocol* managerGuarding(const OVEncryptableObject& object, bool isEncrypted);
    /// Whether a protected attachment is stored with a name that tells something: files that this class has sealed have
    /// none. False of what a manager of another class has protected.
    static bool hasTellingName(const OVEncryptableNoteFile& file);
    /// The names of the master keys that are kept of a password, the newest first, and of the one that encrypted fields
    /// are under: bytes, which nobody needs a password for. None of what is no such data, or of a later version.
    static std::vector<std::string> namesOfKeys(const NSData& verifier);
    static std::optional<std::string> nameOfKey(const NSData& sealedFields);
    /// Whether a file is a decrypted copy that a manager made: nothing made of it is to be kept on disk. Any thread.
    static bool isDecryptedFile(const std::filesystem::path& file);
    /// Calls `use` with a folder for clear bytes of about that length: in memory where there is room, and removed
    /// behind it. False and an error when there can be none, or `use` says so.
    static bool performWithScratchFolder(std::uint64_t length,
        const std::function<bool(const std::filesystem::path& folder, NSError* error)>& use, NSError* error);
    /// Removes the decrypted copies that processes left which died. Managers do so when they begin.
    static void removeAbandonedDecryptedFiles();

    // Life -----------------------------------------------------------------------------------------------------------
    /// A manager that serves the context, with nothing unlocked.
    explicit OVEncryptionCoreManager(NSManagedObjectContext& context, const OVEncryptionOptions& options = {});
    /// Locks everything and ends its service. Before the context ends, on the context's queue.
    ~OVEncryptionCoreManager() override;
    OVEncryptionCoreManager(const OVEncryptionCoreManager&) = delete;
    OVEncryptionCoreManager& operator=(const OVEncryptionCoreManager&) = delete;
    /// Whether the system keeps the memory of keys from being swapped out; a host may want to tell its user.
    bool areKeysLockedInMemory() const noexcept;

    // Passwords ------------------------------------------------------------------------------------------------------
    // They are UTF-8, brought to NFC, of 1 to 1,024 bytes. Each try takes the time that `OVKeyDerivationCost` asks for.
    /// Gives a new password record its password, which is unlocked then, and its hint. Not saved. False and an error,
    /// and the record as it was, also when it has one already.
    bool setPassword(
        OVEncryptingPassword& record, std::string_view password, std::optional<std::string_view> hint, NSError* error);
    /// Unlocks what the password protects, with what older passwords and rotations of the record left. False and one of
    /// the errors above.
    bool unlock(const OVEncryptingPassword& record, std::string_view password, NSError* error);
    /// The same without standing still: the password is tried on the global queue. `completion` is called on the main
    /// queue, with an error of code 0 when it is unlocked now; always, and also when this manager has ended.
    void unlockInBackground(
        const OVEncryptingPassword& record, std::string_view password, std::function<void(const NSError&)> completion);
    /// Locks it, at once and everywhere; decrypted copies of files go. Who holds it unlocked reads on to the end of
    /// that.
    void lock(const OVEncryptingPassword& record);
    /// Locks all. Any thread.
    void lock();
    bool hasCachedPassword(const OVEncryptingPassword& record) const override;
    /// Another password for what the record protects; no protected record changes, older backups stay readable with
    /// the password of their time. Saves the context (on a store): from before the record is read to the end of the
    /// save no other process writes. What is written is read back with the new password first. False and an error, and
    /// the old password, when that fails.
    bool changePassword(
        OVEncryptingPassword& record, std::string_view oldPassword, std::string_view newPassword, NSError* error);
    /// A new master key for what the record protects, kept by the same password; saves in the same way. Records go on
    /// to be read with the former keys, which stay in the row; `reencrypt` brings them to the new one.
    bool rotateMasterKey(OVEncryptingPassword& record, std::string_view password, NSError* error);
    /// What reminds of the password; can be read while it is locked. Empty for none.
    static std::string hint(const OVEncryptingPassword& record);
    static void setHint(std::string_view hint, OVEncryptingPassword& record);

    // Protection -----------------------------------------------------------------------------------------------------
    // Of a note together with its attachments. Not saved. False and an error when it stays as it was, whole.
    bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword& record, NSError* error) override;
    bool addEncryptionToNewFile(OVEncryptableNoteFile& file, const std::filesystem::path& contents,
        OVEncryptingPassword& record, NSError* error) override;
    bool removeEncryptionFromObject(OVEncryptableObject& object, NSError* error);
    /// Whether it is protected under another key than the newest of its password. False while that is locked.
    bool isReencryptionNeeded(const OVEncryptableObject& object) const;
    /// The same of all that a password protects, each looked at once. What cannot be opened is in neither list: all of
    /// it while the password is locked.
    OVObjectsByKey objectsByKey(const OVEncryptingPassword& record) const;
    /// Encrypts it, fields and file, with a new key of its own under the newest master key; of a note without its
    /// attachments. Its identifier of the encryption stays.
    bool reencrypt(OVEncryptableObject& object, NSError* error);

    // What records ask -----------------------------------------------------------------------------------------------
    bool isObjectLocked(const OVEncryptableObject& object) const override;
    /// Why it is locked, for people: the password is, or the data is damaged or of a later version. Code 0 when it is
    /// not locked.
    NSError reasonForLock(const OVEncryptableObject& object) const;
    std::shared_ptr<void> holdUnlocked() override;
    std::optional<std::string> textForNote(const OVEncryptableNote& note, NSError* error) override;
    void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override;
    std::optional<std::string> filenameForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override;
    void setFilename(std::optional<std::string_view> filename, OVEncryptableNoteFile& file) override;
    std::optional<std::string> normalizedFileExtensionForNoteFile(
        const OVEncryptableNoteFile& file, NSError* error) override;
    void setNormalizedFileExtension(std::optional<std::string_view> extension, OVEncryptableNoteFile& file) override;
    std::optional<std::int64_t> fileSizeForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override;
    void setFileSize(std::optional<std::int64_t> bytes, OVEncryptableNoteFile& file) override;
    std::optional<std::string> searchTextForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override;
    void setSearchText(std::optional<std::string_view> text, OVEncryptableNoteFile& file) override;
    std::optional<std::filesystem::path> fileURLForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override;
    bool setContents(const NSFileWrapper& contents, OVEncryptableNoteFile& file, NSError* error) override;

    class Vault; ///< of the kit's own

private:
    std::unique_ptr<Vault> vault_;
};

} // namespace tarn
