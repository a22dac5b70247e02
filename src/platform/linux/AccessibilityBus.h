#pragma once

#include <QDBusConnection>

/// The bus of assistive technology, which the session's bus tells of.
namespace accessibilitybus {

/// Keeps the toolkit from a bus that takes connections and says nothing, as one does whose process is held or stuck: the
/// toolkit would connect to it on the main thread and wait without end. Such a bus is left out until the program starts
/// anew. Asks nothing where assistive technology is not in use. To be called before the event loop first turns; waits for a
/// second at most, and for about a millisecond where all is well. Main thread.
void passOverSilentOne(const QDBusConnection &session);

/// Lets the program outlive a bus that ends while the toolkit asks it something: the library below calls that a fault of
/// ours and would end the process. Programs that are opened inherit it. To be called ahead of the application object.
void outlive();

} // namespace accessibilitybus
