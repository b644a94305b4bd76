#pragma once

#include <filesystem>
#include <string>

namespace tarn {

/// A text in a file of its own, opened in a person's editor.
///
/// The file lies in a folder that nobody else can look into, and goes with the object unless it is kept. Everything
/// that fails raises `CommandFailure`; an edited text that cannot be taken keeps its file, and the message names it.
///
///     EditorRun run(text);
///     run.start("vim");
///     std::string edited = run.result();
class EditorRun {
public:
    explicit EditorRun(const std::string& text);
    ~EditorRun();
    EditorRun(const EditorRun&) = delete;
    EditorRun& operator=(const EditorRun&) = delete;

    /// Runs the editor by the shell, with the file as its last argument, and waits for its end.
    void start(const std::string& editor);
    /// What the file holds now.
    std::string result();

    void keepFile() noexcept { isKept_ = true; }
    void dropFile() noexcept { isKept_ = false; }
    const std::filesystem::path& file() const noexcept { return file_; }

private:
    std::filesystem::path folder_;
    std::filesystem::path file_;
    bool isKept_ = false;
};

} // namespace tarn
