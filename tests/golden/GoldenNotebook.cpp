#include "tests/golden/GoldenNotebook.h"

#include "tarnmodel/model/OVNoteFileServerData.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteServerData.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tests/golden/GoldenTexts.h"

#include <fmt/format.h>

#include <limits>

namespace tarn {

namespace {

constexpr std::size_t kEverydayNotes = 320;
constexpr std::int64_t kStartOf2015 = 1'420'070'400; // in seconds since 1970

NSData dataOf(std::string_view bytes)
{
    return NSData::fromText(bytes);
}

} // namespace

void GoldenNotebook::write()
{
    writeTexts();
    writeLinks();
    writeTwins();
    writeAttachments();
    setStates();
    setTags();
    tieToServer();
    if (version_ == 2) {
        pinInTags();
        protect();
    }
}

OVNote& GoldenNotebook::noteMadeAt(std::string_view text, std::int64_t secondsSince2015)
{
    OVNote& note = store_.note(text);
    note.setCreationDate(dateWithMicrosecondsSince1970((kStartOf2015 + secondsSince2015) * 1'000'000 + 123'456));
    return note;
}

void GoldenNotebook::writeTexts()
{
    for (const std::string& text : unusualTexts())
        store_.note(text);
    for (const LongText& text : longTexts())
        store_.note(text.text());
    std::int64_t day = 0;
    for (const std::string& text : everydayTexts(kEverydayNotes))
        notes_.push_back(&noteMadeAt(text, 86'400 * ++day));
}

/// Links of every kind, to notes that are there and to those that are not.
void GoldenNotebook::writeLinks()
{
    store_.note("# Groceries\n\nmilk and [[Groceries]] again");
    store_.note("# AC/DC\n\nis a title with a slash");
    store_.note("# x|y [z]\n\nis one to escape");
    store_.note("# Éclair\n\nof other letters");
    OVNote& untitled = store_.note("![](only-an-image.png)");
    OVNote& empty = store_.note("");
    store_.note(fmt::format("# By identifier\n\n[[{}]] and [[{}|the empty one]]", untitled.uniqueIdentifier().value(),
        empty.uniqueIdentifier().value()));
    store_.note(
        "# Links\n\n🎉 [[Groceries]] [[ groceries |again]] ![[GROCERIES]] [[AC/DC]] [[x\\|y \\[z\\]]]\n\n"
        "[[eclair]] [[E\u0301CLAIR]] [[nobody has this title]] [[ ]] [[|alias]] \\[[Groceries]] `[[Groceries]]`\n"
        "[[1]](https://example.com) [see [[Groceries]]](x) [[\u0301]]\n\n    [[Groceries]] in code\n");
    store_.note("# To [[Groceries]]\n\na link in a title");
    store_.note("# Chain one\n\n[[Chain two]]");
    store_.note("# Chain two\n\n[[Chain three]] [[Chain one]]");
}

/// Several notes of one title: an untrashed one counts first, then the one made first.
void GoldenNotebook::writeTwins()
{
    noteMadeAt("# Twin\n\nthe first, in the trash", 1).trash();
    noteMadeAt("# twin\n\nthe third", 300);
    noteMadeAt("# TWIN\n\nthe second: links lead here", 200);
    noteMadeAt("# Twin\n\nmade at no known time, in the trash", 5).trash();
    noteMadeAt("# Thrown away\n\nand nothing took its place", 10).trash();
    noteMadeAt("# Same moment\n\nof two the one with the lower key", 20);
    noteMadeAt("# Same moment\n\nof two the one with the higher key", 20);
    store_.note("# To twins\n\n[[Twin]] [[thrown away]] [[Same moment]] [[Dateless]]");
    OVNote& dateless = store_.note("# Dateless\n\nwhat has no date was made first");
    dateless.setCreationDate(std::nullopt);
    noteMadeAt("# Dateless\n\nmade later than none", -1'000'000'000);
}

void GoldenNotebook::writeAttachments()
{
    for (std::size_t i = 0; i < 40; ++i) {
        OVNote& note = *notes_[i * 7];
        const std::string picture = fmt::format("picture {} ä.png", i);
        const std::string paper = fmt::format("paper's \"{}\".pdf", i);
        OVNoteImage& image = store_.image(note, picture);
        image.setNormalizedFileExtension("png");
        image.setFileSizeValue(static_cast<std::int64_t>(1'000 + i * i * i * 1'021));
        image.setWidthValue(static_cast<std::int64_t>(i * 16));
        image.setHeightValue(static_cast<std::int64_t>(i * 9));
        image.setDownloadedValue(i % 3 == 0);
        image.setUploadedValue(i % 2 == 0);
        if (version_ == 2)
            image.setAnimatedValue(i % 5 == 0);
        std::string text = note.text().value_or("") + "\n![](" + (i % 2 == 0 ? "picture%20" : "<picture ");
        text += fmt::format("{}{}", i, i % 2 == 0 ? "%20%C3%A4.png)" : " ä.png>)");
        if (i % 4 != 3) {
            OVNoteGenericFile& file = store_.file(note, paper);
            file.setNormalizedFileExtension("pdf");
            file.setFileSizeValue(static_cast<std::int64_t>(i));
            file.setSkipSyncValue(i % 7 == 0);
            if (i % 4 != 2) // the others are used by no text
                text += fmt::format(" [paper](<paper's \"{}\".pdf>)", i);
        }
        note.updateNoteWithText(text, false);
    }
}

void GoldenNotebook::setStates()
{
    for (std::size_t i = 0; i < notes_.size(); ++i) {
        OVNote& note = *notes_[i];
        note.setOrderValue(static_cast<std::int64_t>(i) - 100);
        if (i % 11 == 0)
            note.pin();
        if (i % 13 == 0)
            note.archive();
        if (i % 17 == 0)
            note.trash();
        if (i % 19 == 0)
            note.makeReadOnly();
        note.setSkipSyncValue(i % 23 == 0);
        note.setPermanentlyDeletedValue(i % 29 == 0);
        if (version_ == 2)
            note.setShownInTodayWidgetValue(i % 31 == 0);
        if (i % 37 == 0)
            note.setLastEditingDevice("Zoë’s \"old\" telephone 📱");
    }
    notes_[1]->setOrderValue(std::numeric_limits<std::int64_t>::max());
    notes_[2]->setOrderValue(std::numeric_limits<std::int64_t>::min());
    notes_[3]->setModificationDate(dateWithMicrosecondsSince1970(-62'135'596'800'000'000)); // the year 1
    notes_[4]->setModificationDate(dateWithMicrosecondsSince1970(253'402'300'799'999'999)); // the year 9999
    notes_[5]->setModificationDate(dateWithMicrosecondsSince1970(-1));
}

void GoldenNotebook::setTags()
{
    std::size_t number = 0;
    for (OVNoteTag* tag : store_.all<OVNoteTag>()) {
        ++number;
        if (number % 4 == 0)
            tag->pin();
        if (number % 3 == 0)
            tag->setSorting(static_cast<std::int16_t>(number % 5));
        if (number % 5 == 0)
            tag->setSortingDirection(number % 2 == 0);
        if (version_ == 2 && number % 2 == 0)
            tag->setTagcon(fmt::format("icon-{} ☂", number));
        if (number % 6 == 0)
            tag->setServerData(dataOf("system fields of a tag"));
    }
}

void GoldenNotebook::tieToServer()
{
    std::size_t number = 0;
    for (OVNote* note : notes_) {
        if (++number % 5 != 0)
            continue;
        auto& data = store_.insert<OVNoteServerData>();
        data.setSystemFields(dataOf(std::string("\0\x01\xFF bplist of note ", 18) + std::to_string(number)));
        note->setServerData(&data);
    }
    for (OVNoteFile* file : store_.all<OVNoteFile>()) {
        if (++number % 3 != 0)
            continue;
        auto& data = store_.insert<OVNoteFileServerData>();
        data.setSystemFields(dataOf("\xFE\xFF of a file"));
        file->setServerData(&data);
    }
}

void GoldenNotebook::pinInTags()
{
    for (std::size_t i = 0; i < notes_.size(); i += 3) {
        const std::vector<OVNoteTag*> tags = notes_[i]->tagsSet().allObjects();
        if (!tags.empty())
            notes_[i]->pinInTag(*tags.front());
    }
}

/// Notes and attachments as an encryption manager leaves them.
void GoldenNotebook::protect()
{
    auto& password = store_.insert<OVPassword>();
    password.setEncryptedData(dataOf("by which it is recognised"));
    password.setHint(dataOf("it's \"the\" usual one"));
    password.setEncryptionVersionValue(3);
    password.setBiometryValue(true);
    for (std::size_t i = 6; i < notes_.size(); i += 16) {
        OVNote& note = *notes_[i];
        for (OVNoteFile* file : note.filesSet().allObjects()) {
            file->setEncryptionState(
                {true, dataOf("name, extension and size"), note.creationDate(), newUUIDString(), &password});
            file->updatePrimitiveFilename(std::nullopt);
            file->updatePrimitiveNormalizedFileExtension(std::nullopt);
            file->updatePrimitiveFileSize(0);
        }
        note.setEncryptionState({true, dataOf(fmt::format("cipher \x80\xFF of note {}", i)), note.modificationDate(),
            newUUIDString(), &password});
        note.updatePrimitiveText(std::nullopt);
        note.setSubtitle(std::nullopt);
    }
}

} // namespace tarn
