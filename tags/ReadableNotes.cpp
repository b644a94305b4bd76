#include "tags/ReadableNotesInternal.h"

#include "encryption/OVEncryptionCoreManager.h"
#include "model/OVNote.h"
#include "platform/foundation/NSException.h"

namespace tarn {

void requireReadableTexts(const std::vector<OVNote*>& notes)
{
    for (const OVNote* note : notes) {
        // Without a manager the stored text of a protected note reads as none, and would be taken for an empty one.
        if (note->encryptedValue() && !note->encryptionCoreManager())
            throw NSException(OVInvalidAccessorException, OVInvalidAccessorReason);
        static_cast<void>(note->text());
    }
}

} // namespace tarn
