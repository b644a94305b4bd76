#include "tools/tarn/import/record/TextFingerprint.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKLink.h"

#include <array>
#include <fstream>

#include <sodium.h>

namespace tarn {

namespace {

/// No title has it in its hash.
constexpr std::string_view kTitleMark = "title:";

struct TakenApart {
    std::string body;
    std::vector<std::string> titles;
};

/// The text without the titles of its wiki links.
TakenApart takenApart(const std::string& text)
{
    TakenApart parts;
    if (text.find("[[") == std::string::npos)
        return parts; // most texts are spared a parse
    const CVKAST document = CVKAST::fromMarkdown(text);
    std::size_t from = 0;
    for (CVKLink& link : document.links()) {
        if (link.form != CVKLinkForm::Wiki)
            continue;
        (parts.body += text.substr(from, link.destination.location - from)) += '\0';
        from = link.destination.end();
        parts.titles.push_back(std::move(link.decodedDestination));
    }
    parts.body += text.substr(from);
    return parts;
}

std::string markOfTitle(const std::string& title)
{
    return std::string(kTitleMark) + hashOfBytes(title);
}

using Digest = std::array<unsigned char, crypto_generichash_BYTES_MIN>;

std::string hexadecimalOfDigest(const Digest& digest)
{
    std::string hexadecimal(digest.size() * 2 + 1, '\0');
    sodium_bin2hex(hexadecimal.data(), hexadecimal.size(), digest.data(), digest.size());
    hexadecimal.pop_back();
    return hexadecimal;
}

} // namespace

std::string hashOfBytes(std::string_view bytes)
{
    Digest digest{};
    crypto_generichash(
        digest.data(), digest.size(), reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), nullptr, 0);
    return hexadecimalOfDigest(digest);
}

std::optional<std::string> hashOfFile(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    crypto_generichash_state state;
    crypto_generichash_init(&state, nullptr, 0, Digest().size());
    std::array<char, 65'536> buffer{};
    while (stream.read(buffer.data(), buffer.size()) || stream.gcount() > 0)
        crypto_generichash_update(&state, reinterpret_cast<const unsigned char*>(buffer.data()),
            static_cast<unsigned long long>(stream.gcount()));
    if (!stream.eof() || stream.bad())
        return std::nullopt;
    Digest digest{};
    crypto_generichash_final(&state, digest.data(), digest.size());
    return hexadecimalOfDigest(digest);
}

TextFingerprint TextFingerprint::of(const std::string& text, const Resolver& resolve)
{
    TextFingerprint fingerprint{.whole = hashOfBytes(text), .body = {}, .links = {}};
    const TakenApart parts = takenApart(text);
    if (parts.titles.empty())
        return fingerprint;
    fingerprint.body = hashOfBytes(parts.body);
    for (const std::string& title : parts.titles) {
        const auto note = resolve(title);
        fingerprint.links.push_back((note ? *note + " " : std::string()) + markOfTitle(title));
    }
    return fingerprint;
}

bool TextFingerprint::matches(const std::string& text, const LeadsTo& leadsTo) const
{
    if (hashOfBytes(text) == whole)
        return true;
    if (links.empty())
        return false;
    const TakenApart parts = takenApart(text);
    if (parts.titles.size() != links.size() || hashOfBytes(parts.body) != body)
        return false;
    for (std::size_t i = 0; i < links.size(); ++i) {
        const std::string& title = parts.titles[i];
        if (!links[i].ends_with(markOfTitle(title)) && !leadsTo(title, links[i].substr(0, links[i].find(' '))))
            return false;
    }
    return true;
}

} // namespace tarn
