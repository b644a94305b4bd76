#include "tarnmodel/platform/predicate/TestFormula.h"

#include <algorithm>

namespace tarn {

// What is left of it --------------------------------------------------------------------------------------------------

void FormulaOfTests::setHolds(std::size_t test)
{
    if (test >= edgesOfTest_.size())
        return;
    for (const Edge& edge : edgesOfTest_[test])
        memberBecomes(edge.gate, !edge.isNegated);
    while (!changed_.empty()) {
        const auto [gate, value] = changed_.back();
        changed_.pop_back();
        for (const Gate owner : owners_[gate])
            memberBecomes(owner, value);
    }
}

void FormulaOfTests::memberBecomes(Gate gate, bool value)
{
    GateState& state = gates_[gate];
    if (!state.isTouched) {
        state.isTouched = true;
        touched_.push_back(gate);
    }
    const bool before = isTrue(gate);
    state.count += value == state.isAnd ? ~0U : 1U;
    if (isTrue(gate) != before)
        changed_.emplace_back(gate, !before);
}

void FormulaOfTests::reset() noexcept
{
    for (const Gate gate : touched_) {
        gates_[gate].count = gates_[gate].countAtRest;
        gates_[gate].isTouched = false;
    }
    touched_.clear();
}

// Making it -----------------------------------------------------------------------------------------------------------

TestFormula::Node TestFormula::made(NodeState state)
{
    auto key = std::make_pair(std::make_pair(state.kind, state.isOn), std::make_pair(state.number, state.members));
    const auto [known, isNew] = known_.try_emplace(std::move(key), static_cast<Node>(nodes_.size()));
    if (isNew)
        nodes_.push_back(std::move(state));
    return known->second;
}

TestFormula::Node TestFormula::constant(bool value)
{
    return made({Kind::Constant, value, 0, {}});
}

TestFormula::Node TestFormula::condition(std::size_t number, bool negated)
{
    return made({Kind::Condition, !negated, number, {}});
}

TestFormula::Node TestFormula::test(std::size_t number, bool negated)
{
    return made({Kind::Test, !negated, number, {}});
}

TestFormula::Node TestFormula::compound(CompoundType type, std::vector<Node> members)
{
    const bool isAnd = type == CompoundType::And;
    std::erase_if(members, [&](Node node) { return isConstant(node) && valueOfConstant(node) == isAnd; });
    if (std::ranges::any_of(members, [&](Node node) { return isConstant(node); }))
        return constant(!isAnd);
    std::ranges::sort(members);
    members.erase(std::unique(members.begin(), members.end()), members.end());
    if (members.empty())
        return constant(isAnd);
    if (members.size() == 1)
        return members.front();
    return made({isAnd ? Kind::And : Kind::Or, true, 0, std::move(members)});
}

std::vector<std::size_t> TestFormula::tests() const
{
    std::vector<bool> isUsed(nodes_.size());
    isUsed[root_] = true;
    std::vector<std::size_t> found;
    for (std::size_t node = root_ + 1; node-- > 0;) {
        if (!isUsed[node])
            continue;
        if (nodes_[node].kind == Kind::Test)
            found.push_back(nodes_[node].number);
        for (const Node member : nodes_[node].members)
            isUsed[member] = true;
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

// Conditions known ----------------------------------------------------------------------------------------------------

/// Finds out what becomes of each node, then makes gates of those that the root still depends on.
class TestFormula::Specialization {
public:
    Specialization(const TestFormula& formula, std::uint32_t conditions)
        : formula_(formula), conditions_(conditions), parts_(formula.root_ + 1)
    { }

    FormulaOfTests result()
    {
        for (Node node = 0; node <= formula_.root_; ++node)
            parts_[node] = simplified(node);
        left_.gates_.resize(1);
        left_.owners_.resize(1);
        attach(formula_.root_, FormulaOfTests::kTop);
        while (!toMake_.empty()) {
            const auto [node, gate] = toMake_.back();
            toMake_.pop_back();
            for (const Node member : parts_[node].members)
                attach(member, gate);
        }
        findRest();
        return std::move(left_);
    }

private:
    using Gate = FormulaOfTests::Gate;
    /// What becomes of a node: a value, or another node, or itself with the members that are left.
    struct Part {
        enum class Fate : std::uint8_t { True, False, Node, Self } fate = Fate::True;
        Node node = 0;
        std::vector<Node> members;
        static Part of(bool value) { return {value ? Fate::True : Fate::False, 0, {}}; }
    };

    Part simplified(Node node) const
    {
        const NodeState& state = formula_.nodes_[node];
        switch (state.kind) {
        case Kind::Constant:
            return Part::of(state.isOn);
        case Kind::Condition:
            return Part::of(((conditions_ >> state.number) & 1U) == (state.isOn ? 1U : 0U));
        case Kind::Test:
            return {Part::Fate::Self, node, {}};
        default:
            return simplifiedCompound(node, state.kind == Kind::And);
        }
    }

    Part simplifiedCompound(Node node, bool isAnd) const
    {
        const auto settling = isAnd ? Part::Fate::False : Part::Fate::True;
        Part part{Part::Fate::Self, node, {}};
        for (const Node member : formula_.nodes_[node].members) {
            const Part& known = parts_[member];
            if (known.fate == settling)
                return Part::of(!isAnd);
            if (known.fate == Part::Fate::Node || known.fate == Part::Fate::Self)
                part.members.push_back(known.fate == Part::Fate::Node ? known.node : member);
        }
        std::ranges::sort(part.members);
        part.members.erase(std::unique(part.members.begin(), part.members.end()), part.members.end());
        if (part.members.empty())
            return Part::of(isAnd);
        if (part.members.size() == 1)
            return {Part::Fate::Node, part.members.front(), {}};
        return part;
    }

    /// Makes the node a member of the gate.
    void attach(Node node, Gate owner)
    {
        const Part& part = parts_[node];
        if (part.fate == Part::Fate::True || part.fate == Part::Fate::False) {
            // Only the root: nothing is left. A gate without members is true as an AND and false as an OR.
            left_.gates_[owner].isAnd = part.fate == Part::Fate::True;
            return;
        }
        if (part.fate == Part::Fate::Node)
            return attach(part.node, owner);
        const NodeState& state = formula_.nodes_[node];
        if (state.kind == Kind::Test) {
            attachTest(state, owner);
            return;
        }
        const auto [known, isNew] = gateOf_.try_emplace(node, static_cast<Gate>(left_.gates_.size()));
        if (isNew) {
            left_.gates_.push_back({.isAnd = state.kind == Kind::And});
            left_.owners_.emplace_back();
            toMake_.emplace_back(node, known->second);
            compounds_.emplace_back(node, known->second);
        }
        left_.owners_[known->second].push_back(owner);
    }

    void attachTest(const NodeState& state, Gate owner)
    {
        if (left_.edgesOfTest_.size() <= state.number)
            left_.edgesOfTest_.resize(state.number + 1);
        left_.edgesOfTest_[state.number].push_back({owner, !state.isOn});
        (state.isOn ? left_.hasPlainTests_ : left_.hasNegatedTests_) = true;
    }

    /// What each gate counts while no test holds; members were made before their owners.
    void findRest()
    {
        for (std::size_t test = 0; test < left_.edgesOfTest_.size(); ++test) {
            if (!left_.edgesOfTest_[test].empty())
                left_.tests_.push_back(test);
            for (const FormulaOfTests::Edge& edge : left_.edgesOfTest_[test])
                countMember(edge.gate, edge.isNegated);
        }
        std::ranges::sort(compounds_);
        for (const auto& [node, gate] : compounds_)
            for (const Gate owner : left_.owners_[gate])
                countMember(owner, left_.isTrue(gate));
        for (FormulaOfTests::GateState& gate : left_.gates_)
            gate.countAtRest = gate.count;
    }
    void countMember(Gate gate, bool value)
    {
        FormulaOfTests::GateState& state = left_.gates_[gate];
        state.count += value == state.isAnd ? 0U : 1U;
    }

    const TestFormula& formula_;
    std::uint32_t conditions_;
    std::vector<Part> parts_;
    FormulaOfTests left_;
    std::map<Node, Gate> gateOf_;
    std::vector<std::pair<Node, Gate>> toMake_;
    std::vector<std::pair<Node, Gate>> compounds_;
};

FormulaOfTests TestFormula::given(std::uint32_t conditions) const
{
    return Specialization(*this, conditions).result();
}

} // namespace tarn
