#pragma once

#include "tools/tarn/files/PrivateTextFile.h"

#include <functional>
#include <optional>
#include <string>

namespace tarn {

/// The text that a command was given: the argument, or standard input to its end when there is none or it is "-". To
/// the last byte.
///
/// What came by standard input may be nowhere else: when it cannot be saved, it is kept in a file that the failure
/// names.
class TextArgument {
public:
    /// Raises `CommandFailure` for what is no valid UTF-8 or longer than a note can be.
    explicit TextArgument(const std::optional<std::string>& argument);

    const std::string& text() const noexcept { return text_; }
    /// Says that the text is for a protected note, before it is saved.
    void setIsForProtectedNote() { content_ = PrivateTextFile::Content::OfProtectedNote; }
    /// Runs what saves the text.
    void saveBy(const std::function<void()>& work) const;

private:
    [[noreturn]] void throwKept() const;

    bool isFromInput_;
    std::string text_;
    PrivateTextFile::Content content_ = PrivateTextFile::Content::OfOpenNote;
};

} // namespace tarn
