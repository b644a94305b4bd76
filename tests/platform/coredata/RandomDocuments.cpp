#include "tests/platform/coredata/RandomDocuments.h"

namespace tarn {

void insertAtRandom(
    const RandomDocuments& wanted, std::mt19937_64& random, const OpenStore& sql, const OpenStore& memory)
{
    const auto below
        = [&](std::int64_t bound) { return static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(bound)); };
    const auto text = [&](std::int64_t words) { return Value(wanted.text(static_cast<std::size_t>(words))); };
    const auto insert = [&](std::string_view entity, const std::vector<std::pair<std::string, Value>>& values) {
        EXPECT_EQ(sql.insert(entity, values), memory.insert(entity, values));
    };
    for (const std::string& name : wanted.labels)
        insert("Label", {{"name", name}, {"weight", below(4)}});
    for (std::int64_t number = 0; number < wanted.documents; ++number) {
        const bool isFlagged = below(6) == 0;
        const bool hasBody = below(isFlagged ? 3 : 12) != 0;
        insert("Document",
            {{"title", below(9) != 0 ? text(1 + below(3)) : Value()}, {"flag", isFlagged}, {"order", below(12)},
                {"modified", Value(dateWithMicrosecondsSinceReferenceDate(below(40)))},
                {"body", hasBody ? text(below(30)) : Value()}});
    }
    for (std::int64_t number = 0; number < wanted.pictures; ++number)
        insert("Picture",
            {{"caption", below(5) != 0 ? text(below(6)) : Value()}, {"unused", below(3) == 0},
                {"document", 1 + below(wanted.documents)}});
    for (std::int64_t number = 0; number < wanted.joins; ++number) {
        const std::int64_t document = 1 + below(wanted.documents);
        const std::int64_t label = 1 + below(static_cast<std::int64_t>(wanted.labels.size()));
        sql.join("Document", "labels", document, label);
        memory.join("Document", "labels", document, label);
    }
}

std::string wholeWordPattern(std::string_view word)
{
    std::string pattern = R"((?mis).*?(?:^|[^\w]))";
    for (const char c : word)
        pattern += (std::string_view("\\*?+[](){}^$|.-&~#").find(c) != std::string_view::npos ? "\\" : "")
            + std::string(1, c);
    return pattern + R"((?:[^\w]|$).*)";
}

NSPredicate wordPredicate(const std::string& word, bool isQuoted, bool looksIntoAttachments)
{
    const int ocr = looksIntoAttachments ? 1 : 0;
    if (!isQuoted)
        return NSPredicate::predicateWithFormat(
            "(flag == YES AND title CONTAINS[cd] %@) OR (flag = NO AND (body CONTAINS[cd] %@ OR (%d == YES AND "
            "(SUBQUERY(attachments, $file, $file.unused == NO AND $file.caption CONTAINS[cd] %@).@count != 0))))",
            word, word, ocr, word);
    const std::string pattern = wholeWordPattern(word);
    return NSPredicate::predicateWithFormat(
        "(flag = YES AND title MATCHES[cd] %@) OR (flag = NO AND (body MATCHES[cd] %@ OR (%d == YES AND ANY "
        "attachments.caption MATCHES[cd] %@)))",
        pattern, pattern, ocr, pattern);
}

} // namespace tarn
