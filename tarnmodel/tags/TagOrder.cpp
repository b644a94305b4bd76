#include "tarnmodel/tags/TagOrder.h"

#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/foundation/time/Collation.h"

#include <algorithm>
#include <string>

namespace tarn {

namespace {

struct TagOfTree {
    OVNoteTag* tag;
    std::vector<std::string> sortKeys; ///< of its components
};

} // namespace

std::vector<OVNoteTag*> tagsInTreeOrder(std::vector<OVNoteTag*> tags)
{
    std::vector<TagOfTree> tree;
    tree.reserve(tags.size());
    for (OVNoteTag* tag : tags) {
        std::vector<std::string> sortKeys = tag->tagComponents();
        for (std::string& component : sortKeys)
            component = localizedStandardSortKey(component);
        tree.push_back({tag, std::move(sortKeys)});
    }
    std::ranges::stable_sort(tree, {}, &TagOfTree::sortKeys);
    std::ranges::transform(tree, tags.begin(), &TagOfTree::tag);
    return tags;
}

} // namespace tarn
