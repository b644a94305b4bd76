#pragma once

#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn {

class StoreSession;

/// The titles of the notes of a store that are not in the trash, asked for once each. Titles are compared as links
/// compare them.
class StoreTitles {
public:
    /// `session` may be null: of a store that is not there. It must outlive this.
    explicit StoreTitles(StoreSession* session) : session_(session) { }

    /// Asks for many at once, which is cheaper than one by one.
    void lookUp(std::span<const std::string> titles);
    /// The notes of a title, by identifier.
    const std::vector<std::string>& notesOf(const std::string& title);
    /// The note that alone has the title, by identifier.
    std::optional<std::string> onlyNoteOf(const std::string& title);

private:
    StoreSession* session_;
    std::unordered_map<std::string, std::vector<std::string>> notes_; ///< by the folded title
};

} // namespace tarn
