#include "benchmarks/store/OldNotes.h"

#include "benchmarks/support/Corpus.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <fmt/core.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tarn {

namespace {

constexpr std::size_t kNotesOfASave = 2'500;
constexpr std::size_t kNotesForALink = 4;
constexpr std::size_t kNotesForAttachments = 10;

[[noreturn]] void stopWith(const NSError& error)
{
    fmt::print(stderr, "{}\n", error.localizedDescription());
    std::exit(6);
}

/// Writes notes as an application of the first version would have.
class OldApplication {
public:
    explicit OldApplication(const std::filesystem::path& file)
        : context_(NSManagedObjectContext::ConcurrencyType::MainQueue)
    {
        NSError error;
        model_
            = NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion("Model"), &error);
        if (!model_)
            stopWith(error);
        const auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model_);
        if (!coordinator->addPersistentStoreWithType(StoreType::SQLite, file, {}, &error))
            stopWith(error);
        context_.setPersistentStoreCoordinator(coordinator);
    }

    void write(const std::string& text, std::size_t number)
    {
        const CVKAST parsed = CVKAST::fromMarkdown(text);
        const CVKTextSummary& summary = parsed.textSummary();
        NSManagedObject& note = insert("OVNote");
        note.setValueForKey("title", summary.title);
        note.setValueForKey("subtitle", summary.subtitle);
        note.setValueForKey("text", text);
        note.setValueForKey("todoIncompleted", summary.todoCount);
        note.setValueForKey("todoCompleted", summary.doneCount);
        note.setValueForKey("lastEditingDevice", "Desk");
        std::vector<NSManagedObjectID> tags;
        for (const std::string& tag : summary.tags)
            tags.push_back(tagNamed(tag));
        ManagedMigrationRecord(note).setRelatedObjectIDs("tags", tags);
        if (number % kNotesForAttachments == 0) {
            attach("OVNoteImage", fmt::format("picture {}.jpeg", number), note);
            attach("OVNoteGenericFile", fmt::format("paper {}.pdf", number), note);
        }
    }
    void save()
    {
        NSError error;
        if (!context_.save(&error))
            stopWith(error);
        context_.reset();
    }

private:
    NSManagedObject& insert(std::string_view entity)
    {
        NSManagedObject& record = context_.insertObject(*model_->entityNamed(entity));
        record.setValueForKey("uniqueIdentifier", newUUIDString());
        record.setValueForKey("version", 1);
        record.setValueForKey("modificationDate", now());
        return record;
    }
    NSManagedObjectID tagNamed(const std::string& name)
    {
        const auto known = tags_.find(name);
        if (known != tags_.end())
            return known->second;
        NSManagedObject& tag = insert("OVNoteTag");
        tag.setValueForKey("name", name);
        tag.setValueForKey("isRoot", name.find('/') == std::string::npos);
        NSManagedObject* const tags[]{&tag};
        NSError error;
        if (!context_.obtainPermanentIDsForObjects(tags, &error))
            stopWith(error);
        return tags_.emplace(name, tag.objectID()).first->second;
    }
    void attach(std::string_view entity, const std::string& name, NSManagedObject& note)
    {
        NSManagedObject& file = insert(entity);
        file.setValueForKey("filename", name);
        file.setValueForKey("fileSize", 123'456.0);
        const NSManagedObjectID notes[]{note.objectID()};
        ManagedMigrationRecord(file).setRelatedObjectIDs("note", notes);
    }

    std::shared_ptr<const NSManagedObjectModel> model_;
    NSManagedObjectContext context_;
    std::map<std::string, NSManagedObjectID> tags_;
};

/// The first line of a text without its sign of a heading.
std::string headingOf(const std::string& text)
{
    return text.substr(2, text.find('\n') - 2);
}

} // namespace

void makeStoreOfFirstVersion(const std::filesystem::path& file, std::size_t notes)
{
    OldApplication application(file);
    std::vector<std::string> texts = madeUpNotes(notes);
    for (std::size_t number = 0; number < texts.size(); ++number) {
        std::string text = std::move(texts[number]);
        // A heading keeps its place: what was moved away is linked no more.
        texts[number] = text.substr(0, text.find('\n') + 1);
        if (number % kNotesForALink == 1)
            text += "[[" + headingOf(texts[number / 2]) + "]] and [[nothing " + std::to_string(number) + "]]\n";
        application.write(text, number);
        if ((number + 1) % kNotesOfASave == 0)
            application.save();
    }
    application.save();
}

} // namespace tarn
