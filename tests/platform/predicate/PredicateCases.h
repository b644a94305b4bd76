#pragma once

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

std::vector<PredicateCase> readPredicateCases();

} // namespace tarn
