#include "tests/search/SearchCases.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/platform/predicate/ConstantText.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace tarn {

namespace {

bool isLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// `\n`, `\t`, `\r`, `\s` for a blank at an end, `\u{200D}`, `\\`.
std::string unescaped(std::string_view written)
{
    if (written.find('\\') == std::string_view::npos)
        return std::string(written);
    std::string text;
    for (std::size_t place = 0; place < written.size(); ++place) {
        if (written[place] != '\\' || place + 1 == written.size()) {
            text += written[place];
            continue;
        }
        const char letter = written[++place];
        if (letter == 'u') {
            const std::size_t end = written.find('}', place);
            appendCodePoint(text,
                static_cast<char32_t>(
                    std::stoul(std::string(written.substr(place + 2, end - place - 2)), nullptr, 16)));
            place = end;
            continue;
        }
        text += letter == 'n' ? '\n' : letter == 't' ? '\t' : letter == 'r' ? '\r' : letter == 's' ? ' ' : letter;
    }
    return text;
}

/// As a part of a string literal.
std::string literalPart(std::string_view text)
{
    std::string literal;
    appendConstantText(literal, Value(text));
    return literal.substr(1, literal.size() - 2);
}

void replaceAll(std::string& text, std::string_view wanted, std::string_view replacement)
{
    for (std::size_t place = 0; (place = text.find(wanted, place)) != std::string::npos; place += replacement.size())
        text.replace(place, wanted.size(), replacement);
}

/// The end of what a "{" begins. A brace in an argument has a backslash in front.
std::size_t closingBrace(std::string_view text, std::size_t begin)
{
    for (std::size_t place = begin; place < text.size(); ++place) {
        if (text[place] == '\\')
            ++place;
        else if (text[place] == '}')
            return place;
    }
    throw std::invalid_argument("an abbreviation does not end: " + std::string(text));
}

std::string withoutBackslashes(std::string_view text)
{
    std::string result;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool escapes = text[place] == '\\' && place + 1 < text.size()
            && std::string_view("{}\\").find(text[place + 1]) != std::string_view::npos;
        if (escapes)
            ++place;
        result += text[place];
    }
    return result;
}

} // namespace

std::optional<std::string> SearchCase::value(std::string_view key) const
{
    const auto found = std::ranges::find(fields, key, &std::pair<std::string, std::string>::first);
    return found == fields.end() ? std::nullopt : std::optional(found->second);
}

std::vector<SearchCase> readSearchCases(const std::string& file, const std::vector<std::string>& rawKeys)
{
    std::vector<SearchCase> cases;
    std::ifstream stream(TARN_TEST_CASES "/" + file);
    bool isOpen = false;
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        if (line.starts_with("# ") || line == "#")
            continue;
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos) {
            isOpen = false;
            continue;
        }
        if (!std::exchange(isOpen, true))
            cases.push_back({number, {}});
        const std::string key = line.substr(0, colon);
        const std::string written = line.substr(std::min(colon + 2, line.size()));
        const bool isRaw = std::ranges::find(rawKeys, key) != rawKeys.end();
        cases.back().fields.emplace_back(key, isRaw ? written : unescaped(written));
    }
    return cases;
}

std::vector<std::string> listOf(std::string_view text, std::string_view separator)
{
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + separator.size());
    }
    return parts;
}

namespace {

const std::vector<SearchCase>& searchBlocks()
{
    static const std::vector<SearchCase> blocks
        = readSearchCases("search.cases", {"let", "text", "prints", "hits", "pattern", "raises"});
    return blocks;
}

std::vector<SearchStringCase> casesInTheirWorlds()
{
    std::vector<SearchStringCase> cases;
    SearchStringCase world;
    for (const SearchCase& block : searchBlocks()) {
        world.zone = block.value("zone").value_or(world.zone);
        world.locale = block.value("locale").value_or(world.locale);
        world.now = block.value("now").value_or(world.now);
        world.ocr = block.value("ocr").value_or(world.ocr ? "on" : "off") == "on";
        world.block = &block;
        if (block.value("query"))
            cases.push_back(world);
    }
    return cases;
}

} // namespace

const std::vector<SearchStringCase>& searchStringCases()
{
    static const std::vector<SearchStringCase> cases = casesInTheirWorlds();
    return cases;
}

Abbreviations Abbreviations::ofSearchStrings()
{
    Abbreviations abbreviations;
    for (const SearchCase& block : searchBlocks()) {
        for (const auto& [key, value] : block.fields) {
            if (key == "let")
                abbreviations.add(value);
        }
    }
    return abbreviations;
}

void Abbreviations::add(std::string_view definition)
{
    const std::size_t brace = definition.find('{');
    const std::size_t end = definition.find('}');
    definitions_.push_back({std::string(definition.substr(0, brace)),
        listOf(definition.substr(brace + 1, end - brace - 1)), std::string(definition.substr(end + 3))});
}

void Abbreviations::set(std::string name, std::string text)
{
    const auto found = std::ranges::find(constants_, name, &std::pair<std::string, std::string>::first);
    if (found == constants_.end())
        constants_.emplace_back(std::move(name), std::move(text));
    else
        found->second = std::move(text);
}

std::string Abbreviations::expanded(std::string_view text) const
{
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        std::size_t end = place;
        while (end < text.size() && isLetter(text[end]))
            ++end;
        const bool isCall = end > place && end < text.size() && text[end] == '{';
        if (!isCall) {
            end = std::max(end, place + 1);
            result += text.substr(place, end - place);
            place = end;
            continue;
        }
        const std::size_t brace = closingBrace(text, end + 1);
        result += call(text.substr(place, end - place), text.substr(end + 1, brace - end - 1));
        place = brace + 1;
    }
    return result;
}

std::string Abbreviations::call(std::string_view name, std::string_view arguments) const
{
    if (name == "at") {
        const auto date = dateFromISO8601String(arguments);
        if (!date)
            throw std::invalid_argument("no date: " + std::string(arguments));
        std::string text;
        appendConstantText(text, Value(*date));
        return text;
    }
    const auto definition = std::ranges::find(definitions_, name, &Definition::name);
    if (definition == definitions_.end())
        throw std::invalid_argument("no abbreviation: " + std::string(name));
    std::string text = definition->text;
    for (const auto& [constant, value] : constants_)
        replaceAll(text, constant, value);
    std::vector<std::string> values;
    if (definition->parameters.size() == 1)
        values.emplace_back(arguments);
    else
        values = listOf(arguments);
    // Parameters are single capital letters that the texts use for nothing else, between "<" and ">".
    for (std::size_t index = 0; index < definition->parameters.size(); ++index)
        replaceAll(text, "<" + definition->parameters[index] + ">", literalPart(withoutBackslashes(values.at(index))));
    return expanded(text);
}

} // namespace tarn
