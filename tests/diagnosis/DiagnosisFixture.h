#pragma once

#include "tarnmodel/diagnosis/StoreDoctor.h"
#include "tests/support/StoreFixture.h"

#include <optional>
#include <ostream>
#include <vector>

namespace tarn {

inline void PrintTo(StoreFinding::Kind kind, std::ostream* stream)
{
    *stream << "finding of kind " << static_cast<int>(kind);
}

/// A store with a doctor. What the doctor does ends the records that a test holds: they are fetched anew.
class DiagnosisFixture : public StoreFixture {
protected:
    using Kind = StoreFinding::Kind;

    /// Saves, and examines.
    StoreExamination examine(std::size_t findingsKept = StoreDoctor::findingsKeptByDefault)
    {
        save();
        NSError error;
        auto examination = StoreDoctor(context()).examine(&error, findingsKept);
        EXPECT_TRUE(examination) << error;
        return examination ? std::move(*examination) : StoreExamination();
    }
    /// All findings in the order of their checks.
    static std::vector<StoreFinding> findingsOf(const StoreExamination& examination)
    {
        std::vector<StoreFinding> findings;
        for (const StoreCheckResult& result : examination.results)
            findings.insert(findings.end(), result.findings.begin(), result.findings.end());
        return findings;
    }
    static std::vector<Kind> kindsOf(const StoreExamination& examination)
    {
        std::vector<Kind> kinds;
        for (const StoreFinding& finding : findingsOf(examination))
            kinds.push_back(finding.kind);
        return kinds;
    }
    std::vector<Kind> kinds() { return kindsOf(examine()); }
    /// Examines and repairs.
    StoreRepairs repair()
    {
        const StoreExamination examination = examine();
        NSError error;
        const auto repairs = StoreDoctor(context()).repair(examination, &error);
        EXPECT_TRUE(repairs) << error;
        return repairs.value_or(StoreRepairs());
    }
    OVNote& noteCalled(std::string_view title) { return *OVNote::noteWithTitle(title, context()); }
    OVNoteTag& tagCalled(std::string_view name) { return *OVNoteTag::tagWithName(name, context()); }
};

} // namespace tarn
