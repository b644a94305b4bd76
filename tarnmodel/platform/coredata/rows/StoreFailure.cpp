#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include "tarnmodel/platform/coredata/rows/RowStore.h"

namespace tarn {

StoreFailure::StoreFailure(long code, std::string_view description)
    : error_(TarnStoreErrorDomain, code, description) { }

NSError errorOfCurrentException()
{
    try {
        throw;
    } catch (const StoreFailure& failure) {
        return failure.error();
    } catch (const NSException& exception) {
        return {TarnStoreErrorDomain, StoreErrorGeneric, exception.reason()};
    } catch (const std::exception& exception) {
        return {TarnStoreErrorDomain, StoreErrorGeneric, exception.what()};
    }
}

} // namespace tarn
