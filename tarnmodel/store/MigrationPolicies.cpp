#include "tarnmodel/store/MigrationPolicies.h"

#include "tarnmodel/store/Model1toModel2OVNoteBackLinkMigrationPolicy.h"
#include "tarnmodel/store/Model1toModel2OVNoteMigrationPolicy.h"
#include "tarnmodel/store/Model2toModel3OVNoteMigrationPolicy.h"

namespace tarn {

void registerMigrationPolicies()
{
    // The names stand in mapping files that were shipped.
    NSEntityMigrationPolicy::registerClass<Model1toModel2OVNoteMigrationPolicy>("Model1toModel2OVNoteMigrationPolicy");
    NSEntityMigrationPolicy::registerClass<Model1toModel2OVNoteBackLinkMigrationPolicy>(
        "Model1toModel2OVNoteBackLinkMigrationPolicy");
    NSEntityMigrationPolicy::registerClass<Model2toModel3OVNoteMigrationPolicy>("Model2toModel3OVNoteMigrationPolicy");
}

} // namespace tarn
