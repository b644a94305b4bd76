#include "tests/support/StoreFixture.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/notes/LinkTargets.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <array>
#include <cstdlib>
#include <map>
#include <random>
#include <set>

namespace tarn {
namespace {

constexpr int stepsOfALife = 60;
constexpr int livesByDefault = 20;

constexpr std::array firstLines{"# A", "# B", "# C #rome", "# See [[A]]", "# [[B]]", "plain"};
constexpr std::array laterLines{"[[A]]", "to [[b|alias]] #work", "#rome #work/x", "[[C #rome]] ![](p.png)", "- [ ] do",
    "[x](a.pdf) ![](p.png)", "```\ncode\n```", "", "#two words# [[See A]]"};
constexpr std::array namesOfTags{"rome", "work", "work/x", "italy/rome", "two words"};

/// Several writers of one store, as processes and as contexts of one process are, who change the same notes without
/// knowing of each other. Whatever they do, records say what texts say, and no line that somebody wrote is gone.
class ConflictingEdits : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        former_ = setLogSink([](std::string_view) {}); // what gives way is logged
    }
    void TearDown() override
    {
        writers_.clear();
        setLogSink(former_);
        StoreFixture::TearDown();
    }

    struct Writer {
        std::unique_ptr<NSManagedObjectContext> context;
        std::set<std::string> unsaved; ///< lines that it has written since it saved
    };

    void addWriter(const std::shared_ptr<NSPersistentStoreCoordinator>& coordinator, NSMergePolicy policy)
    {
        Writer writer;
        writer.context = contextOn(coordinator);
        writer.context->setMergePolicy(policy);
        writer.context->setMergeConflictHandler(
            [](const MergeConflict& conflict) { OVNote::keepLosingText(conflict); });
        writers_.push_back(std::move(writer));
    }

    std::size_t below(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }
    template <typename Choices> std::string pickFrom(const Choices& choices) { return choices[below(choices.size())]; }
    static std::vector<OVNote*> notesOf(NSManagedObjectContext& context)
    {
        return OVNote::notesInManagedObjectContext(context, std::nullopt);
    }

    std::string randomText(Writer& writer)
    {
        std::string text = pickFrom(firstLines);
        for (std::size_t lines = below(3); lines > 0; --lines)
            text += "\n\n" + pickFrom(laterLines);
        return text + writtenLine(writer);
    }
    /// A line that nobody else writes.
    std::string writtenLine(Writer& writer)
    {
        const std::string word = "word" + std::to_string(++words_) + "x";
        writer.unsaved.insert(word);
        return "\n\n" + word;
    }
    /// What people wrote into the text so far stays in the new one.
    static std::string wordsOf(const std::string& text)
    {
        std::string words;
        for (std::size_t at = text.find("word"); at != std::string::npos; at = text.find("word", at + 1))
            if (const std::size_t end = text.find('x', at);
                end != std::string::npos && end > at + 4 && text.find_first_not_of("0123456789", at + 4) == end)
                words += "\n\n" + text.substr(at, end - at + 1);
        return words;
    }

    void addFile(OVNote& note)
    {
        const bool isImage = below(2) == 0;
        for (const OVNoteFile* file : note.filesSet().allObjects())
            if (file->filename() == (isImage ? "p.png" : "a.pdf"))
                return;
        OVNoteFile* file = isImage
            ? static_cast<OVNoteFile*>(OVNoteImage::insertInManagedObjectContext(note.managedObjectContext()))
            : OVNoteGenericFile::insertInManagedObjectContext(note.managedObjectContext());
        file->setFilename(isImage ? "p.png" : "a.pdf");
        file->setNote(&note);
        note.updateNoteWithText(note.text().value_or(""), false);
    }

    void change(Writer& writer)
    {
        NSManagedObjectContext& context = *writer.context;
        const std::vector<OVNote*> notes = notesOf(context);
        const std::size_t choice = below(20);
        if (notes.size() < 2 || (choice == 0 && notes.size() < 12)) {
            OVNote::noteWithText(randomText(writer), context);
            return;
        }
        OVNote& note = *notes[below(notes.size())];
        if (choice < 7) {
            note.updateNoteWithText(randomText(writer) + wordsOf(note.text().value_or("")));
        } else if (choice < 10) {
            note.updateNoteWithText(note.text().value_or("") + writtenLine(writer));
        } else if (choice < 12) {
            note.isPinned() ? note.unpin() : note.pin();
        } else if (choice == 12) {
            note.isTrashed() ? note.restoreFromTrash() : note.trash();
        } else if (choice < 15) {
            addFile(note);
        } else if (choice == 15) {
            OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context);
        } else if (OVNoteTag* tag = OVNoteTag::tagWithName(pickFrom(namesOfTags), context)) {
            if (choice == 16)
                tag->deleteTag();
            else if (choice == 17)
                tag->addTagToNotes({&note}, below(2) == 0);
            else
                tag->renameTagWithTagNamed(pickFrom(namesOfTags));
        }
    }

    void save(Writer& writer)
    {
        NSError error;
        ASSERT_TRUE(writer.context->save(&error)) << error;
        written_.merge(writer.unsaved);
        writer.unsaved.clear();
    }

    void live(unsigned seed);
    void compare();
    void compareNote(const OVNote& note, std::map<std::string, std::string>& tagKeys);

    std::vector<Writer> writers_;
    std::set<std::string> written_;
    std::mt19937 random_;
    std::size_t words_ = 0;
    LogSink former_;
};
INSTANTIATE_TEST_SUITE_P(Files, ConflictingEdits, testing::Values(StoreType::SQLite), storeName);

void ConflictingEdits::compareNote(const OVNote& note, std::map<std::string, std::string>& tagKeys)
{
    const std::string text = note.text().value_or("");
    SCOPED_TRACE("note " + note.uniqueIdentifier().value_or("") + "\n" + text);
    const CVKAST document = CVKAST::fromMarkdown(text);
    const CVKTextSummary& summary = document.textSummary();
    ASSERT_EQ(note.title().value_or(""), summary.title);
    ASSERT_EQ(note.subtitle().value_or(""), summary.subtitle);
    ASSERT_EQ(note.todoIncompletedValue(), static_cast<int>(summary.todoCount));
    ASSERT_EQ(note.hasSourceCodeValue(), summary.codeBlockCount != 0);

    std::set<std::string> wanted;
    std::set<std::string> found;
    for (const std::string& tag : summary.tags)
        wanted.insert(CVKHashtag::normalizeTagName(tag));
    for (const OVNoteTag* tag : note.tagsSet().allObjects()) {
        found.insert(tag->normalizedTitle());
        const auto identifier = tag->uniqueIdentifier().value_or("");
        ASSERT_EQ(tagKeys.emplace(tag->normalizedTitle(), identifier).first->second, identifier) << "two such tags";
    }
    ASSERT_EQ(found, wanted);

    std::multiset<std::pair<std::int64_t, std::string>> places;
    std::multiset<std::pair<std::int64_t, std::string>> records;
    for (const CVKWikiLink& link : summary.wikiLinks)
        places.emplace(static_cast<std::int64_t>(link.offset()), fold(link.decodedTitle()));
    for (const OVNoteBackLink* link : note.linkingToSet().allObjects()) {
        const std::string key = fold(link->title().value_or(""));
        records.emplace(link->locationValue(), key);
        const OVNote* target = link->linkingTo();
        const bool isThere = OVNote::untrashedNoteWithTitleOrUUID(key, note.managedObjectContext()) != nullptr;
        ASSERT_TRUE(target || !isThere) << "the link waits for " << key << ", which is there";
        ASSERT_TRUE(!target || linkKeyOf(*target) == key) << key << " leads to " << linkKeyOf(*target);
    }
    ASSERT_EQ(records, places);

    // Where two attached a file of one name, the text uses one of them, and of the others nobody can tell.
    std::map<std::string, std::pair<int, int>> uses; // how many there are, how many are in use
    for (const OVNoteFile* file : note.filesSet().allObjects()) {
        auto& [all, used] = uses[file->filename().value_or("")];
        ++all;
        used += file->isUnused() ? 0 : 1;
    }
    for (const auto& [name, count] : uses) {
        if (std::ranges::count(summary.links, name) != 0)
            ASSERT_GE(count.second, 1) << name;
        else
            ASSERT_LT(count.second, count.first) << name;
    }
}

void ConflictingEdits::compare()
{
    const auto context = contextOn(openAgain());
    std::map<std::string, std::string> tagKeys;
    std::string texts;
    for (const OVNote* note : notesOf(*context)) {
        compareNote(*note, tagKeys);
        if (HasFatalFailure())
            return;
        texts += note->text().value_or("") + '\n';
    }
    for (const std::string& word : written_)
        ASSERT_NE(texts.find(word), std::string::npos) << word << " was saved and is gone";
    for (const NSManagedObject* record :
        context->executeFetchRequest(NSFetchRequest(OVNoteBackLink::entityInManagedObjectContext(*context))))
        ASSERT_NE(static_cast<const OVNoteBackLink*>(record)->linkedBy(), nullptr) << "a link of no text";
}

void ConflictingEdits::live(unsigned seed)
{
    SCOPED_TRACE("seed " + std::to_string(seed));
    random_.seed(seed);
    const auto one = openAgain();
    const auto other = openAgain();
    addWriter(one, NSMergePolicy::MergeByPropertyStoreTrump);
    addWriter(one, NSMergePolicy::MergeByPropertyObjectTrump);
    addWriter(other, NSMergePolicy::MergeByPropertyStoreTrump);
    for (int step = 0; step < stepsOfALife; ++step) {
        Writer& writer = writers_[below(writers_.size())];
        change(writer);
        if (below(4) != 0)
            continue;
        save(writer);
        if (HasFatalFailure())
            return;
        compare();
        if (HasFatalFailure()) {
            ADD_FAILURE() << "in step " << step;
            return;
        }
    }
    for (OVNote* note : notesOf(*writers_.front().context))
        note->managedObjectContext().deleteObject(*note);
    writers_.clear();
}

TEST_P(ConflictingEdits, LeaveRecordsThatSayWhatTextsSayAndNoLineLost)
{
    const char* lives = std::getenv("TARN_CONFLICTING_LIVES"); // NOLINT(concurrency-mt-unsafe)
    unsigned count = lives ? static_cast<unsigned>(std::atoi(lives)) : livesByDefault;
    const char* first = std::getenv("TARN_SEED"); // NOLINT(concurrency-mt-unsafe)
    for (unsigned seed = first ? static_cast<unsigned>(std::atoi(first)) : 1; count != 0 && !HasFailure();
         ++seed, --count) {
        TestStore::reopen();
        written_.clear();
        live(seed);
        for (OVNote* note : all<OVNote>())
            context().deleteObject(*note);
        for (OVNoteTag* tag : all<OVNoteTag>())
            context().deleteObject(*tag);
        TestStore::save();
    }
}

} // namespace
} // namespace tarn
