// Rewriting of hashtags: names are clean, additions change nothing else, removals remove, renames keep the rest.

#include "fuzz/corvel/FuzzInput.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/blocks/Document.h"

#include <vector>

using namespace tarn;

namespace {

std::vector<std::string> hashtagNames(const CVKAST& document)
{
    std::vector<std::string> names;
    for (const corvel::Hashtag& hashtag : document.document().hashtags)
        names.push_back(CVKHashtag::sanitizeTagName(document.document().slice(hashtag.name)));
    return names;
}

void requireSameButTags(const CVKAST& before, const CVKAST& after)
{
    const CVKTextSummary& was = before.textSummary();
    const CVKTextSummary& is = after.textSummary();
    require(was.todoCount == is.todoCount && was.doneCount == is.doneCount && was.codeBlockCount == is.codeBlockCount);
    require(was.links == is.links);
    require(was.wikiLinks.size() == is.wikiLinks.size());
}

void requireOneTagMore(const CVKAST& before, const CVKAST& after, const std::string& name)
{
    if (before.markdown() == after.markdown())
        return;
    std::vector<std::string> expected = hashtagNames(before);
    expected.push_back(CVKHashtag::sanitizeTagName(name));
    std::vector<std::string> found = hashtagNames(after);
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    require(expected == found);
    require(before.textSummary().title == after.textSummary().title);
    require(before.textSummary().subtitle == after.textSummary().subtitle);
    requireSameButTags(before, after);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::string name = input.takeLine();
    const std::string newName = input.takeLine();
    const std::string text = input.rest();

    const std::string clean = CVKHashtag::sanitizeTagName(name);
    require(CVKHashtag::sanitizeTagName(clean) == clean);
    for (std::size_t slash = clean.find('/'); slash != std::string::npos; slash = clean.find('/', slash + 1))
        require(CVKHashtag::sanitizeTagName(clean.substr(0, slash)) == clean.substr(0, slash));

    const CVKAST before = CVKAST::fromMarkdown(std::string_view(text));
    requireOneTagMore(before, CVKHashtag::addTagNameToTheTopOfString(name, text), name);
    requireOneTagMore(before, CVKHashtag::addTagNameToTheBottomOfString(name, text), name);

    const CVKAST renamed = CVKHashtag::renameTagName(name, newName, text);
    require(hashtagNames(renamed).size() == hashtagNames(before).size());
    requireSameButTags(before, renamed);

    const CVKAST removed = CVKHashtag::removeTagName(name, text);
    require(removed.markdown().size() <= text.size());
    return 0;
}
