#pragma once

#include "tools/tarn/files/PrivateTextFile.h"

#include <filesystem>
#include <functional>
#include <string>

namespace tarn {

/// A text in a file of its own, opened in a person's editor.
///
/// What the editor has made of it is nowhere else until it is saved: as long as the file, or what the editor put beside
/// it, is not as it was, it stays, and every failure names it. Everything that fails raises `CommandFailure`. Needs an
/// `Interruption`.
///
///     EditorRun run(text, PrivateTextFile::Content::OfOpenNote);
///     std::string edited = run.textFromEditor("vim");
///     run.saveBy([&] { ... });
class EditorRun {
public:
    EditorRun(const std::string& text, PrivateTextFile::Content content);
    /// Removes a file that is as it was, and one whose text was saved.
    ~EditorRun();
    EditorRun(const EditorRun&) = delete;
    EditorRun& operator=(const EditorRun&) = delete;

    /// Runs the editor by the shell, with the file as its last argument, and waits for its end; what the file holds
    /// then.
    std::string textFromEditor(const std::string& editor);
    /// Runs what saves the text.
    void saveBy(const std::function<void()>& work);
    /// Where something is that was not saved; empty when there is nothing.
    std::string placeOfUnsaved() const;

private:
    std::string contents() const;
    void namePlaceOnFailure(const std::function<void()>& work);

    std::string original_;
    PrivateTextFile file_;
    bool isSaved_ = false;
    bool mayStillChange_ = false; ///< the editor was not seen to end by itself
};

} // namespace tarn
