#include "tests/golden/GoldenTexts.h"

#include <fmt/format.h>

#include <array>
#include <random>

namespace tarn {

namespace {

using namespace std::string_literals;

constexpr std::array kWords{"garden", "Kitchen", "straße", "naïve", "Ærø", "東京", "план", "ποίημα", "rain", "quince",
    "letter", "Übung", "çay", "mañana", "tea", "coat", "river", "clock", "서울", "bread", "ladder", "window"};
constexpr std::array kTags{"#home", "#home/kitchen", "#home/kitchen/shelf", "#work", "#work/übung", "#reise/norge",
    "#日本/料理", "#two words#", "#ideas", "#ideas/later", "#Work/Übung", "#café"};

/// A beginning that follows from its seed on every machine, as distributions of the standard library do not.
class Choice {
public:
    explicit Choice(std::uint32_t seed) : engine_(seed) { }
    std::size_t below(std::size_t limit) { return engine_() % limit; }
    template <typename List> auto of(const List& list) { return list[below(list.size())]; }

private:
    std::mt19937 engine_;
};

std::string sentence(Choice& choice)
{
    std::string text;
    const std::size_t count = 3 + choice.below(9);
    for (std::size_t word = 0; word < count; ++word)
        text += (word == 0 ? "" : " ") + std::string(choice.of(kWords));
    return text + ".";
}

std::string everydayText(std::size_t number)
{
    Choice choice(static_cast<std::uint32_t>(number) + 77);
    std::string text = fmt::format("# Entry {}\n\n{}\n", number, sentence(choice));
    if (choice.below(3) != 0)
        text += fmt::format("\n{} {}\n", choice.of(kTags), choice.of(kTags));
    for (std::size_t item = choice.below(4); item > 0; --item)
        text += fmt::format("- [{}] {}\n", choice.below(2) == 0 ? ' ' : 'x', sentence(choice));
    if (choice.below(4) == 0)
        text += fmt::format("\nSee [[Entry {}]] and [[entry {}|another one]].\n", choice.below(400), choice.below(400));
    if (choice.below(6) == 0)
        text += "\n```\nint answer = 42;\n```\n";
    if (choice.below(9) == 0)
        text += "\n    indented " + sentence(choice) + "\n";
    return text;
}

} // namespace

std::vector<std::string> unusualTexts()
{
    return {
        // Quotes, backslashes, NUL and other control characters.
        "# It's \"quoted\"\n\n''; DROP TABLE \"OVNote\"; --\n\n#it's# `'`",
        "# Back\\slash \\\\ C:\\new\\table\n\n\\n \\0 \\' %s %d {} {0} ?1 :name @name $name",
        "# NUL \0 in a title\n\nand \0\0 in a text"s,
        "\0"s,
        "# NUL \0 and then\n\n#behind/nul [[Groceries]]\n\n- [ ] milk \0\n\n```\ncode \0\n```\n"s,
        "# Controls \x01\x02\x1B[0m\x7F\n\nbell \a, form feed \f, vertical tab \v",
        "# Line ends\r\n\r\nof another system\r\n- [ ] one\r\n- [x] two\r\n#windows\r\n",
        "# Old line ends\r\rof a third\r- [ ] one",
        "\xEF\xBB\xBF# A byte order mark\n\nin front",
        "# Separators\u2028of lines\u2029and paragraphs\u0085",
        // Characters of every kind.
        "# 🎉 Emoji 👩‍👩‍👧‍👦 🏳️‍🌈 🇳🇴\n\n🧵 #🎉 #party/🥳 [[Groceries]]",
        "# שלום עולם\n\nטקסט מימין לשמאל, ‏12‎ #עברית",
        "# مرحبا بالعالم\n\n- [ ] الحليب ، الخبز\n#عربي/يومي",
        "# Cafe\u0301 and café\n\nZ\u0351\u036F\u0343a\u0322\u0321l\u0335go\u0322 e\u0301\u0327\u0323 #caf\u00E9",
        "# Left over \uFFFD\uFFFD of halves\n\nof pairs \uFFFD",
        "# Astral 𝕏 𐍈 𠜎\n\n𝟘𝟙𝟚 #𝔱𝔞𝔤",
        "# İstanbul ıspanak STRASSE ß ẞ ﬁ Ǆ\n\nfolded #İzmir #ıspanak",
        "# Zero\u200Bwidth\u200D and\u00A0blanks\u3000of all\u2009kinds\n\n\u00AD",
        "# 日本語の題名\n\n本文です。#日本/料理\n\n- [x] 買い物\n- [ ] 掃除",
        "# 한국어\n\n한글 조합형 \u1112\u1161\u11AB #한국",
        // Of little text, or of none.
        "",
        " ",
        "\n\n\n",
        "#",
        "# ",
        "-",
        "---",
        "\t",
        "[[",
        "]]",
        "#home",
        "#home #work\n\n#ideas",
        "![]()",
        "<!-- nothing -->",
        // Blocks of code, and what only looks like them.
        "```",
        "# Fenced\n\n```cpp\nint main() { return '\\''; }\n```\n",
        "# Fenced with tildes\n\n~~~\n[[Groceries]] #notag\n~~~",
        "# Indented\n\n    [[Groceries]]\n",
        "# Indented by a tab\n\n\tcode",
        "# In a list\n\n- item\n\n      code of the item\n",
        "# In a quote\n\n>     code\n",
        "# Spans only\n\n`code` and ``two ` ticks`` and ```three``` in a line",
        "# A paragraph\n    goes on\n    indented",
        "# Deep list\n\n- one\n    - two\n        - three\n            - four",
        "# Tabs\tin\tlines\n\na\tb    c",
        // To-dos.
        "# Shopping\n\n- [ ] milk\n- [x] bread\n* [X] eggs\n1. [ ] tea\n- [] none\n  - [ ] nested\n> - [x] quoted",
        "- [ ] a to-do for a title\n- [x] and another",
        // Tags.
        "# Tags\n\n#a/b/c #a/b #A/B/C #closed tag# (#in-parentheses) x#none \\#none #home/kitchen, #ideas!",
        "#first line of tags\n\n# The title below\n\n#home/kitchen/shelf",
        "# Many levels\n\n#1st/2nd/3rd/4th/5th/6th/7th/8th",
        // Markdown that a parser needs care for.
        "Setext title\n============\n\nand text",
        "> # Quoted title\n>\n> - [ ] quoted",
        "# [A link](https://example.com/a%20b?c=\"d\") and ![an image](missing.png)\n\n<https://example.com> "
        "[r]\n\n[r]: "
        "/x 'y'",
        "# *Emphasis* **strong** ~~gone~~ ==marked== `code` &amp; &copy; \\*\n\n<b>raw</b>",
        "| a | b |\n|---|---|\n| 1 | [[x\\|y]] |",
        "1986\\. A great year",
        std::string(2000, '[') + "x" + std::string(2000, ']'),
        std::string(500, '>') + " deep",
    };
}

std::vector<std::string> everydayTexts(std::size_t count)
{
    std::vector<std::string> texts;
    for (std::size_t number = 0; number < count; ++number)
        texts.push_back(everydayText(number));
    return texts;
}

std::string LongText::text() const
{
    std::string text = beginning;
    text.reserve(beginning.size() + count * piece.size() + end.size());
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text + end;
}

std::vector<LongText> longTexts()
{
    return {
        {"# A long day\n\n", "It rained, and nobody minded. ", 180'000, "\n"},
        {"# 🎉 A long feast\n\n#party/🥳\n\n", "- [ ] 🧁 for Zoë\n", 240'000, "\nand [[Groceries]], at last\n"},
        {"# A long program\n\n", "it's prose, no code\n", 200'000, "\n```\nend\n```\n"},
        {"", " ", 100'000, ""},
    };
}

} // namespace tarn
