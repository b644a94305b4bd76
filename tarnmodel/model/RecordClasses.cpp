#include "model/RecordClasses.h"

#include "model/OVChange.h"
#include "model/OVChangeItem.h"
#include "model/OVExternalChanges.h"
#include "model/OVInternalChanges.h"
#include "model/OVNote.h"
#include "model/OVNoteBackLink.h"
#include "model/OVNoteFile.h"
#include "model/OVNoteFileServerData.h"
#include "model/OVNoteGenericFile.h"
#include "model/OVNoteImage.h"
#include "model/OVNoteServerData.h"
#include "model/OVNoteTag.h"
#include "model/OVPassword.h"
#include "model/OVServerMetadata.h"

#include <array>

namespace tarn {
namespace {

struct RecordClass {
    std::string_view entity;
    std::string_view accessorHash; ///< of the model that its accessors were made from
    RecordConstructor constructor;
};

template <typename Record> constexpr RecordClass recordClass()
{
    return {Record::entityName(), Record::generatedAccessorHash(),
        [](const NSManagedObjectSeed& seed) -> std::unique_ptr<NSManagedObject> {
            return std::make_unique<Record>(seed);
        }};
}

constexpr std::array kRecordClasses{
    recordClass<OVNote>(),
    recordClass<OVNoteTag>(),
    recordClass<OVNoteFile>(),
    recordClass<OVNoteImage>(),
    recordClass<OVNoteGenericFile>(),
    recordClass<OVNoteBackLink>(),
    recordClass<OVPassword>(),
    recordClass<OVChange>(),
    recordClass<OVChangeItem>(),
    recordClass<OVInternalChanges>(),
    recordClass<OVExternalChanges>(),
    recordClass<OVServerMetadata>(),
    recordClass<OVNoteServerData>(),
    recordClass<OVNoteFileServerData>(),
};

} // namespace

void registerRecordClasses(NSManagedObjectModel& model)
{
    for (const RecordClass& recordClass : kRecordClasses)
        model.setRecordConstructor(recordClass.entity, recordClass.constructor);
}

std::optional<std::string> entityOfOtherVersion(const NSManagedObjectModel& model)
{
    for (const RecordClass& recordClass : kRecordClasses) {
        const NSEntityDescription* entity = model.entityNamed(recordClass.entity);
        if (!entity || entity->accessorHash() != recordClass.accessorHash)
            return std::string(recordClass.entity);
    }
    return std::nullopt;
}

} // namespace tarn
