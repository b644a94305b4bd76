#include "tarnmodel/backup/archive/ManifestText.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/StoredText.h"

#include <nlohmann/json.hpp>

namespace tarn {

namespace {

/// Throws for what is no such value, so that each field is of its type or the manifest is none.
template <typename T> T fieldOf(const JSON& object, const char* key)
{
    return object.at(key).get<T>();
}

BackupManifest::Member memberOf(const JSON& entry)
{
    return {storedTextOfJSON(entry.at("name")), fieldOf<std::uint64_t>(entry, "size"),
        fieldOf<std::string>(entry, "blake2b")};
}

/// Takes each member out of the text as it is read, so that a long list is never there twice.
class MemberTaker {
public:
    MemberTaker(std::vector<BackupManifest::Member>& members, std::size_t maximumCount)
        : members_(members), maximumCount_(maximumCount)
    { }
    bool operator()(int depth, JSON::parse_event_t event, JSON& parsed)
    {
        if (event == JSON::parse_event_t::key && depth == 1)
            key_ = parsed.get<std::string>();
        // First of all: what comes behind it may be written otherwise by then.
        if (event == JSON::parse_event_t::value && depth == 1 && key_ == "format" && parsed.is_number_integer()
            && parsed > kBackupFormat)
            throw BackupFailure(BackupErrorNewer, "a later version of this program made the backup");
        // Nothing in a manifest lies deeper than a text that is no text.
        if (depth > 4 && (event == JSON::parse_event_t::object_start || event == JSON::parse_event_t::array_start))
            throw BackupFailure(BackupErrorDamaged, "manifest.json cannot be read");
        if (depth != 2 || event != JSON::parse_event_t::object_end || key_ != "members")
            return true;
        if (members_.size() >= maximumCount_)
            throw BackupFailure(
                BackupErrorTooLarge, "the backup holds more than " + std::to_string(maximumCount_) + " files");
        members_.push_back(memberOf(parsed));
        return false;
    }

private:
    std::vector<BackupManifest::Member>& members_;
    std::size_t maximumCount_;
    std::string key_; ///< the one of the manifest that is being read
};

void readFields(const JSON& json, BackupManifest& manifest)
{
    manifest.modelVersion = fieldOf<std::string>(json, "model");
    manifest.storeUUID = fieldOf<std::string>(json, "store");
    manifest.creationDate = NSDate(fieldOf<std::int64_t>(json, "created"));
    manifest.recordCounts = fieldOf<std::map<std::string, std::uint64_t>>(json, "records");
    manifest.fileCount = fieldOf<std::uint64_t>(json, "files");
    manifest.fileBytes = fieldOf<std::uint64_t>(json, "bytes");
    for (const JSON& entry : json.at("missing"))
        manifest.missingFiles.push_back(
            {storedTextOfJSON(entry.at("uniqueIdentifier")), storedTextOfJSON(entry.at("name"))});
}

} // namespace

std::uint64_t BackupManifest::noteCount() const
{
    const auto found = recordCounts.find("OVNote");
    return found == recordCounts.end() ? 0 : found->second;
}

std::string textOfManifest(const BackupManifest& manifest)
{
    JSON json;
    json["format"] = manifest.format;
    json["model"] = manifest.modelVersion;
    json["store"] = manifest.storeUUID;
    json["created"] = manifest.creationDate.microsecondsSince1970();
    json["records"] = manifest.recordCounts;
    json["files"] = manifest.fileCount;
    json["bytes"] = manifest.fileBytes;
    json["missing"] = JSON::array();
    for (const auto& file : manifest.missingFiles)
        json["missing"].push_back(
            {{"uniqueIdentifier", jsonOfStoredText(file.uniqueIdentifier)}, {"name", jsonOfStoredText(file.name)}});
    json["members"] = JSON::array();
    for (const auto& member : manifest.members)
        json["members"].push_back(
            {{"name", jsonOfStoredText(member.name)}, {"size", member.size}, {"blake2b", member.hash}});
    return json.dump(1) + "\n";
}

BackupManifest manifestFromText(std::string_view text, std::size_t maximumMemberCount)
{
    BackupManifest manifest;
    try {
        const JSON json = JSON::parse(text, MemberTaker(manifest.members, maximumMemberCount));
        manifest.format = fieldOf<int>(json, "format");
        readFields(json, manifest);
    } catch (const JSON::exception&) {
        throw BackupFailure(BackupErrorDamaged, "manifest.json cannot be read");
    }
    return manifest;
}

} // namespace tarn
