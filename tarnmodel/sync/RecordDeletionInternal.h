#pragma once

namespace tarn {

class NSEntityDescription;
class NSManagedObjectContext;

/// Deletes every record of the entity, without reading its values. A failed fetch is logged and deletes nothing.
void deleteAllRecordsOfEntity(const NSEntityDescription& entity, NSManagedObjectContext& context);

} // namespace tarn
