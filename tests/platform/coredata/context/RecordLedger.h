#pragma once

#include "tests/platform/coredata/context/ContextFixture.h"

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace tarn {

/// A context with a ledger beside it, which knows what each record must say after any sequence of changes, saves,
/// rollbacks and refreshes. Records have numbers there, so that a seed replays.
///
/// The ledger keeps what rows hold: texts, the target of the one to-one that stands in the row, and the shelves of a
/// book. What the other ends say follows from that.
class RecordLedger : public ContextTest {
protected:
    void TearDown() override
    {
        child_.reset();
        ContextTest::TearDown();
    }

    /// How many walks a test makes; `TARN_RECORD_WALKS` sets another number.
    static unsigned numberOfWalks(unsigned usual);
    /// An empty store with some saved records, of which a new context has read none.
    void begin(unsigned seed);
    /// One step at random: a change, a save, a rollback, a refresh.
    void walk();
    /// Some records, or the whole context, say what the ledger says.
    void expectLedger(bool whole);

private:
    static constexpr int kNone = -1;
    struct Row {
        std::string entity;
        std::vector<std::string> texts;
        int target = kNone;
        std::set<int> shelves;
    };
    using Rows = std::map<int, Row>;

    int below(std::size_t bound) { return std::uniform_int_distribution<int>(0, static_cast<int>(bound) - 1)(random_); }
    /// A record that there is now, of one of these entities; none when there is none.
    int any(const std::set<std::string>& entities);
    NSManagedObject& record(int number) { return *records_.at(static_cast<std::size_t>(number)); }
    bool isSaved(int number) const { return saved_.contains(number); }
    std::string described(int number) const;
    std::string described(const NSManagedObject& record) const;
    std::string numbersOf(const std::vector<NSManagedObject*>& records) const;

    // Each of them in the context and in the ledger.
    void insertOne();
    void setText();
    void relate();
    void relateFromTheOtherEnd();
    void shelve();
    void removeOne();
    void refreshOne(bool keeps);
    void saveAll();
    void failToSave();
    void rollBack();
    void startAgain();
    void giveKeys();

    // In the ledger.
    void setTarget(int holder, int target);
    void restoreTarget(int holder);
    void forget(int number);
    void dropChanges(int number);

    std::mt19937 random_;
    std::int64_t lastPages_ = 0;
    std::vector<NSManagedObject*> records_;
    Rows now_;
    Rows saved_;
    std::unique_ptr<NSManagedObjectContext> child_;
};

} // namespace tarn
