#pragma once

#include <string>

namespace tarn {

/// Takes over, while it lives, the signals that ask a program to end: SIGINT (Control-C), SIGTERM and SIGHUP. Whoever
/// has something to say or to keep before the end asks whether one came, and stops.
///
/// On the main thread; one inside of another changes nothing. A signal that was ignored from the beginning stays so;
/// one that comes a second after the first ends the program at once.
///
///     const Interruption interruption;
///     for (...) Interruption::endIfRequested("interrupted; nothing was saved");
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Whether a signal came, also when nobody takes them over any more. Any thread.
    static bool requested() noexcept;
    /// Raises `CommandFailure` when one came.
    static void endIfRequested(const std::string& message);
    /// The number of the signal that came; 0 for none.
    static int signal() noexcept;
    /// Ends the program by the signal that came, so that a shell knows of it and stops its own loops as well. Returns
    /// the exit code that stands for the signal, should it not end anything.
    static int endProgram() noexcept;

    /// Readable once a signal came: for `poll`.
    static int descriptor() noexcept;
    /// Says whether Control-C on the terminal is meant for another program. It is not heard then; a signal that was
    /// sent to this process alone is.
    static void setKeyboardIsOfAnother(bool isOfAnother) noexcept;
};

} // namespace tarn
