#pragma once

#include "tools/tarn/import/reading/MarkdownFiles.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarn {

/// A note of an import, or another file, as links find it.
struct LinkableNote {
    std::string path;                       ///< without symbolic links
    std::shared_ptr<const ImportRoot> root; ///< the folder that was named
    std::string title;
    std::vector<std::string> aliases;
};

/// The names that wiki links of any text of an import name: what nobody asks for needs no memory.
class LinkedNames {
public:
    /// As a link has it, with an anchor or not.
    void add(std::string_view name);
    bool contain(const std::string& key) const { return keys_.contains(key); }
    bool haveSlashes() const noexcept { return haveSlashes_; }
    /// All, as links have them.
    const std::unordered_set<std::string>& all() const noexcept { return names_; }

private:
    std::unordered_set<std::string> names_;
    std::unordered_set<std::string> keys_; ///< folded, whole and without what is not the name
    bool haveSlashes_ = false;
};

/// Finds the notes that the texts of imported files link.
///
/// Everything is compared folded. A text names a note by its path from the folder that was named or from the text's
/// own, by the end of its path, by the name of its file, by its title, or by an alias: the first of these that finds
/// any counts. What has no slash in it is a name and no path.
class NoteIndex {
public:
    using Number = std::size_t; ///< of a note, as they were added

    /// `names`: all that is going to be asked for. It must outlive this, and have them before the first note is added.
    explicit NoteIndex(const LinkedNames& names) : linkedNames_(names) { }

    /// What a name leads to.
    struct Match {
        Number note = 0;
        bool isOneOfSeveral = false; ///< the nearest: in the same folder, with the shortest path, by name
    };

    /// Adds one more, with the number that follows on the last one's.
    void add(LinkableNote note);

    const LinkableNote& note(Number number) const { return notes_[number]; }
    std::size_t size() const noexcept { return notes_.size(); }

    /// The note of this file. `path` has no symbolic links.
    std::optional<Number> noteAtPath(const std::string& path) const;
    /// The note that the text of `from` names so; it need not be one of these.
    std::optional<Match> noteNamed(std::string_view name, const LinkableNote& from) const;

private:
    /// The notes that share a name, in one look-up however many they are.
    class Names {
    public:
        void add(const std::string& key, const NoteIndex& index, Number number);
        std::optional<Match> nearest(const std::string& key, std::string_view folder) const;

    private:
        static std::string keyInFolder(const std::string& key, std::string_view folder);

        std::unordered_map<std::string, Match> everywhere_;
        std::unordered_map<std::string, Number> inFolder_; ///< by the key, and behind a null byte the folder
    };

    bool isNearer(Number one, Number other) const;
    void addPaths(const std::string& whole, const std::string& relative, Number number);
    void addName(Names& names, const std::string& key, Number number);
    std::optional<Match> atPath(const std::string& name, const LinkableNote& from) const;

    const LinkedNames& linkedNames_;
    std::vector<LinkableNote> notes_;
    std::unordered_map<std::string, Number> byPath_;
    Names byFoldedPath_;
    Names byPathEnd_; ///< of one folder and the name at least
    Names byFileName_;
    Names byTitle_;
    Names byAlias_;
};

} // namespace tarn
