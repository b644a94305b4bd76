#pragma once

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tests/support/StoreFixture.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace tarn {

/// A store of each kind for dictionaries of records.
class RepresentationFixture : public StoreFixture {
protected:
    using Dictionary = nlohmann::ordered_json;

    OVPassword& aPassword()
    {
        auto& password = insert<OVPassword>();
        password.setEncryptedData(NSData::fromText("verifier"));
        password.setEncryptionVersion(2);
        password.setBiometryValue(true);
        return password;
    }
    /// An attachment in which every field of the dictionary is set.
    OVNoteFile& aFullFile()
    {
        auto& file = insert<OVNoteGenericFile>();
        file.setFilename("Bericht ü.pdf");
        file.setFileSizeValue(5'000'000'000);
        file.setNormalizedFileExtension("pdf");
        file.setIndexValue(3);
        file.setLastEditingDevice("Zoë’s phone");
        file.setVersionValue(2);
        file.setSearchText("a \"quoted\"\nline \xF0\x9F\x8D\x8B");
        file.setSearchTextDate(dateWithMicrosecondsSince1970(1'706'704'496'000'000));
        file.setEncryptionDate(dateWithMicrosecondsSince1970(1'706'704'497'000'000));
        file.setEncryptionUniqueIdentifier("KEY-1");
        file.setEncryptedData(NSData::fromText("sealed"));
        return file;
    }
    static std::vector<std::string> keysOf(const Dictionary& dictionary)
    {
        std::vector<std::string> keys;
        for (const auto& item : dictionary.items())
            keys.push_back(item.key());
        return keys;
    }
};

} // namespace tarn
