#include "tarnmodel/platform/coredata/migration/AttributeConversion.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace tarn {
namespace {

using Type = NSAttributeType;

constexpr Type kNumberTypes[]{Type::Boolean, Type::Integer16, Type::Integer64, Type::Double};

TEST(AttributeConversions, AreBetweenNumbersAndBetweenBytes)
{
    constexpr Type kAll[]{
        Type::Boolean, Type::Integer16, Type::Integer64, Type::Double, Type::String, Type::Date, Type::Data};
    const auto family = [](Type type) {
        return type == Type::Date ? 2 : (type == Type::String || type == Type::Data) ? 1 : 0;
    };
    for (const Type from : kAll)
        for (const Type to : kAll)
            EXPECT_EQ(isConvertible(from, to), family(from) == family(to)) << nameOfType(from) << " " << nameOfType(to);
}

TEST(AttributeConversions, GoToTheNearestNumber)
{
    EXPECT_EQ(convertedValue(Value(2.5), Type::Integer64), Value(3));
    EXPECT_EQ(convertedValue(Value(-2.5), Type::Integer64), Value(-3));
    EXPECT_EQ(convertedValue(Value(0.49999999999999994), Type::Integer64), Value(0));
    EXPECT_EQ(convertedValue(Value(1e300), Type::Integer64), Value(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ(convertedValue(Value(-1e300), Type::Integer64), Value(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ(convertedValue(Value(1e300), Type::Integer16), Value(32767));
    EXPECT_EQ(convertedValue(Value(-70000), Type::Integer16), Value(-32768));
    EXPECT_EQ(convertedValue(Value(7), Type::Double), Value(7.0));
    EXPECT_EQ(convertedValue(Value(true), Type::Integer64), Value(1));
    EXPECT_EQ(convertedValue(Value(true), Type::Double), Value(1.0));
    EXPECT_EQ(convertedValue(Value(0.1), Type::Boolean), Value(true));
    EXPECT_EQ(convertedValue(Value(0), Type::Boolean), Value(false));
    EXPECT_EQ(convertedValue(Value(), Type::Integer64), Value());
}

TEST(AttributeConversions, AreUTF8BetweenTextsAndData)
{
    EXPECT_EQ(convertedValue(Value("ä"), Type::Data), Value(NSData::fromText("ä")));
    EXPECT_EQ(convertedValue(Value(NSData::fromText("ä")), Type::String), Value("ä"));
    EXPECT_EQ(convertedValue(Value(NSData::fromText("a\xC3")), Type::String), Value("a\uFFFD"));
    EXPECT_EQ(convertedValue(Value(NSData()), Type::String), Value(""));
}

/// What SQL says of a value that is bound.
class SQLConversion {
public:
    Value number(const Value& value, Type from, Type to)
    {
        SQLiteStatement statement = connection_.prepare("SELECT " + *convertedColumn("?1", from, to));
        if (value.kind() == Value::Kind::Double)
            statement.bindDouble(1, value.asDouble());
        else
            statement.bindInteger(1, value.kind() == Value::Kind::Bool ? value.asBool() : value.asInteger());
        statement.step();
        if (to == Type::Double)
            return Value(statement.floating(0));
        return to == Type::Boolean ? Value(statement.integer(0) != 0) : Value(statement.integer(0));
    }

private:
    TestFolder folder_;
    SQLiteConnection connection_{folder_.file(), {.create = true}};
};

TEST(AttributeConversions, AreTheSameInSQL)
{
    SQLConversion sql;
    std::mt19937_64 random(7);
    const auto check = [&](const Value& value, Type from) {
        for (const Type to : kNumberTypes)
            EXPECT_EQ(sql.number(value, from, to), convertedValue(value, to))
                << nameOfType(from) << " to " << nameOfType(to) << ": "
                << (value.kind() == Value::Kind::Double ? value.asDouble() : 0);
    };
    check(Value(true), Type::Boolean);
    check(Value(false), Type::Boolean);
    for (int round = 0; round < 2000; ++round) {
        const auto bits = static_cast<std::int64_t>(random() >> (random() % 64));
        check(Value(round % 2 == 0 ? bits : -bits), Type::Integer64);
        check(Value(static_cast<std::int64_t>(static_cast<std::int16_t>(bits))), Type::Integer16);
        const double any = std::bit_cast<double>(random());
        if (std::isfinite(any))
            check(Value(any), Type::Double);
        // Around halves, where rounding decides.
        const double half = std::ldexp(1.0, static_cast<int>(random() % 54)) + 0.5;
        for (const double near : {half, std::nextafter(half, 0.0), std::nextafter(half, 1e300), -half})
            check(Value(near), Type::Double);
    }
}

TEST(AttributeConversions, OfDataAreNothingForSQL)
{
    EXPECT_FALSE(convertedColumn("x", Type::Data, Type::String));
    EXPECT_EQ(convertedColumn("x", Type::String, Type::Data), "CAST(x AS BLOB)");
    EXPECT_EQ(convertedColumn("x", Type::Date, Type::Date), "x");
}

TEST(AttributeConversions, KnowWhatAnAttributeCanHold)
{
    EXPECT_TRUE(isValueOfType(Value(32767), Type::Integer16));
    EXPECT_FALSE(isValueOfType(Value(32768), Type::Integer16));
    EXPECT_FALSE(isValueOfType(Value(1), Type::Boolean));
    EXPECT_FALSE(isValueOfType(Value(1), Type::Date));
    EXPECT_FALSE(isValueOfType(Value("1"), Type::Data));
    EXPECT_TRUE(isValueOfType(Value(), Type::Data));
    EXPECT_FALSE(isValueOfType(Value(Value::Array{}), Type::String));
}

} // namespace
} // namespace tarn
