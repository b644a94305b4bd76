#include "tools/tarn/import/ImportReport.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

using Outcome = RewrittenLink::Outcome;

std::string textOfPath(const std::filesystem::path& path)
{
    return validUTF8(path.native());
}

bool isLeft(const ToldLink& told)
{
    return told.link.outcome == Outcome::Missing || told.link.outcome == Outcome::Outside
        || told.link.outcome == Outcome::Kept;
}

/// What became of a link, in a word.
std::string_view nameOfOutcome(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Wiki:
        return "wiki";
    case Outcome::ByIdentifier:
        return "byIdentifier";
    case Outcome::Heading:
        return "heading";
    case Outcome::Waiting:
        return "waiting";
    case Outcome::Missing:
        return "missing";
    case Outcome::Outside:
        return "outside";
    case Outcome::Kept:
        return "kept";
    case Outcome::File:
    case Outcome::Other:
        break;
    }
    return "other";
}

std::string_view reasonOf(Outcome outcome)
{
    if (outcome == Outcome::Outside)
        return "outside of what is imported";
    return outcome == Outcome::Kept ? "its text would read otherwise" : "no such file";
}

JSON jsonOfLinks(const LinkCounts& links)
{
    return {{"wiki", links.wiki}, {"byIdentifier", links.byIdentifier}, {"waiting", links.waiting},
        {"ambiguous", links.ambiguous}, {"anchors", links.anchors}, {"outside", links.outside},
        {"missing", links.missing}, {"kept", links.kept}};
}

JSON jsonOfLeftLinks(const std::vector<ToldLink>& links)
{
    JSON left = JSON::array();
    for (const ToldLink& told : links) {
        if (isLeft(told))
            left.push_back({{"path", textOfPath(told.path)}, {"link", told.link.destination},
                {"reason", reasonOf(told.link.outcome)}});
    }
    return left;
}

JSON jsonOfToldLinks(const std::vector<ToldLink>& links)
{
    JSON document = JSON::array();
    for (const ToldLink& told : links) {
        JSON link{{"path", textOfPath(told.path)}, {"link", told.link.destination},
            {"outcome", nameOfOutcome(told.link.outcome)}};
        if (!told.link.title.empty())
            link["title"] = told.link.title;
        if (told.link.isOneOfSeveral)
            link["ambiguous"] = true;
        document.push_back(std::move(link));
    }
    return document;
}

JSON jsonOfFailures(const ImportResult& result)
{
    JSON failed = JSON::array();
    for (const PathFailure& failure : result.failures)
        failed.push_back({{"path", textOfPath(failure.path)}, {"error", failure.error}});
    for (const std::filesystem::path& path : result.left)
        failed.push_back({{"path", textOfPath(path)}, {"error", result.reasonLeft}});
    return failed;
}

/// ", 3 updated" where there are any.
std::string counted(std::size_t count, std::string_view what)
{
    return count == 0 ? std::string() : ", " + std::to_string(count) + " " + std::string(what);
}

/// Where an import ended before its time: what is in the store, and what is not.
void tellOfEnd(const ImportResult& result, bool dryRun)
{
    if (result.reasonLeft.empty())
        return;
    std::string left;
    if (!result.left.empty())
        left = "; " + numbered(result.left.size(), "file") + ", from " + textOfPath(result.left.front())
            + (result.left.size() == 1 ? " on, is" : " on, are") + (dryRun ? " not looked at" : " not");
    const std::string taken = dryRun ? "nothing was written"
        : result.written() == 0      ? "nothing of it is in the store"
                                     : "the " + numbered(result.written(), "note") + " up to "
            + textOfPath(result.lastImported) + " are in the store";
    tellOnStandardError(result.reasonLeft + ": " + taken + left);
}

} // namespace

std::vector<SkippedPath> skippedBy(const ImportResult& result, std::vector<SkippedPath> skipped)
{
    std::erase_if(skipped, [&result](const SkippedPath& file) {
        std::error_code failure;
        return (file.reason == SkipReason::Picture || file.reason == SkipReason::InAssets)
            && result.attachedFiles.contains(std::filesystem::canonical(file.path, failure));
    });
    return skipped;
}

JSON jsonOfReport(const ImportReport& report)
{
    const ImportResult& result = report.result;
    JSON skippedFiles = JSON::array();
    for (const SkippedPath& file : report.skipped)
        skippedFiles.push_back({{"path", textOfPath(file.path)}, {"reason", textOfReason(file.reason)}});
    for (const SkippedNote& note : result.skippedNotes)
        skippedFiles.push_back({{"path", textOfPath(note.path)}, {"reason", note.reason}});
    JSON gone = JSON::array();
    for (const std::filesystem::path& path : result.gone)
        gone.push_back(textOfPath(path));
    JSON document;
    document["imported"] = result.imported;
    document["updated"] = result.updated;
    document["unchanged"] = result.unchanged;
    document["conflicted"] = result.conflicted;
    document["moved"] = result.moved;
    document["gone"] = result.gone.size();
    document["goneFiles"] = std::move(gone);
    document["attachments"] = result.attachments;
    document["skipped"] = skippedFiles.size();
    document["skippedFiles"] = std::move(skippedFiles);
    document["failed"] = jsonOfFailures(result);
    document["links"] = jsonOfLinks(result.links);
    document["leftLinks"] = jsonOfLeftLinks(result.toldLinks);
    if (report.isDryRun)
        document["toldLinks"] = jsonOfToldLinks(result.toldLinks);
    document["seconds"] = report.seconds;
    return document;
}

std::string summaryOfReport(const ImportReport& report)
{
    const ImportResult& result = report.result;
    std::string line = (report.isDryRun ? "would import " : "imported ") + numbered(result.imported, "note");
    if (result.attachments > 0)
        line += " with " + numbered(result.attachments, "attachment");
    line += counted(result.updated, "updated") + counted(result.conflicted, "conflicted")
        + counted(result.unchanged, "unchanged") + counted(result.moved, "moved") + counted(result.gone.size(), "gone");
    if (const std::size_t skipped = report.skipped.size() + result.skippedNotes.size(); skipped > 0)
        line += ", skipped " + numbered(skipped, "file");
    const auto pictures = std::ranges::count(report.skipped, SkipReason::Picture, &SkippedPath::reason);
    if (pictures > 0)
        line += " (" + numbered(static_cast<std::size_t>(pictures), "picture") + ")";
    if (!result.failures.empty())
        line += ", failed on " + numbered(result.failures.size(), "file");
    if (const std::size_t links = result.links.wiki + result.links.byIdentifier; links > 0)
        line += ", " + numbered(links, "link") + " to notes";
    if (result.links.waiting > 0)
        line += ", " + numbered(result.links.waiting, "link") + " waiting";
    const auto left = static_cast<std::size_t>(std::ranges::count_if(result.toldLinks, isLeft));
    if (left > 0)
        line += ", left " + numbered(left, "link") + " to no such file or elsewhere";
    if (!result.left.empty())
        line += ", left out " + numbered(result.left.size(), "file");
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%.2f s", report.seconds);
    return line + " in " + time.data();
}

std::string textOfLink(const ToldLink& told)
{
    std::string text = told.path.native() + ": " + told.link.destination + ": ";
    switch (told.link.outcome) {
    case Outcome::Wiki:
    case Outcome::ByIdentifier:
        text += "to the note " + (told.link.title.empty() ? std::string("of that title") : told.link.title);
        text += told.link.outcome == Outcome::ByIdentifier ? ", by its identifier" : "";
        break;
    case Outcome::Waiting:
        text += "waits for a note of that title";
        break;
    case Outcome::Heading:
        text += "to a heading of the same note";
        break;
    default:
        text += reasonOf(told.link.outcome);
    }
    return text + (told.link.isOneOfSeveral ? "; the nearest of several" : "");
}

void tellOfImport(const ImportReport& report, bool verbose)
{
    const ImportResult& result = report.result;
    for (const PathFailure& failure : result.failures)
        tellOnStandardError("not imported: " + failure.path.native() + ": " + failure.error);
    for (const SkippedNote& note : result.skippedNotes)
        tellOnStandardError("skipped: " + note.path.native() + ": " + note.reason);
    for (const std::filesystem::path& path : result.gone)
        tellOnStandardError("gone: " + path.native() + ": its note stays");
    if (verbose && !report.isDryRun) {
        for (const ToldLink& told : result.toldLinks)
            tellOnStandardError((isLeft(told) ? "left a link: " : "link: ") + textOfLink(told));
    }
    if (verbose) {
        for (const SkippedPath& file : report.skipped)
            tellOnStandardError("skipped: " + file.path.native() + ": " + std::string(textOfReason(file.reason)));
        for (const std::filesystem::path& path : result.left)
            tellOnStandardError("not imported: " + path.native() + ": " + result.reasonLeft);
    }
    tellOfEnd(result, report.isDryRun);
}

} // namespace tarn
