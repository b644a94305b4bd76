// What is kept of a password, of any bytes, and a sound one with some of its bytes exchanged: it opens as it was
// written or not at all.

#include "fuzz/encryption/FuzzKeys.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"

using namespace tarn;

namespace {

struct Sound {
    FixedRandom random;
    DerivedKey derived = *deriveNewKey(*passwordInUse("fuzzed", nullptr), {1, 8}, nullptr);
    NSData data = *PasswordBlob::write({fuzzedMasterKey(), fuzzedMasterKey()}, derived, fuzzedIdentifier, nullptr);
};

bool opens(const NSData& data, const DerivedKey& derived)
{
    const auto blob = PasswordBlob::read(data, nullptr);
    return blob && blob->open(derived.key, fuzzedIdentifier, nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Sound sound;
    const auto input = std::as_bytes(std::span(data, size));
    require(NSData(input) == sound.data || !opens(NSData(input), sound.derived));
    std::vector<std::byte> bytes = patched(sound.data, input);
    // The last sum can be made by anybody; with it the rest comes to be looked at.
    const auto content = std::span(bytes).first(bytes.size() - 16);
    crypto_generichash(octets(std::span(bytes).last(16)), 16, octets(content), content.size(), nullptr, 0);
    const NSData changed(bytes);
    require(opens(changed, sound.derived) == (changed == sound.data));
    return 0;
}
