#include "tests/corvel/RandomMarkdown.h"

#include <array>
#include <cstdlib>

namespace tarn {

namespace {

constexpr std::array<std::string_view, 84> kCommonMark{"a", "b ", " c", "foo", "*", "**", "***", "_", "__", "`", "``",
    "```", "~~~", "[", "]", "![", "](", ")", "(", "<", ">", "[a]", "[a]: /u", "[b]: <x y> \"t\"\n", "[foo][a]", "[a][]",
    "](/url)", "](</u v> 'title')", "\n", "\n", "\n", "\n\n", "\n\n", "  \n", "\\\n", "\\", "\\*", "\\[", "&amp;",
    "&#35;", "&", "&copy;", "<a>", "</a>", "<a href=\"x\">", "<div>\n", "</div>", "<http://e.org/?q=1&r>", "<me@e.org>",
    "- ", "\n- ", "\n* ", "\n+ ", "\n1. ", "\n2) ", "\n10. ", "\n> ", "> ", "\n>", "    ", "\t", "  ", " ", "# ",
    "\n## ", "#", "\n===\n", "\n---\n", "\n***\n", "\n```\n", "\n~~~ info\n", "\n    code\n", "\n  - ", "\n     ", "'",
    "\"", "!", ".", ",", "x\ty", "\xC3\xA9", "\xE4\xB8\xAD", "<pre>\n", "<br/>"};

constexpr std::array<std::string_view, 74> kNotes{"a", "word ", " more", "Title", "\n", "\n", "\n\n", "\n\n", "\r\n",
    "# ", "\n# ", "#a", " #a", "\n#a", "#a\n", "#a/b", " #a/b ", "#ab", "#a b#", " #a b# ", "#x", " #y ", "#A", "(#a)",
    "**#a**", "#2024#", "#2024", "#facade", "##", "#", "#a#", "\n- ", "- [ ] ", "\n- [x] ", "\n1. ", "> ", "\n> ",
    "[[A]]", "[[ A ]]", "[[A|b]]", "[[B]]", "![[A]]", "[[", "]]", "[", "]", "[#a]", "[#a]: u", "(u)", "[t](x.png)",
    "![](x.png)", "[r]: x.png\n", "[r]", "`", "``", "\n```\n", "\n    ", "\t", "\\", "*", "**", "_", "~~",
    "==", "http://e.org/#a", "<", ">", "<b>", "\n---\n", "\n===", "|", "\xF0\x9F\x98\x80", "\xC3\xA4", "<!--"};

} // namespace

std::size_t fuzzCount(std::size_t usual)
{
    const char* const factor = std::getenv("TARN_FUZZ_FACTOR");
    return factor ? usual * static_cast<std::size_t>(std::strtoul(factor, nullptr, 10)) : usual;
}

std::span<const std::string_view> commonMarkPieces()
{
    return kCommonMark;
}

std::span<const std::string_view> notePieces()
{
    return kNotes;
}

} // namespace tarn
