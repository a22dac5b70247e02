#pragma once

/// The bus of the user's session.
namespace sessionbus {

/// Keeps the program from a bus that takes connections and says nothing, as one does whose process is held or stuck: the
/// toolkit and the libraries below would wait for it without end. The program then goes without a bus until it starts anew,
/// and so do programs that it opens. To be called ahead of the application object, which may connect; waits for a second at
/// most, and for some milliseconds where all is well. Main thread.
void passOverSilentOne();

} // namespace sessionbus
