#pragma once

namespace tarn {

/// Makes the policies that the installed mapping models name known to the object store. Once is enough; calling it
/// again does no harm. Any thread.
void registerMigrationPolicies();

} // namespace tarn
