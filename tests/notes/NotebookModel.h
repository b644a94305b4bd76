#pragma once

#include "tarnmodel/corvel/CVKWikiLink.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::test {

/// A notebook in plain values that does step by step what notes do with their texts, titles and links, as simply as it
/// can: by recursion, without caches of its own and without indexes. What the real notes do is compared with it.
class NotebookModel {
public:
    struct Note;
    struct Link {
        Note* source;
        std::string title;
        std::size_t location;
        Note* target; ///< null: waits for one
    };
    struct Note {
        std::string identifier;
        std::string text;
        std::optional<std::string> title;
        bool trashed = false;
        std::pair<int, int> made; ///< what `creationDate` sorts by
    };
    /// What a rename lends to the notes that it rewrites.
    using Cache = std::map<std::string, Note*>;

    Note& add(const std::string& identifier);
    void remove(Note& note);
    void edit(Note& note, const std::string& text, Cache* cache = nullptr);
    void madeNow(Note& note) { note.made = {++clock_, 0}; }

    const std::vector<std::unique_ptr<Note>>& notes() const { return notes_; }
    std::vector<const Link*> linksOf(const Note& note) const;
    /// The keys of all tags that texts name.
    std::set<std::string> tagKeys() const;
    static std::set<std::string> tagKeysOf(const Note& note);

private:
    using Visited = std::set<const Note*>;
    static std::string keyOf(const Note& note);
    static Note* known(const std::string& title, const Cache& cache);
    void lookUp(const std::vector<CVKWikiLink>& links, Cache& cache) const;
    void setLinks(Note& note, const std::vector<CVKWikiLink>& links, Cache* cache);
    void followTitle(Note& note, const std::string& newTitle, std::optional<std::string> oldTitle);
    bool canReplace(const Note& note, const std::string& title, Visited& visited) const;

    std::vector<std::unique_ptr<Note>> notes_;
    std::vector<std::unique_ptr<Link>> links_;
    int clock_ = 0;
};

} // namespace tarn::test
