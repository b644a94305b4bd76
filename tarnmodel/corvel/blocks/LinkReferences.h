#pragma once

#include "tarnmodel/corvel/scanning/SourceRange.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn::corvel {

class LeafContent;

using DefinitionIndex = std::uint32_t;
inline constexpr DefinitionIndex kNoDefinition = 0xFFFFFFFF;

/// `[label]: destination "title"`.
struct LinkDefinition {
    SourceRange destination; ///< as written, without < and >
    std::string title;       ///< as written between its marks
    bool hasTitle = false;
};

/// The link reference definitions of a document; of several with one label the first counts.
class LinkReferences {
public:
    /// Takes the definitions at the front of a paragraph; gives how many bytes of its content they take.
    std::size_t takeDefinitions(const LeafContent& content);

    /// The definition with this label (as written, without brackets), or `kNoDefinition`.
    DefinitionIndex find(std::string_view label) const;
    const LinkDefinition& definition(DefinitionIndex index) const { return definitions_[index]; }
    const std::vector<LinkDefinition>& definitions() const noexcept { return definitions_; }

private:
    std::vector<LinkDefinition> definitions_;
    std::unordered_map<std::string, DefinitionIndex> indexForLabel_;
};

/// A label as labels are compared: case folded, trimmed, white space collapsed.
std::string normalizedLabel(std::string_view label);

} // namespace tarn::corvel
