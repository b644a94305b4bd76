#include "tools/tarn/import/record/ImportRecordLines.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/commandline/JSON.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

constexpr int kFormat = 1;
/// A note of 30 MiB that is nothing but links has less.
constexpr std::size_t kLongestLine = std::size_t(256) << 20;
constexpr int kDeepestValue = 8;

using Kind = RecordEntry::Kind;
constexpr std::array kKinds{
    std::pair<Kind, std::string_view>{Kind::Format, "format"},
    std::pair<Kind, std::string_view>{Kind::Source, "source"},
    std::pair<Kind, std::string_view>{Kind::Announced, "announced"},
    std::pair<Kind, std::string_view>{Kind::Moved, "moved"},
    std::pair<Kind, std::string_view>{Kind::Confirmed, "confirmed"},
    std::pair<Kind, std::string_view>{Kind::Withdrawn, "withdrawn"},
};

struct TooDeep { };

constexpr std::string_view kHexadecimal = "0123456789abcdef";

std::string hexadecimalOf(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        text += kHexadecimal[static_cast<unsigned char>(byte) >> 4];
        text += kHexadecimal[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

std::string bytesOf(std::string_view hexadecimal)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hexadecimal.size(); i += 2) {
        const std::size_t high = kHexadecimal.find(hexadecimal[i]);
        const std::size_t low = kHexadecimal.find(hexadecimal[i + 1]);
        bytes += static_cast<char>((high << 4) | low);
    }
    return bytes;
}

JSON jsonOf(const TextFingerprint& text)
{
    JSON json{{"whole", text.whole}};
    if (!text.links.empty()) {
        json["body"] = text.body;
        json["links"] = text.links;
    }
    return json;
}

std::optional<TextFingerprint> fingerprintOf(const JSON& source, const char* key)
{
    if (!source.contains(key))
        return std::nullopt;
    const JSON& json = source.at(key);
    return TextFingerprint{.whole = json.at("whole"),
        .body = json.value("body", std::string()),
        .links = json.value("links", std::vector<std::string>())};
}

JSON jsonOf(const ImportedSource& source)
{
    JSON json;
    if (isValidUTF8(source.path))
        json["path"] = source.path;
    else
        json["pathBytes"] = hexadecimalOf(source.path);
    const auto put = [&json](const char* key, const std::string& value) {
        if (!value.empty())
            json[key] = value;
    };
    put("note", source.note);
    put("file", source.file);
    put("stamp", source.stamp);
    if (source.text)
        json["text"] = jsonOf(*source.text);
    if (!source.note.empty())
        json["title"] = nameOfTitleRule(source.titleRule);
    put("suffix", source.titleSuffix);
    if (source.hasWaitingLinks)
        json["waits"] = true;
    put("copy", source.copy);
    if (source.copyText)
        json["copyText"] = jsonOf(*source.copyText);
    return json;
}

ImportedSource sourceOf(const JSON& json)
{
    const auto text = [&json](const char* key) { return json.value(key, std::string()); };
    return {.path = json.contains("path") ? text("path") : bytesOf(text("pathBytes")),
        .note = text("note"),
        .file = text("file"),
        .stamp = text("stamp"),
        .text = fingerprintOf(json, "text"),
        .titleRule = titleRuleNamed(text("title")).value_or(TitleRule::Text),
        .titleSuffix = text("suffix"),
        .hasWaitingLinks = json.value("waits", false),
        .copy = text("copy"),
        .copyText = fingerprintOf(json, "copyText")};
}

} // namespace

std::string lineOfEntry(const RecordEntry& entry)
{
    const auto kind = std::ranges::find(kKinds, entry.kind, &std::pair<Kind, std::string_view>::first);
    JSON json;
    JSON& value = json[std::string(kind->second)];
    switch (entry.kind) {
    case Kind::Format:
        value = kFormat;
        break;
    case Kind::Confirmed:
    case Kind::Withdrawn:
        value = true;
        break;
    default:
        value = jsonOf(entry.source);
    }
    return json.dump() + "\n";
}

bool readRecordLine(std::istream& stream, std::string& line)
{
    std::array<char, 4096> piece{};
    line.clear();
    while (line.size() <= kLongestLine) {
        stream.getline(piece.data(), piece.size());
        const auto count = static_cast<std::size_t>(stream.gcount());
        const bool isPartOfLine = stream.fail() && !stream.eof() && !stream.bad() && count > 0;
        const bool hasLineFeed = !stream.fail() && !stream.eof();
        line.append(piece.data(), hasLineFeed ? count - 1 : count);
        if (!isPartOfLine)
            return hasLineFeed || !line.empty();
        stream.clear();
    }
    return true;
}

std::optional<RecordEntry> recordEntryOfLine(std::string_view line)
{
    // What is nested without end would take a multiple of its length.
    const auto isShallow = [](int depth, JSON::parse_event_t, JSON&) {
        if (depth > kDeepestValue)
            throw TooDeep();
        return true;
    };
    try {
        const JSON json = JSON::parse(line, isShallow);
        for (const auto& [kind, name] : kKinds) {
            const auto value = json.find(std::string(name));
            if (value == json.end())
                continue;
            const bool holdsSource = kind == Kind::Source || kind == Kind::Announced || kind == Kind::Moved;
            return RecordEntry{.kind = kind,
                .source = holdsSource ? sourceOf(*value) : ImportedSource{},
                .isOfLaterFormat = kind == Kind::Format && value->get<int>() > kFormat};
        }
    } catch (const JSON::exception&) {
        // none
    } catch (const TooDeep&) {
        // none
    }
    return std::nullopt;
}

} // namespace tarn
