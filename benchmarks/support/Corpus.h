#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

/// Notes as people write them, made up from one seed: headings, paragraphs in several scripts, to-dos, code, wiki
/// links, nested tags (2,000 names, a few popular); about 2.5 KB each, always the same for the same count.
std::vector<std::string> madeUpNotes(std::size_t count);

/// Every Markdown file below a folder, cut at second-level headings, repeated with changed words until there are
/// `count`. Empty when there is none.
std::vector<std::string> notesFromFolder(const std::string& folder, std::size_t count);

} // namespace tarn
