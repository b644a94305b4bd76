// The encrypted fields of a record, of any bytes; a sound one with some of its bytes exchanged; and any bytes as the
// fields themselves, behind the encryption.

#include "fuzz/encryption/FuzzKeys.h"
#include "tarnmodel/encryption/sealing/SealedRecord.h"

using namespace tarn;

namespace {

ClearFields soundFields()
{
    ClearFields fields;
    fields.filename = "fuzzed.txt";
    fields.fileSize = 7;
    return fields;
}

struct Sound {
    FixedRandom random;
    MasterKey key = fuzzedMasterKey();
    NSData data = SealedRecord::seal(soundFields(), RecordKind::Attachment, fuzzedIdentifier, key, nullptr)->data();
};

bool opens(const NSData& data, RecordKind kind, const MasterKey& key)
{
    const auto record = SealedRecord::open(data, kind, fuzzedIdentifier, key, nullptr);
    return record && record->fields(nullptr);
}

void readBack(std::span<const std::byte> bytes, RecordKind kind)
{
    if (const auto fields = fieldsFromBytes(bytes, kind))
        require(fieldsFromBytes(serializedFields(*fields, kind), kind) == fields);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Sound sound;
    const auto input = std::as_bytes(std::span(data, size));
    for (const RecordKind kind : {RecordKind::Note, RecordKind::Attachment}) {
        require(NSData(input) == sound.data || !opens(NSData(input), kind, sound.key));
        readBack(input, kind);
    }
    const NSData changed(patched(sound.data, input));
    require(opens(changed, RecordKind::Attachment, sound.key) == (changed == sound.data));
    return 0;
}
