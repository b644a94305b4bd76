#include "tarnmodel/platform/coredata/migration/PolicyFunctions.h"

#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/coredata/migration/AttributeConversion.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <exception>
#include <sqlite3.h>
#include <string_view>

namespace tarn {

namespace {

constexpr const char* kFunctionName = "migration_function";
constexpr int kAnyNumber = -1;

Value checkedAnswer(const Value& answer, const MappingExpression& expression, const EntityStep& step,
    const NSAttributeDescription& attribute)
{
    // Any number will do for a number, but never the bytes of a text for one.
    const Value value = answer.isNumber() ? convertedValue(answer, attribute.type()) : answer;
    if (!isValueOfType(value, attribute.type()))
        throw StoreFailure(StoreErrorValidation,
            "The function \"" + expression.name() + "\" of the policy of \"" + step.mapping->name()
                + "\" answers what the attribute \"" + attribute.name() + "\" cannot hold.");
    return value;
}

std::string_view bytesOf(sqlite3_value* value)
{
    const void* bytes = sqlite3_value_blob(value);
    const int length = sqlite3_value_bytes(value);
    if (!bytes || length <= 0)
        return {};
    return {static_cast<const char*>(bytes), static_cast<std::size_t>(length)};
}

/// What a column of an attribute of this type holds.
Value valueOfColumn(sqlite3_value* column, NSAttributeType type)
{
    if (sqlite3_value_type(column) == SQLITE_NULL)
        return {};
    switch (type) {
    case NSAttributeType::Boolean:
        return Value(sqlite3_value_int64(column) != 0);
    case NSAttributeType::Integer16:
    case NSAttributeType::Integer64:
        return Value(static_cast<std::int64_t>(sqlite3_value_int64(column)));
    case NSAttributeType::Double:
        return Value(sqlite3_value_double(column));
    case NSAttributeType::String:
        return Value(bytesOf(column));
    case NSAttributeType::Date:
        return Value(dateWithMicrosecondsSince1970(sqlite3_value_int64(column)));
    case NSAttributeType::Data:
        return Value(NSData::fromText(bytesOf(column)));
    }
    return {};
}

void giveResult(sqlite3_context* context, const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return sqlite3_result_int64(context, value.asBool() ? 1 : 0);
    case Value::Kind::Integer:
        return sqlite3_result_int64(context, value.asInteger());
    case Value::Kind::Double:
        return sqlite3_result_double(context, value.asDouble());
    case Value::Kind::String:
        return sqlite3_result_text64(
            context, value.asString().data(), value.asString().size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    case Value::Kind::Date:
        return sqlite3_result_int64(context, microsecondsSince1970(value.asDate()));
    case Value::Kind::Data:
        // A null pointer would give NULL, not an empty blob.
        if (value.asData().isEmpty())
            return sqlite3_result_zeroblob(context, 0);
        return sqlite3_result_blob64(context, value.asData().bytes(), value.asData().length(), SQLITE_TRANSIENT);
    default:
        return sqlite3_result_null(context);
    }
}

} // namespace

Value valueOfExpression(const MappingExpression& expression, const MigrationRecord& source, const EntityStep& step,
    const NSAttributeDescription& attribute)
{
    switch (expression.kind()) {
    case MappingExpression::Kind::Default:
        return attribute.defaultValue();
    case MappingExpression::Kind::Constant:
        return convertedValue(expression.constant(), attribute.type());
    case MappingExpression::Kind::SourceKey:
        return convertedValue(source.valueForKey(expression.name()), attribute.type());
    case MappingExpression::Kind::PolicyFunction:
        break;
    }
    std::vector<Value> arguments;
    for (const MappingExpression& argument : expression.arguments())
        arguments.push_back(argument.kind() == MappingExpression::Kind::SourceKey ? source.valueForKey(argument.name())
                                                                                  : argument.constant());
    return checkedAnswer(
        step.policy->valueOfFunction(expression.name(), arguments, *step.mapping), expression, step, attribute);
}

/// Lets SQLite call the functions of policies. What they throw becomes the error of the statement.
struct PolicyFunctions::Call {
    static void run(sqlite3_context* context, int count, sqlite3_value** values)
    {
        try {
            const auto& self = *static_cast<const PolicyFunctions*>(sqlite3_user_data(context));
            const Function& function = self.functions_.at(static_cast<std::size_t>(sqlite3_value_int64(values[0])));
            giveResult(context, answerOf(function, count, values));
        } catch (const std::bad_alloc&) {
            sqlite3_result_error_nomem(context);
        } catch (const std::exception& failure) {
            sqlite3_result_error(context, failure.what(), -1);
        }
    }

    /// The first value is the function's number, and constants are not handed over.
    static Value answerOf(const Function& function, int count, sqlite3_value** values)
    {
        std::vector<Value> arguments;
        int next = 1;
        for (const MappingExpression& argument : function.expression->arguments()) {
            if (argument.kind() != MappingExpression::Kind::SourceKey) {
                arguments.push_back(argument.constant());
                continue;
            }
            if (next >= count)
                throw StoreFailure(StoreErrorGeneric, "A function of a policy was called with too little.");
            const NSAttributeType type = function.step->from->attributeNamed(argument.name())->type();
            arguments.push_back(valueOfColumn(values[next++], type));
        }
        const Value answer
            = function.step->policy->valueOfFunction(function.expression->name(), arguments, *function.step->mapping);
        return checkedAnswer(answer, *function.expression, *function.step, *function.attribute);
    }
};

PolicyFunctions::PolicyFunctions(SQLiteConnection& connection) : connection_(connection)
{
    const int result = sqlite3_create_function_v2(connection_.handle(), kFunctionName, kAnyNumber,
        SQLITE_UTF8 | SQLITE_DIRECTONLY, this, &Call::run, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        connection_.fail(result, "add a function");
}

PolicyFunctions::~PolicyFunctions()
{
    sqlite3_create_function_v2(
        connection_.handle(), kFunctionName, kAnyNumber, SQLITE_UTF8, nullptr, nullptr, nullptr, nullptr, nullptr);
}

std::size_t PolicyFunctions::add(
    const EntityStep& step, const MappingExpression& expression, const NSAttributeDescription& attribute)
{
    functions_.push_back({&step, &expression, &attribute});
    return functions_.size() - 1;
}

} // namespace tarn
