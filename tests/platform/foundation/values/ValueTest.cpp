#include "tarnmodel/platform/foundation/values/Value.h"

#include <gtest/gtest.h>

#include <concepts>
#include <limits>

using namespace tarn;

namespace {

struct NamedObject : NSKeyValueCoding {
    explicit NamedObject(std::string objectName) : name(std::move(objectName)) { }
    Value storedValueForKey(std::string_view) const override { return name; }
    bool isEqualToObject(const NSKeyValueCoding& other) const override
    {
        const auto* named = dynamic_cast<const NamedObject*>(&other);
        return named && named->name == name;
    }
    std::string name;
};

TEST(Value, KnowsItsKind)
{
    const NamedObject object("a");
    EXPECT_EQ(Value().kind(), Value::Kind::Nil);
    EXPECT_EQ(Value(nullptr).kind(), Value::Kind::Nil);
    EXPECT_EQ(Value(true).kind(), Value::Kind::Bool);
    EXPECT_EQ(Value(7).kind(), Value::Kind::Integer);
    EXPECT_EQ(Value(std::int16_t(7)).kind(), Value::Kind::Integer);
    EXPECT_EQ(Value(7.5).kind(), Value::Kind::Double);
    EXPECT_EQ(Value("text").kind(), Value::Kind::String);
    EXPECT_EQ(Value(NSDate()).kind(), Value::Kind::Date);
    EXPECT_EQ(Value(NSData()).kind(), Value::Kind::Data);
    EXPECT_EQ(Value(&object).kind(), Value::Kind::Object);
    EXPECT_EQ(Value(static_cast<const NSKeyValueCoding*>(nullptr)).kind(), Value::Kind::Nil);
    EXPECT_EQ(Value(Value::Array{}).kind(), Value::Kind::Array);
}

class NeverDefined;
static_assert(std::constructible_from<Value, bool>);
static_assert(!std::constructible_from<Value, NeverDefined*>);
static_assert(!std::constructible_from<Value, const NeverDefined*>);
static_assert(!std::constructible_from<Value, void*>);

TEST(Value, TakesWhatAnOptionalHolds)
{
    EXPECT_TRUE(Value(std::optional<std::string>()).isNil());
    EXPECT_EQ(Value(std::optional<std::string>("x")), Value("x"));
    EXPECT_EQ(Value(std::optional<bool>(false)), Value(false));
}

TEST(Value, IsEqualOnlyToTheSameKindAndValue)
{
    EXPECT_EQ(Value(), Value(nullptr));
    EXPECT_EQ(Value(std::numeric_limits<std::int64_t>::max()), Value(std::numeric_limits<std::int64_t>::max()));
    EXPECT_NE(Value(1), Value(true));
    EXPECT_NE(Value(1), Value(1.0));
    EXPECT_NE(Value("1"), Value(1));
    EXPECT_NE(Value("a"), Value("A"));
    EXPECT_NE(Value(), Value(false));
    EXPECT_EQ(Value(NSData::fromText("ab")), Value(NSData::fromText("ab")));
}

TEST(Value, ComparesObjectsByWhatTheyStandFor)
{
    const NamedObject first("same");
    const NamedObject second("same");
    const NamedObject other("other");
    EXPECT_EQ(Value(&first), Value(&second));
    EXPECT_NE(Value(&first), Value(&other));
}

TEST(Value, ComparesArraysMemberByMember)
{
    const Value::Array members{Value(1), Value("a"), Value()};
    EXPECT_EQ(Value(members), Value(members));
    EXPECT_NE(Value(members), Value(Value::Array{Value(1), Value("a")}));
    EXPECT_EQ(Value(Value::Array{Value(members)}), Value(Value::Array{Value(members)}));
}

TEST(Value, RefusesToBeReadAsAnotherKind)
{
    EXPECT_THROW(Value("text").asInteger(), std::bad_variant_access);
    EXPECT_EQ(Value("text").asString(), "text");
}

} // namespace
