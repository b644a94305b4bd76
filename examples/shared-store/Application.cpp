#include "examples/shared-store/Roles.h"

#include <tarnmodel/TarnModel.h>

#include <iostream>

namespace tarn::sharedstore {

namespace {

class Application : public OVCoreDataStackDelegate {
public:
    void coreDataStackDidInitializeManagedObjectContext(
        OVCoreDataStack& stack, NSManagedObjectContext& context) override
    {
        context_ = &context;
        OVNote* note = nullptr;
        NSError error;
        // Looking and making in one piece: two applications that start at once make one note.
        const auto findOrMake = [&](NSManagedObjectContext&) {
            note = OVNote::noteWithTitle("Groceries", context);
            if (!note)
                note = OVNote::noteWithText("# Groceries\n\n- [x] pears", context);
        };
        if (!stack.write(findOrMake, &error)) {
            coreDataStackDidFailToInitializeManagedObjectContext(stack, error);
            return;
        }
        // As an editor or a list would, which shows the note.
        observer_ = OVManagedObjectObserver::observerForManagedObject(
            *note, {{"text"}}, {}, [this, note](const auto&, const auto&, bool refreshed) {
                if (refreshed)
                    noteWasChangedElsewhere(*note);
            });
    }

    void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack&, const NSError& error) override
    {
        std::cerr << error << '\n';
        end_ = NoStore;
    }

    /// What extensions have saved. That the store was changed the context notices by itself; the queue says what was
    /// inserted as well, and somebody has to empty it. When is up to the application: here at each turn of its loop; a
    /// real one does it when it comes to the front, or when something tells it that there are news.
    void lookForNews()
    {
        if (!context_ || !OVExternalChanges::mergeExternalChangesInManagedObjectContext(*context_))
            return;
        // The merge has emptied the queue; that is saved like any other change.
        OVCoreDataStack::sharedStack().saveUsingCoalescence(true);
    }

    bool hasEnded() const { return end_ != NothingHeard; }
    ExitCode end() const { return end_; }

private:
    void noteWasChangedElsewhere(const OVNote& note)
    {
        const std::string text = note.text().value_or("");
        std::cout << "the note ends now with: " << text.substr(text.rfind('\n') + 1) << '\n';
        end_ = Done;
    }

    NSManagedObjectContext* context_ = nullptr;
    std::unique_ptr<OVManagedObjectObserver> observer_;
    ExitCode end_ = NothingHeard;
};

} // namespace

ExitCode runApplication()
{
    Application application;
    OVCoreDataStack::sharedStack().setupStackWithDelegate(&application);
    const auto hasEnded = [&] {
        application.lookForNews();
        return application.hasEnded();
    };
    MainQueue::main().runUntil(hasEnded, std::chrono::seconds(10));
    MainQueue::main().drain(); // the last coalesced save
    return application.end();
}

} // namespace tarn::sharedstore
