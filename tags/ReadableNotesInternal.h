#pragma once

#include <vector>

namespace tarn {

class OVNote;

/// Reads the text of every note once, so that what cannot be read ends an operation on many notes before it has changed
/// the first of them. Raises "Invalid accessor" for a locked note, a protected one without its manager included, and
/// what the store raises when a text cannot be read.
void requireReadableTexts(const std::vector<OVNote*>& notes);

} // namespace tarn
