#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

#include <ostream>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// Work on the notebook of `makeNotebook` that belongs into one save.
struct Workload {
    std::string_view name;
    void (*edit)(NSManagedObjectContext& context);
};

inline std::ostream& operator<<(std::ostream& stream, const Workload& workload)
{
    return stream << workload.name;
}

std::span<const Workload> workloads();
const Workload* workloadNamed(std::string_view name);

/// Sixty notes with tags, links and texts from some bytes to several pages.
void makeNotebook(NSManagedObjectContext& context);

/// Words of about so many bytes, other ones for each `variant`.
std::string wordsOfSize(std::size_t bytes, unsigned variant);

} // namespace tarn
