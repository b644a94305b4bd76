#include "tests/platform/coredata/migration/MigrationFixture.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace tarn {
namespace {

using testing::IsEmpty;

/// Has its own way of both passes, which is the inherited one: everything goes record by record.
class SlowPolicy : public LibraryFunctions {
public:
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        return LibraryFunctions::createDestinationInstancesForSourceInstance(source, mapping, manager, error);
    }
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        return LibraryFunctions::createRelationshipsForDestinationInstance(destination, mapping, manager, error);
    }
};

/// Fills a library at random: values at the ends of their ranges, nil, keys with gaps, references that lead nowhere.
class RandomLibrary {
public:
    explicit RandomLibrary(unsigned seed) : random_(seed) { }

    std::string sql()
    {
        std::string all;
        for (int key = 1; key <= 40; ++key) {
            if (chance(4))
                continue;
            all += fmt::format("INSERT INTO Shelf (pk, rowVersion, title, room, above) VALUES ({}, {}, {}, {}, {});",
                key, number(1, 9), data(), text(), reference());
            all += fmt::format("INSERT INTO Topic (pk, rowVersion, title) VALUES ({}, 1, {});", key, text());
            for (int other = 0; other < number(0, 3); ++other)
                all += fmt::format(
                    "INSERT OR IGNORE INTO Topic_related VALUES ({}, {});", number(1, 45), number(1, 45));
            all += fmt::format("INSERT INTO Card (pk, rowVersion, number) VALUES ({}, 2, {});", key, text());
            all += fmt::format("INSERT INTO Setting (pk, rowVersion, value) VALUES ({}, 1, {});", key, text());
            all += fmt::format(
                "INSERT INTO Medium (pk, rowVersion, entity, title, width, length, book) VALUES ({}, 1, {});", key,
                medium());
        }
        for (int key = 1; key <= 60; ++key) {
            if (chance(4))
                continue;
            all += fmt::format(
                "INSERT INTO Book (pk, rowVersion, name, stars, size, bought, lent, label, counter, mark, "
                "opened, shelf, card, sequel) VALUES ({}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {});",
                key, number(1, 5), text(), integer16(), real(), integer(), truth(), text(), integer(), integer(),
                integer(), reference(), reference(), reference());
            if (!chance(3))
                all += fmt::format("INSERT INTO Book_large (pk, text, memo) VALUES ({}, {}, {});", key, text(), data());
            for (int topic = 0; topic < number(0, 4); ++topic)
                all += fmt::format("INSERT OR IGNORE INTO Book_topics VALUES ({}, {});", key, number(1, 50));
        }
        return all;
    }

private:
    int number(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
    bool chance(int in) { return number(1, in) == 1; }
    template <typename... Choices> std::string oneOf(Choices... choices)
    {
        const std::vector<std::string> all{choices...};
        return all[static_cast<std::size_t>(number(0, static_cast<int>(all.size()) - 1))];
    }

    std::string text()
    {
        return oneOf("NULL", "''", "'It''s \"odd\"'", "'Größe Straße'", "CAST(x'610062' AS TEXT)", "'😀 e\u0301'",
            "printf('%.*c', 3000, 'x')", fmt::format("'word{}'", number(0, 99)));
    }
    std::string data() { return oneOf("NULL", "x''", "x'00'", "x'C3A4'", "x'FF61C3'", "x'EDA080'"); }
    std::string integer16() { return oneOf("NULL", "0", "1", "-32768", "32767", "7"); }
    std::string integer()
    {
        return oneOf("NULL", "0", "1", "-1", "32768", "-32769", "9223372036854775807", "-9223372036854775808",
            "1700000000000000");
    }
    std::string real()
    {
        return oneOf("NULL", "0.0", "-0.0", "0.5", "-0.5", "1.5", "2.4999999999999996", "1e300", "-1e300",
            "9223372036854775807.0", "4503599627370497.5", "0.49999999999999994");
    }
    std::string truth() { return oneOf("NULL", "0", "1"); }
    std::string reference() { return chance(3) ? "NULL" : std::to_string(number(1, 50)); }
    std::string medium()
    {
        return fmt::format("{}, {}, {}, {}, {}", oneOf("'Picture'", "'Sound'"), text(), integer(), real(), reference());
    }

    std::mt19937 random_;
};

std::vector<std::string> differences(const std::vector<std::string>& left, const std::vector<std::string>& right)
{
    std::vector<std::string> all;
    std::ranges::set_symmetric_difference(left, right, std::back_inserter(all));
    return all;
}

class RandomMigration : public MigrationFixture { };

TEST_F(RandomMigration, IsTheSameBySQLAndRecordByRecord)
{
    NSEntityMigrationPolicy::registerClass<SlowPolicy>("Slow");
    constexpr std::string_view slow = R"("policy": "Slow",)";
    const auto slowBook = mapping(libraryMappingText(slow));
    const auto slowRest = mapping(libraryMappingText(R"("policy": "LibraryFunctions",)", slow, slow));
    const auto slowAll = mapping(libraryMappingText(slow, slow, slow));
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        fill("DELETE FROM Book; DELETE FROM Book_large; DELETE FROM Book_topics; DELETE FROM Topic_related; DELETE "
             "FROM Shelf; DELETE FROM Topic;"
             "DELETE FROM Card; DELETE FROM Setting; DELETE FROM Medium;"
            + RandomLibrary(seed).sql());
        if (seed % 3 != 0)
            signOldStore();
        if (seed % 3 == 1) // another program leaves some signatures and folded values stale
            fill("UPDATE Book_large SET text = 'changed' WHERE pk % 5 = 0; UPDATE Topic SET title = 'Ä' WHERE pk % 7 = "
                 "0");
        migrate();
        const auto expected = contentsOf(newFile());
        EXPECT_THAT(problemsOfNewStore(), IsEmpty());
        for (const auto& other : {slowBook, slowRest, slowAll}) {
            std::filesystem::remove(newFile());
            ASSERT_TRUE(migrate(*other)) << error_;
            for (const auto& [table, rows] : contentsOf(newFile()))
                EXPECT_THAT(differences(expected.at(table), rows), IsEmpty()) << table;
            EXPECT_THAT(problemsOfNewStore(), IsEmpty());
        }
        std::filesystem::remove(newFile());
    }
}

} // namespace
} // namespace tarn
