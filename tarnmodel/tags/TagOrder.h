#pragma once

#include <vector>

namespace tarn {

class OVNoteTag;

/// The tags as a tree shows them: each right behind the tag that it belongs to, and beside others as people sort names.
std::vector<OVNoteTag*> tagsInTreeOrder(std::vector<OVNoteTag*> tags);

} // namespace tarn
