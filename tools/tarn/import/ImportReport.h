#pragma once

#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/import/ImportResult.h"
#include "tools/tarn/import/reading/MarkdownFiles.h"

#include <string>
#include <vector>

namespace tarn {

/// What an import tells of itself at its end.
struct ImportReport {
    const ImportResult& result;
    std::vector<SkippedPath> skipped; ///< files that nothing was made of
    double seconds = 0;
    bool isDryRun = false;
};

/// Files that were attached were not passed over.
std::vector<SkippedPath> skippedBy(const ImportResult& result, std::vector<SkippedPath> skipped);

JSON jsonOfReport(const ImportReport& report);
/// One line.
std::string summaryOfReport(const ImportReport& report);
/// Tells on standard error of what failed, of notes that were left as they are, of files that are gone, and where the
/// import ended before its time; with `verbose` of each file that was passed over and each link.
void tellOfImport(const ImportReport& report, bool verbose);
/// "[[x]] in a.md leads to "X"", and so on; for people.
std::string textOfLink(const ToldLink& told);

} // namespace tarn
