#include "tests/processes/CommonLife.h"

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tests/processes/SharedStore.h"
#include "tests/processes/Worker.h"
#include "tests/processes/Workload.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>
#include <random>
#include <thread>

namespace tarn {

namespace {

using Clock = std::chrono::steady_clock;

/// A life of so many seconds, and what it remembers.
class Life {
public:
    Life(std::span<const std::string_view> arguments, StoreRole role)
        : name_(arguments[1]), store_(arguments[0], role),
          random_(static_cast<std::uint32_t>(std::hash<std::string_view>{}(name_))),
          end_(Clock::now() + std::chrono::milliseconds(numberOf(arguments[2])))
    {
        require(bool(store_), store_.error());
    }

    bool goesOn() const { return Clock::now() < end_; }
    NSManagedObjectContext& context() { return store_.context(); }
    unsigned chance(unsigned count) { return random_() % count; }
    const std::string& name() const { return name_; }

    /// Does what may have to wait, and remembers how long.
    template <typename Work> void waitFor(Work work)
    {
        const auto start = Clock::now();
        work();
        longest_ = std::max(longest_, Clock::now() - start);
    }
    void tellLongestWait() const
    {
        std::cout << "waited " << std::chrono::duration_cast<std::chrono::microseconds>(longest_).count() << '\n';
    }
    /// Others have a life as well.
    void rest() { std::this_thread::sleep_for(std::chrono::microseconds(chance(3'000))); }

private:
    std::string name_;
    SharedStore store_;
    std::minstd_rand random_;
    Clock::time_point end_;
    Clock::duration longest_{};
};

/// One that writes.
class Writer {
public:
    explicit Writer(Life& life) : life_(life)
    {
        // The change stands in the context once all will-save observers ran; its name is told when it is saved.
        didSave_ = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextDidSaveNotification,
            &life.context(),
            [](const NSNotification& notification) { tellOfSave(*notification.userInfoAs<ObjectChanges>()); });
    }

    void step()
    {
        switch (life_.chance(6)) {
        case 0:
            deleteOne();
            break;
        case 1:
        case 2:
            editOne();
            break;
        case 3:
            addSharedLine();
            return;
        default:
            makeOne();
        }
        save();
    }

    void save()
    {
        NSError error;
        life_.waitFor([&] { require(life_.context().save(&error), error); });
    }

private:
    static void tellOfSave(const ObjectChanges& changes)
    {
        std::size_t queued = 0;
        for (const NSManagedObject* record : changes.inserted) {
            queued += record->entity().name() == "OVExternalChanges";
            if (record->entity().name() != "OVChange")
                continue;
            const auto& change = *static_cast<const OVChange*>(record);
            std::cout << "saved " << change.token().value() << ' ' << change.itemsSet().count() << '\n';
        }
        if (queued > 0)
            std::cout << "queued " << queued << '\n';
    }

    std::string ownText()
    {
        ++serial_;
        return "# " + life_.name() + "\n\n#shared serial " + std::to_string(serial_) + "\n\n"
            + wordsOfSize(50 + life_.chance(4'000), static_cast<unsigned>(serial_));
    }
    void tellOf(const OVNote& note) const
    {
        std::cout << "made " << note.uniqueIdentifier().value() << ' ' << serial_ << '\n';
    }

    void makeOne()
    {
        own_.push_back(OVNote::noteWithText(ownText(), life_.context()));
        tellOf(*own_.back());
    }
    void editOne()
    {
        if (own_.empty())
            return makeOne();
        OVNote& note = *own_[life_.chance(static_cast<unsigned>(own_.size()))];
        note.updateNoteWithText(ownText());
        tellOf(note);
    }
    void deleteOne()
    {
        if (own_.size() < 5)
            return makeOne();
        const auto chosen = own_.begin() + life_.chance(static_cast<unsigned>(own_.size()));
        std::cout << "deleted " << (*chosen)->uniqueIdentifier().value() << '\n';
        (*chosen)->permanentlyDelete();
        own_.erase(chosen);
    }

    /// Reads, changes and writes under one lock, so that no line of another process is overwritten.
    void addSharedLine()
    {
        const std::string title = "Shared " + std::to_string(life_.chance(sharedNotes));
        const std::string line = life_.name() + '-' + std::to_string(++serial_);
        NSError error;
        life_.waitFor([&] {
            const bool saved = life_.context().performExclusive(
                [&] {
                    OVNote* note = OVNote::noteWithTitle(title, life_.context());
                    require(note != nullptr, NSError("", 0, "a shared note is gone"));
                    note->appendNoteWithText(line);
                },
                &error);
            require(saved, error);
        });
        std::cout << "added " << title << ' ' << line << '\n';
    }

    Life& life_;
    NSNotificationSubscription didSave_;
    std::vector<OVNote*> own_;
    int serial_ = 0;
};

} // namespace

void liveAsApplication(std::span<const std::string_view> arguments)
{
    Life life(arguments, StoreRole::Application);
    Writer writer(life);
    while (life.goesOn()) {
        if (const auto news = OVExternalChanges::mergeExternalChangesInManagedObjectContext(life.context())) {
            writer.save();
            std::cout << "news " << news->size() << '\n';
        }
        writer.step();
        life.rest();
    }
    life.tellLongestWait();
}

void liveAsExtension(std::span<const std::string_view> arguments)
{
    Life life(arguments, StoreRole::Extension);
    Writer writer(life);
    while (life.goesOn()) {
        writer.step();
        life.rest();
    }
    life.tellLongestWait();
}

void liveAsReader(std::span<const std::string_view> arguments)
{
    Life life(arguments, StoreRole::Reader);
    std::size_t whole = 0;
    while (life.goesOn()) {
        NSFetchRequest request(OVNote::entityInManagedObjectContext(life.context()));
        request.predicate
            = NSPredicate::predicateWithFormat("ANY tags.title == 'shared' AND text CONTAINS[cd] 'serial'");
        request.sortDescriptors = {{"modificationDate", false}};
        request.fetchLimit = 10;
        NSError error;
        life.waitFor([&] {
            require(life.context()
                        .count(NSFetchRequest(OVNote::entityInManagedObjectContext(life.context())), &error)
                        .has_value(),
                error);
            const auto notes = life.context().fetch(request, &error);
            require(notes.has_value(), error);
            for (NSManagedObject* record : *notes) {
                const auto& note = static_cast<const OVNote&>(*record);
                const std::string text = note.text().value_or("");
                // A note that went between the fetch and the look at its text has none.
                if (text.empty())
                    continue;
                require(
                    text.starts_with("# " + note.title().value_or("-") + '\n'), NSError("", 0, "half a note: " + text));
                ++whole;
            }
        });
        life.context().reset();
        life.rest();
    }
    std::cout << "read " << whole << '\n';
    life.tellLongestWait();
}

} // namespace tarn
