#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

namespace tarn {

namespace {

std::string identifierForURL(const OVNote& note)
{
    return stringByAddingPercentEncoding(note.uniqueIdentifier().value_or(""), UnescapedCharacters::URLQuery);
}

} // namespace

std::string OVNote::openNoteXCallbackURLString() const
{
    return "tarn://x-callback-url/open-note?id=" + identifierForURL(*this);
}

std::string OVNote::openNoteWithTitleXCallbackURLString() const
{
    return "tarn://x-callback-url/open-note?title="
        + stringByAddingPercentEncoding(title().value_or(""), UnescapedCharacters::Alphanumeric);
}

std::string OVNote::openNoteInNewWindowXCallbackURLString() const
{
    return "tarn://x-callback-url/open-note?new_window=yes&id=" + identifierForURL(*this);
}

std::string OVNote::openNoteXCallbackURLStringWithHeader(std::string_view header) const
{
    return appendHeader(header, openNoteXCallbackURLString());
}

std::string OVNote::appendHeader(std::string_view header, std::string_view noteLink)
{
    return std::string(noteLink)
        + "&header=" + stringByAddingPercentEncoding(trimmed(header), UnescapedCharacters::URLQueryHeader);
}

} // namespace tarn
