#include "tarnmodel/model/RecordClasses.h"

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVInternalChanges.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteFileServerData.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteServerData.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/OVServerMetadata.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

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
        [](const NSManagedObjectSeed& seed) -> NSManagedObject* { return new Record(seed); }};
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
