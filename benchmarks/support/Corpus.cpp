#include "benchmarks/support/Corpus.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string_view>

namespace tarn {

namespace {

using Words = std::vector<std::string_view>;

const Words english{"meeting", "garden", "report", "coffee", "deadline", "budget", "the", "of", "and", "with", "from",
    "idea", "train", "window", "letter", "quarter", "review", "draft", "paper", "mountain", "river", "design", "table",
    "function", "release", "customer", "kitchen", "music", "book", "question", "answer", "weekend", "ticket", "server",
    "morning", "evening", "project", "plan"};
const Words german{"Besprechung", "Garten", "Übersicht", "Kaffee", "und", "mit", "für", "Größe", "Straße", "Entwurf",
    "Küche", "Zug", "Frühstück", "Änderung", "Woche", "Projekt", "Lösung", "Brief"};
const Words french{
    "réunion", "jardin", "été", "café", "avec", "pour", "déjà", "projet", "semaine", "lettre", "cuisine", "idée", "où"};
const Words russian{
    "встреча", "сад", "отчёт", "кофе", "и", "с", "для", "проект", "неделя", "письмо", "кухня", "вопрос", "ответ"};
const Words japanese{
    "会議", "予定", "庭", "報告書", "コーヒー", "計画", "今週", "手紙", "台所", "質問", "答え", "山", "川"};

class Author {
public:
    explicit Author(unsigned seed) : random_(seed) { }
    std::size_t below(std::size_t bound) { return random_() % bound; }
    std::string_view word(const Words& words) { return words[below(words.size())]; }
    const Words& language()
    {
        const std::size_t choice = below(100);
        return choice < 55 ? english : choice < 72 ? german : choice < 85 ? french : choice < 94 ? russian : japanese;
    }
    /// A few tags are on many notes, most on few.
    std::size_t tagNumber()
    {
        const double uniform = static_cast<double>(random_()) / 4294967296.0;
        return static_cast<std::size_t>(std::pow(uniform, 3.0) * 2000.0);
    }

private:
    std::mt19937 random_;
};

std::string sentence(Author& author, const Words& words, std::size_t length)
{
    std::string text;
    for (std::size_t number = 0; number < length; ++number) {
        text += number ? " " : "";
        text += author.word(words);
        if (author.below(9) == 0)
            text += std::to_string(author.below(100000));
    }
    return text + ".";
}

std::string tagName(std::size_t number)
{
    std::string name = "area" + std::to_string(number % 40);
    if (number >= 40)
        name += "/topic" + std::to_string(number % 400);
    if (number >= 400)
        name += "/detail" + std::to_string(number);
    return name;
}

std::string noteText(std::size_t number)
{
    Author author(static_cast<unsigned>(number * 2654435761U + 17));
    const Words& words = author.language();
    std::string text = "# " + sentence(author, words, 3 + author.below(4)) + " " + std::to_string(number) + "\n\n";
    const std::size_t paragraphs = 2 + author.below(14);
    for (std::size_t paragraph = 0; paragraph < paragraphs; ++paragraph) {
        switch (author.below(8)) {
        case 0:
            text += "- [ ] " + sentence(author, words, 5) + "\n- [x] " + sentence(author, words, 4) + "\n\n";
            break;
        case 1:
            text += "```\nlet " + std::string(author.word(english)) + " = " + std::to_string(author.below(1000))
                + ";\n```\n\n";
            break;
        case 2:
            text += "## " + sentence(author, words, 3) + "\n\n";
            [[fallthrough]];
        default:
            for (std::size_t count = 1 + author.below(4); count > 0; --count)
                text += sentence(author, words, 8 + author.below(16))
                    + (author.below(6) ? " " : " **" + std::string(author.word(words)) + "** ");
            text += "\n\n";
        }
    }
    if (author.below(5) != 0)
        for (std::size_t count = 1 + author.below(4); count > 0; --count)
            text += "#" + tagName(author.tagNumber()) + " ";
    return text + "\n";
}

void cutAtHeadings(const std::string& text, std::vector<std::string>& pieces)
{
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t next = text.find("\n## ", begin + 1);
        const std::size_t end = next == std::string::npos ? text.size() : next + 1;
        if (end - begin > 80)
            pieces.push_back(text.substr(begin, end - begin));
        begin = end;
    }
}

} // namespace

std::vector<std::string> madeUpNotes(std::size_t count)
{
    std::vector<std::string> notes;
    notes.reserve(count);
    for (std::size_t number = 0; number < count; ++number)
        notes.push_back(noteText(number));
    return notes;
}

std::vector<std::string> notesFromFolder(const std::string& folder, std::size_t count)
{
    std::vector<std::string> pieces;
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(
             folder, std::filesystem::directory_options::skip_permission_denied))
        if (entry.is_regular_file() && entry.path().extension() == ".md")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const auto& file : files) {
        std::ostringstream text;
        text << std::ifstream(file, std::ios::binary).rdbuf();
        cutAtHeadings(text.str(), pieces);
    }
    std::vector<std::string> notes;
    if (pieces.empty())
        return notes;
    for (std::size_t number = 0; number < count; ++number)
        notes.push_back("# Note " + std::to_string(number) + "\n\n" + pieces[number % pieces.size()] + "\n\n#"
            + tagName(number * 7919 % 2000) + "\n");
    return notes;
}

} // namespace tarn
