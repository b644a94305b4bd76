#include "tarnmodel/encryption/keys/EncryptionErrors.h"

namespace tarn {
namespace {

constexpr std::string_view descriptionOfError(OVEncryptionErrorCode code)
{
    switch (code) {
    case OVEncryptionErrorWrongPassword:
        return "This is not the password";
    case OVEncryptionErrorDamaged:
        return "The encrypted data is damaged, or belongs to something else";
    case OVEncryptionErrorUnknownVersion:
        return "A later version wrote the encrypted data, or it is none";
    case OVEncryptionErrorLocked:
        return "The password is locked";
    case OVEncryptionErrorTooMuchWork:
        return "The data asks for more work than a password is worth";
    case OVEncryptionErrorOutOfMemory:
        return "There is not enough memory for keys";
    case OVEncryptionErrorFile:
        return "The file is not here, or cannot be read or written";
    case OVEncryptionErrorNotAPassword:
        return "A password is UTF-8 of 1 to 1,024 bytes";
    case OVEncryptionErrorStore:
        return "The password record cannot be saved";
    case OVEncryptionErrorHasPassword:
        return "There is a password already";
    }
    return "Unknown Error";
}

} // namespace

bool failEncryption(NSError* error, OVEncryptionErrorCode code, std::string_view description)
{
    assignError(error, NSError(TarnEncryptionErrorDomain, code, description));
    return false;
}

bool failEncryption(NSError* error, OVEncryptionErrorCode code)
{
    return failEncryption(error, code, descriptionOfError(code));
}

NSError encryptionError(OVEncryptionErrorCode code)
{
    return NSError(TarnEncryptionErrorDomain, code, descriptionOfError(code));
}

} // namespace tarn
