#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/rewriting/TagPath.h"
#include "tarnmodel/corvel/rewriting/TagRewriting.h"
#include "tarnmodel/corvel/rewriting/TextEdits.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/HashtagScanner.h"
#include "tarnmodel/corvel/scanning/TagNames.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <vector>

namespace tarn::corvel {

namespace {

// A rename may bring to light what was hidden, for example by closing a hashtag that swallowed others.
constexpr int kMostRenamings = 4;

constexpr ByteSet kNotLastInOpenName("*_~=-/");
constexpr ByteSet kEndOfOpenName("`<>[\\|");

/// Whether an open name that is written before `rest` would end there.
bool openNameEndsBefore(std::string_view rest)
{
    std::size_t i = 0;
    while (i < rest.size() && kNotLastInOpenName.contains(rest[i]))
        ++i;
    if (i == rest.size() || kEndOfOpenName.contains(rest[i]))
        return true;
    const char32_t next = codePointAt(rest, i);
    return isWhiteSpace(next) || isTagTerminator(next);
}

/// One pass of a rename over a document.
class TagRenaming {
public:
    TagRenaming(const CVKAST& before, const TagPath& old, const std::string& newName) : before_(before)
    {
        const CVKAST::Document& document = before.document();
        for (std::size_t i = 0; i < document.hashtags.size(); ++i) {
            const Hashtag& hashtag = document.hashtags[i];
            names_.push_back(sanitizedTagName(document.slice(hashtag.name)));
            const auto tail = old.tailOf(names_.back());
            const std::string renamed = tail ? sanitizedTagName(newName + *tail) : std::string();
            if (!renamed.empty())
                addEdit(i, renamed);
        }
    }

    CVKAST apply() const
    {
        if (edits_.empty())
            return before_;
        return before_
            .applyEdits(
                edits_, [this](const CVKAST& after, const std::vector<bool>& taken) { return check(after, taken); })
            .document;
    }

private:
    void addEdit(std::size_t index, const std::string& renamed)
    {
        const CVKAST::Document& document = before_.document();
        const SourceRange range = document.hashtags[index].range;
        std::string written = hashtagForName(renamed);
        if (written.back() != '#' && !openNameEndsBefore(std::string_view(document.text).substr(range.end)))
            written += '#';
        if (written == document.slice(range))
            return;
        edits_.push_back({{range.begin, range.length()}, std::move(written)});
        indexes_.push_back(index);
        renamed_.push_back(renamed);
    }

    /// The renamed hashtags read as meant, all others and the links as before.
    bool check(const CVKAST& after, const std::vector<bool>& taken) const
    {
        std::vector<std::string> expected = names_;
        for (std::size_t i = 0; i < indexes_.size(); ++i) {
            if (taken[i])
                expected[indexes_[i]] = renamed_[i];
        }
        const CVKAST::Document& document = after.document();
        if (document.hashtags.size() != expected.size())
            return false;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            if (sanitizedTagName(document.slice(document.hashtags[i].name)) != expected[i])
                return false;
        }
        return haveSameLinksAndCounts(before_.textSummary(), after.textSummary());
    }

    CVKAST before_;
    std::vector<std::string> names_;   ///< of all hashtags
    std::vector<std::size_t> indexes_; ///< of the hashtags that the edits belong to
    std::vector<std::string> renamed_;
    std::vector<CVKTextEdit> edits_;
};

} // namespace

CVKAST renamedTag(const CVKAST& document, std::string_view name, std::string_view newName)
{
    const TagPath old(name);
    const std::string clean = sanitizedTagName(newName);
    if (!old.isUsable() || !TagPath(clean).isUsable())
        return document;
    // Under the new name they would be found again.
    const bool once = old.tailOf(clean).has_value();
    CVKAST result = document;
    for (int pass = 0; pass < (once ? 1 : kMostRenamings); ++pass) {
        CVKAST next = TagRenaming(result, old, clean).apply();
        if (next.markdown() == result.markdown())
            break;
        result = std::move(next);
    }
    return result;
}

} // namespace tarn::corvel
