#include "tests/notes/NotebookModel.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/notes/LinkTargets.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <array>
#include <random>

namespace tarn {
namespace {

using test::NotebookModel;

constexpr std::size_t mostNotes = 12;
constexpr int stepsOfANotebook = 30;
constexpr int notebooksByDefault = 40;

constexpr std::array titleLines{"# A", "# B", "# ä", "# A B", "A", "# See [[A]]", "# [[B]] and [[A B]]",
    "# On [[A|it]]", "# Trip #rome", "#rome", "", "# See A", "# \\[x\\] | y", "# [[See A]]!", "- [ ] A", "# b #work/x",
    "#rome\n# On [[A]]", "\n[[b]]", "# x`y\">"};
constexpr std::array bodyLines{"[[A]]", "to [[b|alias]], `[[A]]`", "#rome #work", "#work/x and #Work", "[[Trip #rome]]",
    "| [[A B]] |\n|---|", "- [x] done [[ä]]", "```\n[[A]] #no\n```", "[[See A]] [[see a]]", "", "plain", "#two words#",
    "[[\\[x\\] \\| y]]", "[[On it]] [[B and A B]]", "` [[A]]", "<a b=\"[[b]]", "[[On A]] and [[x`y\">]]"};
constexpr std::array tagNames{"rome", "work", "Work", "work/x", "two words", "italy/rome", "a", "***"};

/// Does the same at random to real notes and to the model, and compares them after each step.
class Notebook : public StoreFixture {
protected:
    void play(unsigned seed);

private:
    using ModelNote = NotebookModel::Note;

    std::size_t pick(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }
    template <typename Choices> std::string pickFrom(const Choices& choices) { return choices[pick(choices.size())]; }
    std::string randomText();
    ModelNote* randomNote()
    {
        return model_->notes().empty() ? nullptr : model_->notes()[pick(model_->notes().size())].get();
    }
    OVNote& real(const ModelNote& note) { return *OVNote::noteWithUniqueIdentifier(note.identifier, context()); }

    void empty();
    void step();
    void addNote();
    void edit(ModelNote& note);
    void changeTitle(ModelNote& note);
    void append(ModelNote& note);
    void duplicate(ModelNote& note);
    void merge(ModelNote& first, ModelNote& second);
    void changeTag();
    void renameTag(OVNoteTag& tag, const std::string& newName);
    void removeTag(OVNoteTag& tag);
    void addTag(const std::string& name);
    void compare();
    void compareNote(const ModelNote& expected);
    void compareTags(bool pruned);

    std::mt19937 random_;
    std::unique_ptr<NotebookModel> model_;
    std::string lastStep_;
    bool pruned_ = false;
};

std::string Notebook::randomText()
{
    std::string text = pickFrom(titleLines);
    for (std::size_t lines = pick(4); lines > 0; --lines)
        text += "\n" + pickFrom(bodyLines);
    return text;
}

void Notebook::empty()
{
    for (OVNote* note : all<OVNote>())
        context().deleteObject(*note);
    for (OVNoteTag* tag : all<OVNoteTag>())
        context().deleteObject(*tag);
    save();
    ASSERT_TRUE(all<OVNoteBackLink>().empty()) << "links go with the notes that they stand in";
}

void Notebook::addNote()
{
    const std::string text = randomText();
    lastStep_ = "add " + testing::PrintToString(text);
    OVNote& added = note(text);
    model_->edit(model_->add(*added.uniqueIdentifier()), text);
}

void Notebook::edit(ModelNote& note)
{
    const std::string text = randomText();
    lastStep_ = "edit " + testing::PrintToString(note.text) + " to " + testing::PrintToString(text);
    real(note).updateNoteWithText(text);
    model_->edit(note, text);
}

void Notebook::changeTitle(ModelNote& note)
{
    const std::size_t end = note.text.find('\n');
    const std::string text = pickFrom(titleLines) + (end == std::string::npos ? "" : note.text.substr(end));
    lastStep_ = "title of " + testing::PrintToString(note.text) + " to " + testing::PrintToString(text);
    real(note).updateNoteWithText(text);
    model_->edit(note, text);
}

void Notebook::append(ModelNote& note)
{
    lastStep_ = "append to " + testing::PrintToString(note.text);
    // A plain last line, so that there is no line of tags to stand above.
    const std::string text = note.text + (note.text.empty() || note.text.ends_with('\n') ? "" : "\n") + "end [[A]]";
    real(note).appendNoteWithText("end [[A]]", true);
    if (real(note).text() != text) {
        model_->edit(note, *real(note).text()); // above a line of tags
        return;
    }
    model_->edit(note, text);
}

void Notebook::duplicate(ModelNote& note)
{
    lastStep_ = "duplicate " + testing::PrintToString(note.text);
    OVNote& copy = *real(note).duplicate();
    ModelNote& copied = model_->add(*copy.uniqueIdentifier());
    copied.title = note.title;
    copied.trashed = note.trashed;
    copied.made = {note.made.first, 1};
    std::string text = note.text;
    for (std::size_t at = 0; (at = text.find(note.identifier, at)) != std::string::npos;)
        text.replace(at, note.identifier.size(), copied.identifier);
    model_->edit(copied, text);
    model_->madeNow(copied);
}

void Notebook::merge(ModelNote& first, ModelNote& second)
{
    lastStep_ = "merge " + testing::PrintToString(first.text) + " and " + testing::PrintToString(second.text);
    std::string text = first.text;
    const bool endsLine = text.ends_with('\n') && !text.ends_with("\n\n");
    if (endsLine)
        text += "\n";
    else if (!text.empty() && !second.text.ends_with("\n\n"))
        text += "\n\n";
    text += second.text;
    OVNote& merger = *OVNote::mergeNotes({&real(first), &real(second)});
    first.trashed = second.trashed = true;
    model_->edit(model_->add(*merger.uniqueIdentifier()), text);
}

void Notebook::renameTag(OVNoteTag& tag, const std::string& newName)
{
    const std::string oldTitle = *tag.title();
    lastStep_ = "rename #" + oldTitle + " to " + newName;
    std::vector<std::string> order;
    for (const OVNote* note : tag.notesSet().allObjects())
        order.push_back(*note->uniqueIdentifier());
    tag.renameTagWithTagNamed(newName);

    const std::string name = CVKHashtag::sanitizeTagName(newName);
    if (name.empty() || newName == oldTitle)
        return;
    NotebookModel::Cache cache;
    for (const std::string& identifier : order) {
        for (const auto& note : model_->notes()) {
            if (note->identifier == identifier)
                model_->edit(*note, CVKHashtag::renameTagName(oldTitle, name, note->text).markdown(), &cache);
        }
    }
}

void Notebook::removeTag(OVNoteTag& tag)
{
    const std::string title = *tag.title();
    lastStep_ = "remove #" + title;
    std::vector<std::string> order;
    for (const OVNote* note : tag.notesSet().allObjects())
        order.push_back(*note->uniqueIdentifier());
    tag.deleteTag();
    for (const std::string& identifier : order) {
        for (const auto& note : model_->notes()) {
            if (note->identifier == identifier)
                model_->edit(*note, CVKHashtag::removeTagName(title, note->text).markdown());
        }
    }
}

void Notebook::addTag(const std::string& name)
{
    OVNoteTag* added = OVNoteTag::getOrCreateTagWithName(name, context());
    if (!added)
        return;
    const bool bottom = pick(2) == 0;
    lastStep_ = "add #" + *added->title() + (bottom ? " at the bottom" : " at the top");
    std::vector<OVNote*> notes;
    for (const auto& note : model_->notes())
        notes.push_back(&real(*note));
    added->addTagToNotes(notes, bottom);
    for (const auto& note : model_->notes()) {
        if (NotebookModel::tagKeysOf(*note).contains(added->normalizedTitle()))
            continue;
        const CVKAST document = bottom ? CVKHashtag::addTagNameToTheBottomOfString(*added->title(), note->text)
                                       : CVKHashtag::addTagNameToTheTopOfString(*added->title(), note->text);
        model_->edit(*note, document.markdown());
    }
}

void Notebook::changeTag()
{
    const auto tags = all<OVNoteTag>();
    const std::size_t choice = pick(4);
    if (choice == 0) {
        addTag(pickFrom(tagNames));
    } else if (!tags.empty()) {
        OVNoteTag& tag = *tags[pick(tags.size())];
        if (choice == 1)
            removeTag(tag);
        else
            renameTag(tag, pickFrom(tagNames));
    }
}

void Notebook::step()
{
    ModelNote* note = randomNote();
    const std::size_t choice = pick(20);
    pruned_ = false;
    if (!note || (choice < 4 && model_->notes().size() < mostNotes))
        return addNote();
    if (choice < 7)
        return edit(*note);
    if (choice < 10)
        return changeTitle(*note);
    if (choice == 10)
        return append(*note);
    if (choice < 14)
        return changeTag();
    if (choice == 14 && model_->notes().size() < mostNotes)
        return duplicate(*note);
    if (ModelNote* other = randomNote(); choice == 15 && other != note && model_->notes().size() < mostNotes)
        return merge(*note, *other);
    if (choice == 16) {
        lastStep_ = "delete " + testing::PrintToString(note->text);
        real(*note).permanentlyDelete();
        return model_->remove(*note);
    }
    if (choice == 17) {
        lastStep_ = (note->trashed ? "restore " : "trash ") + testing::PrintToString(note->text);
        if (note->trashed)
            real(*note).restoreFromTrash();
        else
            real(*note).trash();
        note->trashed = !note->trashed;
        return;
    }
    if (choice == 18) {
        lastStep_ = "save";
        return pick(2) == 0 ? save() : reopen();
    }
    lastStep_ = "prune";
    OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context());
    pruned_ = true;
}

void Notebook::compareNote(const ModelNote& expected)
{
    const OVNote& note = real(expected);
    const CVKAST document = CVKAST::fromMarkdown(expected.text);
    const CVKTextSummary& summary = document.textSummary();
    ASSERT_EQ(note.text(), expected.text);
    ASSERT_EQ(note.title(), summary.title);
    ASSERT_EQ(note.subtitle(), summary.subtitle);
    ASSERT_EQ(static_cast<std::size_t>(note.todoIncompletedValue()), summary.todoCount);
    ASSERT_EQ(static_cast<std::size_t>(note.todoCompletedValue()), summary.doneCount);
    ASSERT_EQ(note.hasSourceCodeValue(), summary.codeBlockCount != 0);
    ASSERT_EQ(note.isTrashed(), expected.trashed);
    std::set<std::string> tags;
    for (const OVNoteTag* tag : note.tagsSet().allObjects())
        tags.insert(tag->normalizedTitle());
    ASSERT_EQ(tags, NotebookModel::tagKeysOf(expected));

    std::vector<OVNoteBackLink*> links = note.linkingToSet().allObjects();
    std::ranges::sort(links, {}, &OVNoteBackLink::locationValue);
    const auto wanted = model_->linksOf(expected);
    ASSERT_EQ(links.size(), summary.wikiLinks.size());
    ASSERT_EQ(links.size(), wanted.size());
    for (std::size_t index = 0; index < links.size(); ++index) {
        const OVNoteBackLink& link = *links[index];
        const CVKWikiLink& parsed = summary.wikiLinks[index];
        ASSERT_EQ(static_cast<std::size_t>(link.locationValue()), parsed.offset());
        ASSERT_EQ(fold(*link.title()), fold(parsed.decodedTitle()));
        ASSERT_EQ(link.linkedBy(), &note);
        OVNote* target = link.linkingTo();
        ASSERT_EQ(target ? *target->uniqueIdentifier() : "none",
            wanted[index]->target ? wanted[index]->target->identifier : "none")
            << "target of " << *link.title();
        if (!target)
            continue;
        ASSERT_TRUE(target->linkedBySet().containsObject(link));
        ASSERT_EQ(linkKeyOf(*target), fold(*link.title())) << "the link leads where its text says";
    }
    for (const OVNoteBackLink* incoming : note.linkedBySet().allObjects())
        ASSERT_EQ(incoming->linkingTo(), &note);
}

void Notebook::compareTags(bool pruned)
{
    const std::set<std::string> keys = model_->tagKeys();
    std::set<std::string> populated;
    for (OVNoteTag* tag : all<OVNoteTag>()) {
        if (!tag->notesSet().empty())
            ASSERT_TRUE(populated.insert(tag->normalizedTitle()).second) << "two tags " << *tag->title();
        else
            ASSERT_FALSE(pruned) << *tag->title();
    }
    ASSERT_EQ(populated, keys);
}

void Notebook::compare()
{
    ASSERT_EQ(all<OVNote>().size(), model_->notes().size());
    for (const auto& note : model_->notes())
        ASSERT_NO_FATAL_FAILURE(compareNote(*note)) << "note " << testing::PrintToString(note->text);
    ASSERT_NO_FATAL_FAILURE(compareTags(pruned_));
}

void Notebook::play(unsigned seed)
{
    random_.seed(seed);
    model_ = std::make_unique<NotebookModel>();
    ASSERT_NO_FATAL_FAILURE(empty());
    for (int number = 0; number < stepsOfANotebook; ++number) {
        step();
        ASSERT_NO_FATAL_FAILURE(compare()) << "seed " << seed << ", step " << number << ": " << lastStep_;
    }
}

INSTANTIATE_TEST_SUITE_P(Stores, Notebook, everyStore(), storeName);

TEST_P(Notebook, ComesToWhatItsModelSays)
{
    const auto given = Environment::current().variable("TARN_NOTEBOOKS");
    const int notebooks = given ? std::stoi(*given) : notebooksByDefault;
    std::cout << "notebooks with seeds 1 to " << notebooks << "\n";
    for (int seed = 1; seed <= notebooks && !HasFatalFailure(); ++seed)
        ASSERT_NO_FATAL_FAILURE(play(static_cast<unsigned>(seed)));
}

} // namespace
} // namespace tarn
