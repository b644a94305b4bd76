#include "tarnmodel/diagnosis/StoreFinding.h"

#include <algorithm>

namespace tarn {

StoreCheck StoreFinding::check() const noexcept
{
    switch (kind) {
    case Kind::DamagedFile:
        return StoreCheck::Integrity;
    case Kind::SearchIndexAmiss:
        return StoreCheck::SearchIndex;
    case Kind::WrongTitle:
        return StoreCheck::Title;
    case Kind::WrongSubtitle:
        return StoreCheck::Subtitle;
    case Kind::WrongOpenToDos:
    case Kind::WrongDoneToDos:
        return StoreCheck::ToDos;
    case Kind::WrongCodeFlag:
    case Kind::WrongImagesFlag:
    case Kind::WrongFilesFlag:
        return StoreCheck::Flags;
    case Kind::WrongNoteTags:
    case Kind::MissingParentTags:
        return StoreCheck::NoteTags;
    case Kind::WrongLinks:
    case Kind::WrongLinkTarget:
        return StoreCheck::Links;
    case Kind::DuplicateTag:
    case Kind::TagWithoutText:
    case Kind::MissingTag:
    case Kind::UnusableTagTitle:
        break;
    case Kind::MissingFile:
    case Kind::MisnamedFile:
    case Kind::WrongFileSize:
    case Kind::FolderWithoutRecord:
    case Kind::UnfinishedFile:
    case Kind::AbandonedFileChanges:
        return StoreCheck::Files;
    case Kind::ClearText:
    case Kind::ClearSubtitle:
    case Kind::ClearFilename:
    case Kind::ClearFields:
    case Kind::ClearFile:
    case Kind::ClearThumbnail:
        return StoreCheck::Protection;
    }
    return StoreCheck::Tags;
}

bool StoreExamination::isSound() const noexcept
{
    return std::ranges::all_of(results, [](const StoreCheckResult& result) { return result.count == 0; });
}

} // namespace tarn
