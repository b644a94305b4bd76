#include "tests/processes/Workload.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr int kNotes = 60;

std::string titleOf(int number)
{
    return "Note " + std::to_string(number);
}

OVNote& noteOf(int number, NSManagedObjectContext& context)
{
    return *OVNote::noteWithTitle(titleOf(number), context);
}

void addOneNote(NSManagedObjectContext& context)
{
    OVNote::noteWithText("# Groceries\n\n- [ ] pears", context);
}

void addALongNote(NSManagedObjectContext& context)
{
    OVNote::noteWithText(
        "# Journey\n\n#travel/rome #garden\n\n[[Note 3]] and [[Note 41]], [[Nowhere]]\n\n" + wordsOfSize(40'000, 900),
        context);
}

void addManyNotes(NSManagedObjectContext& context)
{
    for (int number = 0; number < 200; ++number)
        OVNote::noteWithText("# Import " + std::to_string(number) + "\n\n#import/" + std::to_string(number % 7)
                + " [[Note " + std::to_string(number % kNotes) + "]]\n\n"
                + wordsOfSize(number % 20 == 0 ? 30'000 : 300, static_cast<unsigned>(1'000 + number)),
            context);
}

void editTexts(NSManagedObjectContext& context)
{
    for (int number = 0; number < 15; ++number)
        noteOf(number, context)
            .appendNoteWithText(wordsOfSize(number % 3 == 0 ? 20'000 : 100, static_cast<unsigned>(2'000 + number)));
    noteOf(30, context).updateNoteWithText("# Note 30 has another title\n\n#shrunk");
}

void deleteNotes(NSManagedObjectContext& context)
{
    for (int number = 20; number < 45; ++number)
        noteOf(number, context).permanentlyDelete();
    noteOf(50, context).trash();
}

void renameATag(NSManagedObjectContext& context)
{
    for (const std::string_view name : {"garden", "kitchen"})
        OVNoteTag::getOrCreateTagWithName(name, context)->renameTagWithTagNamed(std::string(name) + "/old");
}

void doOfEachAFew(NSManagedObjectContext& context)
{
    addALongNote(context);
    noteOf(7, context).appendNoteWithText("- [ ] water #garden/roses");
    noteOf(30, context).updateNoteWithText("# Note 30 has another title\n\n#shrunk");
    noteOf(23, context).permanentlyDelete();
    OVNoteTag::getOrCreateTagWithName("travel", context)->renameTagWithTagNamed("journeys");
}

constexpr std::array kWorkloads{
    Workload{"OneNote", addOneNote},
    Workload{"ALongNoteWithTagsAndLinks", addALongNote},
    Workload{"TwoHundredNotes", addManyNotes},
    Workload{"Edits", editTexts},
    Workload{"Deletions", deleteNotes},
    Workload{"ARenamedTag", renameATag},
    Workload{"OfEachAFew", doOfEachAFew},
};

} // namespace

std::span<const Workload> workloads()
{
    return kWorkloads;
}

const Workload* workloadNamed(std::string_view name)
{
    const auto found = std::find_if(
        kWorkloads.begin(), kWorkloads.end(), [name](const Workload& workload) { return workload.name == name; });
    return found == kWorkloads.end() ? nullptr : &*found;
}

void makeNotebook(NSManagedObjectContext& context)
{
    constexpr std::array<std::string_view, 4> tags{"#garden", "#kitchen", "#travel/rome", "#travel"};
    for (int number = 0; number < kNotes; ++number)
        OVNote::noteWithText("# " + titleOf(number) + "\n\n" + std::string(tags[static_cast<std::size_t>(number) % 4])
                + " [[" + titleOf(number / 2) + "]]\n\n"
                + wordsOfSize(number % 10 == 0 ? 12'000 : 200, static_cast<unsigned>(number)),
            context);
}

std::string wordsOfSize(std::size_t bytes, unsigned variant)
{
    constexpr std::array<std::string_view, 12> syllables{
        "ka", "lo", "mi", "ré", "su", "tan", "vex", "ul", "ör", "pi", "ga", "до"};
    std::string text;
    for (std::uint32_t state = variant * 2'654'435'761U + 1; text.size() < bytes; state = state * 1'664'525U + 1'013U) {
        text += syllables[(state >> 16) % syllables.size()];
        if ((state >> 28) < 6)
            text += (state >> 24) % 16 == 0 ? ".\n" : " ";
    }
    return text;
}

} // namespace tarn
