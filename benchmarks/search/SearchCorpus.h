#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

/// A word planted in some notes: it stands in no text otherwise.
struct PlantedWord {
    std::string word;
    std::size_t everyNth = 0; ///< of how many notes one has it
};
/// The words that `searchCorpus` plants.
const std::vector<PlantedWord>& plantedWords();

/// `count` notes from all Markdown files in a folder: cut at headings, drawn again and again with some paragraphs
/// shuffled and about one word in fifteen replaced by another of the same language. Always the same for the same files
/// and count. Empty when the folder holds nothing.
std::vector<std::string> searchCorpus(const std::string& folder, std::size_t count);

} // namespace tarn
