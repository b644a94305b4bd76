#include "benchmarks/search/SearchCorpus.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string_view>

namespace tarn {

namespace {

constexpr std::size_t kShortestPiece = 1500;
constexpr std::size_t kLongestPiece = 8000;
constexpr std::size_t kOneWordIn = 15;

/// A part of a file, and the language pool that its words may be replaced from.
struct Piece {
    std::string text;
    std::size_t language = 0;
};

/// Handbook pages name their language; the other files are taken together.
std::string languageOf(const std::string& file)
{
    if (!file.starts_with("handbook-"))
        return "others";
    const std::size_t start = file.find('-') + 1;
    return file.substr(start, 5);
}

void cut(const std::string& text, std::size_t language, std::vector<Piece>& pieces)
{
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = begin + kShortestPiece;
        if (end < text.size())
            end = std::min(text.find("\n#", end), text.find("\n\n", std::min(begin + kLongestPiece, text.size())));
        end = std::min(end, text.size());
        if (end - begin >= kShortestPiece / 3)
            pieces.push_back({text.substr(begin, end - begin), language});
        begin = end;
    }
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + separator.size(), text.size()));
    }
    return parts;
}

class Mixer {
public:
    explicit Mixer(const std::string& folder)
    {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (entry.path().extension() == ".md")
                files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        std::map<std::string, std::size_t> languages;
        for (const auto& file : files) {
            std::ostringstream text;
            text << std::ifstream(file, std::ios::binary).rdbuf();
            const auto language = languages.emplace(languageOf(file.filename().string()), languages.size()).first;
            cut(text.str(), language->second, pieces_);
        }
        words_.resize(languages.size());
        for (const Piece& piece : pieces_)
            for (const std::string_view word : split(piece.text, " "))
                if (!word.empty() && word.find('\n') == std::string_view::npos)
                    words_[piece.language].push_back(word);
    }
    bool isEmpty() const { return pieces_.empty(); }

    std::string note(std::size_t number) const
    {
        std::mt19937 random(static_cast<unsigned>(number * 2654435761U + 99));
        const Piece& piece = pieces_[number < pieces_.size() ? number : random() % pieces_.size()];
        const auto& words = words_[piece.language];
        std::vector<std::string_view> paragraphs = split(piece.text, "\n\n");
        if (paragraphs.size() > 3)
            std::shuffle(paragraphs.begin() + 1, paragraphs.end(), random);
        std::string text = "# Note " + std::to_string(number) + "\n";
        for (const std::string_view paragraph : paragraphs) {
            text += '\n';
            for (const std::string_view word : split(paragraph, " ")) {
                const bool replaced
                    = !words.empty() && word.find('\n') == std::string_view::npos && random() % kOneWordIn == 0;
                text += replaced ? words[random() % words.size()] : word;
                text += ' ';
            }
            text += '\n';
        }
        return text;
    }

private:
    std::vector<Piece> pieces_;
    std::vector<std::vector<std::string_view>> words_; ///< by language
};

/// Some tags are on many notes, most on few; a fifth of the notes has none.
std::string tagsOf(std::size_t number)
{
    std::mt19937 random(static_cast<unsigned>(number * 40503U + 7));
    std::string text;
    if (random() % 5 == 0)
        return text;
    for (std::size_t count = 1 + random() % 4; count > 0; --count) {
        const double uniform = static_cast<double>(random()) / 4294967296.0;
        const auto tag = static_cast<std::size_t>(uniform * uniform * uniform * 2000.0);
        text += "#area" + std::to_string(tag % 40) + (tag < 40 ? " " : "/topic" + std::to_string(tag) + " ");
    }
    return text + "\n";
}

} // namespace

const std::vector<PlantedWord>& plantedWords()
{
    static const std::vector<PlantedWord> words{{"zygomorphic", 5000}, {"quixotry", 500}, {"crème brûlée", 100}};
    return words;
}

std::vector<std::string> searchCorpus(const std::string& folder, std::size_t count)
{
    const Mixer mixer(folder);
    std::vector<std::string> notes;
    if (mixer.isEmpty())
        return notes;
    notes.reserve(count);
    for (std::size_t number = 0; number < count; ++number) {
        std::string text = mixer.note(number);
        for (const PlantedWord& planted : plantedWords())
            if (number % planted.everyNth == planted.everyNth / 2)
                text += "\nand a " + planted.word + " stands here\n";
        notes.push_back(text + "\n" + tagsOf(number));
    }
    return notes;
}

} // namespace tarn
