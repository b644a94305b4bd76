#include "tarnmodel/platform/predicate/PredicatePrinter.h"

#include "tarnmodel/platform/predicate/ConstantText.h"
#include "tarnmodel/platform/predicate/PredicateNesting.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tarnmodel/platform/predicate/PredicateVocabulary.h"

namespace tarn {

PredicatePrinter::PredicatePrinter(std::string& result) : result_(result) { }

void PredicatePrinter::print(const PredicateNode& node)
{
    std::visit(Overloaded{
                   [this](const ComparisonPredicate& comparison) { print(comparison); },
                   [this](const CompoundPredicate& compound) { print(compound); },
                   [this](const NotPredicate& negation) {
                       result_ += "NOT ";
                       printNested(*negation.operand);
                   },
                   [this](const ConstantPredicate& constant) {
                       result_ += constant.value ? "TRUEPREDICATE" : "FALSEPREDICATE";
                   },
               },
        withoutLoneCompounds(node).form);
}

void PredicatePrinter::print(const CompoundPredicate& compound)
{
    const bool isAnd = compound.type == CompoundType::And;
    if (compound.members.empty())
        result_ += isAnd ? "TRUEPREDICATE" : "FALSEPREDICATE";
    std::string_view conjunction;
    for (const PredicateNodePtr& member : compound.members) {
        result_ += conjunction;
        printNested(*member);
        conjunction = isAnd ? " AND " : " OR ";
    }
}

void PredicatePrinter::printNested(const PredicateNode& node)
{
    const bool parenthesised = isParenthesised(withoutLoneCompounds(node));
    if (parenthesised)
        result_ += '(';
    print(node);
    if (parenthesised)
        result_ += ')';
}

void PredicatePrinter::print(const ComparisonPredicate& comparison)
{
    if (comparison.modifier != ComparisonModifier::Direct)
        (result_ += canonicalName(comparison.modifier)) += ' ';
    print(*comparison.left);
    (result_ += ' ') += canonicalName(comparison.operation);
    if (comparison.options != ComparisonOptions()) {
        result_ += '[';
        if (comparison.options.caseInsensitive)
            result_ += 'c';
        if (comparison.options.diacriticInsensitive)
            result_ += 'd';
        result_ += ']';
    }
    result_ += ' ';
    print(*comparison.right);
}

void PredicatePrinter::print(const Expression& expression)
{
    std::visit(Overloaded{
                   [this](const ConstantExpression& constant) { appendConstantText(result_, constant.value); },
                   [this](const SelfExpression&) { result_ += "SELF"; },
                   [this](const VariableExpression& variable) { (result_ += '$') += variable.name; },
                   [this](const KeyPathExpression& path) { print(path); },
                   [this](const CountExpression& count) {
                       print(*count.collection);
                       result_ += ".@count";
                   },
                   [this](const SubqueryExpression& subquery) { print(subquery); },
                   [this](const AggregateExpression& aggregate) { print(aggregate); },
               },
        expression.form);
}

void PredicatePrinter::print(const KeyPathExpression& path)
{
    bool needsDot = !std::holds_alternative<SelfExpression>(path.base->form);
    if (needsDot)
        print(*path.base);
    for (const std::string& key : path.keys) {
        if (needsDot)
            result_ += '.';
        if (reservedWord(key))
            result_ += '#';
        result_ += key;
        needsDot = true;
    }
}

void PredicatePrinter::print(const SubqueryExpression& subquery)
{
    result_ += "SUBQUERY(";
    print(*subquery.collection);
    ((result_ += ", $") += subquery.variable) += ", ";
    print(*subquery.predicate);
    result_ += ')';
}

void PredicatePrinter::print(const AggregateExpression& aggregate)
{
    result_ += '{';
    std::string_view separator;
    for (const ExpressionPtr& member : aggregate.members) {
        result_ += separator;
        print(*member);
        separator = ", ";
    }
    result_ += '}';
}

} // namespace tarn
