#include "tests/backup/ForgedBackup.h"

#include "tarnmodel/backup/archive/ArchiveReader.h"
#include "tarnmodel/backup/archive/ArchiveWriter.h"
#include "tarnmodel/backup/archive/BackupHash.h"
#include "tarnmodel/backup/archive/ManifestText.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <span>

#include <fcntl.h>

namespace tarn {

namespace {

std::string hashOf(std::string_view bytes)
{
    BackupHash hash;
    hash.add(std::as_bytes(std::span(bytes)));
    return hash.hexadecimal();
}

} // namespace

BackupManifest ForgedBackup::manifestOf(const Members& members)
{
    BackupManifest manifest;
    manifest.modelVersion = "Model 3";
    manifest.storeUUID = "STORE";
    for (const auto& [name, bytes] : members)
        manifest.members.push_back({name, bytes.size(), hashOf(bytes)});
    return manifest;
}

void ForgedBackup::writeArchive(const std::string& manifest, const Members& members) const
{
    const FileDescriptor descriptor(::open(archive().c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600));
    ArchiveWriter writer(descriptor.get(), archive(), NSDate(), ArchiveWriter::Names::Ascii);
    const auto add = [&](const std::string& name, std::string_view bytes) {
        writer.addMember(
            name, bytes.size(), [&](const ArchiveWriter::Sink& sink) { sink(std::as_bytes(std::span(bytes))); });
    };
    add("manifest.json", manifest);
    for (const auto& [name, bytes] : members)
        add(name, bytes);
    BackupHash hash;
    hash.add(std::as_bytes(std::span(manifest)));
    writer.finish(manifest.size(), hash.digest());
}

void ForgedBackup::writeArchive(const Members& members) const
{
    writeArchive(textOfManifest(manifestOf(members)), members);
}

ForgedBackup::Members ForgedBackup::membersOfArchive() const
{
    Members members;
    ArchiveReader reader(archive());
    while (const auto member = reader.next()) {
        std::string bytes;
        for (auto piece = reader.read(); !piece.empty(); piece = reader.read())
            bytes.append(reinterpret_cast<const char*>(piece.data()), piece.size());
        members.emplace_back(member->name, bytes);
    }
    return members;
}

} // namespace tarn
