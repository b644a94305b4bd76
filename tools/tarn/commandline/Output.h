#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// How a piece of text stands out on a terminal.
enum class TextStyle { Plain, Strong, Faint, Match, Good, Bad };

/// Standard output: buffered, every failure noticed, colours and line lengths only where a terminal is.
///
///     output.write(output.styled(title, TextStyle::Strong));
class Output {
public:
    /// Writes to this descriptor, which stays the caller's.
    explicit Output(int descriptor);
    /// Writes what is left without telling of failures; call `flush` first.
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Raises `CommandFailure` when the text cannot be written and `OutputClosed` when nobody reads it.
    void write(std::string_view text);
    void writeLine(std::string_view text);
    void flush();

    bool isTerminal() const noexcept { return terminal_; }
    /// Columns of the terminal; none when the output is no terminal, and lines are as long as they are.
    std::optional<std::size_t> width() const noexcept { return width_; }
    /// The text in colour where colours are wanted.
    std::string styled(std::string_view text, TextStyle style) const;
    /// The text as it stands for programs that read it, made safe for a terminal.
    std::string shown(std::string_view text) const;

private:
    void writeAll(std::string_view text);

    int descriptor_;
    bool terminal_;
    bool colours_;
    std::optional<std::size_t> width_;
    std::string buffer_;
};

} // namespace tarn
