#include "tools/tarn/import/ImportResult.h"

#include <iterator>
#include <utility>

namespace tarn {

namespace {

template <typename Element> void append(std::vector<Element>& all, std::vector<Element>&& added)
{
    all.insert(all.end(), std::move_iterator(added.begin()), std::move_iterator(added.end()));
}

void addCounts(LinkCounts& all, const LinkCounts& added)
{
    all.wiki += added.wiki;
    all.byIdentifier += added.byIdentifier;
    all.waiting += added.waiting;
    all.ambiguous += added.ambiguous;
    all.anchors += added.anchors;
    all.outside += added.outside;
    all.missing += added.missing;
    all.kept += added.kept;
}

} // namespace

void ImportResult::add(ImportResult batch)
{
    imported += batch.imported;
    updated += batch.updated;
    unchanged += batch.unchanged;
    conflicted += batch.conflicted;
    moved += batch.moved;
    attachments += batch.attachments;
    addCounts(links, batch.links);
    attachedFiles.merge(batch.attachedFiles);
    append(toldLinks, std::move(batch.toldLinks));
    append(skippedNotes, std::move(batch.skippedNotes));
    append(failures, std::move(batch.failures));
    // A file that could not be read outweighs one that could not be imported.
    if (code == ExitCode::Done || batch.code == ExitCode::InputOutput)
        code = batch.code;
}

} // namespace tarn
