#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace tarn {

/// What is left of a `TestFormula` where its conditions are known: tests joined by AND and OR.
///
/// It is asked for one row after another, and for each row told of the tests that hold. That costs as much as there are
/// such tests, however many others there may be. One thread at a time.
class FormulaOfTests {
public:
    /// The tests that its value depends on, ascending; none when it is known already.
    const std::vector<std::size_t>& tests() const noexcept { return tests_; }
    /// For the tests told of since the last `reset`; no other test holds.
    bool value() const noexcept { return isTrue(kTop); }
    /// Whether no further test can change the value.
    bool isSettled() const noexcept { return value() ? !hasNegatedTests_ : !hasPlainTests_; }
    /// The test holds; each is told once. A test that it does not depend on changes nothing.
    void setHolds(std::size_t test);
    /// Back to where no test holds.
    void reset() noexcept;

private:
    friend class TestFormula;
    using Gate = std::uint32_t;
    static constexpr Gate kTop = 0;

    struct Edge {
        Gate gate;
        bool isNegated; ///< of a test
    };
    /// An AND is true while no member is false, an OR while some member is true: what is counted must be none, or some.
    struct GateState {
        bool isAnd = true;
        std::uint32_t count = 0; ///< false members of an AND, true ones of an OR
        std::uint32_t countAtRest = 0;
        bool isTouched = false;
    };

    bool isTrue(Gate gate) const noexcept { return (gates_[gate].count == 0) == gates_[gate].isAnd; }
    void memberBecomes(Gate gate, bool value);

    std::vector<GateState> gates_;
    std::vector<std::vector<Gate>> owners_; ///< by gate: those that it is a member of
    std::vector<std::size_t> tests_;
    std::vector<std::vector<Edge>> edgesOfTest_; ///< by test
    std::vector<Gate> touched_;
    std::vector<std::pair<Gate, bool>> changed_; ///< gates whose owners have to hear
    bool hasPlainTests_ = false;
    bool hasNegatedTests_ = false;
};

/// AND and OR over numbered conditions, which are known first, and numbered tests, which cost something to find out.
/// Negation stands at conditions and tests only. Equal parts are one part, which is made once.
class TestFormula {
public:
    using Node = std::uint32_t;
    static constexpr std::size_t mostConditions = 8;

    Node constant(bool value);
    Node condition(std::size_t number, bool negated);
    Node test(std::size_t number, bool negated);
    /// With members that it makes superfluous left out.
    Node compound(CompoundType type, std::vector<Node> members);

    void setRoot(Node root) noexcept { root_ = root; }
    /// What it comes to without any condition or test, if it does.
    bool isConstant(Node node) const noexcept { return nodes_[node].kind == Kind::Constant; }
    bool valueOfConstant(Node node) const noexcept { return nodes_[node].isOn; }
    /// The tests below the root, ascending.
    std::vector<std::size_t> tests() const;

    /// Bit n of `conditions` tells whether condition n holds.
    FormulaOfTests given(std::uint32_t conditions) const;

private:
    enum class Kind : std::uint8_t { Constant, Condition, Test, And, Or };
    struct NodeState {
        Kind kind;
        bool isOn; ///< the value of a constant; of the others: not negated
        std::size_t number = 0;
        std::vector<Node> members; ///< ascending; they were made before
    };
    class Specialization;

    Node made(NodeState state);

    std::vector<NodeState> nodes_;
    std::map<std::pair<std::pair<Kind, bool>, std::pair<std::size_t, std::vector<Node>>>, Node> known_;
    Node root_ = 0;
};

} // namespace tarn
