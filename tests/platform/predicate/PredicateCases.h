#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tarn {

/// One block of tests/cases/predicates.cases.
struct PredicateCase {
    int line = 0;
    std::string format;
    std::vector<std::string> arguments;
    bool fails = false;
    std::string expected;
};
inline void PrintTo(const PredicateCase& one, std::ostream* stream)
{
    *stream << "line " << one.line;
}

std::vector<PredicateCase> readPredicateCases();

} // namespace tarn
