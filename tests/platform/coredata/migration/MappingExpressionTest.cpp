#include "tarnmodel/platform/coredata/NSPropertyMapping.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using testing::HasSubstr;

using Kind = MappingExpression::Kind;

TEST(MappingExpressions, NameAKeyOfTheSource)
{
    const auto expression = MappingExpression::parse(" $source.title_2 ");
    EXPECT_EQ(expression.kind(), Kind::SourceKey);
    EXPECT_EQ(expression.name(), "title_2");
    EXPECT_EQ(MappingExpression::sourceKey("a").name(), "a");
}

TEST(MappingExpressions, StandForWhatANewRecordHas)
{
    EXPECT_EQ(MappingExpression::parse("$default").kind(), Kind::Default);
    EXPECT_EQ(MappingExpression().kind(), Kind::Default);
}

TEST(MappingExpressions, AreConstants)
{
    const auto constant = [](std::string_view text) {
        const auto expression = MappingExpression::parse(text);
        EXPECT_EQ(expression.kind(), Kind::Constant) << text;
        return expression.constant();
    };
    EXPECT_EQ(constant("'it''s \"ü\"'"), Value("it's \"ü\""));
    EXPECT_EQ(constant("''"), Value(""));
    EXPECT_EQ(constant("-12"), Value(-12));
    EXPECT_EQ(constant("9223372036854775807"), Value(INT64_MAX));
    EXPECT_EQ(constant("1.5"), Value(1.5));
    EXPECT_EQ(constant("1e3"), Value(1000.0));
    EXPECT_EQ(constant("YES"), Value(true));
    EXPECT_EQ(constant("NO"), Value(false));
    EXPECT_EQ(constant("nil"), Value());
}

TEST(MappingExpressions, CallFunctionsOfThePolicy)
{
    const auto expression = MappingExpression::parse("FUNCTION( $entityPolicy , 'joined', $source.a,'x, y)', 3 ,NO)");
    EXPECT_EQ(expression.kind(), Kind::PolicyFunction);
    EXPECT_EQ(expression.name(), "joined");
    ASSERT_EQ(expression.arguments().size(), 4U);
    EXPECT_EQ(expression.arguments()[0].kind(), Kind::SourceKey);
    EXPECT_EQ(expression.arguments()[0].name(), "a");
    EXPECT_EQ(expression.arguments()[1].constant(), Value("x, y)"));
    EXPECT_EQ(expression.arguments()[2].constant(), Value(3));
    EXPECT_EQ(expression.arguments()[3].constant(), Value(false));
    EXPECT_TRUE(MappingExpression::parse("FUNCTION($entityPolicy, 'now')").arguments().empty());
}

TEST(MappingExpressions, SayWhatIsWrongWithThem)
{
    const std::pair<std::string_view, std::string_view> cases[]{
        {"", "\"\" is no value"},
        {"title", "\"title\" is no value"},
        {"$source.", "needs a key"},
        {"$source.a b", "\"b\" is too much"},
        {"$source.a.b", "\".b\" is too much"},
        {"'open", "does not end"},
        {"'it's'", "\"s'\" is too much"},
        {"YESNO", "\"YESNO\" is no value"},
        {"$defaults", "\"$defaults\" is no value"},
        {"1x", "\"1x\" is no value"},
        {"1e999", "is no value"},
        {"inf", "is no value"},
        {"nan", "is no value"},
        {"99999999999999999999x", "is no value"},
        {"FUNCTION", "\"(\" is missing"},
        {"FUNCTION('a')", "\"$entityPolicy\" is missing"},
        {"FUNCTION($entityPolicy)", "\",\" is missing"},
        {"FUNCTION($entityPolicy, a)", "\"'\" is missing"},
        {"FUNCTION($entityPolicy, '')", "needs a name"},
        {"FUNCTION($entityPolicy, 'a'", "\")\" is missing"},
        {"FUNCTION($entityPolicy, 'a', $default)", "is no value"},
        {"FUNCTION($entityPolicy, 'a',)", "is no value"},
        {"FUNCTION($entityPolicy, 'a') 1", "\"1\" is too much"},
    };
    for (const auto& [text, reason] : cases) {
        try {
            MappingExpression::parse(text);
            ADD_FAILURE() << text;
        } catch (const NSException& problem) {
            EXPECT_EQ(problem.name(), NSInvalidArgumentException);
            EXPECT_THAT(problem.reason(), HasSubstr(reason)) << text;
            EXPECT_THAT(problem.reason(), HasSubstr("value expression \"" + std::string(text) + "\""));
        }
    }
}

} // namespace
} // namespace tarn
