#pragma once

// The three programs that share one store: in real life each is a program of its own, here one that plays all of them.

namespace tarn::sharedstore {

/// How a program ends; the test that runs them looks at it.
enum ExitCode : int {
    Done = 0,
    NothingHeard = 1, ///< what it waited for did not come within ten seconds, or was not there
    WrongArguments = 2,
    NoStore = 3, ///< the store could not be opened or written
};

/// Makes the note "Groceries", watches it, and waits until another process has changed it.
ExitCode runApplication();
/// Waits for that note and adds a line to it.
ExitCode runExtension();
/// Prints how much of the note is still to be done.
ExitCode runWidget();

} // namespace tarn::sharedstore
