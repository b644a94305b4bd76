#include "tarnmodel/backup/restoring/BackupExtraction.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/ManifestText.h"
#include "tarnmodel/backup/archive/MemberName.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& name)
{
    throw BackupFailure(BackupErrorDamaged, "the backup holds a member of a wrong name: " + name);
}

} // namespace

std::optional<fs::path> BackupExtraction::recordsOfEntity(const std::string& entityName) const
{
    const auto found = records_.find(entityName);
    return found == records_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<fs::path> BackupExtraction::itemOfFile(std::string_view uniqueIdentifier) const
{
    std::string name(uniqueIdentifier);
    std::ranges::replace(name, '/', '_');
    const auto found = items_.find(name);
    return found == items_.end() || !found->second.isWhole ? std::nullopt : std::optional(found->second.place);
}

std::optional<fs::path> BackupExtraction::placeOfMember(const std::string& name)
{
    const bool isFolder = name.ends_with('/');
    const auto components = componentsOfMemberName(isFolder ? std::string_view(name).substr(0, name.size() - 1) : name);
    if (!std::ranges::all_of(components, isNameInFolder))
        refuse(name);
    if (components.size() >= 3 && components[0] + "/" == kFileFolder)
        return placeInItem(components);
    if (components.size() == 2 && components[0] + "/" == kCompanionFolder && !isFolder)
        return companions_[components[1]] = nextPlace("companion");
    if (components.size() != 2 || components[0] + "/" != kRecordFolder || !components[1].ends_with(kRecordExtension)
        || isFolder)
        refuse(name);
    const std::string entity = components[1].substr(0, components[1].size() - kRecordExtension.size());
    return records_[entity] = nextPlace("records");
}

fs::path BackupExtraction::nextPlace(std::string_view kind)
{
    return folder_ / (std::string(kind) + std::to_string(placeCount_++));
}

std::optional<fs::path> BackupExtraction::placeInItem(const std::vector<std::string>& components)
{
    const auto [found, isNew] = items_.try_emplace(components[1]);
    Item& item = found->second;
    if (isNew)
        item = {components[2], nextPlace("file"), true};
    else if (item.name != components[2])
        refuse(kFileFolder.data() + components[1] + "/" + components[2]);
    fs::path place = item.place;
    for (std::size_t index = 3; index < components.size(); ++index)
        place /= components[index];
    return place;
}

bool BackupExtraction::begin(const BackupManifest::Member& member)
{
    memberName_ = member.name;
    const auto place = placeOfMember(member.name);
    std::error_code failure;
    fs::create_directories(member.name.ends_with('/') ? *place : place->parent_path(), failure);
    if (failure) {
        errno = failure.value();
        failWithSystem(*place, "made");
    }
    if (member.name.ends_with('/'))
        return false;
    if (NSFileManager::fileExistsAtURL(*place))
        refuse(member.name);
    writer_.emplace(*place);
    return true;
}

void BackupExtraction::take(std::span<const std::byte> bytes)
{
    writer_->write(bytes);
}

void BackupExtraction::end(bool isWhole)
{
    if (writer_)
        writer_->finish();
    writer_.reset();
    if (isWhole)
        return;
    const auto components = componentsOfMemberName(memberName_);
    if (components[0] + "/" == kFileFolder)
        items_[components[1]].isWhole = false;
    else if (components[0] + "/" == kCompanionFolder)
        companions_.erase(components[1]);
    else
        records_.erase(components[1].substr(0, components[1].size() - kRecordExtension.size()));
}

} // namespace tarn
