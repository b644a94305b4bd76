#pragma once

#include "tarnmodel/corvel/blocks/Document.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::corvel {

/// What a note derives from the text.
CVKTextSummary makeTextSummary(const CVKAST::Document& document);

/// The first line of the text that says something: neither blank nor hashtags alone. Without its line end.
std::optional<SourceRange> titleLine(const CVKAST::Document& document);
/// Whether the line holds nothing but white space and hashtags, of these one at least.
bool holdsOnlyHashtags(const CVKAST::Document& document, SourceRange line);

/// Paths of the hashtags with all ancestors, one spelling for each key.
std::vector<std::string> tagsOfHashtags(const CVKAST::Document& document);

/// A destination as it is meant: without escapes; of an e-mail autolink with `mailto:`.
std::string decodedDestination(LinkKind kind, std::string_view written);

} // namespace tarn::corvel
